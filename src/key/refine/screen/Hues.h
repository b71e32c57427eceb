#pragma once

#include <array>

namespace tavrin::refine {

/// Three channels in roles.
using Color = std::array<float, 3>;

float dot(const Color& a, const Color& b);
/// What is left of a difference's squared length when what goes along a direction is taken off.
float leftOver(const Color& difference, const Color& along);

/// How far a colour may be from a dye: squared sines of the angle between them, at most `most`, and at most this
/// share of the screen's.
struct HueLimits {
    float most, share;
};
inline constexpr HueLimits kCellHue{0.015f, 0.15f}, kPixelHue{0.03f, 0.25f}, kLitHue{0.03f, 0.33f};

/// Colours of one hue, light and dark. Sums over cells.
struct Dye {
    double cells = 0.0, strangeness = 0.0, hue = 0.0, haze = 0.0;
    Color color{};

    void add(const Color& own, const Color& behind, float strange);
    /// No haze over the screen, nor the screen's light on grey, looks like that.
    bool isOwn() const;
    /// Whether a colour before that screen is the dye rather than the screen.
    bool has(const Color& own, const Color& behind, const HueLimits& limits) const;
};

}  // namespace tavrin::refine
