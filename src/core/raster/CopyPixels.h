#pragma once

#include <cstdint>

#include "core/raster/Rows.h"

namespace tavrin {

/// Copies a picture of four bytes a pixel, rows packed, on all cores.
/// @return false when the run was superseded, so that some rows are missing
bool copyPixels(const RunContext& run, const std::uint8_t* from, std::uint8_t* to, int width, int height);

}  // namespace tavrin
