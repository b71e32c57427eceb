#pragma once

#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// Side of a cell of what follows, in pixels of every picture.
inline constexpr int kUsualCell = 16;

/// How far the screen's channel of the subject usually is above the mean of its other two, as a line through them:
/// plane 0 + plane 1 r + plane 2 b, colours in roles. Blond hair, skin and red cloth have their own lead or lag, each
/// of them, and whatever an edge has beyond that came from the screen.
/// @param solid the inside; it is asked far from its edges, where next to no light of the screen comes
/// @return cells of `kUsualCell`; all 0 where there is too little of the inside to go by
Cells usualLead(const RunContext& context, const Shot& shot, const Mask& solid);

}  // namespace tavrin::refine
