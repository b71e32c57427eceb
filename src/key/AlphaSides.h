#pragma once

#include <cstddef>
#include <cstdint>

namespace tavrin {

/// On which side of a level the alphas of 64 neighbouring pixels of a row lie, the leftmost one in the lowest bit.
/// Alphas at the level, and places beyond the end of the row, are on neither side.
struct AlphaSides {
    std::uint64_t below = 0, above = 0;
};

inline constexpr int kSidesPixels = 64;

/// Finds the sides for each 64 pixels of a row, the last ones of which may be fewer.
/// @param pixels the row's `width` RGBA pixels
/// @param level 1 to 254
/// @param sides where to put the first ones; the next ones go `step` elements further on, and so on
void findAlphaSides(const std::uint8_t* pixels, int width, int level, AlphaSides* sides, std::size_t step);

}  // namespace tavrin
