#pragma once

#include <cstdint>
#include <vector>

namespace tavrin {

/// Whether a PSD file holds all of the flattened picture that it announces at its end. The decoder shows what is
/// there and leaves the rest blank without a word.
bool psdIsWhole(const std::vector<std::uint8_t>& file);

}  // namespace tavrin
