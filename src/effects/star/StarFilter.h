#pragma once

#include <cstdint>
#include <optional>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Finds small bright lights in a picture (RGBA, of the geometry of the resolution: `hiRes` 0 preview, otherwise
/// full) and draws a star over each, in the light's colour, in place. Stars only brighten; alpha stays.
///
/// A light is what stays brighter than `iStarFilterBrightLightThreshold` after a blur of 0.03 inches and has a closed
/// outline whose box is below `iStarFilterMaxArea` / 50 percent of the picture. An arm is `iStarFilterWidth` percent
/// of the light's width to each side (2 pixels at least), and `iStarFilterSize` * 3 / 50 times its height long (that
/// height at least). With `bStarFilterShowSelected` the picture's colours are replaced by the map of the lights,
/// their outlines and a cross in each. A superseded run stops and leaves the stars drawn so far.
void StarFilter(SystemInfo& info, int ignored, std::uint8_t* picture, int hiRes);

/// The box of a light's outline, ends included.
struct LightBox {
    int xMax, xMin, yMax, yMin;
};

/// Follows the outline in `mask` (outlines are pure blue) from a pixel on it, and turns what it has seen red.
/// @return the box of the pixels seen, its top `y`, as the scan finds the topmost one first; none when the outline
/// does not close: the walk has to end beside the pixel where it began
std::optional<LightBox> CheckForStar(int y, int x, PixelView mask);

}  // namespace tavrin
