#pragma once

#include <cstdint>

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
/// @return false when the run was superseded, or when memory was refused ("Memory not allocated!" on the error
///         stream); the samples are unchanged then, or partly blurred in one direction
bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint8_t>& grid, int reach);
bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint16_t>& grid, int reach);

}  // namespace tavrin
