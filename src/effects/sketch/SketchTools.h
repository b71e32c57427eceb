#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Makes a picture grey with a contrast curve that is steeper in the darks and in the lights. Pixels lie `pixelStep`
/// bytes apart, rows `rowStride`; the first three bytes of each are changed. For an effect type below 2 all three
/// weigh 33 percent, for others 10, 30 and 60.
void ConvertBitmapToBlackAndWhite(std::uint8_t* picture, int width, int height, int pixelStep, int rowStride,
                                  int effectType);

/// The grey of one pixel by the same rule.
std::uint8_t sketchGrey(const std::uint8_t* pixel, int effectType);

/// Blurs the first three channels of a picture of four 16-bit channels in place, with a separable window of
/// 2 * `radius` + 1 samples that is no Gaussian in spite of its name (see `QuadraticWindow.h`). A radius below 1
/// counts as 1. Stops when superseded, unless `bLightingForceCompute` is set.
void GaussianBlurBitmap(SystemInfo& info, std::uint16_t* rgba16, int width, int height, int radius);

}  // namespace tavrin
