#pragma once

#include "key/refine/screen/Plate.h"

namespace tavrin::refine {

/// Cloth near the screen's hue, whatever the key made of it.
struct Garments {
    Mask solid;    ///< the inside of such cloth; empty (width 0) where there is none
    Mask dyed;     ///< the pixels in and at it that have its hue
    Mask strange;  ///< what lies at it and is no screen by its hue
};

/// The least share of a picture that a part of such cloth must have.
inline constexpr double kLeastCloth = 0.005;

/// Large areas of a hue that the screen has in no light, and whose colours go from light to dark as those of a solid
/// thing do, through black. Colours of hair, veils, smoke and glass go from more to less of the screen.
/// @param difference the screen's usual colour difference
/// @param screen what the key takes for screen; a part of it may be such cloth
Garments findGarments(const RunContext& context, const Shot& shot, float difference, const Mask& screen);

/// Narrow seams between the plate's cloth and the rest of the inside that have no hue of the screen.
/// @param solid the inside as far as it is known
Mask findSeams(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& solid);

}  // namespace tavrin::refine
