#pragma once

#include <vector>

#include "key/refine/grid/RowRing.h"
#include "key/refine/subject/FitAlpha.h"

namespace tavrin::refine {

// Colour often has half the resolution (JPEG 4:2:0, a sensor's mosaic) while luma has all of it. What alpha lost by
// that comes back from the luma, as far as both go together in a small window.

/// Rows of a plane as they are after halving it and enlarging it again. For one thread.
class HalfRows {
    using Load = std::function<void(int, float*)>;

  public:
    /// @param load fills row `y` of the plane
    HalfRows(int width, int height, Load load);
    void fill(int y, float* to);

  private:
    int width_, height_;
    Load load_;
    std::vector<float> lines_;
    RowRing<1, std::function<void(int, float**)>> coarse_;
};

/// What luma tells about alpha around each pixel of a strip, which begins at an even column. For one thread.
class DetailRows {
    using Maker = std::function<void(int, float**)>;

  public:
    /// @param sharpness how much alpha and luma are sharpened first, 0 to 1
    DetailRows(const Strip& strip, const AlphaPlane& alpha, float sharpness);

    /// @param mean mean of alpha in the window
    /// @param detail what alpha lacks if the colour had half the luma's resolution
    void fill(int y, float* mean, float* detail);
    /// Alpha after sharpening, not limited.
    const float* alpha(int y) { return ring_.at(y, 4); }
    /// The luma of a row near the last one after halving and sharpening it, from -128 on; and what the picture's own
    /// of the last row filled has beyond that.
    const float* luma(int y) { return ring_.at(y, 1); }
    const float* rest() { return scratch_.row(0); }

  private:
    void sharpen(int y, int plane, float* to);

    Strip strip_;
    float sharpness_;
    HalfRows luma_;
    RowRing<2, Maker> plain_;
    RowRing<5, Maker> ring_;
    PaddedRows scratch_, blur_;
};

/// Columns beyond an area that the windows of the detail look at.
inline constexpr int kDetailHalo = 12;

/// Row `y` of a strip of an alpha plane, 0 to 1.
void loadAlpha(const AlphaPlane& plane, const Strip& strip, int y, float* to);

/// How much of the luma's detail alpha lacks: 0 where the colour has all of it, 1 where it has half of the
/// resolution.
/// @param open the pixels to look at; where there are many, a sample of them
float missingDetail(const RunContext& context, const Shot& shot, const AlphaPlane& alpha, const Mask& open);

}  // namespace tavrin::refine
