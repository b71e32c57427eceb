#pragma once

#include "key/refine/grid/Mask.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// A part of a picture: columns [left, right), rows [top, bottom). `left` is a multiple of `kGrainColumns`, and so is
/// `right` but at the picture's end.
struct Area {
    int left = 0, right = 0, top = 0, bottom = 0;
    int block = 0;  ///< blocks of rows count from the top; those of one come one after the other

    int width() const { return right - left; }
    /// The columns with `halo` more to either side, as far as there are any.
    Strip strip(const Shot& shot, int halo) const;
};

inline constexpr int kGrainColumns = 16;

/// Runs `work(left, right)` for the columns in which any pixel of the rows [top, bottom) lies, from left to right,
/// some grains of columns at a time.
void forColumns(const Mask& wanted, int top, int bottom, const std::function<void(int, int)>& work);

/// Rows of an area's block.
inline constexpr int kBlockRows = 32;
inline int blocksOf(int rows) {
    return (rows + kBlockRows - 1) / kBlockRows;
}

/// Runs `work` for areas that cover all pixels of `wanted` and little else, always the same ones. A superseded run
/// begins no further area; `work` itself asks at each row.
/// @return false when the run was superseded
bool runAreas(const RunContext& context, const Mask& wanted, const std::function<void(const Area&)>& work);

}  // namespace tavrin::refine
