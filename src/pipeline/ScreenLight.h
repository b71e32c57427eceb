#pragma once

#include <array>

#include "pipeline/MatteMap.h"

namespace tavrin {

/// How bright a screen would be everywhere if it were smooth: a surface of second degree through what the key
/// removed. A light's fall-off follows it; creases, shadows and clothes do not.
class ScreenLight {
  public:
    /// Too few samples make it flat at 0.
    explicit ScreenLight(const MatteMap& map);

    /// Level of the screen's channel at a sample.
    double at(int x, int y) const;

  private:
    static constexpr std::size_t kTerms = 6;
    using Terms = std::array<double, kTerms>;

    Terms termsAt(int x, int y) const;
    /// @param onlyNear leaves out what lies far from the present surface
    void fit(const MatteMap& map, bool onlyNear);

    int width_, height_;
    Terms factors_{};
};

/// Whether a level is too far from the light at its place to be a smooth screen's.
bool isOffLight(double level, double light);

}  // namespace tavrin
