#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tavrin {

/// A colour of bytes as the selection compares it, each cut off to whole steps: hue in degrees (0 to 359), saturation
/// in hundredths (0 to 100), half of the value (0 to 127).
struct ColorSteps {
    std::uint16_t h = 0;
    std::uint8_t s = 0, v = 0;
};

/// Finds the steps of colours in tables, which hold what `toHsv` says.
class ColorStepTables {
  public:
    /// The only ones; they are made at the first call.
    static const ColorStepTables& get();

    ColorSteps of(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const;

  private:
    ColorStepTables();

    std::vector<std::uint16_t> hues_;        // by the sector of the hue, and where the middle channel lies in it
    std::vector<std::uint8_t> saturations_;  // by the largest and the smallest channel
};

}  // namespace tavrin
