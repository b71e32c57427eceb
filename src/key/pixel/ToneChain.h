#pragma once

#include "core/raster/ColorMath.h"
#include "core/raster/Pixels.h"

namespace tavrin {

class BitmapInfo;

/// The two layers go through one chain with a few differences.
enum class ToneLayer { kForeground, kBackground };

/// The tone adjustments of a layer, the same for every pixel of a run.
struct ToneConstants {
    ToneLayer layer = ToneLayer::kForeground;
    bool active = false;  ///< the chain has anything to do

    bool cools = false, warms = false;
    double cooling = 0.0, warming = 0.0;  ///< strength of the photo filters, 0 to 1

    double sharpen = 0.0;    ///< below 1 is off; 50 doubles a pixel's distance from its surroundings
    ConstPixelView picture;  ///< the layer's buffer, read for the surroundings

    double shadowRate = 0.0, shadowNorm = 1.0;  ///< of the curve that lifts the darks
    double gain = 50.0;                         ///< contrast, 50 is neutral
    double brightness = 0.0;
    double floor = 0.0;       ///< level to which black is lifted
    double highlights = 1.0;  ///< slope of the brights
};

/// The constants for a layer with the pixels `picture`. Its chain is active where a setting is away from neutral.
ToneConstants makeTone(const BitmapInfo& record, ToneLayer layer, ConstPixelView picture);

/// Photo filters, sharpen, shadow lift, contrast and highlight reduction of a colour at (x, y): real channels for
/// the background, roles for the foreground. `light` is a factor for the background's lighting, 1 where there is
/// none. The background comes out with no channel above 255; the foreground is limited by the caller. Channels may
/// come out negative.
void adjustTone(const ToneConstants& tone, Rgb& color, int x, int y, double light);

// The steps of the chain, for the key at one pixel, whose filters differ.

/// Largest and smallest channel added up, which the photo filters keep.
double sumOfEnds(const Rgb& color);
/// Scales a colour so that its ends add up to `ends`; black stays.
void restoreEnds(Rgb& color, double ends);
/// Sharpens, where the setting is on. Very dark results, and green that would stop being green, are left alone.
void sharpenTone(const ToneConstants& tone, Rgb& color, int x, int y);
/// The level to which the curve moves a largest channel, 0 to 300.
double toneCurve(const ToneConstants& tone, double largest);
/// Shadow lift, contrast, highlights, and the floor of the dark parts.
/// @return false for black, which takes the curve's level in all channels
bool curveTone(const ToneConstants& tone, Rgb& color);
/// Sets the contrast, and the level of black that goes with it and with `iBrightnessSat`.
void setGain(ToneConstants& tone, double gain, double saturation);

}  // namespace tavrin
