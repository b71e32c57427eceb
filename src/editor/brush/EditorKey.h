#pragma once

#include <array>

#include "core/state/SystemInfo.h"
#include "key/pixel/ColorDistance.h"
#include "key/spill/SpillKey.h"

namespace tavrin {

/// What a visit to the editor takes from the settings, frozen as it begins: the key at one pixel, with the two values
/// that are fixed there (green areas 40, scaling of the transparency 70), and the colours of the screen.
struct EditorKey {
    explicit EditorKey(const SystemInfo& info);

    SpillKey spill;
    /// `Spill` was called in this visit; before, the call sees another white balance.
    bool bSpilled;
    double baseGreen;  ///< of the whole screen
    bool bOutputTransparency, bUseBlueLogic;
    bool adjustsForeground;  ///< the foreground's colours are not those of its picture

    /// The screen's colour at a pixel, between the cells of the grid, as it was measured.
    Rgb editBase(int x, int y) const;

  private:
    std::array<Rgb, 400> grid_;
};

inline HsvColor toHsv(const Rgb& c) {
    return toHsv(c.r, c.g, c.b);
}

/// How far two colours are apart to the brushes: hue counts double and goes round, in whole steps as saturation does.
inline double editorDistance(const HsvColor& a, const HsvColor& b) {
    int dh = std::abs(wholeSteps(a.h - b.h));
    if (dh > 180) dh = 360 - dh;
    dh *= 2;
    const int ds = std::abs(wholeSteps(100.0 * a.s - 100.0 * b.s));
    const double dv = a.v - b.v;
    return std::sqrt(dh * dh + ds * ds + dv * dv);
}

}  // namespace tavrin
