#include "key/screen/ScreenLook.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "core/raster/ColorMath.h"
#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

// Found with 35 portraits on screens and 22 other pictures; docs/key-quality.md tells how far each is from the next
// picture on either side.
constexpr double kPixelsToSee = 40'000.0;
constexpr int kDarkest = 30;   // below it a hue means nothing
constexpr double kLead = 0.1;  // of the screen's channel before both others, of its own level
constexpr double kLeastSaturation = 0.2;
constexpr int kFirstHue = 85, kLastHue = 168;          // in roles; grass and leaves lie below
constexpr int kHueWidth = 20;                          // degrees to either side of the commonest hue
constexpr double kWhole = 0.2, kBorder = 0.65;         // shares that make a screen
constexpr double kMuch = 0.5, kStrong = 0.6;           // or so much of it in so strong a colour
constexpr double kNothing = 0.2, kLittleBorder = 0.3;  // shares below which there is none
constexpr int kBrightest = 250;
constexpr double kHalfColour = 0.5;

/// A pixel of the colour of a screen.
struct Seen {
    int hue, level;
    double saturation;
    bool atBorder;
};

/// What was seen of one colour of screen.
struct Candidate {
    double whole = 0.0, border = 0.0;  // shares of the picture, and of its upper and side edges
    double saturation = 0.0;           // middle
    std::vector<Seen> pixels;

    ScreenKind kindAs(ScreenKind kind) const {
        if (whole >= kWhole && border >= kBorder) return kind;
        if (whole >= kMuch && saturation >= kStrong) return kind;
        const bool nothing = whole < kNothing || (border < kLittleBorder && whole < kMuch);
        return nothing ? ScreenKind::none : ScreenKind::unclear;
    }
};

struct Sample {
    int step = 1;
    std::size_t all = 0, border = 0;
};

template <class Value>
double middle(std::vector<Value>& values, double part = 0.5) {
    if (values.empty()) return 0.0;
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return static_cast<double>(*at);
}

/// Hue of the most pixels, with those close to it.
int commonestHue(const std::vector<Seen>& pixels) {
    std::array<int, 360> count{};
    for (const Seen& pixel : pixels)
        ++count[static_cast<std::size_t>(pixel.hue)];
    int best = 0, most = 0;
    for (int hue = kFirstHue; hue <= kLastHue; ++hue) {
        int sum = 0;
        for (int near = hue - 8; near <= hue + 8; ++near)
            sum += count[static_cast<std::size_t>(near)];
        if (sum > most) {
            most = sum;
            best = hue;
        }
    }
    return best;
}

/// @param green,blue which bytes play these roles
Candidate candidateOf(const std::uint8_t* rgba, int width, int height, int green, int blue) {
    const int step = std::max(1, static_cast<int>(std::sqrt(double(width) * height / kPixelsToSee)));
    Candidate candidate;
    int all = 0, border = 0;
    for (int y = step / 2; y < height; y += step) {
        for (int x = step / 2; x < width; x += step) {
            const std::uint8_t* p = rgba + pixelOffset(width, x, y);
            const bool atBorder = y < height / 10 || x < width * 6 / 100 || x > width * 94 / 100;
            ++all;
            border += atBorder;
            const double lead = p[green] * (1.0 - kLead);
            if (p[green] <= kDarkest || p[0] >= lead || p[blue] >= lead) continue;
            double hue = 0.0, saturation = 0.0, level = 0.0, delta = 0.0;
            rgb_to_hsv(hue, saturation, level, delta, p[0], p[green], p[blue]);
            if (saturation > kLeastSaturation)
                candidate.pixels.push_back({static_cast<int>(hue), p[green], saturation, atBorder});
        }
    }
    const int hue = commonestHue(candidate.pixels);
    std::erase_if(candidate.pixels, [hue](const Seen& pixel) { return std::abs(pixel.hue - hue) > kHueWidth; });
    std::vector<double> saturations;
    int seenAtBorder = 0;
    for (const Seen& pixel : candidate.pixels) {
        seenAtBorder += pixel.atBorder;
        saturations.push_back(pixel.saturation);
    }
    candidate.whole = static_cast<double>(candidate.pixels.size()) / std::max(all, 1);
    candidate.border = static_cast<double>(seenAtBorder) / std::max(border, 1);
    candidate.saturation = middle(saturations);
    return candidate;
}

void measureLight(const Candidate& candidate, ScreenLook& look) {
    std::vector<int> levels;
    std::size_t washedOut = 0;
    for (const Seen& pixel : candidate.pixels) {
        if (!pixel.atBorder) continue;
        levels.push_back(pixel.level);
        washedOut += pixel.level >= kBrightest && pixel.saturation < kHalfColour;
    }
    if (levels.empty()) return;
    look.level = middle(levels);
    look.spread = (middle(levels, 0.9) - middle(levels, 0.1)) / look.level;
    look.washedOut = static_cast<double>(washedOut) / static_cast<double>(levels.size());
}

}  // namespace

ScreenLook lookAtScreen(const std::uint8_t* pixels, int width, int height) {
    ScreenLook look;
    if (!pixels || width < 1 || height < 1) return look;
    const Candidate green = candidateOf(pixels, width, height, 1, 2), blue = candidateOf(pixels, width, height, 2, 1);
    const bool isGreen = green.border + green.whole >= blue.border + blue.whole;
    const Candidate& best = isGreen ? green : blue;
    look.kind = best.kindAs(isGreen ? ScreenKind::green : ScreenKind::blue);
    measureLight(best, look);
    return look;
}

}  // namespace tavrin
