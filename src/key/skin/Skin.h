#pragma once

#include <bitset>
#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Measures the skin colour of an RGBA picture (rows packed) into the `SkinColor` part of `info`. With
/// `bComputeSkinColor` off only the defaults are stored. `ignored` is ignored.
void ComputeSkinColor(SystemInfo& info, int ignored, const std::uint8_t* rgba, int width, int height);

/// Whether a colour, 0 to 255 in real channels, is skin by the last measurement; with `bComputeSkinColor` off, by
/// the fixed limits alone.
bool isSkin(const SystemInfo& info, double r, double g, double b);

/// Stores the defaults in `skin` and, if `measure` is set, the measurement of the picture over them.
void measureSkin(SkinColor& skin, bool measure, const std::uint8_t* rgba, int width, int height);

/// The test of `isSkin` with what is constant in a run worked out once.
class SkinTest {
  public:
    /// @param measured whether the matrix of `skin` decides, or the fixed limits alone
    SkinTest(const SkinColor& skin, bool measured);

    bool operator()(double r, double g, double b) const;

  private:
    static constexpr int kSide = SkinColor::kMatrixSide;
    bool measured_;
    std::bitset<kSide * kSide> near_;  // hue and saturation within 6 of an often seen one
};

}  // namespace tavrin
