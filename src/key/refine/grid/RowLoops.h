#pragma once

#include <cstddef>
#include <cstdint>

namespace tavrin::refine {

/// Three channels of a row, in roles.
struct ChannelRow {
    const float *r, *g, *b;
};

/// Elements that a spread row needs beyond its end.
inline constexpr int kSpreadBeyond = 16;

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
    /// `size` steps from each of `count` values to the one after it, by the shares of the first `size`. All three
    /// have room for `kSpreadBeyond` elements beyond their last.
    void (*spread)(const float* values, const float* shares, int size, int count, float* to);
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
};

/// The loops of this machine.
const RowLoops& rowLoops();

}  // namespace tavrin::refine
