#include "key/hair/HairCorrection.h"

#include <algorithm>
#include <cmath>

#include "core/raster/Pixels.h"
#include "key/pixel/ColorDistance.h"

namespace tavrin {

namespace {

constexpr double kLeastShare = 0.1;
constexpr double kShareStep = 0.03;
constexpr int kKeptRed = 5;  // a pixel whose red or blue stands this far above green keeps the key's result

// Holds a channel within 0 to 255; what a division by zero made no number counts as 0.
double limit255(double value) {
    return !(value > 0.0) ? 0.0 : (value > 255.0 ? 255.0 : value);
}

Rgb unmix(const HairPixel& pixel, const Rgb& base, double t) {
    return {limit255((pixel.r - t * base.r) / (1.0 - t)), limit255((pixel.g - t * base.g) / (1.0 - t)),
            limit255((pixel.b - t * base.b) / (1.0 - t))};
}

// Truncates; colours that no picture can have are held within 16 bits, far from every pixel.
std::int16_t truncated(double value) {
    return static_cast<std::int16_t>(value >= -30000.0 ? std::min(value, 30000.0) : -30000.0);
}

int hueDistance(int difference) {
    const int distance = std::abs(difference);
    return distance > 180 ? 360 - distance : distance;
}

HairMixes::Search makeSearch(const std::vector<Rgb>& hairColors, const Rgb& base, double start) {
    HairMixes::Search search;
    for (double t = start; t <= 1.0 && search.steps < HairMixes::kMaxSteps; t += kShareStep) {
        if (t > kLeastShare) search.t[search.steps++] = t;
    }
    for (const Rgb& hair : hairColors) {
        for (int i = 0; i < search.steps; ++i) {
            const double t = search.t[i];
            const HsvColor mix = toHsv(hair.r * (1.0 - t) + base.r * t, hair.g * (1.0 - t) + base.g * t,
                                       hair.b * (1.0 - t) + base.b * t);
            search.mixes.push_back({truncated(mix.h), truncated(100.0 * mix.s), truncated(mix.v)});
        }
    }
    return search;
}

// Hair colours that are led by green are never tried.
std::vector<Rgb> usableHair(const SystemInfo& info, int count) {
    std::vector<Rgb> colors;
    for (int i = 0; i < count; ++i) {
        const Rgb hair = {static_cast<double>(info.iHairColorBinRed[i]),
                          static_cast<double>(info.iHairColorBinGreen[i]),
                          static_cast<double>(info.iHairColorBinBlue[i])};
        if (!(hair.g > hair.r && hair.g > hair.b)) colors.push_back(hair);
    }
    return colors;
}

// Hue is the dearest part of a colour and is looked at last.
bool isScreen(const HairParams& params, const HairPixel& pixel, double sat, double value) {
    const int dV = wholeSteps(params.baseHsv.v - value);
    const int dS = wholeSteps(100.0 * params.baseHsv.s - 100.0 * sat);
    if (std::abs(dV) >= 5 || std::abs(dS) >= 5) return false;
    const double hue = toHsv(pixel.r, pixel.g, pixel.b).h;
    const int dH = hueDistance(wholeSteps(params.baseHsv.h - hue));
    return 4 * dH * dH + dS * dS + dV * dV < 25;
}

bool keepsResult(const HairParams& params, const HairPixel& pixel, double sat, double value) {
    return pixel.r >= pixel.g + kKeptRed || pixel.b >= pixel.g + kKeptRed || (pixel.g > 200 && sat < 0.2) ||
           (pixel.g > params.base.g * 1.05 && sat < 0.3) || (sat * value < 20.0 && pixel.alpha > 0.99);
}

int detailAt(const HairParams& params, int x, int y) {
    if (!params.detailMap) return 0;
    const std::int64_t row = static_cast<std::int64_t>(y) * params.detailHeight / params.run.height;
    const std::int64_t column = static_cast<std::int64_t>(x) * params.detailWidth / params.run.width;
    return params.detailMap[pixelOffset(params.detailWidth, static_cast<int>(column), static_cast<int>(row))];
}

// Green shadow on the screen: no redder than the screen, dark, and smooth.
bool isShadow(const HairParams& params, const HairPixel& pixel) {
    if (!params.shadowRemoval) return false;
    const double green = std::min(pixel.g * 140.0 / (params.base.g + 20.0), 255.0);
    const double red = std::min(pixel.r * 140.0 / (params.base.r + 20.0), 255.0);
    return green >= red && green > 8.0 && green < 150.0 && detailAt(params, pixel.x, pixel.y) <= 99;
}

// A grey pixel: its share of the screen from how far green stands above the other lesser channel of the screen.
// The colour that remains is pure grey.
double explainGrey(const HairParams& params, HairPixel& pixel) {
    const Rgb& base = params.base;
    const bool redLeads = base.r > base.b;
    const double c = redLeads ? pixel.r : pixel.b, m = redLeads ? base.r : base.b;
    const double ratio = (c - pixel.g) / (m - base.g + 0.001);
    const double t = ratio > 0.0 ? std::min(ratio, 0.99) : 0.0;
    const Rgb own = unmix(pixel, base, t);
    const double grey = std::max({own.r, own.g, own.b});
    pixel.color = {grey, grey, grey};
    return t;
}

// Keeps the colour of a strand from the screen's: green between red and blue, never above red.
Rgb strandColor(const Rgb& own, bool blueLogic) {
    const double top = std::max(own.r, own.g);
    const double lowGreen = own.g > own.r ? std::trunc(own.r) : own.g;
    if (blueLogic) {
        const double green = std::max(own.b, lowGreen);
        return {top, green, green + (top - green) * 0.5};
    }
    const double lowBlue = own.b > lowGreen ? std::trunc(own.b) : own.b;
    return {top, lowBlue + (top - lowBlue) * 0.5, lowBlue};
}

// The mix that is nearest to the pixel; returns the share of the screen in it, or -1 when none is near. The best
// distance is kept truncated, so that a later mix must be nearer by whole units.
double explainHair(const HairParams& params, HairPixel& pixel) {
    const HsvColor hsv = toHsv(pixel.r, pixel.g, pixel.b);
    const bool fromLeast = !(params.base.r > params.base.b) || pixel.color.g < 40.0;
    const HairMixes::Search& search = params.mixes.search(pixel.r - pixel.g, fromLeast);
    const int hue = static_cast<int>(hsv.h), sat = static_cast<int>(100.0 * hsv.s), value = static_cast<int>(hsv.v);
    int best = 40, found = -1;
    const int count = static_cast<int>(search.mixes.size());
    for (int i = 0; i < count; ++i) {
        const HairMixes::Mix& mix = search.mixes[i];
        const int dS = sat - mix.sat, dV = value - mix.value;
        if (std::abs(dS) >= best || std::abs(dV) >= best) continue;
        const int dH = hueDistance(hue - mix.hue);
        const int squared = dS * dS + dH * dH + dV * dV;
        if (squared >= best * best) continue;
        best = static_cast<int>(std::sqrt(squared));
        found = i;
    }
    if (found < 0) return -1.0;
    const double t = search.t[found % search.steps];
    pixel.color = strandColor(unmix(pixel, params.base, t), params.blueLogic);
    return t;
}

double correctedAlpha(const HairNumbers& run, double share) {
    double alpha = clampTo(1.0 - share, 0.0, 1.0);
    if (alpha < 1.0 && alpha > 0.01) alpha = (alpha - 0.5) * run.removeGain + 0.5 + run.transShift;
    return clampTo(alpha, 0.0, 1.0);
}

}  // namespace

HairMixes::HairMixes(const std::vector<Rgb>& hairColors, const Rgb& base) {
    searches_.push_back(makeSearch(hairColors, base, kLeastShare));
    if (!(base.r > base.b)) return;
    for (int difference = -255; difference < kKeptRed; ++difference) {
        const double start = clampTo(difference / (base.r - base.g + 0.001) - 0.2, kLeastShare, 1.0);
        searches_.push_back(start == kLeastShare ? searches_[0] : makeSearch(hairColors, base, start));
    }
}

HairParams::HairParams(const SystemInfo& info, const HairNumbers& numbers) : run(numbers) {
    active =
        info.bAdvancedHairDetectionON && info.bFoundHair && !info.bShowOrgImage && run.width > 0 && run.height > 0;
    if (!active) return;
    blueLogic = info.bUseBlueLogic;
    shadowRemoval = info.bAVPShadowRemoval;
    base = {info.baseRed, info.baseGreen, info.baseBlue};
    baseHsv = toHsv(base.r, base.g, base.b);
    detailMap = info.pHairDetectBitmap;
    detailWidth = info.iOutputPixelLowResWidth;
    detailHeight = info.iOutputPixelLowResHeight;
    if (detailWidth < 1 || detailHeight < 1) detailMap = nullptr;
    hairColors = std::clamp(info.iHairColorCount.load(), 0, static_cast<int>(info.iHairColorBinRed.size()));
    mixes = HairMixes(usableHair(info, hairColors), base);
}

void correctHair(const HairParams& params, HairPixel& pixel) {
    const int mx = std::max({pixel.r, pixel.g, pixel.b}), mn = std::min({pixel.r, pixel.g, pixel.b});
    const double value = mx, sat = mx == mn ? 0.0 : (value - mn) / value;
    if (isScreen(params, pixel, sat, value)) {
        pixel.alpha = 0.0;
        return;
    }
    if (keepsResult(params, pixel, sat, value)) return;
    if (isShadow(params, pixel)) {
        pixel.alpha = 0.0;
        return;
    }
    double share;
    if (sat < 0.2) {
        share = explainGrey(params, pixel);
    } else {
        if (params.hairColors < 1) return;
        share = explainHair(params, pixel);
        if (share < 0.0) return;
    }
    if (pixel.lift < params.run.darkChroma && pixel.max < params.base.g - params.base.r) {
        pixel.alpha = 1.0;
        pixel.color.g = std::min(pixel.color.g, std::max(pixel.color.r, pixel.color.b));
    } else {
        pixel.alpha = correctedAlpha(params.run, share);
    }
}

}  // namespace tavrin
