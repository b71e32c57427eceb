#include "key/KeyDecision.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr double kNoBound = -std::numeric_limits<double>::infinity();
constexpr double kBrightGreyMix = 0.97;
constexpr int kLastCell = 19;

// The working state of a decision.
struct Decision {
    double alpha = 0.0;  // share of the subject
    double mix = 1.0;    // share of the subject for recovering its colour
    Rgb display;         // colour when nothing is unmixed
    Rgb source;          // colour to unmix
};

double largestOf(const Rgb& c) {
    return std::max({c.r, c.g, c.b});
}

double distance(const Rgb& a, const Rgb& b) {
    const double r = a.r - b.r, g = a.g - b.g, bl = a.b - b.b;
    return std::sqrt(r * r + g * g + bl * bl);
}

Rgb scaled(const Rgb& c, double factor) {
    return {c.r * factor, c.g * factor, c.b * factor};
}

// Shifts the two colour differences and turns the result back to channels, unlimited.
Rgb whiteBalance(const KeyConstants& key, const Rgb& c) {
    const double y = 0.299 * c.r + 0.587 * c.g + 0.114 * c.b;
    const double u = -0.147 * c.r - 0.289 * c.g + 0.437 * c.b + key.whiteBalanceU;
    const double v = 0.615 * c.r - 0.515 * c.g - 0.1 * c.b + key.whiteBalanceV;
    return {y + 1.14 * v, y - 0.394 * u - 0.581 * v, y + 2.028 * u};
}

Rgb rawPixel(const KeyConstants& key, const std::uint8_t* p) {
    const double g = p[1], b = p[2];
    return key.blueLogic ? Rgb{static_cast<double>(p[0]), b, g} : Rgb{static_cast<double>(p[0]), g, b};
}

// The foreground's colour as the key sees it: each channel 1 to 255.
Rgb keyColor(const KeyConstants& key, const Rgb& raw) {
    const Rgb c = whiteBalance(key, {raw.r, raw.g == 0.0 ? 1.0 : raw.g, raw.b});
    return {clampTo(c.r, 1.0, 255.0), clampTo(c.g, 1.0, 255.0), clampTo(c.b, 1.0, 255.0)};
}

Rgb screenAt(const KeyConstants& key, int x, const GridStep& row) {
    const ScreenField& field = key.screen;
    if (!field.local) return field.global;
    const GridStep& column = field.columns[static_cast<std::size_t>(x)];
    const Rgb* low = field.cells.data() + row.low * (kLastCell + 1);
    const Rgb* high = field.cells.data() + row.high * (kLastCell + 1);
    const Rgb &a = low[column.low], &b = low[column.high], &c = high[column.low], &d = high[column.high];
    const double wa = (1.0 - row.part) * (1.0 - column.part), wb = (1.0 - row.part) * column.part;
    const double wc = row.part * (1.0 - column.part), wd = row.part * column.part;
    return balanceScreen(key, {wa * a.r + wb * b.r + wc * c.r + wd * d.r, wa * a.g + wb * b.g + wc * c.g + wd * d.g,
                               wa * a.b + wb * b.b + wc * c.b + wd * d.b});
}

bool inMargin(const KeyConstants& key, int x, int y) {
    const ClipMargins& clip = key.clip;
    return x < clip.left || y < clip.top || key.width - x < clip.right || key.height - y < clip.bottom;
}

// Least share of the subject that keeps its channel within 0 to 255. Where the divisor is 0 there is no bound.
double alphaBound(double c, double screen, double k) {
    if (c >= k * screen) {
        const double room = 255.0 - k * screen;
        return room == 0.0 ? kNoBound : (c - k * screen) / room;
    }
    return 1.0 - k * c / screen;
}

// How far the colour lies off the line from black through the screen colour, seen from three points of it.
double offScreenLine(const Rgb& f, const Rgb& screen) {
    const double fromGreen = distance(f, scaled(screen, f.g / screen.g));
    const double fromRed =
        screen.r < 20.0 ? fromGreen : distance(f, scaled(screen, f.r / screen.r)) * (screen.r / screen.g);
    const double fromBlue =
        screen.b < 20.0 ? fromGreen : distance(f, scaled(screen, f.b / screen.b)) * (screen.b / screen.g);
    const double line = fromGreen + fromRed + fromBlue;
    return line + (f.g - std::max(f.b, f.r)) * line / -100.0;
}

bool isPlainlyOther(const Rgb& f) {
    return (f.r >= f.b && f.r > f.g + 40.0) || (f.b > f.r && f.b > f.g + 40.0);
}

double mixedAlpha(const KeyConstants& key, const Rgb& f, const Rgb& screen) {
    const double red = alphaBound(f.r, screen.r, key.k);
    const double green = alphaBound(f.g, screen.g, 1.0);
    const double blue = alphaBound(f.b, screen.b, key.k);
    double alpha = searchAlpha(f, screen, key.search);
    if (f.r >= f.b) {
        alpha = std::max({alpha, red, green});
        if (alpha < blue && f.b > screen.b && screen.b > 30.0) alpha = blue;
        return clampTo(alpha, 0.0, 1.0);
    }
    if (screen.b > 30.0) alpha = std::max(alpha, blue);
    alpha = std::max(alpha, green);
    if (alpha < red && f.r > screen.r) alpha = red;
    return clampTo(alpha, 0.001, 1.0);
}

// Lifts all channels so that unmixing cannot make red or blue negative. Green, at least 1, needs no lift.
Rgb liftedSource(const Rgb& f, const Rgb& screen, double alpha) {
    const double rest = 1.0 - alpha;
    const double forRed = std::min(f.r - rest * screen.r, 0.0);
    const Rgb lifted{f.r - forRed, f.g - forRed, f.b - forRed};
    const double forBlue = std::min(lifted.b - rest * screen.b, 0.0);
    return {lifted.r - forBlue, lifted.g - forBlue, lifted.b - forBlue};
}

// The tests run in this order, and the first that applies decides.
Decision decide(const KeyConstants& key, const Rgb& f, KeyedPixel& pixel) {
    const Rgb& screen = pixel.screen;
    Decision result{0.0, 1.0, f, f};
    const double chroma = std::sqrt((f.r - f.g) * (f.r - f.g) + (f.g - f.b) * (f.g - f.b));
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

// Turns a colour that is still green away from it, towards its second channel, without darkening it.
void removeGreenCast(Rgb& c) {
    if (!(c.g > c.r + 10.0 && c.g > c.b + 10.0)) return;
    (c.r > c.b ? c.r : c.b) = c.g;
}

bool isBrightGrey(const Rgb& c) {
    return c.g > 127.0 && std::abs(static_cast<int>(c.g - c.r)) <= 29 && std::abs(static_cast<int>(c.g - c.b)) < 30;
}

double edgeAlpha(const KeyConstants& key, double alpha) {
    const bool edge = alpha < 1.0 && alpha > 0.01 && !key.showOrgImage;
    return edge ? (alpha - 0.5) * 1.4 + 0.5 + key.transShift : alpha;
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

Rgb recoverColor(const KeyConstants& key, const Decision& d, const KeyedPixel& pixel) {
    if (d.mix == 0.0) return {0.0, 0.0, 0.0};
    Rgb c = d.display;
    if (d.mix > 0.005 && d.mix < 0.98) {
        c = {recover(d.source.r, pixel.screen.r, d.mix), recover(d.source.g, pixel.screen.g, d.mix),
             recover(d.source.b, pixel.screen.b, d.mix)};
    }
    if (key.showBright) {
        limitBright(c);
    } else {
        holdBrightness(c, pixel.raw);
    }
    return c;
}

}  // namespace

GridStep gridStep(int position, int size) {
    const double f = clampTo(position * 20.0 / size - 0.5, 0.0, 19.0);
    const int low = static_cast<int>(f);
    return {low, std::min(low + 1, kLastCell), f - low};
}

Rgb balanceScreen(const KeyConstants& key, const Rgb& measured) {
    const double scale = key.screen.scale;
    const Rgb c = whiteBalance(key, {std::min(measured.r * scale, 255.0), std::min(measured.g * scale, 255.0),
                                     std::min(measured.b * scale, 255.0)});
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
    pixel.color = needed ? recoverColor(key, d, pixel) : Rgb{0.0, 0.0, 0.0};
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
