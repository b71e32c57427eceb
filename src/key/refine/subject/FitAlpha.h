#pragma once

#include <memory>
#include <vector>

#include "key/refine/grid/CellRows.h"
#include "key/refine/subject/Core.h"

namespace tavrin::refine {

/// What tells the subject from the screen at each place: cells of `size` pixels.
struct Separation {
    int size = 1;
    Cells weights;    ///< of the three channels, for the colour less the plate's: their sum is alpha
    Cells subject;    ///< mean colour of the subject around, in roles
    Cells certainty;  ///< how far the two colours lie apart, 0 to 1
};

/// Means and covariances of the subject's colours around each cell, from the sure pixels, and the direction in which
/// they lie farthest from the screen's.
/// @param open the pixels whose areas are asked for; cells far from them stay 0
Separation separate(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& sure,
                    const Mask& open);

/// Where colours cannot tell: what lies nearer, the inside (1) or the screen (0). Cells of `kNearCell`.
inline constexpr int kNearCell = 8;
Cells nearerSide(const RunContext& context, const Mask& solid, const Mask& screen);

/// What the fit of alpha goes by.
struct Fit {
    const Shot& shot;
    const Plate& plate;
    const Separation& separation;
    const Cells& nearer;
};

/// Alpha of a strip's rows by the separation, not limited to 0 to 1. For one thread.
class FitRows {
  public:
    FitRows(const Fit& fit, const Strip& strip);
    void fill(int y, float* alpha);

  private:
    float* line(std::size_t i) { return lines_.data() + i * static_cast<std::size_t>(strip_.width); }

    Strip strip_;
    StartRows start_;
    CellRows weights_, certainty_, nearer_;
    std::vector<float> lines_;
};

/// The pixels where that alpha is nearly whole, or inside: better samples than those of the simple alpha, which takes
/// a colour opposite to the screen's for whole where half of it is screen.
/// @param open the pixels that are neither inside nor surely screen
Mask surePixels(const RunContext& context, const Fit& fit, const Mask& solid, const Mask& open);

/// Alpha in steps of 1 / 65535, one for each pixel. No vector: that would touch all of its memory on one core first.
using AlphaPlane = std::unique_ptr<std::uint16_t[]>;
/// Alpha around the open pixels; elsewhere 1 inside and 0 on the screen.
AlphaPlane fitAlpha(const RunContext& context, const Fit& fit, const Mask& solid, const Mask& open);

}  // namespace tavrin::refine
