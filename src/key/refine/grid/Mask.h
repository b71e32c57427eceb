#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/raster/Rows.h"

namespace tavrin::refine {

/// A yes or no for each pixel, one bit each, the leftmost one in the lowest bit of a row's first word. Bits beyond
/// the end of a row are 0.
class Mask {
  public:
    Mask() = default;
    Mask(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    int words() const { return words_; }
    std::uint64_t* row(int y) {
        return bits_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(words_);
    }
    const std::uint64_t* row(int y) const { return const_cast<Mask*>(this)->row(y); }

    bool at(int x, int y) const { return (row(y)[x / 64] >> (x % 64) & 1) != 0; }
    /// Sets the columns [left, right) of row `y`.
    void set(int y, int left, int right);
    /// Whether none of the columns [left, right) of row `y` is set.
    bool isClear(int y, int left, int right) const;
    /// Sets `count` pixels of row `y` from the column `left` on, a multiple of 8, from bytes of 0 and 1; there must
    /// be room to read a multiple of 8 of them.
    void pack(int y, int left, int count, const std::uint8_t* flags);
    void pack(int y, const std::uint8_t* flags) { pack(y, 0, width_, flags); }
    /// `count` pixels of the row from column `left` on as numbers, 0 and 1.
    void unpack(int y, int left, int count, float* values) const;
    /// How many pixels are set.
    std::int64_t count() const;

    Mask& operator|=(const Mask& other);
    Mask& operator&=(const Mask& other);
    Mask inverted() const;
    bool operator==(const Mask& other) const = default;

  private:
    int width_ = 0, height_ = 0, words_ = 0;
    std::vector<std::uint64_t> bits_;
};

/// Set where all pixels of the square of side 2r + 1 around are. What lies outside the picture counts as set.
Mask shrunk(const RunContext& context, const Mask& mask, int r);
/// Set where any pixel of that square is.
Mask grown(const RunContext& context, const Mask& mask, int r);

}  // namespace tavrin::refine
