#pragma once

#include "key/refine/Cells.h"
#include "key/refine/Shot.h"

namespace tavrin::refine {

/// Means of the three channels, in roles, and the sum of their variances, on cells of `size` pixels.
Cells lookAtCells(const RunContext& context, const Shot& shot, int size);

}  // namespace tavrin::refine
