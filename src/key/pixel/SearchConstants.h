#pragma once

namespace tavrin {

/// What the search for the alpha of a mixed pixel depends on.
struct SearchConstants {
    double tint = 0.0;        ///< the green tint slider around its neutral 0
    double tintSpan = 100.0;  ///< 200 minus the slider
    bool greenScreen = true;  ///< off for a blue screen, where some of the stop tests do not apply
};

}  // namespace tavrin
