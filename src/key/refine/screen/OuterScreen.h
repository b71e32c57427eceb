#pragma once

#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Mask.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// The screen as it is around the subject, drawn on to behind it: what the key took for screen within the subject,
/// such as cloth, has no say in it.
struct OuterScreen {
    int size = 1;     ///< of the cells, in pixels
    Cells look;       ///< what the picture has: means of the channels, in roles, and the sum of their variances
    Cells behind;     ///< what the screen would have, the three channels
    Cells screen;     ///< the key's screen, as shares
    float noise = 0;  ///< the middle variance of its cells

    /// How far the channels beside the screen's are in a cell from what the light of the screen's channel makes of
    /// the plate, the larger of both, in levels: next to nothing on any shade of the screen.
    float strangeness(std::size_t cell) const;
};

/// Begins with the largest area of the screen whose colour changes little by little, and adds what has the same hue.
/// @param screen what the key takes for screen
OuterScreen findOuterScreen(const RunContext& context, const Shot& shot, const Mask& screen, int size);

}  // namespace tavrin::refine
