#include "key/KeyDecision.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/raster/Pixels.h"
#include "key/KeyMaths.h"

namespace tavrin {

namespace {

constexpr double kBrightGreyMix = 0.97;

Rgb rawPixel(const KeyConstants& key, const std::uint8_t* p) {
    const double g = p[1], b = p[2];
    return key.blueLogic ? Rgb{static_cast<double>(p[0]), b, g} : Rgb{static_cast<double>(p[0]), g, b};
}

Rgb keyColor(const KeyConstants& key, const Rgb& raw) {
    return balanceForeground({raw.r, raw.g == 0.0 ? 1.0 : raw.g, raw.b}, key.whiteBalanceU, key.whiteBalanceV);
}

// The tests run in this order, and the first that applies decides.
Decision decide(const KeyConstants& key, const Rgb& f, KeyedPixel& pixel) {
    const Rgb& screen = pixel.screen;
    Decision result{0.0, 1.0, f, f};
    const double chroma = chromaOf(f);
    pixel.largest = largestOf(f);

    // A dark grey inside the subject.
    if (chroma < key.darkChroma && pixel.largest < screen.g - screen.r) {
        pixel.lift = chroma;
        result.alpha = 1.0;
        result.display.g = std::min(f.g, std::max(f.r, f.b));
        return result;
    }
    // Screen of any brightness, unless it is so dark that it may be the subject.
    pixel.lift = chroma + f.g * 0.2;
    if (pixel.lift > key.darkLimit && offScreenLine(f, screen) < 80.0) {
        result.display = {255.0, 255.0, 255.0};
        return result;
    }
    if (pixel.inClipMargin || distance(f, screen) < 8.0) {
        pixel.hardBackground = true;
        return result;
    }
    if (!key.blueLogic && isPlainlyOther(f)) {
        result.alpha = 1.0;
        return result;
    }
    result.alpha = result.mix = mixedAlpha(key, f, screen);
    result.source = liftedSource(f, screen, result.alpha);
    return result;
}

bool isBrightGrey(const Rgb& c) {
    return c.g > 127.0 && std::abs(static_cast<int>(c.g - c.r)) <= 29 && std::abs(static_cast<int>(c.g - c.b)) < 30;
}

// Takes the screen's share out of a channel.
double recover(double c, double screen, double mix) {
    return atLeast((c - (1.0 - mix) * screen) / mix, 0.0);
}

// A channel above 255 takes the others down with it, but for red, which is only cut.
void limitBright(Rgb& c) {
    limitChannel(c.g, c.r, c.b);
    c.r = std::min(c.r, 255.0);
    limitChannel(c.b, c.r, c.g);
}

// Unmixing must not make a pixel brighter than it was.
void holdBrightness(Rgb& c, const Rgb& raw) {
    const double scale = (raw.g + raw.r) / (c.r + c.g);
    if (scale < 1.0) c = scaled(c, scale);
}

}  // namespace

Rgb recoverColor(const Decision& d, const Rgb& screen, const Rgb& raw, bool showBright) {
    if (d.mix == 0.0) return {0.0, 0.0, 0.0};
    Rgb c = d.display;
    if (d.mix > 0.005 && d.mix < 0.98) {
        c = {recover(d.source.r, screen.r, d.mix), recover(d.source.g, screen.g, d.mix),
             recover(d.source.b, screen.b, d.mix)};
    }
    if (showBright) {
        limitBright(c);
    } else {
        holdBrightness(c, raw);
    }
    return c;
}

GridStep gridStep(int position, int size) {
    const double f = clampTo(position * 20.0 / size - 0.5, 0.0, 19.0);
    const int low = static_cast<int>(f);
    return {low, std::min(low + 1, kGridSide - 1), f - low};
}

Rgb balanceScreen(const KeyConstants& key, const Rgb& measured) {
    const double scale = key.screen.scale;
    const Rgb c = whiteBalance({std::min(measured.r * scale, 255.0), std::min(measured.g * scale, 255.0),
                                std::min(measured.b * scale, 255.0)},
                               key.whiteBalanceU, key.whiteBalanceV);
    return {atLeast(c.r, 1.0), atLeast(c.g, 1.0), atLeast(c.b, 1.0)};
}

KeyedPixel decidePixel(const KeyConstants& key, const std::uint8_t* foreground, int x, int y, const GridStep& row) {
    KeyedPixel pixel;
    pixel.raw = rawPixel(key, foreground);
    pixel.screen = screenAt(key, x, row);
    pixel.inClipMargin = inMargin(key, x, y);
    const Rgb f = keyColor(key, pixel.raw);

    Decision d{0.0, 1.0, f, f};
    if (key.showOrgImage) {
        d.alpha = pixel.inClipMargin ? 0.0 : foreground[3] / 255.0;
        if (std::int64_t{y} * key.width + x > key.firstBrightGrey) d.mix = kBrightGreyMix;
    } else {
        d = decide(key, f, pixel);
        if (d.alpha < 0.8) removeGreenCast(d.display);
    }
    if (key.showBright && d.mix > kBrightGreyMix && isBrightGrey(d.display)) d.mix = kBrightGreyMix;

    pixel.alpha = pixel.inClipMargin ? 0.0 : clampTo(edgeAlpha(key, d.alpha), 0.0, 1.0);
    const bool needed = pixel.alpha > 0.0 || key.colorOfClear;
    pixel.color = needed ? recoverColor(d, pixel.screen, pixel.raw, key.showBright) : Rgb{0.0, 0.0, 0.0};
    if (key.showSelectedAreas) {
        pixel.color = pixel.screen;
        pixel.alpha = 1.0;
    }
    return pixel;
}

int findBrightGrey(const KeyConstants& key, const std::uint8_t* row) {
    for (int x = 0; x < key.width; ++x) {
        if (isBrightGrey(keyColor(key, rawPixel(key, row + pixelOffset(key.width, x, 0))))) return x;
    }
    return key.width;
}

}  // namespace tavrin
