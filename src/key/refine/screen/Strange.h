#pragma once

#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// From which strangeness on (`OuterScreen`) a hue is no shade of the screen, in levels.
float leastStrangeness(float difference);
/// The simple alpha from which on nothing near the screen's hue is there.
inline constexpr float kNotNearScreen = 0.9f;
/// The key's alpha from which on there is nothing to mend.
inline constexpr float kKeyed = 0.9f;

/// What is no shade of a plate: its least strangeness, or the most light.
struct StrangeLimits {
    float strangeness, light;
};

/// The pixels of `wanted`, and some beside them, that are no shade of a plate of cells of `size` pixels.
Mask strangePixels(const RunContext& context, const Shot& shot, const Cells& plate, int size,
                   const StrangeLimits& limits, const Mask& wanted);

/// A first look that costs little: one pixel of each cell of `size`, whether much that the key has not is near the
/// screen's hue and none of its shades.
/// @param share of the picture that such areas must have
bool mayHoldCloth(const Shot& shot, float difference, const Mask& screen, int size, double share);

}  // namespace tavrin::refine
