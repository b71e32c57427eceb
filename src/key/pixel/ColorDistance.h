#pragma once

#include <cmath>
#include <cstdlib>

#include "core/raster/ColorMath.h"

namespace tavrin {

/// A colour as hue (degrees), saturation (0 to 1) and value (0 to 255).
struct HsvColor {
    double h, s, v;
};

inline HsvColor toHsv(double r, double g, double b) {
    HsvColor color;
    double delta;
    rgb_to_hsv(color.h, color.s, color.v, delta, r, g, b);
    return color;
}

/// How much two colours differ to the green guard: hue counts double, value a quarter, all in whole steps.
inline double colorDistance(const HsvColor& a, const HsvColor& b) {
    int dH = std::abs(wholeSteps(a.h - b.h));
    if (dH >= 181) dH = 360 - dH;
    const int dS = std::abs(wholeSteps(100.0 * a.s - 100.0 * b.s));
    const int dV = std::abs(wholeSteps(a.v - b.v)) >> 2;
    return std::sqrt(dS * dS + 4 * dH * dH + dV * dV);
}

}  // namespace tavrin
