#pragma once

#include <bit>
#include <cstddef>
#include <memory>
#include <vector>

namespace tavrin::refine {

/// Columns that a row has beyond its ends, so that small windows need no test.
inline constexpr int kRowPad = 32;

/// Place `i` of a line of `count`, mirrored at the ends without repeating these.
inline int mirrored(int i, int count) {
    if (i >= 0 && i < count) return i;
    if (count == 1) return 0;
    const int period = 2 * (count - 1);
    i = ((i % period) + period) % period;
    return i < count ? i : period - i;
}

/// Rows of numbers with mirrored columns beyond their ends, several planes to a row.
class PaddedRows {
  public:
    PaddedRows(int width, int rows)
        : width_(width),
          stride_(static_cast<std::size_t>(width) + 2 * kRowPad),
          values_(std::make_unique_for_overwrite<float[]>(stride_ * static_cast<std::size_t>(rows))) {}

    float* row(int index) { return values_.get() + stride_ * static_cast<std::size_t>(index) + kRowPad; }

    /// Mirrors `reach` columns at both ends of a row.
    void pad(int index, int reach) {
        float* const values = row(index);
        for (int i = 1; i <= reach; ++i) {
            values[-i] = values[mirrored(-i, width_)];
            values[width_ - 1 + i] = values[mirrored(width_ - 1 + i, width_)];
        }
    }

  private:
    int width_;
    std::size_t stride_;
    std::unique_ptr<float[]> values_;
};

/// The rows around the one under work, each made once: `make(y, planes)` fills the planes of row `y`. Rows outside
/// the picture are mirrored. For one block of rows on one thread.
template <int kPlanes, class Make>
class RowRing {
  public:
    /// @param reach rows and columns asked for at a time to either side of those under work
    RowRing(int width, int height, int reach, Make make)
        : height_(height),
          reach_(reach),
          kept_(std::bit_ceil(static_cast<std::size_t>(2 * reach + 1)), -1),
          rows_(width, kPlanes * static_cast<int>(kept_.size())),
          window_(static_cast<std::size_t>(2 * reach + 1)),
          make_(std::move(make)) {}

    /// The planes of the row `y`, one after the other.
    const float* at(int y, int plane) { return rows_.row(slot(y) * kPlanes + plane); }

    /// The rows y - r to y + r of a plane; valid until the next call.
    const float* const* around(int y, int plane, int r) {
        for (int i = -r; i <= r; ++i)
            window_[static_cast<std::size_t>(i + r)] = at(y + i, plane);
        return window_.data();
    }

  private:
    int slot(int y) {
        const int row = mirrored(y, height_), index = row & static_cast<int>(kept_.size() - 1);
        int& kept = kept_[static_cast<std::size_t>(index)];
        if (kept != row) {
            float* planes[kPlanes];
            for (int p = 0; p < kPlanes; ++p)
                planes[p] = rows_.row(index * kPlanes + p);
            make_(row, planes);
            for (int p = 0; p < kPlanes; ++p)
                rows_.pad(index * kPlanes + p, reach_);
            kept = row;
        }
        return index;
    }

    int height_, reach_;
    std::vector<int> kept_;
    PaddedRows rows_;
    std::vector<const float*> window_;
    Make make_;
};

}  // namespace tavrin::refine
