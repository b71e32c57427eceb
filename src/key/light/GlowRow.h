#pragma once

#include <cstdint>

#include "core/raster/ColorMath.h"
#include "key/pixel/KeyDecision.h"
#include "key/spill/DarkHair.h"

namespace tavrin {

/// What the shape of the glow is made from.
struct GlowParams {
    const KeyConstants& key;  ///< those of the key at one pixel, against the grid
    DarkHair hair;            ///< with the foreground's pixels
    Rgb screen;               ///< in roles
    std::int32_t gain = 0;

    /// Nearer than this to the screen's colour, a pixel is screen.
    static constexpr double kScreenDistance = 4.0;
    /// Above this amount, a pixel is the subject.
    static constexpr double kSolid = 0.9;
};

/// Fills row `y` of the map with the vectors of this machine: 0 for the screen and the gain for the subject, as
/// `SpillKey::amountAt` of a later call has it. Other cells stay.
void glowRow(const GlowParams& params, int y, std::int32_t* row);

}  // namespace tavrin
