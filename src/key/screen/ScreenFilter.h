#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "core/raster/Pixels.h"

namespace tavrin {

/// Which pixels may be screen, by whole numbers. The largest channel less the smallest is the span. The hue is the
/// exact one; between two whole degrees it is further from both than the rounding of `rgb_to_hsv` reaches, and a
/// whole one comes out of it as such, so that both agree on the whole degrees of every colour of bytes.
struct ScreenFilter {
    bool blue;             ///< the third byte plays green and the second blue
    int floor;             ///< channels below count as this much, 0 or 1
    int leastGreen;        ///< green is above this
    int leastSpan;         ///< the span is at least this
    int ratio;             ///< the span times this is more than the largest channel
    int firstHue, endHue;  ///< the hue is in this range, above 0 and up to 300 degrees;
    bool endToo;           ///< the end belongs to it
};

/// Keeps those of a run of RGBA pixels that pass, in their order.
/// @param kept where to put them: `count` words, and 16 more that may be overwritten; a channel in role red, after
///     the floor, in the lowest byte, then green and blue
/// @return how many
std::size_t keepScreenLike(const ScreenFilter& filter, const std::uint8_t* pixels, std::size_t count,
                           std::uint32_t* kept);

/// Calls `pixel(r, g, b)` with the channels, in roles, of each pixel that the filter keeps.
template <class Pixel>
void forScreenLike(const ScreenFilter& filter, const std::uint8_t* pixels, std::size_t count, Pixel pixel) {
    constexpr std::size_t kAtATime = 1024;
    std::array<std::uint32_t, kAtATime + 16> kept;
    for (std::size_t done = 0; done < count; done += kAtATime) {
        const std::size_t run = std::min(kAtATime, count - done);
        const std::size_t found = keepScreenLike(filter, pixels + done * kPixelBytes, run, kept.data());
        for (std::size_t i = 0; i < found; ++i)
            pixel(static_cast<int>(kept[i] & 255), static_cast<int>(kept[i] >> 8 & 255),
                  static_cast<int>(kept[i] >> 16));
    }
}

}  // namespace tavrin
