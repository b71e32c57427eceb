#include "key/refine/screen/Hues.h"

#include <algorithm>
#include <cmath>

namespace tavrin::refine {

namespace {

constexpr double kOwn = 0.5;  // other hue, of the haze that there would be
constexpr float kFewLevels = 8.0f;

float squared(const Color& color) {
    return dot(color, color);
}

// The squared sine of the angle between two colours.
float angleOf(const Color& color, const Color& other) {
    return leftOver(color, other) / std::max(squared(color), 1.0f);
}

}  // namespace

float dot(const Color& a, const Color& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

float leftOver(const Color& difference, const Color& along) {
    const float product = dot(difference, along);
    return squared(difference) - product * product / std::max(squared(along), 1.0f);
}

void Dye::add(const Color& own, const Color& behind, float strange) {
    cells += 1.0;
    strangeness += static_cast<double>(strange);
    for (std::size_t i = 0; i < 3; ++i)
        color[i] += own[i];
    // All shades of the screen with any haze over them lie in one plane.
    const Color normal{behind[1] - behind[2], behind[2] - behind[0], behind[0] - behind[1]};
    hue += static_cast<double>(dot(normal, own) / std::sqrt(std::max(squared(normal), 1.0f)));
    const float others = (own[0] + own[2]) * 0.5f, screens = (behind[0] + behind[2]) * 0.5f;
    haze += static_cast<double>(others - screens * (own[1] - others) / std::max(behind[1] - screens, kFewLevels));
}

bool Dye::isOwn() const {
    return haze < 0.0 || std::abs(hue) > kOwn * haze;
}

bool Dye::has(const Color& own, const Color& behind, const HueLimits& limits) const {
    return angleOf(own, color) < std::min(limits.most, limits.share * angleOf(behind, color));
}

}  // namespace tavrin::refine
