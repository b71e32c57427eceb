#pragma once

#include <cstdint>

namespace tavrin {

/// What the sketch flattens: a grey picture of one byte a pixel.
struct FlattenParams {
    const std::uint8_t* grey;
    int width, height;
    int nearness;  ///< a grey this far from the mean of its block still belongs to a flat area; -1 to 255
};

/// For the rows [first, last), with the vectors of this machine: where more than 60 percent of the 7 by 7 block
/// around a pixel are near its mean, the pixel takes the mean of the near ones (a flat area); elsewhere it stays, and
/// counts as sharpened in the negative. Writes the grey into `flat` and the negative, (255 - value) * 255, into
/// `negative`, one sample a pixel each.
void flattenRows(const FlattenParams& params, int first, int last, std::uint8_t* flat, std::uint16_t* negative);

}  // namespace tavrin
