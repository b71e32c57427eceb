#include "editor/EditRules.h"

#include <algorithm>
#include <iterator>

namespace tavrin {

namespace {

// A value that a kind needs, and its bounds. Positions end far outside of every picture, so that a line to one of
// them is still walked in no time.
struct Value {
    const char* name;
    std::int64_t low, high;
};
constexpr Value kX = {"x", -100'000, 100'000}, kY = {"y", -100'000, 100'000};
constexpr Value kCharacter = {"the character", 0, 255}, kState = {"the state", 0, 1};
constexpr Value kRed = {"red", 0, 255}, kGreen = {"green", 0, 255}, kBlue = {"blue", 0, 255};
constexpr Value kThisHeight = {"the height", 1, 1'000'000'000}, kThatHeight = {"the other height", 1, 1'000'000'000};

struct Rule {
    std::int64_t kind;
    const char* name;
    int needed;
    Value values[4];
};

constexpr Rule kRules[] = {
    {kMouseDown, "mouse down", 2, {kX, kY}},
    {kMouseUp, "mouse up", 0, {}},
    {kMouseDragged, "mouse dragged", 2, {kX, kY}},
    {kBrushChosen, "brush", 1, {kCharacter}},
    {kBrushSliders,
     "sliders of the brush",
     4,
     {{"the slider", 0, 100}, {"the radius", 0, 100}, {"the hardness", 0, 100}, {"the transparency", 0, 100}}},
    {kColorWell, "colour", 3, {kRed, kGreen, kBlue}},
    {kColorPicked, "colour from the picture", 3, {kRed, kGreen, kBlue}},
    {kSelectColorPicked, "colour of the selection", 3, {kRed, kGreen, kBlue}},
    {kCheckBox, "check box", 1, {kState}},
    {kSelectCheckBox, "check box of the selection", 1, {kState}},
    {kSelectionChanged,
     "selection",
     4,
     {{"the slider", 0, 100}, {"the tolerance", 0, 100}, {"the source", 0, 4}, kState}},
    {kKeyPressed, "key", 3, {kX, kY, kCharacter}},
    {kRedo, "redo", 0, {}},
    {kUndo, "undo", 0, {}},
    {kZoomIn, "zoom in", 0, {}},
    {kZoomHome, "zoom home", 0, {}},
    {kRadiusScale, "scale of the radius", 2, {kThisHeight, kThatHeight}},
};

const Rule* ruleOf(std::int64_t kind) {
    const auto found =
        std::find_if(std::begin(kRules), std::end(kRules), [=](const Rule& r) { return r.kind == kind; });
    return found == std::end(kRules) ? nullptr : found;
}

}  // namespace

std::string nameOfKind(std::int64_t kind) {
    const Rule* rule = ruleOf(kind);
    return rule ? rule->name : "";
}

std::string whyNoItem(const EditItem& item, int values) {
    const Rule* rule = ruleOf(item.kind);
    if (!rule) return "";
    const std::string begin = std::to_string(item.kind) + " (" + rule->name + ") ";
    if (values < rule->needed)
        return begin + "takes " + std::to_string(rule->needed) + (rule->needed == 1 ? " value" : " values");
    const std::int64_t given[] = {item.V1, item.V2, item.V3, item.V4};
    for (int i = 0; i < rule->needed; ++i) {
        const Value& value = rule->values[i];
        if (given[i] >= value.low && given[i] <= value.high) continue;
        return begin + "has " + value.name + " " + std::to_string(given[i]) + ", and it goes from " +
               std::to_string(value.low) + " to " + std::to_string(value.high);
    }
    return "";
}

}  // namespace tavrin
