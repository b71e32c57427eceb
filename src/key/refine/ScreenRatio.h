#pragma once

#include "key/refine/Plate.h"
#include "key/refine/RowRing.h"

namespace tavrin::refine {

/// How the means of 3 x 3 pixels compare with the plate: what shadows and cloth of the screen's hue are told by. For
/// one block of rows on one thread.
class ScreenRatio {
  public:
    ScreenRatio(const Shot& shot, const Plate& plate)
        : width_(shot.width),
          colors_(shot.width, shot.height, 1,
                  [&shot](int y, float** planes) { loadColors(shot, y, planes[0], planes[1], planes[2]); }),
          plate_(plate.colors, kPlateCell),
          scratch_(shot.width, 7) {}

    /// @param light the screen's channel over the plate's
    /// @param off how far the other channels are from what that light makes of the plate, the larger of both
    void fill(int y, float* light, float* off) {
        look(y);
        const float *const r = scratch_.row(0), *const g = scratch_.row(1), *const b = scratch_.row(2);
        const float *const pr = scratch_.row(3), *const pg = scratch_.row(4), *const pb = scratch_.row(5);
        for (int x = 0; x < width_; ++x) {
            light[x] = g[x] / std::max(pg[x], 1.0f);
            const float red = r[x] - light[x] * pr[x], blue = b[x] - light[x] * pb[x];
            off[x] = std::max(red < 0.0f ? -red : red, blue < 0.0f ? -blue : blue);
        }
    }

    /// The largest distance of a channel of row `y`, which was filled last, from the plate.
    void distance(float* to) {
        const float *const r = scratch_.row(0), *const g = scratch_.row(1), *const b = scratch_.row(2);
        const float *const pr = scratch_.row(3), *const pg = scratch_.row(4), *const pb = scratch_.row(5);
        for (int x = 0; x < width_; ++x) {
            const float red = r[x] - pr[x], green = g[x] - pg[x], blue = b[x] - pb[x];
            to[x] = std::max(std::max(red < 0.0f ? -red : red, green < 0.0f ? -green : green),
                             blue < 0.0f ? -blue : blue);
        }
    }

  private:
    void look(int y) {
        for (int plane = 0; plane < 3; ++plane) {
            float* const mean = scratch_.row(plane);
            boxSums(colors_.around(y, plane, 1), 1, width_, scratch_.row(6), mean);
            for (int x = 0; x < width_; ++x)
                mean[x] /= 9.0f;
            plate_.fill(y, plane, width_, scratch_.row(3 + plane));
        }
    }

    int width_;
    RowRing<3, std::function<void(int, float**)>> colors_;
    CellRows plate_;
    PaddedRows scratch_;
};

}  // namespace tavrin::refine
