#pragma once

#include <algorithm>
#include <cmath>

#include "key/KeyDecision.h"

namespace tavrin {

// The arithmetic that the key of whole pictures and the key at one pixel share. Colours in roles.

/// The working state of a decision on one pixel.
struct Decision {
    double alpha = 0.0;  ///< share of the subject
    double mix = 1.0;    ///< share of the subject for recovering its colour
    Rgb display;         ///< colour when nothing is unmixed
    Rgb source;          ///< colour to unmix
};

inline double largestOf(const Rgb& c) {
    return std::max({c.r, c.g, c.b});
}

inline double distance(const Rgb& a, const Rgb& b) {
    const double r = a.r - b.r, g = a.g - b.g, bl = a.b - b.b;
    return std::sqrt(r * r + g * g + bl * bl);
}

inline Rgb scaled(const Rgb& c, double factor) {
    return {c.r * factor, c.g * factor, c.b * factor};
}

/// How far a colour is from grey, seen from green.
inline double chromaOf(const Rgb& f) {
    return std::sqrt((f.r - f.g) * (f.r - f.g) + (f.g - f.b) * (f.g - f.b));
}

/// Shifts the two colour differences and turns the result back to channels, unlimited.
inline Rgb whiteBalance(const Rgb& c, double shiftU, double shiftV) {
    const double y = 0.299 * c.r + 0.587 * c.g + 0.114 * c.b;
    const double u = -0.147 * c.r - 0.289 * c.g + 0.437 * c.b + shiftU;
    const double v = 0.615 * c.r - 0.515 * c.g - 0.1 * c.b + shiftV;
    return {y + 1.14 * v, y - 0.394 * u - 0.581 * v, y + 2.028 * u};
}

/// The foreground's colour as the key sees it: white balanced, each channel 1 to 255.
inline Rgb balanceForeground(const Rgb& raw, double shiftU, double shiftV) {
    const Rgb c = whiteBalance(raw, shiftU, shiftV);
    return {clampTo(c.r, 1.0, 255.0), clampTo(c.g, 1.0, 255.0), clampTo(c.b, 1.0, 255.0)};
}

/// The screen colour at column x of a row, scaled and white balanced, each channel at least 1.
inline Rgb screenAt(const KeyConstants& key, int x, const GridStep& row) {
    const ScreenField& field = key.screen;
    if (!field.local) return field.global;
    const GridStep& column = field.columns[static_cast<std::size_t>(x)];
    const Rgb* low = field.cells.data() + row.low * kGridSide;
    const Rgb* high = field.cells.data() + row.high * kGridSide;
    const Rgb &a = low[column.low], &b = low[column.high], &c = high[column.low], &d = high[column.high];
    const double wa = (1.0 - row.part) * (1.0 - column.part), wb = (1.0 - row.part) * column.part;
    const double wc = row.part * (1.0 - column.part), wd = row.part * column.part;
    return balanceScreen(key, {wa * a.r + wb * b.r + wc * c.r + wd * d.r, wa * a.g + wb * b.g + wc * c.g + wd * d.g,
                               wa * a.b + wb * b.b + wc * c.b + wd * d.b});
}

inline bool inMargin(const KeyConstants& key, int x, int y) {
    const ClipMargins& clip = key.clip;
    return x < clip.left || y < clip.top || key.width - x < clip.right || key.height - y < clip.bottom;
}

/// How far the colour lies off the line from black through the screen colour, seen from three points of it.
inline double offScreenLine(const Rgb& f, const Rgb& screen) {
    const double fromGreen = distance(f, scaled(screen, f.g / screen.g));
    const double fromRed =
        screen.r < 20.0 ? fromGreen : distance(f, scaled(screen, f.r / screen.r)) * (screen.r / screen.g);
    const double fromBlue =
        screen.b < 20.0 ? fromGreen : distance(f, scaled(screen, f.b / screen.b)) * (screen.b / screen.g);
    const double line = fromGreen + fromRed + fromBlue;
    return line + (f.g - std::max(f.b, f.r)) * line / -100.0;
}

/// So red or blue that no screen can have a share in it.
inline bool isPlainlyOther(const Rgb& f) {
    return (f.r >= f.b && f.r > f.g + 40.0) || (f.b > f.r && f.b > f.g + 40.0);
}

/// Least share of the subject that keeps its channel within 0 to 255. Where the divisor is 0 there is no bound.
inline double alphaBound(double c, double screen, double k) {
    if (c >= k * screen) {
        const double room = 255.0 - k * screen;
        return room == 0.0 ? -std::numeric_limits<double>::infinity() : (c - k * screen) / room;
    }
    return 1.0 - k * c / screen;
}

/// The share of the subject in a mixed pixel: what the search finds, raised by the bounds.
inline double mixedAlpha(const KeyConstants& key, const Rgb& f, const Rgb& screen) {
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

/// Lifts all channels so that unmixing cannot make red or blue negative. Green, at least 1, needs no lift.
inline Rgb liftedSource(const Rgb& f, const Rgb& screen, double alpha) {
    const double rest = 1.0 - alpha;
    const double forRed = std::min(f.r - rest * screen.r, 0.0);
    const Rgb lifted{f.r - forRed, f.g - forRed, f.b - forRed};
    const double forBlue = std::min(lifted.b - rest * screen.b, 0.0);
    return {lifted.r - forBlue, lifted.g - forBlue, lifted.b - forBlue};
}

/// Turns a colour that is still green away from it, towards its second channel, without darkening it.
inline void removeGreenCast(Rgb& c) {
    if (!(c.g > c.r + 10.0 && c.g > c.b + 10.0)) return;
    (c.r > c.b ? c.r : c.b) = c.g;
}

/// Steepens the edge about its middle.
inline double edgeAlpha(const KeyConstants& key, double alpha) {
    const bool edge = alpha < 1.0 && alpha > 0.01 && !key.showOrgImage;
    return edge ? (alpha - 0.5) * kEdgeGain + 0.5 + key.transShift : alpha;
}

/// The subject's own colour: the screen's share taken out where the pixel is mixed, and held to a brightness, by
/// `showBright` channel by channel, else to that of the raw colour. Black where the mix is 0.
Rgb recoverColor(const Decision& d, const Rgb& screen, const Rgb& raw, bool showBright);

}  // namespace tavrin
