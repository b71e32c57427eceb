#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "key/refine/grid/Mask.h"

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
    /// The sums of the planes, each in scan order.
    std::vector<double> sums() const;

  private:
    int columns_ = 0, rows_ = 0, planes_ = 0;
    std::vector<float> values_;
};

/// Fills what has no weight from what lies around: halves the cells until few are left, and coming back keeps a
/// level's own mean of 3 x 3 cells as far as its weight reaches a quarter.
/// @param cells values times weight; the last plane is the weight, 0 to 1
/// @param wanted the cells to fill; others may stay 0
/// @return the values, one plane less
Cells pushPull(const RunContext& context, const Cells& cells, const Mask& wanted);
/// The same for all cells.
Cells pushPull(const RunContext& context, const Cells& cells);

/// Shares of set pixels in cells of `size` pixels, 0 to 1.
Cells sharesOf(const RunContext& context, const Mask& mask, int size);
/// All pixels of the cells of `size` pixels for which `isSet(column, row)`.
Mask maskOf(const RunContext& context, int width, int height, int size, const std::function<bool(int, int)>& isSet);

/// Means of one plane over squares of `reach` cells (0 or more) beyond each cell, mirrored at the ends; parts of
/// cells count by their share. At most `kRowPad - 1` cells.
Cells blurred(const RunContext& context, const Cells& cells, double reach);
/// The least of the 5 x 5 cells around each, one plane.
Cells least5(const RunContext& context, const Cells& cells);

}  // namespace tavrin::refine
