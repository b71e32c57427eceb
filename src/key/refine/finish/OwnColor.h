#pragma once

#include "key/refine/finish/Finish.h"
#include "key/refine/finish/FinishLoops.h"
#include "key/refine/grid/Areas.h"
#include "key/refine/grid/CellRows.h"

namespace tavrin::refine {

/// How green the subject may be at each place, and what is around it.
struct GreenLimits {
    static constexpr int kInnerCell = 4;
    int size = 8;  ///< of the cells of the first two: 8, or 4 in a small picture
    Cells own;     ///< what the solid inside nearby has beyond the mean of the other channels; cells of `size`
    Cells
        cloth;  ///< 1 where that is more than the screen could bring: a rim of bluish cloth keeps its cyan; as above
    Cells inner;                 ///< 1 well inside, where a bluish cloth keeps its cyan; cells of `kInnerCell`
    Cells usual;                 ///< the subject's usual lead (`usualLead`)
    float leadKept = 1.0f;       ///< of that, as far as it is above 0
    const Mask* dyed = nullptr;  ///< of the plate: cloth near the screen's hue, which keeps its own; may be empty
    float dye = 1.0f;            ///< share of that
    Cells around;  ///< means of the open pixels' colours times their alpha, and of that; cells of `kUsualCell`
};
GreenLimits findLimits(const RunContext& context, const Findings& findings);

/// The same in rows of a strip. For one thread.
class GreenLimitRows {
  public:
    GreenLimitRows(const GreenLimits& limits, const Strip& strip);

    /// What is found is good until the next call.
    GreenRows at(int y);

  private:
    const GreenLimits& limits_;
    Strip strip_;
    CellRows own_, cloth_, inner_, usual_;
    PaddedRows lines_;
};

/// The subject's own colour in rows of a strip. For one thread.
class ColorRows {
  public:
    /// @param finish of a strip around this one
    ColorRows(const Findings& findings, const GreenLimits& limits, FinishRows& finish, const Strip& strip);

    /// Makes row `y`.
    /// @param alpha the final alpha of the strip, 0 to 1
    /// @param to RGBA of the strip, real channels; the colours mean nothing where alpha comes to 0
    void fill(int y, const float* alpha, std::uint32_t* to);

  private:
    using Maker = std::function<void(int, float**)>;

    ChannelRow rowsFrom(int row) { return {scratch_.row(row), scratch_.row(row + 1), scratch_.row(row + 2)}; }

    Strip strip_;
    std::vector<float> plain_;
    StartRows start_;
    PaddedRows scratch_;
    RowRing<10, Maker> shares_;  // the remainder, alpha, the picture, the plate
    CellRows subject_, around_;
    GreenLimitRows green_;
};

/// Columns beyond an area that the windows of the colours look at.
inline constexpr int kColorHalo = 2;

/// The same for an area that lies wholly inside: alpha is 1, and a pixel keeps its colour but for the screen's tint.
/// @param picture the RGBA rows of the whole picture to write to
void writeSolid(const Shot& shot, const Plate& plate, const GreenLimits& limits, const Area& area,
                std::uint8_t* picture);

}  // namespace tavrin::refine
