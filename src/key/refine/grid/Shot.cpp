#include "key/refine/grid/Shot.h"

#include <cmath>

#include "core/raster/Pixels.h"
#include "key/refine/grid/RowLoops.h"

namespace tavrin::refine {

namespace {

constexpr double kUsualPixels = 5e6;

}  // namespace

int Shot::px(double length) const {
    const double scale = std::sqrt(static_cast<double>(width) * height / kUsualPixels);
    return std::max(1, static_cast<int>(std::lround(length * scale)));
}

const std::uint32_t* Shot::pixelRow(int y) const {
    return reinterpret_cast<const std::uint32_t*>(pixels + pixelOffset(width, 0, y));
}

void loadColors(const Strip& strip, int y, float* r, float* g, float* b) {
    rowLoops().loadColors(strip.shot.pixelRow(y) + strip.left, strip.width, strip.shot.blue, r, g, b);
}

void loadLuma(const Strip& strip, int y, float* luma) {
    rowLoops().loadLuma(strip.shot.pixelRow(y) + strip.left, strip.width, luma);
}

}  // namespace tavrin::refine
