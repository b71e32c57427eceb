#pragma once

#include <cstddef>
#include <cstdint>

namespace tavrin::refine {

/// Three channels of a row, in roles.
struct ChannelRow {
    const float *r, *g, *b;
};

/// Rows of RGBA pixels `pitch` apart, and their weights, rows packed.
struct WeighedRows {
    const std::uint32_t* pixels;
    std::ptrdiff_t pitch;
    const float* weights;
    int rows, count;
};

/// Loops over the numbers of a row, compiled for every vector target. All go element by element, so the bytes are
/// those of the plain form. What is read and what is written lie apart.
struct RowLoops {
    /// Colours and luma (whole numbers) of `count` RGBA pixels, 0 to 255; `blue`: a blue screen's roles.
    void (*loadColors)(const std::uint32_t* pixels, int count, bool blue, float* r, float* g, float* b);
    void (*loadLuma)(const std::uint32_t* pixels, int count, float* luma);
    /// 1 where the key is 0 and the screen's channel leads by over half of `usual`; else 0.
    void (*seeds)(const std::uint32_t* pixels, const std::uint8_t* key, int count, bool blue, int usual,
                  std::uint8_t* flags);
    /// a + (b - a) share
    void (*mix)(const float* a, const float* b, float share, int count, float* to);
    /// `size` steps from each of `count` values to the one after it; a multiple of 4 is written, 4 to 7 elements
    /// beyond the last. `shares` has that many.
    void (*spread)(const float* values, const float* shares, int size, int count, float* to);
    /// Sums of the squares of 2r + 1 pixels around each of `count` columns, from 2r + 1 padded rows. `columns` has
    /// room for a padded row.
    void (*boxSums)(const float* const* rows, int r, int count, float* columns, float* sums);
    /// to += a weight
    void (*add)(const float* a, const float* weight, int count, float* to);
    /// Sums, column by column, of the weight and of the three channels, each times its weight of 0 or 1, as four
    /// lines of `from.count`.
    void (*sumColors)(const WeighedRows& from, bool blue, float* sums);
    /// The same, and six lines more: the products rr, rg, rb, gg, gb, bb.
    void (*sumProducts)(const WeighedRows& from, bool blue, float* sums);
    /// Adds what the screen's channel has beyond the mean of the others, as far as it has, times the weight; and the
    /// weight.
    void (*addLead)(const std::uint32_t* pixels, const float* weight, int count, bool blue, float* leads,
                    float* weights);
    /// 1 where a value is above / below the limit, else 0.
    void (*above)(const float* values, float limit, int count, std::uint8_t* flags);
    void (*below)(const float* values, float limit, int count, std::uint8_t* flags);
    /// Bits of the bytes that are `most` or less; those of the last word beyond `count` are 0.
    void (*atMost)(const std::uint8_t* values, std::uint8_t most, int count, std::uint64_t* bits);
    /// Least and greatest of the 2r + 1 columns of 2r + 1 padded rows around column x, in the element x - r of two
    /// padded rows.
    void (*windowRange)(const float* const* rows, int r, int count, float* least, float* greatest);
    /// counts += the bits that are set in each `size` columns of the first `width`
    void (*countBits)(const std::uint64_t* words, int size, int width, int* counts);
    /// Sums of each `size` values, whole numbers; `count` of them.
    void (*sumGroups)(const float* values, int size, int count, float* to);
};

/// The loops of this machine.
const RowLoops& rowLoops();

}  // namespace tavrin::refine
