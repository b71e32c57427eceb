#pragma once

#include <cstdint>
#include <functional>

#include "core/raster/Rows.h"

namespace tavrin {

/// Samples of a picture: `width` * `height` pixels of `pixelStep` samples each, rows packed, of which the first
/// `channels` are worked on.
template <class Sample>
struct SampleGrid {
    Sample* first;
    int width, height;
    int pixelStep = 1, channels = 1;
};

/// Blurs in place with the separable window of `QuadraticWindow.h`, rows first, each direction truncated to whole
/// numbers. A reach outside 1 to kMaxWindowReach is held there; the cost does not depend on it.
/// Throws std::bad_alloc.
/// @return false when the run was superseded; the samples are unchanged then, or partly blurred in one direction
bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint8_t>& grid, int reach);
bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint16_t>& grid, int reach);

// The two directions by themselves, for what looks at each blurred pixel before it takes it. `reach` is from 1 to
// kMaxWindowReach. They throw std::bad_alloc, and return false when the run was superseded.

/// Blurs the rows of `grid` into the same samples of `to`, which is laid out alike; its other samples stay.
bool blurRowsWithWindow(const RunContext& context, const SampleGrid<std::uint8_t>& grid, int reach, std::uint8_t* to);

/// Takes over some pixels side by side: their place in the picture, their blurred samples (all `pixelStep` of them),
/// and how many pixels they are.
using TakePixels = std::function<void(std::uint8_t* pixels, const std::uint8_t* blurred, int count)>;

/// Blurs the columns of `from`, which is laid out as `grid`, and gives every pixel of the grid to `take` once.
bool blurColumnsWithWindow(const RunContext& context, const std::uint8_t* from, const SampleGrid<std::uint8_t>& grid,
                           int reach, const TakePixels& take);

}  // namespace tavrin
