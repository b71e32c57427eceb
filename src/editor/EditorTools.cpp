// The part of the editor that tells and puts how its tools stand, from visit to visit.
#include <cmath>

#include "editor/Editor.h"

namespace tavrin {

EditTools Editor::tools() const {
    return {oBrushInfo,
            iActiveButton,
            well_,
            selection,
            {dAnchorOrgX, dAnchorOrgY, dAnchorOffsetX, dAnchorOffsetY, bAnchorFirstTime_}};
}

void Editor::putTools(const EditTools& tools) {
    iActiveButton = tools.iActiveButton;
    well_ = tools.well;
    static_cast<SelectionSource&>(selection) = tools.selection;
    dAnchorOrgX = tools.anchor.orgX;
    dAnchorOrgY = tools.anchor.orgY;
    dAnchorOffsetX = tools.anchor.offsetX;
    dAnchorOffsetY = tools.anchor.offsetY;
    bAnchorFirstTime_ = tools.anchor.isFresh;
}

// The tools are those of the start of the program, and items behind it bring them where they stood. A stroke that
// nobody ended is ended by it, the pattern of a selection that stands becomes part of the picture, and
// the key sees its first pixel anew: as it was when a hand did it.
void Editor::enterAgain() {
    if (!isReady()) return;
    undoFiles.clear();
    static_cast<void>(enterPicture());
    setScreenZoom(homeZoom_);
    oBrushInfo = makeBrushTable();
    putTools(EditTools());
}

// Nothing is selected then: a visit begins so.
void Editor::putSelection(const EditItem& found) {
    if (isReady() && selection.DeselectColorRange(pixels_)) changedAll();
    const auto channel = [](std::int64_t color, int shift) {
        return static_cast<std::uint8_t>(color >> shift & 255);
    };
    selection.iSelectionMode = found.V1;
    selection.dSelectTolerance = static_cast<double>(found.V2) / 100.0;
    selection.iSelectRed = channel(found.V3, 16);
    selection.iSelectGreen = channel(found.V3, 8);
    selection.iSelectBlue = channel(found.V3, 0);
    oBrushInfo[kSelection].setColor(channel(found.V4, 16), channel(found.V4, 8), channel(found.V4, 0));
}

void Editor::putAnchor(const EditItem& place) {
    const auto pixels = [this](std::int64_t v) {
        return std::round(static_cast<double>(v) / kAnchorSteps * homeZoom_);
    };
    if (place.kind == kAnchorOffset) {
        dAnchorOffsetX = pixels(place.V1);
        dAnchorOffsetY = pixels(place.V2);
        bAnchorFirstTime_ = false;
        return;
    }
    const bool isSet = place.V1 >= 0;
    dAnchorOrgX = isSet ? pixels(place.V1) : -1.0;
    dAnchorOrgY = isSet ? pixels(place.V2) : -1.0;
    dAnchorOffsetX = dAnchorOffsetY = 0.0;
    bAnchorFirstTime_ = isSet;
}

}  // namespace tavrin
