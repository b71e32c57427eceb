#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "key/refine/Mask.h"

namespace tavrin::refine {

/// Numbers on square cells of the picture, several planes of them. The cells at the right and lower end may be cut.
class Cells {
  public:
    Cells() = default;
    Cells(int columns, int rows, int planes);
    /// For a picture of width x height and cells of `size` pixels.
    static Cells over(int width, int height, int size, int planes);

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    int planes() const { return planes_; }
    std::size_t count() const { return static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_); }

    float* row(int y, int plane) {
        return values_.data() +
               (static_cast<std::size_t>(plane) * static_cast<std::size_t>(rows_) + static_cast<std::size_t>(y)) *
                   static_cast<std::size_t>(columns_);
    }
    const float* row(int y, int plane) const { return const_cast<Cells*>(this)->row(y, plane); }
    /// The sum of a plane, in scan order.
    double sum(int plane) const;

  private:
    int columns_ = 0, rows_ = 0, planes_ = 0;
    std::vector<float> values_;
};

/// Rows of a picture made of a plane by linear interpolation; each cell covers `size` pixels. Beyond the middles of
/// the outer cells their values go on. For one thread.
class CellRows {
  public:
    /// Columns `left` to `left + width` of the picture.
    CellRows(const Cells& cells, int size, int left, int width);

    void fill(int y, int plane, float* to);

  private:
    const float* spread(int cellRow, int plane);

    const Cells& cells_;
    int size_, before_, first_, count_, width_;
    std::vector<int> spreadRows_;  // of each plane: the two rows of cells that were spread last, the even one first
    std::vector<float> shares_, line_, rows_;
};

/// The same interpolation at single columns of a picture: those `step` apart, from the middle of the first step on.
class CellPoints {
  public:
    CellPoints(const Cells& cells, int size, int width, int step);
    /// One number for each step of row `y`, the last of which may be cut.
    void fill(int y, int plane, float* to) const;

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

/// Fills what has no weight from what lies around: halves the cells until few are left, and coming back keeps a
/// level's own mean of 3 x 3 cells as far as its weight reaches a quarter.
/// @param cells values times weight; the last plane is the weight, 0 to 1
/// @return the values, one plane less
Cells pushPull(const RunContext& context, const Cells& cells);

/// Shares of set pixels in cells of `size` pixels, 0 to 1.
Cells sharesOf(const RunContext& context, const Mask& mask, int size);
/// All pixels of the cells of `size` pixels for which `isSet(column, row)`.
Mask maskOf(const RunContext& context, int width, int height, int size, const std::function<bool(int, int)>& isSet);

/// Means of one plane over squares of `reach` cells (0 or more) beyond each cell, mirrored at the ends; parts of
/// cells count by their share. At most `kRowPad - 1` cells.
Cells blurred(const RunContext& context, const Cells& cells, double reach);
/// The least of the 5 x 5 cells around each, one plane.
Cells least5(const Cells& cells);

/// Connected parts of set cells: their numbers from 1, row by row; 0 where none is.
struct Parts {
    int count = 0;
    std::vector<int> labels;
};
enum class Neighbours { four, eight };
Parts findParts(int columns, int rows, const std::vector<std::uint8_t>& set, Neighbours neighbours);

}  // namespace tavrin::refine
