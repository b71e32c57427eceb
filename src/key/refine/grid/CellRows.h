#pragma once

#include <memory>
#include <vector>

#include "key/refine/grid/Cells.h"
#include "key/refine/grid/RowLoops.h"

namespace tavrin::refine {

/// Rows of a picture made of a plane by linear interpolation; each cell covers `size` pixels. Beyond the middles of
/// the outer cells their values go on. For one thread.
class CellRows {
  public:
    /// Columns `left` to `left + width` of the picture.
    CellRows(const Cells& cells, int size, int left, int width);

    void fill(int y, int plane, float* to);

  private:
    const float* spread(int cellRow, int plane);
    /// Of a spread row.
    std::size_t length() const { return static_cast<std::size_t>(count_ * size_) + 2 * kSpreadBeyond; }

    const Cells& cells_;
    int size_, before_, first_, count_, width_;
    std::vector<int> spreadRows_;  // of each plane: the two rows of cells that were spread last, the even one first
    std::vector<float> shares_, line_;
    std::unique_ptr<float[]> rows_;
};

/// The same interpolation at single columns of a picture: those `step` apart, from the middle of the first step on.
class CellPoints {
  public:
    CellPoints(const Cells& cells, int size, int width, int step);
    /// One number for each of the steps [first, last) of row `y`; the last of all may be cut.
    void fill(int y, int plane, int first, int last, float* to) const;

  private:
    struct Point {
        int before, after;  // cells
        float share;        // of the second one
    };
    Point place(int at, int count) const;

    const Cells& cells_;
    int size_;
    std::vector<Point> columns_;
};

}  // namespace tavrin::refine
