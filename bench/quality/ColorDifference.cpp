#include "quality/ColorDifference.h"

#include <cmath>
#include <numbers>

namespace tavrin::quality {

namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

double linear(double level) {
    const double value = level / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// The curve of the lightness, straight near black.
double curve(double ratio) {
    constexpr double kEdge = 6.0 / 29.0;
    return ratio > kEdge * kEdge * kEdge ? std::cbrt(ratio) : ratio / (3.0 * kEdge * kEdge) + 4.0 / 29.0;
}

/// Degrees, 0 to 360; 0 for a grey.
double hueOf(double a, double b) {
    if (a == 0.0 && b == 0.0) return 0.0;
    const double hue = std::atan2(b, a) / kDegree;
    return hue < 0.0 ? hue + 360.0 : hue;
}

double seventhPower(double value) {
    return std::pow(value, 7.0);
}

/// Part of the chroma that counts in the seventh root: nearly 0 for greys, nearly 1 for strong colours.
double strength(double chroma) {
    return std::sqrt(seventhPower(chroma) / (seventhPower(chroma) + seventhPower(25.0)));
}

/// Chroma and hue after the stretch of the green-red axis, which moves greys apart.
struct Stretched {
    double chroma = 0.0, hue = 0.0;
};

Stretched stretched(const Lab& color, double factor) {
    const double a = color.a * factor;
    return {std::hypot(a, color.b), hueOf(a, color.b)};
}

/// From one hue to the other the short way, degrees; 0 where one is a grey.
double hueStep(const Stretched& one, const Stretched& other) {
    if (one.chroma * other.chroma == 0.0) return 0.0;
    const double step = other.hue - one.hue;
    return step > 180.0 ? step - 360.0 : step < -180.0 ? step + 360.0 : step;
}

/// In the middle of the short way; a grey leaves the other's hue.
double middleHue(const Stretched& one, const Stretched& other) {
    const double sum = one.hue + other.hue;
    if (one.chroma * other.chroma == 0.0) return sum;
    if (std::abs(one.hue - other.hue) <= 180.0) return sum / 2.0;
    return (sum < 360.0 ? sum + 360.0 : sum - 360.0) / 2.0;
}

}  // namespace

Lab labOf(const std::array<double, 3>& rgb) {
    const double red = linear(rgb[0]), green = linear(rgb[1]), blue = linear(rgb[2]);
    const double x = curve((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
    const double y = curve(0.2126729 * red + 0.7151522 * green + 0.0721750 * blue);
    const double z = curve((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

double colorDifference(const Lab& one, const Lab& other) {
    const double plainChroma = (std::hypot(one.a, one.b) + std::hypot(other.a, other.b)) / 2.0;
    const double stretch = 1.0 + 0.5 * (1.0 - strength(plainChroma));
    const Stretched first = stretched(one, stretch), second = stretched(other, stretch);
    const double chroma = (first.chroma + second.chroma) / 2.0, hue = middleHue(first, second);
    const double chromaStep = second.chroma - first.chroma;
    const double hueChord =
        2.0 * std::sqrt(first.chroma * second.chroma) * std::sin(hueStep(first, second) / 2.0 * kDegree);

    const double t = 1.0 - 0.17 * std::cos((hue - 30.0) * kDegree) + 0.24 * std::cos(2.0 * hue * kDegree) +
                     0.32 * std::cos((3.0 * hue + 6.0) * kDegree) - 0.20 * std::cos((4.0 * hue - 63.0) * kDegree);
    const double fromMiddle = (one.l + other.l) / 2.0 - 50.0, fromBlue = (hue - 275.0) / 25.0;
    const double lightness =
        (other.l - one.l) / (1.0 + 0.015 * fromMiddle * fromMiddle / std::sqrt(20.0 + fromMiddle * fromMiddle));
    const double colorfulness = chromaStep / (1.0 + 0.045 * chroma), tint = hueChord / (1.0 + 0.015 * chroma * t);
    const double turn = -std::sin(60.0 * std::exp(-fromBlue * fromBlue) * kDegree) * 2.0 * strength(chroma);
    return std::sqrt(lightness * lightness + colorfulness * colorfulness + tint * tint + turn * colorfulness * tint);
}

}  // namespace tavrin::quality
