#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Blurs a buffer (RGBA, `width` * `height`) in place with a separable window that keeps strong edges.
///
/// The window reaches n = max(dpi * radius, 1) pixels to either side, `radius` in inches, so a blur is the same on
/// paper at every resolution; its weights fall with the square of the distance. A pixel takes its blurred colour
/// only if its red and green together change by less than `threshold`; 10000 lets every pixel pass. Alpha stays.
/// When the state is stale at the start the result is meaningless, as the next pass replaces it. A superseded run
/// leaves a part of the pixels as they were; by default nothing interrupts it.
void BlurBitmap(SystemInfo& info, std::uint8_t* buffer, int width, int height, int dpi, int threshold, double radius,
                const RunContext& run = {});

}  // namespace tavrin
