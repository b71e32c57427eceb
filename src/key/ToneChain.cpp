#include "key/ToneChain.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/raster/Pixels.h"
#include "core/state/BitmapInfo.h"

namespace tavrin {

namespace {

// Scales a channel; black over black is no number and stays black.
void brighten(double& channel, double scale) {
    channel *= scale;
    if (std::isnan(channel)) channel = 0.0;
}

double throughFilter(double channel, double strength, double filter) {
    return channel * (1.0 - strength) + strength * (channel * filter) / 255.0;
}

// `ends` is the sum of the largest and the smallest channel that the result is brought back to. The background's
// red stays as the filter left it.
void cool(const ToneConstants& tone, Rgb& c, double ends) {
    c = {std::min(throughFilter(c.r, tone.cooling, 0.0), 255.0), throughFilter(c.g, tone.cooling, 181.0),
         throughFilter(c.b, tone.cooling, 255.0)};
    const double scale = ends / sumOfEnds(c);
    if (tone.layer == ToneLayer::kForeground) brighten(c.r, scale);
    brighten(c.g, scale);
    brighten(c.b, scale);
}

void warm(const ToneConstants& tone, Rgb& c, double ends) {
    c = {std::min(throughFilter(c.r, tone.warming, 255.0), 255.0), throughFilter(c.g, tone.warming, 181.0),
         throughFilter(c.b, tone.warming, 0.0)};
    restoreEnds(c, ends);
}

// Mean of the 5 x 5 block around (x, y) without its centre, as far as it lies in the picture, byte by byte as
// stored. A picture of one pixel has no surroundings and no mean.
Rgb surroundings(const ToneConstants& tone, int x, int y) {
    const int top = std::max(y - 2, 0), bottom = std::min(y + 2, tone.height - 1);
    const int left = std::max(x - 2, 0), right = std::min(x + 2, tone.width - 1);
    int r = 0, g = 0, b = 0;
    for (int row = top; row <= bottom; ++row) {
        const std::uint8_t* p = tone.pixels + pixelOffset(tone.width, left, row);
        for (int column = left; column <= right; ++column, p += kPixelBytes) {
            r += p[0];
            g += p[1];
            b += p[2];
        }
    }
    const std::uint8_t* centre = tone.pixels + pixelOffset(tone.width, x, y);
    const double count = (bottom - top + 1) * (right - left + 1) - 1;
    return {(r - centre[0]) / count, (g - centre[1]) / count, (b - centre[2]) / count};
}

bool isGreenLed(const Rgb& c) {
    return c.g > c.r && c.g > c.b;
}

// Moves the colour so that its largest channel `m` lies at `level`.
void applyLevel(const ToneConstants& tone, Rgb& c, double m, double level) {
    double floor = tone.floor;
    if (level > m) floor += (level - m) * 0.6;
    if (level - floor < 0.0) floor = level;
    const double range = level - floor;
    c = {floor + c.r * range / m, floor + c.g * range / m, floor + c.b * range / m};
}

}  // namespace

double sumOfEnds(const Rgb& c) {
    return std::max({c.r, c.g, c.b}) + std::min({c.r, c.g, c.b});
}

void restoreEnds(Rgb& c, double ends) {
    const double scale = ends / sumOfEnds(c);
    brighten(c.r, scale);
    brighten(c.g, scale);
    brighten(c.b, scale);
}

void sharpenTone(const ToneConstants& tone, Rgb& c, int x, int y) {
    if (tone.sharpen < 1.0) return;
    const Rgb mean = surroundings(tone, x, y);
    const Rgb sharp{clampTo(c.r + (c.r - mean.r) * tone.sharpen / 50.0, 0.0, 255.0),
                    clampTo(c.g + (c.g - mean.g) * tone.sharpen / 50.0, 0.0, 255.0),
                    clampTo(c.b + (c.b - mean.b) * tone.sharpen / 50.0, 0.0, 255.0)};
    if (sharp.r + sharp.g + sharp.b > 80.0 && !(isGreenLed(c) && !isGreenLed(sharp))) c = sharp;
}

double toneCurve(const ToneConstants& tone, double m) {
    const double lifted = m < 128.0 ? (1.0 - std::exp(tone.shadowRate * m)) * 128.0 / tone.shadowNorm : m;
    double level = tone.gain * (lifted + tone.brightness - 128.0) / 50.0 + 128.0;
    if (level > 160.0) level = (level - 160.0) * tone.highlights + 160.0;
    if (level > 192.0) level = (level - 192.0) * tone.highlights + 192.0;
    return clampTo(level, 0.0, 300.0);
}

bool curveTone(const ToneConstants& tone, Rgb& c) {
    const double m = std::max({c.r, c.g, c.b});
    const double level = toneCurve(tone, m);
    if (m > 0.0) {
        applyLevel(tone, c, m, level);
        return true;
    }
    c = {level, level, level};
    return false;
}

void setGain(ToneConstants& tone, double gain, double saturation) {
    tone.gain = gain;
    tone.floor = (tone.brightness - 128.0) * gain / 50.0 + 128.0 - saturation;
}

ToneConstants makeTone(const BitmapInfo& record, ToneLayer layer, const std::uint8_t* pixels, int width, int height) {
    const std::int64_t shadows = record.iEnhanseShadows, contrast = record.iContrast;
    const std::int64_t brightness = record.iBrightness, saturation = record.iBrightnessSat;
    const std::int64_t highlights = record.iReduceHighlights, sharpening = record.iBrightnessSharpen;
    const std::int32_t cooling = record.iCooling, warming = record.iWarming;

    ToneConstants tone;
    tone.layer = layer;
    tone.pixels = pixels;
    tone.width = width;
    tone.height = height;
    tone.cools = cooling != 0;
    tone.warms = warming != 0;
    tone.cooling = cooling / 255.0;
    tone.warming = warming / 255.0;
    tone.sharpen = static_cast<double>(sharpening);
    tone.shadowRate = static_cast<double>(shadows + 1) / -2000.0;
    tone.shadowNorm = 1.0 - std::exp(tone.shadowRate * 128.0);
    tone.brightness = static_cast<double>(brightness);
    setGain(tone, tone.brightness * 0.25 + static_cast<double>(contrast), static_cast<double>(saturation));
    tone.highlights = 1.0 - static_cast<double>(highlights) / 100.0;
    tone.active =
        shadows + std::abs(contrast - 50) + std::abs(brightness) + std::abs(saturation) + highlights + sharpening !=
            0 ||
        tone.cools || tone.warms;
    return tone;
}

void adjustTone(const ToneConstants& tone, Rgb& color, int x, int y, double light) {
    const double ends = sumOfEnds(color);
    if (tone.cools) cool(tone, color, ends);
    if (tone.warms) warm(tone, color, ends);
    sharpenTone(tone, color, x, y);
    const bool lit = curveTone(tone, color);
    if (lit && tone.layer == ToneLayer::kBackground) color = {color.r * light, color.g * light, color.b * light};
    if (tone.layer == ToneLayer::kBackground) limitTone(color);
}

void limitTone(Rgb& color) {
    limitChannel(color.r, color.g, color.b);
    limitChannel(color.g, color.r, color.b);
    limitChannel(color.b, color.r, color.g);
}

}  // namespace tavrin
