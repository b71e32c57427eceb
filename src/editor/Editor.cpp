#include "editor/Editor.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

Editor::Editor(SystemInfo& info, std::filesystem::path undoFolder)
    : recording(info), undoFiles(std::move(undoFolder)), info_(info) {}

EditMessage Editor::EnterEditorMode() {
    if (bShowCursor) return {};
    bShowCursor = true;
    if (EditMessage problem = enterPicture(); !problem.isEmpty()) return problem;
    strokes = strokesInside = 0;
    recording.moveAside();
    return {};
}

EditMessage Editor::enterPicture() {
    key_.reset();
    painter_.reset();
    if (!pixels_.enter(info_)) return {EditSays::noPicture};
    selection.beginVisit();
    if (!info_.sSilhouetteFileName.load().empty() && info_.bOutputSilhouette && info_.silhouettePicture.isNull())
        return {EditSays::noSilhouette};
    key_.emplace(info_);
    painter_.emplace(pixels_, *key_);
    pixels_.TakeSnapShot();
    undoFiles.begin();
    playedScale_ = 1.0;
    strokeMet_ = true;
    return {};
}

void Editor::ExitEditorMode() {
    bShowCursor = false;
    undoFiles.clear();
    undoFiles.canUndo = undoFiles.canRedo = false;
    info_.bHaveGallery = false;
    info_.bHaveAdjGallery = false;
}

void Editor::setScreenZoom(double home) {
    homeZoom_ = dScreenZoom = home;
    dZoom = 1.0;
}

EditedRows Editor::DeselectColorRange() {
    if (!key_ || !selection.DeselectColorRange(pixels_)) return {};
    painter_->beginStroke();
    return {0, pixels_.iHeight};
}

EditedRows Editor::SelectColorRange() {
    if (!key_ || !selection.SelectColorRange(pixels_, *key_, oBrushInfo[kSelection].bCheckBoxValue)) return {};
    painter_->beginStroke();
    return {0, pixels_.iHeight};
}

EditedRows Editor::apply(const EditItem& item, EditOrigin origin) {
    changed_ = {};
    if (origin == EditOrigin::live) {
        actLive(item);
    } else {
        act(item);
    }
    return changed_;
}

// What a person's hand does beyond the item itself. Items are recorded before they change anything, and what is
// recorded is what is done, so that a replay comes to the same picture.
void Editor::actLive(const EditItem& item) {
    const bool selects = iActiveButton == kSelection;
    const auto slider = std::llround(active().dBrushSlider * 100.0);
    EditItem box = item;
    switch (item.kind) {
        case kMouseDown:
            if (!bShowCursor) return;
            picks_ = bSelectColorMode_;
            if (!picks_) record(item);
            break;
        case kMouseDragged:
            if (!bShowCursor || picks_ || (item.V1 == iMousePosX && item.V2 == iMousePosY)) return;
            record(item);
            break;
        case kMouseUp:
        case kRedo:
        case kUndo:
        case kZoomIn:
        case kZoomHome:
            if (bShowCursor) record(item);
            break;
        case kBrushSliders:
            if (selects) changeSelectionLive(item.V1, selection.iSelectionMode);
            record(item);
            break;
        case kCheckBox:
        case kSelectCheckBox:
            if (selects) changeSelectionLive(slider, selection.iSelectionMode);
            box.kind = selects ? kSelectCheckBox : kCheckBox;
            record(box);
            act(box);
            return;
        case kSelectionChanged:
            changeSelectionLive(item.V1, item.V3);
            return;
        default:
            record(item);
            break;
    }
    act(item);
}

void Editor::act(const EditItem& item) {
    if (painter_ && item.kind != kMouseDragged) painter_->beginStroke();
    const Point mouse{static_cast<std::int32_t>(item.V1), static_cast<std::int32_t>(item.V2)};
    switch (item.kind) {
        case kMouseDown:
            iMousePosX = mouse.x;
            iMousePosY = mouse.y;
            mouseDownReplay();
            break;
        case kMouseUp:
            mouseUpReplay();
            break;
        case kMouseDragged:
            mouseDrageReplay(mouse);
            break;
        case kBrushChosen:
            selectBrushRedu(item.V1);
            break;
        case kBrushSliders:
            editSliderChangeRedue(item);
            break;
        case kColorWell:
        case kColorPicked:
            setWell(item);
            break;
        case kSelectColorPicked:
            setWell(item);
            updateSelectColor();
            break;
        case kCheckBox:
            active().bCheckBoxValue = item.V1 != 0;
            break;
        case kSelectCheckBox:
            active().bCheckBoxValue = item.V1 != 0;
            updateSelectColor();
            break;
        case kSelectionChanged:
            selection.iSelectionMode = item.V3;
            selection.bSelected = item.V4 != 0;
            changeSelectionRedue(item.V1, item.V2);
            break;
        case kKeyPressed:
            keyDownReplay(item.V3, mouse);
            break;
        case kRedo:
            redo();
            break;
        case kUndo:
            undo();
            break;
        case kZoomIn:
            dZoom += 0.1;
            dScreenZoom = homeZoom_ / dZoom;
            break;
        case kZoomHome:
            dZoom = 1.0;
            dScreenZoom = homeZoom_;
            break;
        case kRadiusScale:
            playedScale_ = static_cast<double>(item.V1) / static_cast<double>(item.V2);
            break;
        case kVisit:
            enterAgain();
            break;
        case kSelectionFound:
            putSelection(item);
            break;
        case kAnchor:
        case kAnchorOffset:
            putAnchor(item);
            break;
        default:
            break;
    }
}

bool Editor::OnReplayTimer(EditedRows& changed) {
    changed = {};
    if (recording.savedCount() == 0) return false;
    if (iReplayIndex_ == 0) {
        copySettings(oBrushInfo, recording.oBrushInfoReplaySaveSettings);
        iActiveButton = recording.iReplayiActiveButton;
    }
    for (int i = 0; i < kItemsPerTick; ++i) {
        const EditItem item = recording.savedItem(iReplayIndex_);
        record(item);  // so that the replay can itself be replayed
        const EditedRows rows = apply(item, EditOrigin::replay);
        changed.add(rows.first, rows.last);
        if (++iReplayIndex_ >= recording.savedCount()) return false;
    }
    return true;
}

void Editor::setWell(const EditItem& color) {
    active().setColor(static_cast<std::uint8_t>(color.V1), static_cast<std::uint8_t>(color.V2),
                      static_cast<std::uint8_t>(color.V3));
    well_ = active();
}

void Editor::selectBrushRedu(std::int64_t key) {
    const int brush = brushOfKey(key);
    if (brush >= 0) iActiveButton = brush;
}

void Editor::editSliderChangeRedue(const EditItem& sliders) {
    const auto share = [](std::int64_t slider) { return static_cast<double>(slider) / 100.0; };
    active().dBrushSlider = share(sliders.V1);
    active().dRadius = share(sliders.V2);
    active().dHardness = share(sliders.V3);
    active().dTransparency = share(sliders.V4);
}

// The panel has one slider for both.
void Editor::changeSelectionLive(std::int64_t slider, std::int64_t mode) {
    const EditItem item{kSelectionChanged, slider, slider, mode, selection.bSelected};
    record(item);
    act(item);
}

void Editor::changeSelectionRedue(std::int64_t slider, std::int64_t tolerance) {
    active().dBrushSlider = static_cast<double>(slider) / 100.0;
    selection.dSelectTolerance = static_cast<double>(tolerance) / 100.0;
    selectAgain();
}

void Editor::updateSelectColor() {
    selection.iSelectRed = active().red;
    selection.iSelectGreen = active().green;
    selection.iSelectBlue = active().blue;
    selectAgain();
}

void Editor::selectAgain() {
    if (!isReady()) return;
    const bool stood = selection.DeselectColorRange(pixels_);
    const bool stands = selection.SelectColorRange(pixels_, *key_, oBrushInfo[kSelection].bCheckBoxValue);
    if (stood || stands) changedAll();
}

void Editor::undo() {
    if (isReady() && undoFiles.undo(pixels_)) writeSnapShotBack();
}

void Editor::redo() {
    if (isReady() && undoFiles.redo(pixels_)) writeSnapShotBack();
}

// A selection is worked out anew on the changed picture.
void Editor::writeSnapShotBack() {
    const EditedRows rows = pixels_.putAllBack();
    changed_.add(rows.first, rows.last);
    if (selection.bSelected) selectAgain();
}

}  // namespace tavrin
