#pragma once

#include "key/refine/Finish.h"

namespace tavrin::refine {

/// How green the subject may be at each place.
struct GreenLimits {
    static constexpr int kOwnCell = 8, kInnerCell = 4;
    Cells own;    ///< what the solid inside nearby has beyond the mean of the other channels; cells of `kOwnCell`
    Cells inner;  ///< 1 well inside, where a bluish cloth keeps its cyan; cells of `kInnerCell`
};
GreenLimits findLimits(const RunContext& context, const Findings& findings);

/// The subject's own colour in rows. For one thread.
class ColorRows {
  public:
    ColorRows(const Findings& findings, const GreenLimits& limits);

    /// Writes row `y` of a picture.
    /// @param alpha the final alpha, 0 to 1
    /// @param to RGBA, real channels; nothing but zeros where alpha comes to 0
    void write(int y, const float* alpha, std::uint8_t* to);

  private:
    using Maker = std::function<void(int, float**)>;

    void unmix(int y);
    void limitGreen(int y);

    const Findings& findings_;
    StartRows around_, here_;
    RowRing<4, Maker> shares_;
    CellRows subject_, own_, inner_;
    PaddedRows scratch_;
};

}  // namespace tavrin::refine
