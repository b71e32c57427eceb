#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tavrin {

/// Truncates a colour value to a byte, holding it within 0 to 255. Every write of a computed colour goes here.
/// What is no number becomes 0.
inline std::uint8_t toByte(double value) {
    return static_cast<std::uint8_t>(value >= 255.0 ? 255 : value > 0.0 ? static_cast<int>(value) : 0);
}

/// The value, or the lower limit where it is below it or no number.
inline double atLeast(double value, double low) {
    return value >= low ? value : low;
}

/// The value held within the limits; what is no number becomes the lower one.
inline double clampTo(double value, double low, double high) {
    return value >= low ? (value > high ? high : value) : low;
}

/// Truncates a difference of colour measures to a whole number, within 10,000 either way, so that its square fits
/// an int; what is no number becomes the lower limit.
inline int wholeSteps(double difference) {
    return static_cast<int>(clampTo(difference, -10'000.0, 10'000.0));
}

/// A colour with doubles on the 0 to 255 scale, in real channels or in roles.
struct Rgb {
    double r, g, b;
};

inline double largestOf(const Rgb& c) {
    return std::max({c.r, c.g, c.b});
}

/// How far two colours lie apart.
inline double distance(const Rgb& a, const Rgb& b) {
    const double r = a.r - b.r, g = a.g - b.g, bl = a.b - b.b;
    return std::sqrt(r * r + g * g + bl * bl);
}

/// The engine's colour conversion: hue in degrees (0 to below 360), saturation 0 to 1, value on the scale of the
/// input; `delta` is the difference between the largest and the smallest channel. Grey has hue and saturation 0.
inline void rgb_to_hsv(double& h, double& s, double& v, double& delta, double r, double g, double b) {
    const double mx = std::max({r, g, b});
    const double mn = std::min({r, g, b});
    const double d = mx - mn;
    delta = d;
    v = mx;
    if (d == 0.0) {
        s = 0.0;
        h = 0.0;
        return;
    }
    s = d / mx;
    // The offsets of 180 cancel; leaving them out would change the last bit.
    const double dR = (mx - r) * 60.0 / d + 180.0;
    const double dG = (mx - g) * 60.0 / d + 180.0;
    const double dB = (mx - b) * 60.0 / d + 180.0;
    if (mx == r) {
        h = dB - dG;
    } else if (mx == g) {
        h = dR + 120.0 - dB;
    } else {
        h = dG + 240.0 - dR;
    }
    if (h < 0.0) h += 360.0;
    if (h >= 360.0) h -= 360.0;
}

/// One step of the hue-keeping limiter: where `c` is above 255 the other two are scaled down with it.
inline void limitChannel(double& c, double& other1, double& other2) {
    if (c > 255.0) {
        const double scale = 255.0 / c;
        other1 *= scale;
        other2 *= scale;
        c = 255.0;
    }
}

}  // namespace tavrin
