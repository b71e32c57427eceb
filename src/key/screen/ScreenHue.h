#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tavrin {

/// A pixel in roles, each channel 1 to 255: with 0 counted as 1 every colour has a hue, and a saturation below 1.
struct ScreenPixel {
    int r, g, b;

    bool greenLeads() const { return g > std::max(r, b); }
    int least() const { return std::min(r, b); }  ///< where green leads
    int span() const { return g - least(); }      ///< where green leads
};

/// Pixels that green leads, brought to full brightness: a channel c becomes c * 255.0 / g. That scaling rounds, so
/// what may depend on it comes from the very formulas, or from tables that they have filled.
class FullBrightness {
  public:
    static const FullBrightness& tables();

    /// Green leads both others by more than 10 levels of the pixel as it is; false where it does not lead at all.
    bool greenLeads(const ScreenPixel& p) const { return std::max(p.r, p.b) < led_[static_cast<std::size_t>(p.g)]; }

    /// Saturation in steps of 1/200, rounded down; 0 where it is not above 0.2.
    int saturationBin(const ScreenPixel& p) const {
        return bins_[static_cast<std::size_t>(p.g)][static_cast<std::size_t>(p.least())];
    }

    /// Whole degrees of the hue.
    static int wholeHue(const ScreenPixel& p);

  private:
    FullBrightness();

    std::array<int, 256> led_{};                             // by green: the least channel that it does not lead so
    std::array<std::array<std::uint8_t, 256>, 256> bins_{};  // by green and the least channel
};

/// Hues whose whole degrees are less than 5 from a peak's, for pixels that green leads. Their hues are 60 to 179, so
/// that it makes no difference how the circle closes.
class HueWindow {
  public:
    explicit HueWindow(int peak) : first(peak - 4), end(peak + 5) {}

    const int first, end;  ///< whole degrees: the first one, and that after the last one

    bool holds(const ScreenPixel& p) const {
        const int turn = turnOf(p);
        return turn >= turnAt(first, p) && turn < turnAt(end, p);
    }

    /// The same for the hue that the pixel has at full brightness.
    bool holdsFull(const ScreenPixel& p) const {
        const int turn = turnOf(p), lowest = turnAt(first, p), limit = turnAt(end, p);
        if (turn != lowest && turn != limit) return turn > lowest && turn < limit;
        const int hue = FullBrightness::wholeHue(p);  // rounding decides
        return hue >= first && hue < end;
    }

  private:
    // Degrees above 60, times the span.
    static int turnOf(const ScreenPixel& p) { return 60 * (p.b - p.r + p.span()); }
    static int turnAt(int hue, const ScreenPixel& p) { return (hue - 60) * p.span(); }
};

}  // namespace tavrin
