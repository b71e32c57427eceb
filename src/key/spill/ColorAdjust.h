#pragma once

#include <cstdint>

#include "core/raster/ColorMath.h"
#include "core/state/SystemInfo.h"
#include "key/pixel/ToneChain.h"

namespace tavrin {

/// The adjustments of a layer's panel at one pixel. They are those of `Combine`, but for the photo filters, for a
/// contrast in whole numbers, and for the order in which the light falls: the airbrush editor shows these colours.
struct ColorAdjust {
    /// As the panel tells it: `bHaveColorChange`, a photo filter, or any lighting mode.
    bool active = false;
    ToneConstants tone;                   ///< with the contrast in whole numbers
    const std::int32_t* light = nullptr;  ///< gain in thousandths, one for each pixel; null is no light
    bool lit = false;                     ///< the light falls on this layer
};

/// The adjustments of a layer. Sharpening compares with `foreground` for either layer.
ColorAdjust makeColorAdjust(const SystemInfo& info, ToneLayer layer, ConstPixelView foreground);

/// A layer's colour at (x, y), in real channels, after its adjustments: each channel 0 to 255.
Rgb adjustLayerColor(const ColorAdjust& adjust, const Rgb& color, int x, int y);

/// Photo filters, sharpening and tone alone, for a colour that the key has found. Channels may come out above 255 or
/// below 0.
/// @return false for black, which the curve has made grey
bool adjustKeyedColor(const ToneConstants& tone, Rgb& color, int x, int y);

/// Grey (mode 1) or sepia (mode 2) of a colour; any other mode leaves it. With blue logic the weights of green and
/// blue change places.
Rgb colorMode(int mode, bool blueLogic, const Rgb& color);

}  // namespace tavrin
