#pragma once

#include <cstdint>

#include "core/raster/Pixels.h"
#include "key/pixel/KeyedRun.h"

namespace tavrin {

/// What lies around pixels side by side in a row: for each the sums of the 5 x 5 block around it without itself, as
/// far as it lies in the picture, channel by channel as stored, and the number of pixels in it.
struct NeighbourSums {
    alignas(64) std::int32_t r[KeyedRun::kMaxPixels], g[KeyedRun::kMaxPixels], b[KeyedRun::kMaxPixels];
    alignas(64) std::int32_t pixels[KeyedRun::kMaxPixels];
};

/// Sums up around `count` pixels from (x, y) on, all of them in the picture. Alphas are not read. The last vector's
/// places beyond the pixels become 0.
void sumNeighbours(ConstPixelView picture, int x, int y, int count, NeighbourSums& around);

}  // namespace tavrin
