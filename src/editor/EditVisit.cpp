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

}  // namespace

// Colours come with the well alone: once it is set every stamp takes its colour from there, and before that the tools
// have their first ones.
std::vector<EditItem> itemsTo(const EditVisit& wanted, const EditVisit& from) {
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
            items.push_back({brush == kSelection ? kSelectCheckBox : kCheckBox, after.bCheckBoxValue});
        }
    }
    choose(wanted.iActiveButton);
    if (wanted.well) items.push_back({kColorWell, wanted.well->red, wanted.well->green, wanted.well->blue});
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
        if (file.items.empty()) {
            file.items = itemsTo(visit, EditVisit());
        } else {
            file.items.push_back({kZoomHome});  // with which every visit begins
        }
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
