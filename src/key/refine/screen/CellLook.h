#pragma once

#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// Means of the three channels, in roles, and the sum of their variances, on cells of `size` pixels.
Cells lookAtCells(const RunContext& context, const Shot& shot, int size);

}  // namespace tavrin::refine
