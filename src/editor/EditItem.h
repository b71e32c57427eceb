#pragma once

#include <cstdint>

namespace tavrin {

/// What a person can do in the editor, and what is recorded of it. The numbers are those of recordings and of files.
enum EditKind : std::int64_t {
    kMouseDown = 1,  ///< x, y in points of the view, y upward
    kMouseUp = 2,
    kMouseDragged = 3,        ///< x, y
    kBrushChosen = 10,        ///< character of the panel button
    kBrushSliders = 20,       ///< tool's own, radius, hardness, transparency; each 0 to 100
    kColorWell = 30,          ///< red, green, blue
    kColorPicked = 31,        ///< the same, from the picture
    kSelectColorPicked = 32,  ///< the same, for the selection
    kCheckBox = 40,           ///< state
    kSelectCheckBox = 41,     ///< state, of the selection's
    kSelectionChanged = 50,   ///< slider, tolerance (0 to 100), `iSelectionMode`, `bSelected`
    kKeyPressed = 100,        ///< mouse x, mouse y, character
    kRedo = 200,
    kUndo = 201,
    kZoomIn = 202,
    kZoomHome = 203,
    kRadiusScale = 300,  ///< two heights of pictures, from 1: stamps become the first over the second as large
    // How a visit found what only strokes of an earlier one can have set.
    kVisit = 301,  ///< the editor was left and entered again, with the tools of the program's start
    kSelectionFound =
        302,              ///< `iSelectionMode`, tolerance, colour, its tool's own colour (0xRRGGBB); selects nothing
    kAnchor = 303,        ///< x, y from the upper left, thousandths of a point at home zoom; -1, -1 for none
    kAnchorOffset = 304,  ///< way from a pixel to the one that "Copy" takes, in the same
};

/// One command of the editor, as a recording holds it. Values that a kind has no use for are 0.
struct EditItem {
    std::int64_t kind = 0, V1 = 0, V2 = 0, V3 = 0, V4 = 0;

    bool operator==(const EditItem&) const = default;
};
static_assert(sizeof(EditItem) == 40, "a recording is a block of these");

/// Parts of a point of the view in which a recording has the anchor of "Copy", so that its pixel comes back.
inline constexpr double kAnchorSteps = 1000.0;

/// What a recording can hold; later items are not recorded.
inline constexpr std::int32_t kMostEditItems = 5000;

}  // namespace tavrin
