#pragma once

#include <cstdint>

#include "core/raster/Rows.h"

namespace tavrin {

/// What the map of fine detail is made from.
struct HairDetailInput {
    const std::uint8_t* rgba;  ///< foreground, rows packed
    int width, height;
    double baseGreen;  ///< level of the screen
    bool blueLogic;
};

/// Writes the map of fine detail, 0 to 255, into bytes 0 to 2 of `map` (RGBA of the same size): how much the dark
/// pixels of the 9 by 9 block around a pixel differ from one to the next along a spiral. It is high in hair and low
/// in a smooth shadow.
/// @return false when superseded
bool writeHairDetail(const RunContext& context, const HairDetailInput& input, std::uint8_t* map);

}  // namespace tavrin
