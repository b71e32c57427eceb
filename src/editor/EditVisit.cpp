#include "editor/EditVisit.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tavrin {

namespace {

std::int64_t percent(double share) {
    return std::llround(share * 100.0);
}

EditItem slidersOf(const GUI_BrushInfo& brush) {
    return {kBrushSliders, percent(brush.dBrushSlider), percent(brush.dRadius), percent(brush.dHardness),
            percent(brush.dTransparency)};
}

void addAnchor(const CopyAnchor& anchor, double zoom, std::vector<EditItem>& items) {
    const auto steps = [zoom](double pixels) { return std::llround(pixels / zoom * kAnchorSteps); };
    if (anchor.orgX < 0.0) {
        items.push_back({kAnchor, -1, -1});
        return;
    }
    items.push_back({kAnchor, steps(anchor.orgX), steps(anchor.orgY)});
    if (!anchor.isFresh) items.push_back({kAnchorOffset, steps(anchor.offsetX), steps(anchor.offsetY)});
}

}  // namespace

EditItem selectionItem(const EditTools& tools) {
    const auto packed = [](std::int64_t red, std::int64_t green, std::int64_t blue) {
        return red << 16 | green << 8 | blue;
    };
    const SelectionSource& s = tools.selection;
    const GUI_BrushInfo& tool = tools.brushes[kSelection];
    return {kSelectionFound, s.iSelectionMode, percent(s.dSelectTolerance),
            packed(s.iSelectRed, s.iSelectGreen, s.iSelectBlue), packed(tool.red, tool.green, tool.blue)};
}

// Colours come with the well alone: once it is set every stamp takes its colour from there, and before that the tools
// have their first ones.
std::vector<EditItem> itemsTo(const EditTools& wanted, const EditTools& from, double zoom) {
    std::vector<EditItem> items;
    int active = from.iActiveButton;
    const auto choose = [&](int brush) {
        if (active != brush) items.push_back({kBrushChosen, keyOfBrush(brush)});
        active = brush;
    };
    for (int brush = 0; brush < static_cast<int>(kBrushes); ++brush) {
        if (keyOfBrush(brush) == '\0') continue;
        const GUI_BrushInfo& after = wanted.brushes[static_cast<std::size_t>(brush)];
        const GUI_BrushInfo& before = from.brushes[static_cast<std::size_t>(brush)];
        if (slidersOf(after) != slidersOf(before)) {
            choose(brush);
            items.push_back(slidersOf(after));
        }
        if (after.bCheckBoxValue != before.bCheckBoxValue) {
            choose(brush);
            items.push_back({kCheckBox, after.bCheckBoxValue});  // also the selection's: nothing is selected yet
        }
    }
    choose(wanted.iActiveButton);
    if (wanted.well) items.push_back({kColorWell, wanted.well->red, wanted.well->green, wanted.well->blue});
    const bool isColored = wanted.well && wanted.iActiveButton == kSelection;  // its own colour, by the item above
    if (isColored || selectionItem(wanted) != selectionItem(from)) items.push_back(selectionItem(wanted));
    if (wanted.anchor != from.anchor) addAnchor(wanted.anchor, zoom, items);
    return items;
}

std::vector<EditItem> withScale(std::vector<EditItem> items, std::int64_t height, std::int64_t ofHeight) {
    for (EditItem& item : items) {
        if (item.kind != kRadiusScale) continue;
        item.V1 *= height;
        item.V2 *= ofHeight;
        const std::int64_t common = std::gcd(item.V1, item.V2);
        item.V1 /= common;
        item.V2 /= common;
    }
    return items;
}

CopyAnchor scaled(const CopyAnchor& anchor, double times) {
    const auto whole = [times](double pixels) { return std::round(pixels * times); };
    if (anchor.orgX < 0.0) return anchor;
    return {whole(anchor.orgX), whole(anchor.orgY), whole(anchor.offsetX), whole(anchor.offsetY), anchor.isFresh};
}

int strokesOf(const EditVisit& visit) {
    return static_cast<int>(std::ranges::count(visit.items, std::int64_t{kMouseDown}, &EditItem::kind));
}

int strokesOf(const std::vector<EditVisit>& visits) {
    int strokes = 0;
    for (const EditVisit& visit : visits)
        strokes += strokesOf(visit);
    return strokes;
}

EditFile fileOf(const std::vector<EditVisit>& visits, int width, int height, double zoom) {
    EditFile file;
    file.width = width;
    file.height = height;
    file.zoom = zoom;
    for (const EditVisit& visit : visits) {
        if (!file.items.empty()) file.items.push_back({kVisit});
        const double itsZoom = visit.height > 0 ? zoom * visit.height / height : zoom;
        const std::vector<EditItem> tools = itemsTo(visit, EditTools(), itsZoom);
        file.items.insert(file.items.end(), tools.begin(), tools.end());
        file.items.insert(file.items.end(), visit.items.begin(), visit.items.end());
    }
    const auto most = static_cast<std::size_t>(kMostEditItems);
    if (file.items.size() > most) {
        file.dropped = file.items.size() - most;
        file.items.resize(most);
    }
    return file;
}

}  // namespace tavrin
