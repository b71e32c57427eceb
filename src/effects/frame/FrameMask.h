#pragma once

#include <algorithm>
#include <cstdint>

#include "core/raster/ColorMath.h"
#include "core/raster/Pixels.h"
#include "core/state/ImageFrame.h"

namespace tavrin {

// What the shapes of a frame share: see FrameShapes.h for the mask.

inline void setWhite(std::uint8_t* pixel) {
    pixel[0] = pixel[1] = pixel[2] = 255;
}

/// A line that no fill has turned white.
inline bool isLine(const std::uint8_t* pixel) {
    return pixel[0] == 255 && pixel[2] == 0;
}

/// Truncates a position, held near enough that sums of a few still fit an int and far beyond any picture.
inline int truncatedPosition(double value) {
    return static_cast<int>(clampTo(value, -1e8, 1e8));
}

/// The frame's thickness in pixels, `iFrameThickness` percent of the shorter side; 0 where it comes to less than one.
inline int frameThickness(const ImageFrame& frame, int width, int height) {
    const std::int64_t product = std::int64_t{frame.iFrameThickness} * std::min(width, height);
    return product < 100 ? 0 : truncatedPosition(static_cast<double>(product / 100));
}

}  // namespace tavrin
