#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

// What the shapes of the light share.

/// Positions and sizes beyond this, in pixels, are held here; they lie far outside any picture.
inline constexpr std::int64_t kFarAway = std::int64_t{1} << 22;

/// A gain as the map holds it: truncated.
std::int32_t toGain(double gain);

/// The gain of a light slider; 50 is none.
double sliderGain(const Field<std::int32_t>& slider);

/// Blurs a map in place.
/// @param info tells when to stop; null is never
void blurMap(const SystemInfo& info, std::int32_t* map, int width, int height, int radius);

/// The blur of the circle and the cone, a tenth of an inch.
void softenShape(const SystemInfo& info, std::int32_t* map, int width, int height, Resolution resolution);

}  // namespace tavrin
