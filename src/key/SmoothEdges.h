#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Softens the key's edges in the full-resolution result: across each step of the key's alpha (the alpha bytes of
/// the background's full buffer) the colour becomes a straight ramp between the mean colours of its two sides.
/// Writes colour bytes only. Does nothing with `bOutputTransparency`. A superseded run leaves some edges as they
/// were; by default nothing interrupts it.
void SmoothHiResEdges(SystemInfo& info, const RunContext& run = {});

}  // namespace tavrin
