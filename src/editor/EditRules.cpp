#include "editor/EditRules.h"

#include <algorithm>
#include <iterator>

namespace tavrin {

namespace {

// A value that a kind needs, and its bounds. Positions end far outside of every picture, so that a line to one of
// them is still walked in no time.
struct Value {
    EditSays name;
    std::int64_t low, high;
};
constexpr std::int64_t kPacked = 0xFFFFFF, kFar = 100'000'000;
constexpr Value kX = {EditSays::x, -100'000, 100'000}, kY = {EditSays::y, -100'000, 100'000};
constexpr Value kCharacter = {EditSays::character, 0, 255}, kState = {EditSays::state, 0, 1};
constexpr Value kRed = {EditSays::red, 0, 255}, kGreen = {EditSays::green, 0, 255}, kBlue = {EditSays::blue, 0, 255};
constexpr Value kThisHeight = {EditSays::height, 1, 1'000'000'000},
                kThatHeight = {EditSays::otherHeight, 1, 1'000'000'000};

struct Rule {
    std::int64_t kind;
    EditSays name;
    int needed;
    Value values[4];
};

constexpr Rule kRules[] = {
    {kMouseDown, EditSays::mouseDown, 2, {kX, kY}},
    {kMouseUp, EditSays::mouseUp, 0, {}},
    {kMouseDragged, EditSays::mouseDragged, 2, {kX, kY}},
    {kBrushChosen, EditSays::brush, 1, {kCharacter}},
    {kBrushSliders,
     EditSays::sliders,
     4,
     {{EditSays::slider, 0, 100},
      {EditSays::radius, 0, 100},
      {EditSays::hardness, 0, 100},
      {EditSays::transparency, 0, 100}}},
    {kColorWell, EditSays::colour, 3, {kRed, kGreen, kBlue}},
    {kColorPicked, EditSays::pickedColour, 3, {kRed, kGreen, kBlue}},
    {kSelectColorPicked, EditSays::selectionColour, 3, {kRed, kGreen, kBlue}},
    {kCheckBox, EditSays::checkBox, 1, {kState}},
    {kSelectCheckBox, EditSays::selectionBox, 1, {kState}},
    {kSelectionChanged,
     EditSays::selection,
     4,
     {{EditSays::slider, 0, 100}, {EditSays::tolerance, 0, 100}, {EditSays::source, 0, 4}, kState}},
    {kKeyPressed, EditSays::key, 3, {kX, kY, kCharacter}},
    {kRedo, EditSays::redo, 0, {}},
    {kUndo, EditSays::undo, 0, {}},
    {kZoomIn, EditSays::zoomIn, 0, {}},
    {kZoomHome, EditSays::zoomHome, 0, {}},
    {kRadiusScale, EditSays::radiusScale, 2, {kThisHeight, kThatHeight}},
    {kVisit, EditSays::visit, 0, {}},
    {kSelectionFound,
     EditSays::selectionFound,
     4,
     {{EditSays::source, 0, 4},
      {EditSays::tolerance, 0, 100},
      {EditSays::packedColour, 0, kPacked},
      {EditSays::toolColour, 0, kPacked}}},
    {kAnchor, EditSays::anchor, 2, {{EditSays::x, -1, kFar}, {EditSays::y, -1, kFar}}},
    {kAnchorOffset, EditSays::anchorOffset, 2, {{EditSays::across, -kFar, kFar}, {EditSays::down, -kFar, kFar}}},
};

const Rule* ruleOf(std::int64_t kind) {
    const auto found =
        std::find_if(std::begin(kRules), std::end(kRules), [=](const Rule& r) { return r.kind == kind; });
    return found == std::end(kRules) ? nullptr : found;
}

}  // namespace

std::string nameOfKind(std::int64_t kind) {
    const Rule* rule = ruleOf(kind);
    return rule ? wordsOf(rule->name) : "";
}

EditMessage whyNoItem(const EditItem& item, int values) {
    const Rule* rule = ruleOf(item.kind);
    if (!rule) return {};
    const EditMessage name{EditSays::itemName, {verbatim(item.kind), {rule->name}}};
    if (values < rule->needed) {
        if (rule->needed == 1) return {EditSays::takesOne, {name}};
        return {EditSays::takesMany, {name, verbatim(rule->needed)}};
    }
    const std::int64_t given[] = {item.V1, item.V2, item.V3, item.V4};
    for (int i = 0; i < rule->needed; ++i) {
        const Value& value = rule->values[i];
        if (given[i] >= value.low && given[i] <= value.high) continue;
        return {EditSays::outOfRange,
                {name, {value.name}, verbatim(given[i]), verbatim(value.low), verbatim(value.high)}};
    }
    return {};
}

}  // namespace tavrin
