#include "effects/sketch/SketchTools.h"

#include <algorithm>

#include "core/raster/ColorMath.h"
#include "core/raster/WindowBlur.h"

namespace tavrin {

std::uint8_t sketchGrey(const std::uint8_t* pixel, int effectType) {
    const double weighted = effectType < 2 ? 0.33 * pixel[0] + 0.33 * pixel[1] + 0.33 * pixel[2]
                                           : 0.1 * pixel[0] + 0.3 * pixel[1] + 0.6 * pixel[2];
    const double y = std::min(weighted, 255.0);
    const double t = y / 255.0, u = 1.0 - t;
    const double low = clampTo(y * 1.5, 0.0, 255.0), high = clampTo((y - 255.0) * 1.5 + 255.0, 0.0, 255.0);
    return toByte(u * u * low + (1.0 - u * u) * (t * t * high + (1.0 - t * t) * y));
}

void ConvertBitmapToBlackAndWhite(std::uint8_t* picture, int width, int height, int pixelStep, int rowStride,
                                  int effectType) {
    if (!picture || width < 1) return;
    runRows({}, height, 16, [&](int y) {
        std::uint8_t* pixel = picture + static_cast<std::ptrdiff_t>(y) * rowStride;
        for (int x = 0; x < width; ++x, pixel += pixelStep)
            std::fill_n(pixel, 3, sketchGrey(pixel, effectType));
    });
}

void GaussianBlurBitmap(SystemInfo& info, std::uint16_t* rgba16, int width, int height, int radius) {
    blurWithWindow(info.rowsWhileWanted(), {rgba16, width, height, 4, 3}, radius);
}

}  // namespace tavrin
