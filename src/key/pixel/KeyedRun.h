#pragma once

#include <cstdint>

#include "core/raster/Pixels.h"

namespace tavrin {

/// Some pixels side by side in one row on their way through the key, each channel in an array of its own so that
/// they fill vectors. What lies beyond `count` is padding for the last vector. Colours in roles.
struct KeyedRun {
    static constexpr int kMaxPixels = 128;  ///< a multiple of every vector

    int x = 0, y = 0;                                 ///< the first pixel
    int count = 0;                                    ///< 1 to kMaxPixels
    alignas(64) std::int32_t foreground[kMaxPixels];  ///< RGBA, red in the lowest byte
    alignas(64) std::int32_t background[kMaxPixels];
    alignas(64) double r[kMaxPixels], g[kMaxPixels], b[kMaxPixels];  ///< recovered colour; may exceed 255
    alignas(64) double alpha[kMaxPixels];                            ///< share of the subject, 0 to 1
    alignas(64) double largest[kMaxPixels];                          ///< largest channel of the white balanced pixel
    alignas(64) double lift[kMaxPixels];                             ///< how far a pixel is from dark and grey
    alignas(64) double hardBackground[kMaxPixels];  ///< 1 where nothing may bring the subject back, else 0

    /// The foreground's bytes of pixel `i`.
    const std::uint8_t* foregroundBytes(int i) const { return reinterpret_cast<const std::uint8_t*>(foreground + i); }
};

}  // namespace tavrin
