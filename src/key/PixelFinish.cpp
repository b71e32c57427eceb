#include "key/PixelFinish.h"

#include <algorithm>
#include <cmath>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

// Real channels to roles and back.
Rgb swapRoles(bool blueLogic, const Rgb& c) {
    return blueLogic ? Rgb{c.r, c.b, c.g} : c;
}

void limitBelow(Rgb& c) {
    c = {atLeast(c.r, 0.0), atLeast(c.g, 0.0), atLeast(c.b, 0.0)};
}

// Towards the level `to`, in 2000ths.
double blendWhite(double c, double to, double part, double keep) {
    return to * part + c * keep / 2000.0;
}

// Grey and sepia of a colour in real channels.
Rgb applyMode(int mode, const Rgb& c) {
    if (mode != kModeGrey && mode != kModeSepia) return c;
    const double v = 0.6 * c.r + 0.3 * c.g + 0.1 * c.b;
    return mode == kModeGrey ? Rgb{v, v, v} : Rgb{v, v * 0.82, v * 0.64};
}

Rgb silhouetteAt(const SilhouetteFill& fill, int x, int y) {
    if (!fill.pixels) return fill.color;
    const std::int64_t row = static_cast<std::int64_t>(y * fill.scale) + fill.rowShift;
    const std::int64_t column = static_cast<std::int64_t>(x * fill.scale) + fill.columnShift;
    if (row < 0 || row >= fill.height || column < 0 || column >= fill.width) return {0.0, 0.0, 0.0};
    const std::uint8_t* p = fill.pixels + pixelOffset(fill.width, static_cast<int>(column), static_cast<int>(row));
    return {static_cast<double>(p[0]), static_cast<double>(p[1]), static_cast<double>(p[2])};
}

double lightFactor(const LightMap& light, double alpha, std::int32_t gain) {
    if (light.onBackground) return 1.0;
    const double m = gain / 1000.0;
    return light.byAlpha ? 1.0 + m * alpha : 1.0 + m;
}

void applyLight(Rgb& c, double factor) {
    c = {c.r * factor, c.g * factor, c.b * factor};
    limitBlend(c);
}

// A thin edge over a bright background is brightened; over a dark one it gets slightly darker.
void liftEdge(const FinishConstants& finish, Rgb& c, const Rgb& background, double alpha) {
    const Rgb real = swapRoles(finish.blueLogic, background);
    const double luma = 0.299 * real.r + 0.587 * real.g + 0.114 * real.b;
    const double darkness = clampTo(std::trunc(130.0 - luma), -130.0, 0.0) + 130.0;
    const double edge = (alpha / (alpha * 0.75 + (alpha * 0.25) * darkness / 125.0) - 1.0) * 100.0;
    const double lift = edge * (1.0 - alpha);
    c = {c.r + lift, c.g + lift, c.b + lift};
    limitBlend(c);
}

}  // namespace

void limitBlend(Rgb& c) {
    limitChannel(c.g, c.r, c.b);
    limitChannel(c.r, c.g, c.b);
    limitChannel(c.b, c.r, c.g);
    limitBelow(c);
}

void adjustWhite(const WhiteAdjust& white, Rgb& c, bool greenIsLevel) {
    const double rb = c.r - c.b, gb = c.g - c.b, gr = c.g - c.r;
    const double distance = std::sqrt(rb * rb + gb * gb + gr * gr) * 255.0 / c.g;
    if (distance < white.wide && greenIsLevel) {
        const double level = std::max(c.b, c.g);
        const double part = (white.wide - distance) / 2000.0, keep = 2000.0 - (white.wide - distance);
        if (c.r > level) c.r = blendWhite(c.r, level, part, keep);
        c.g = blendWhite(c.g, level, part, keep);
        c.b = blendWhite(c.b, level, part, keep);
        c = {level * white.mix + white.keep * c.r / 2000.0, level * white.mix + white.keep * c.g / 2000.0,
             level * white.mix + white.keep * c.b / 2000.0};
    }
    if (distance < white.near) {
        const double grey = (white.near - distance) * std::max({c.r, c.g, c.b}) / white.near;
        c = {distance * c.r / white.near + grey, distance * c.g / white.near + grey,
             distance * c.b / white.near + grey};
    }
}

Rgb finishForeground(const FinishConstants& finish, const Rgb& keyed, int x, int y) {
    Rgb c = keyed;
    if (finish.foregroundTone.active) adjustTone(finish.foregroundTone, c, x, y, 1.0);
    limitTone(c);
    limitBelow(c);
    if (finish.white.on) adjustWhite(finish.white, c, c.g > c.b - 5.0 && c.g > c.r - 5.0);
    const Rgb real = finish.silhouette.on ? silhouetteAt(finish.silhouette, x, y)
                                          : applyMode(finish.foregroundMode, swapRoles(finish.blueLogic, c));
    c = swapRoles(finish.blueLogic, real);
    const Rgb& delta = finish.foregroundDelta;
    return {clampTo(c.r + delta.r, 0.0, 255.0), clampTo(c.g + delta.g, 0.0, 255.0),
            clampTo(c.b + delta.b, 0.0, 255.0)};
}

Rgb finishBackground(const FinishConstants& finish, const std::uint8_t* bytes, int x, int y, std::int32_t gain) {
    const Rgb& delta = finish.backgroundDelta;
    Rgb c{clampTo(bytes[0] + delta.r, 0.0, 255.0), clampTo(bytes[1] + delta.g, 0.0, 255.0),
          clampTo(bytes[2] + delta.b, 0.0, 255.0)};
    if (finish.backgroundTone.active) {
        adjustTone(finish.backgroundTone, c, x, y, finish.light.onBackground ? 1.0 + gain / 1000.0 : 1.0);
    }
    return swapRoles(finish.blueLogic, applyMode(finish.backgroundMode, c));
}

Rgb blendPixel(const FinishConstants& finish, const Rgb& foreground, const Rgb& background, double alpha,
               std::int32_t gain) {
    const double rest = 1.0 - alpha;
    Rgb c{foreground.r * alpha + background.r * rest, foreground.g * alpha + background.g * rest,
          foreground.b * alpha + background.b * rest};
    const double factor = lightFactor(finish.light, alpha, gain);
    if (finish.light.values) applyLight(c, factor);
    if (alpha < 0.9 && alpha > 0.2) liftEdge(finish, c, background, alpha);
    // The light falls twice: before the edge is lifted and again after it.
    if (finish.light.values) applyLight(c, factor);
    return c;
}

void writeColor(bool blueLogic, const Rgb& color, std::uint8_t* out) {
    const Rgb real = swapRoles(blueLogic, color);
    out[0] = toByte(real.r);
    out[1] = toByte(real.g);
    out[2] = toByte(real.b);
}

void writeTransparent(const FinishConstants& finish, const Rgb& foreground, double alpha, std::uint8_t* out) {
    if (alpha * 255.0 < 15.0) {
        out[0] = out[1] = out[2] = 155;
    } else {
        writeColor(finish.blueLogic,
                   {std::max(foreground.r, 1.0), std::max(foreground.g, 1.0), std::max(foreground.b, 1.0)}, out);
    }
    if (!finish.showOrgImage) out[3] = toByte(alpha * 255.0);
}

}  // namespace tavrin
