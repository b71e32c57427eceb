#pragma once

#include <utility>

#include "key/refine/grid/CellRows.h"
#include "key/refine/grid/MatteLoops.h"
#include "key/refine/grid/RowRing.h"
#include "key/refine/grid/SumLoops.h"
#include "key/refine/screen/Plate.h"

namespace tavrin::refine {

/// How the means of 3 x 3 pixels compare with the plate: what shadows and cloth of the screen's hue are told by. For
/// one block of rows on one thread.
class ScreenRatio {
  public:
    ScreenRatio(const Strip& strip, const Plate& plate) : ScreenRatio(strip, plate.colors, kPlateCell) {}
    /// @param plate its colours, in roles, on cells of `size` pixels
    ScreenRatio(const Strip& strip, const Cells& plate, int size)
        : width_(strip.width),
          colors_(strip.width, strip.shot.height, 1,
                  [strip](int y, float** planes) { loadColors(strip, y, planes[0], planes[1], planes[2]); }),
          plate_(plate, size, strip.left, strip.width),
          scratch_(strip.width, 7) {}

    /// @param light the screen's channel over the plate's
    /// @param off how far the other channels are from what that light makes of the plate, the larger of both
    void fill(int y, float* light, float* off) {
        look(y);
        matteLoops().ratio(sums(), screen(), width_, light, off);
    }

    /// @param light as above
    /// @param least the least alpha that any subject may have there
    void cover(int y, float* light, float* least) {
        look(y);
        matteLoops().cover(sums(), screen(), width_, light, least);
    }

    /// Nine times the colours, and the plate's, of row `y`.
    std::pair<ChannelRow, ChannelRow> colors(int y) {
        look(y);
        return {sums(), screen()};
    }

    /// The largest distance of a channel of row `y` from the plate.
    void distance(int y, float* to) {
        look(y);
        matteLoops().distance(sums(), screen(), width_, to);
    }

  private:
    ChannelRow sums() { return {scratch_.row(0), scratch_.row(1), scratch_.row(2)}; }
    ChannelRow screen() { return {scratch_.row(3), scratch_.row(4), scratch_.row(5)}; }

    void look(int y) {
        for (int plane = 0; plane < 3; ++plane) {
            sumLoops().boxSums(colors_.around(y, plane, 1), 1, width_, scratch_.row(6), scratch_.row(plane));
            plate_.fill(y, plane, scratch_.row(3 + plane));
        }
    }

    int width_;
    RowRing<3, std::function<void(int, float**)>> colors_;
    CellRows plate_;
    PaddedRows scratch_;
};

}  // namespace tavrin::refine
