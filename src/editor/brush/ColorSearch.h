#pragma once

#include <optional>

#include "editor/brush/Stamp.h"

namespace tavrin {

/// A pixel before "Filter Color" or "Restore Hair". Colours in the tool's order of channels.
struct SearchedPixel {
    Rgb base;         ///< the screen here
    Rgb color;        ///< the foreground
    double dPercent;  ///< its likeness to the screen
};

/// A pixel as a share of screen and a colour.
struct FoundColor {
    Rgb color;
    double dPercent;  ///< share of the screen, 0 to 1
};

/// Explains a pixel as a part of screen and a part of a colour, for the part at which that colour is nearest to the
/// tool's.
/// @return nothing where the tool leaves the pixel alone
std::optional<FoundColor> searchColor(const Stamp& stamp, const SearchedPixel& pixel, double baseGreen);

}  // namespace tavrin
