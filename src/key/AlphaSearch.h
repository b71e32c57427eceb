#pragma once

#include "core/raster/ColorMath.h"

namespace tavrin {

/// What the search for the alpha of a mixed pixel depends on.
struct SearchConstants {
    double tint = 0.0;        ///< the green tint slider around its neutral 0
    double tintSpan = 100.0;  ///< 200 minus the slider
    bool greenScreen = true;  ///< off for a blue screen, where some of the stop tests do not apply
};

/// Takes a pixel as a mix of an unknown subject colour and the screen, and finds the largest alpha at which the
/// unmixed colour is no longer greenish: down from 1 in tenths, then again in hundredths from the tenth before.
/// Both colours in roles, each channel at least 1.
/// @return 0 to 1; 0 where the colour is greenish at every alpha
double searchAlpha(const Rgb& color, const Rgb& screen, const SearchConstants& constants);

}  // namespace tavrin
