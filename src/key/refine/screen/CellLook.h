#pragma once

#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// Means of the three channels, in roles, and the sum of their variances, on cells of `size` pixels.
Cells lookAtCells(const RunContext& context, const Shot& shot, int size);

/// Share of a cell from which on it lies on the screen.
inline constexpr float kScreenCell = 0.9f;
/// The middle variance of the cells that do; 0 where there is none.
/// @param shares of the screen
float screenVariance(const Cells& look, const Cells& shares);

}  // namespace tavrin::refine
