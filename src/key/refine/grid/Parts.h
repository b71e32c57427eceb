#pragma once

#include <cstdint>
#include <vector>

namespace tavrin::refine {

/// Connected parts of set cells: their numbers from 1, row by row; 0 where none is.
struct Parts {
    int count = 0;
    std::vector<int> labels;
};
enum class Neighbours { four, eight };
Parts findParts(int columns, int rows, const std::vector<std::uint8_t>& set, Neighbours neighbours);

}  // namespace tavrin::refine
