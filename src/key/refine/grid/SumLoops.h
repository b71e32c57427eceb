#pragma once

#include <cstddef>
#include <cstdint>

namespace tavrin::refine {

/// Rows of RGBA pixels `pitch` apart, and their weights, rows packed.
struct WeighedRows {
    const std::uint32_t* pixels;
    std::ptrdiff_t pitch;
    const float* weights;
    int rows, count;
};

/// Sums over rows, columns and cells, compiled for every vector target. The order of every sum is the same on all of
/// them, so the bytes are. What is read and what is written lie apart.
struct SumLoops {
    /// Sums of the squares of 2r + 1 pixels around each of `count` columns, from 2r + 1 padded rows. `columns` has
    /// room for a padded row.
    void (*boxSums)(const float* const* rows, int r, int count, float* columns, float* sums);
    /// Sums, column by column, of the weight and of the three channels, each times its weight of 0 or 1, as four
    /// lines of `from.count`.
    void (*sumColors)(const WeighedRows& from, bool blue, float* sums);
    /// The same, and six lines more: the products rr, rg, rb, gg, gb, bb.
    void (*sumProducts)(const WeighedRows& from, bool blue, float* sums);
    /// counts += the bits that are set in each `size` columns of the first `width`
    void (*countBits)(const std::uint64_t* words, int size, int width, int* counts);
    /// Sums of each `size` values, whole numbers; `count` of them.
    void (*sumGroups)(const float* values, int size, int count, float* to);
};

/// The sums of this machine.
const SumLoops& sumLoops();

}  // namespace tavrin::refine
