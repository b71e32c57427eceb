#include "key/spill/ColorAdjust.h"

#include "key/pixel/FinishConstants.h"
#include "key/pixel/PixelSteps.h"

namespace tavrin {

namespace {

constexpr double kFilterGreen = 181.0;  // green of both filter colours
constexpr double kLightShift = 40.0;    // level below black at which the light has no effect

double filteredGreen(double green, double strength) {
    return green * (1.0 - strength) + strength * kFilterGreen * green / 255.0;
}

// The filters of the pixel's own form: the channel that a filter lets through is not touched at all.
void coolPixel(Rgb& c, double strength, double ends) {
    c = {std::min(c.r * (1.0 - strength), 255.0), std::min(filteredGreen(c.g, strength), 255.0),
         std::min(c.b, 255.0)};
    restoreEnds(c, ends);
}

void warmPixel(Rgb& c, double strength, double ends) {
    c = {std::min(c.r, 255.0), std::min(filteredGreen(c.g, strength), 255.0),
         std::min(c.b * (1.0 - strength), 255.0)};
    restoreEnds(c, ends);
}

// Even a light that is not for this layer sends the colour through the shift and the limits.
void applyLight(const ColorAdjust& adjust, Rgb& c, std::size_t index) {
    const double k = adjust.lit ? adjust.light[index] / 1000.0 + 1.0 : 1.0;
    c = {(c.r + kLightShift) * k - kLightShift, (c.g + kLightShift) * k - kLightShift,
         (c.b + kLightShift) * k - kLightShift};
    c = limitBlend(c);
}

}  // namespace

ColorAdjust makeColorAdjust(const SystemInfo& info, ToneLayer layer, ConstPixelView foreground) {
    const bool front = layer == ToneLayer::kForeground;
    const BitmapInfo& record = front ? *info.pForegroundBitmapInfo : *info.pBackgroundBitmapInfo;
    const std::int32_t mode = info.iLightingMode, applyTo = info.iLightingApplyTo;
    const std::int64_t contrast = record.iContrast, brightness = record.iBrightness;

    ColorAdjust adjust;
    adjust.tone = makeTone(record, layer, foreground);
    setGain(adjust.tone, static_cast<double>(contrast + brightness / 4), record.iBrightnessSat);
    adjust.active = record.bHaveColorChange || adjust.tone.warms || adjust.tone.cools || mode != 0;
    const bool mapFits = info.oLightingMap.size() ==
                         static_cast<std::size_t>(foreground.width) * static_cast<std::size_t>(foreground.height);
    if (mode != 0 && mapFits) adjust.light = info.oLightingMap.data();
    adjust.lit = front ? applyTo != 2 && mode != 4 : applyTo != 1;
    return adjust;
}

Rgb adjustLayerColor(const ColorAdjust& adjust, const Rgb& color, int x, int y) {
    if (!adjust.active) return color;
    Rgb c = color;
    if (adjustKeyedColor(adjust.tone, c, x, y) && adjust.light) {
        applyLight(adjust, c,
                   static_cast<std::size_t>(y) * static_cast<std::size_t>(adjust.tone.picture.width) +
                       static_cast<std::size_t>(x));
    }
    return {clampTo(c.r, 0.0, 255.0), clampTo(c.g, 0.0, 255.0), clampTo(c.b, 0.0, 255.0)};
}

bool adjustKeyedColor(const ToneConstants& tone, Rgb& color, int x, int y) {
    const double ends = sumOfEnds(color);
    if (tone.cools) coolPixel(color, tone.cooling, ends);
    if (tone.warms) warmPixel(color, tone.warming, ends);
    sharpenTone(tone, color, x, y);
    return curveTone(tone, color);
}

Rgb colorMode(int mode, bool blueLogic, const Rgb& c) {
    if (mode != kModeGrey && mode != kModeSepia) return c;
    const double grey = blueLogic ? 0.6 * c.r + 0.3 * c.b + 0.1 * c.g : 0.6 * c.r + 0.1 * c.b + 0.3 * c.g;
    if (mode == kModeGrey) return {grey, grey, grey};
    return blueLogic ? Rgb{grey, 0.64 * grey, 0.82 * grey} : Rgb{grey, 0.82 * grey, 0.64 * grey};
}

}  // namespace tavrin
