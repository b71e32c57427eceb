#pragma once

#include <algorithm>
#include <cstdint>

#include "core/raster/Rows.h"

namespace tavrin::refine {

/// What the second look at the key goes by: the picture, and what the key made of it.
struct Shot {
    static constexpr int kLeastCell = 4;

    int width = 0, height = 0;             ///< at least 1
    const std::uint8_t* pixels = nullptr;  ///< RGBA, rows packed
    const std::uint8_t* key = nullptr;     ///< the key's alpha of each pixel, rows packed
    bool blue = false;                     ///< the screen is blue

    /// A length told for a picture of 5 megapixels, in pixels of this one; at least 1.
    int px(double length) const;
    /// The same for the side of a cell: small pictures have no more cells for their pixels than others.
    int cell(double length) const { return std::max(kLeastCell, px(length)); }
    const std::uint8_t* keyRow(int y) const { return key + std::int64_t{y} * width; }
    const std::uint32_t* pixelRow(int y) const;
};

/// Columns of a shot that are worked off by themselves, as if the picture ended there: the outer ones are there for
/// the windows of those between, which alone are used.
struct Strip {
    const Shot& shot;
    int left = 0, width = 0;
};

/// 0 up to `low`, 1 from `high`, and a smooth way between.
inline float smoothStep(float value, float low, float high) {
    const float t = std::clamp((value - low) / (high - low), 0.0f, 1.0f);
    return t * t * (3.0f - 2.0f * t);
}

/// The weights of the channels in the luma, in roles.
struct LumaWeights {
    float r, g, b;
    explicit LumaWeights(bool blue) : r(0.299f), g(blue ? 0.114f : 0.587f), b(blue ? 0.587f : 0.114f) {}
};

/// The colours of row `y` of a strip, in roles, `width` numbers of 0 to 255 each.
void loadColors(const Strip& strip, int y, float* r, float* g, float* b);
/// The luma of row `y`, whole numbers of 0 to 255.
void loadLuma(const Strip& strip, int y, float* luma);

}  // namespace tavrin::refine
