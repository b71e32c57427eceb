#pragma once

#include <array>
#include <cstdint>

namespace tavrin::quality {

/// A colour as lightness (0 to 100), green to red and blue to yellow.
struct Lab {
    double l = 0.0, a = 0.0, b = 0.0;
};

/// @param rgb levels of 0 to 255, sRGB; white is that of daylight (D65)
Lab labOf(const std::array<double, 3>& rgb);

/// The difference that people see between two colours: CIEDE2000 with all its weights at 1. About 1 can just be told
/// apart side by side.
double colorDifference(const Lab& one, const Lab& other);

}  // namespace tavrin::quality
