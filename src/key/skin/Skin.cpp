#include "key/skin/Skin.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/Log.h"
#include "core/raster/ColorMath.h"
#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr int kSide = SkinColor::kMatrixSide;

using Bins = std::array<std::int64_t, 256>;

// Hue and saturation of a warm colour in percent: `low` is what stands for blue.
struct Shade {
    double hue, sat;
};

// Green is held below red and blue below green, so that the shade always lies within 0 to 100.
Shade shadeOf(double r, double g, double b, bool keepsDarkBlue) {
    const double g2 = g >= r ? r - 1.0 : g;
    const double b2 = g2 <= b && (!keepsDarkBlue || g2 > 15.0) ? g2 - 1.0 : b;
    return {(g2 - b2) / (r - b2) * 100.0, 100.0 - b2 / r * 100.0};
}

int percentIndex(double percent) {
    return static_cast<int>(clampTo(percent, 0.0, kSide - 1.0));
}

struct Sample {
    double r, g, b;
};

// Half the variance of r + g + b over the 3 by 3 block, positions outside the picture taken from its edge.
double roughness(const std::uint8_t* rgba, int width, int height, int x, int y) {
    double mean = 0.0, squares = 0.0;
    int n = 0;
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            const int atX = std::clamp(x + dx, 0, width - 1), atY = std::clamp(y + dy, 0, height - 1);
            const std::uint8_t* p = rgba + pixelOffset(width, atX, atY);
            const double value = p[0] + p[1] + p[2];
            const double delta = value - mean;
            mean += delta / ++n;
            squares += delta * (value - mean);
        }
    }
    return squares / (n - 1) / 2.0;
}

// Every fourth pixel of every fourth row that is smooth and could be skin.
std::vector<Sample> gatherSamples(const std::uint8_t* rgba, int width, int height) {
    std::vector<Sample> samples;
    for (int y = 0; y < height; y += 4) {
        for (int x = 0; x < width; x += 4) {
            const std::uint8_t* p = rgba + pixelOffset(width, x, y);
            const int r = p[0], g = p[1], b = p[2];
            if (r < 81 || b < 20 || r - g <= -10 || g - b <= -10) continue;
            if (roughness(rgba, width, height, x, y) > 70.0) continue;
            samples.push_back({static_cast<double>(r), static_cast<double>(g), static_cast<double>(b)});
        }
    }
    return samples;
}

// The first of the largest bins from `first` to `last`, or -1 when all are empty.
int largestBin(const Bins& bins, int first, int last) {
    int best = -1;
    for (int i = first; i <= last; ++i) {
        if (bins[i] > (best < 0 ? 0 : bins[best])) best = i;
    }
    return best;
}

double findHue(const std::vector<Sample>& samples) {
    Bins bins{};
    for (const Sample& s : samples) {
        const Shade shade = shadeOf(s.r, s.g, s.b, false);
        if (shade.sat <= 20.0 || shade.sat >= 80.0) continue;
        ++bins[shade.hue >= 0.0 && shade.hue < 100.0 ? static_cast<int>(shade.hue) : 99];
    }
    int hue = largestBin(bins, 2, 39);
    if (hue < 0) hue = largestBin(bins, 7, 44);
    return hue < 0 ? 20.0 : hue;
}

double findSaturation(const std::vector<Sample>& samples, double faceHue, double otherwise) {
    Bins bins{};
    for (const Sample& s : samples) {
        // Only here a dark blue channel keeps its own level.
        const Shade shade = shadeOf(s.r, s.g, s.b, true);
        if (std::fabs(shade.hue - faceHue) > 10.0 || shade.sat <= 30.0 || shade.sat >= 60.0) continue;
        ++bins[percentIndex(shade.sat)];
    }
    const int sat = largestBin(bins, 0, kSide - 1);
    return sat < 0 ? otherwise : sat;
}

// Level of the face from the histogram of red: the peak among the brighter levels, or the mean if it is above.
double findLevel(const Bins& levels, double sum, double count) {
    std::int64_t middle = 0, upper = 0;
    for (int i = 100; i <= 199; ++i)
        middle += levels[i];
    for (int i = 150; i <= 254; ++i)
        upper += levels[i];
    const double peak = std::max(largestBin(levels, middle > upper ? 100 : 200, 253), 100);
    return count > 0.0 && sum / count > peak ? sum / count : peak;
}

void fillMatrix(SkinColor& skin, const std::vector<Sample>& samples) {
    Bins levels{};
    double sum = 0.0, count = 0.0;
    skin.dFaceColorMatrix.fill(0.0);
    for (const Sample& s : samples) {
        const Shade shade = shadeOf(s.r, s.g, s.b, false);
        if (shade.hue > skin.dFaceHue + 20.0 || std::fabs(shade.sat - skin.dFaceSat) > 30.0 || s.r < 100.0) continue;
        sum += s.r;
        count += 1.0;
        ++levels[static_cast<int>(s.r)];
        skin.dFaceColorMatrix[percentIndex(shade.hue) * kSide + percentIndex(shade.sat)] += 1.0;
    }
    skin.dFaceInt = findLevel(levels, sum, count);
    skin.dFaceColorMatrixMaxColor = 0.0;
    for (int hue = 7; hue <= 42; ++hue) {
        for (int sat = 0; sat <= 69; ++sat)
            skin.dFaceColorMatrixMaxColor =
                std::max(skin.dFaceColorMatrixMaxColor, skin.dFaceColorMatrix[hue * kSide + sat]);
    }
}

}  // namespace

void measureSkin(SkinColor& skin, bool measure, const std::uint8_t* rgba, int width, int height) {
    const SkinColor defaults;
    skin.dFaceRed = defaults.dFaceRed;
    skin.dFaceGreen = defaults.dFaceGreen;
    skin.dFaceBlue = defaults.dFaceBlue;
    skin.dFaceInt = defaults.dFaceInt;
    skin.dFaceSat = defaults.dFaceSat;
    skin.dFaceHue = defaults.dFaceHue;
    if (!measure || !rgba) return;

    logTrace(" ******Smoothing Image Color Computation");
    const std::vector<Sample> samples = gatherSamples(rgba, width, height);
    skin.dFaceHue = findHue(samples);
    skin.dFaceSat = findSaturation(samples, skin.dFaceHue, defaults.dFaceSat);
    fillMatrix(skin, samples);
    skin.dFaceRed = skin.dFaceInt;
    skin.dFaceBlue = (100.0 - skin.dFaceSat) / 100.0 * skin.dFaceInt;
    skin.dFaceGreen = (skin.dFaceRed - skin.dFaceBlue) * skin.dFaceHue / 100.0 + skin.dFaceBlue;
}

void ComputeSkinColor(SystemInfo& info, int, const std::uint8_t* rgba, int width, int height) {
    measureSkin(info, info.bComputeSkinColor, rgba, width, height);
}

SkinTest::SkinTest(const SkinColor& skin, bool measured) : measured_(measured) {
    if (!measured) return;
    constexpr int kReach = 6;
    for (int at = 0; at < kSide * kSide; ++at) {
        // With a largest entry of 0 every counted colour is often seen: the ratio is infinite.
        if (!(skin.dFaceColorMatrix[at] / skin.dFaceColorMatrixMaxColor > 0.08)) continue;
        const int hue = at / kSide, sat = at % kSide;
        for (int h = std::max(hue - kReach, 0); h <= std::min(hue + kReach, kSide - 1); ++h) {
            for (int s = std::max(sat - kReach, 0); s <= std::min(sat + kReach, kSide - 1); ++s)
                near_.set(static_cast<std::size_t>(h * kSide + s));
        }
    }
}

bool SkinTest::operator()(double r, double g, double b) const {
    if (!(g - b >= -10.0 && r - g >= -10.0 && r >= 80.0 && b >= 20.0)) return false;
    const Shade shade = shadeOf(r, g, b, false);
    if (shade.sat > 90.0) return false;
    return !measured_ || near_[static_cast<std::size_t>(percentIndex(shade.hue) * kSide + percentIndex(shade.sat))];
}

bool isSkin(const SystemInfo& info, double r, double g, double b) {
    return SkinTest(info, info.bComputeSkinColor)(r, g, b);
}

}  // namespace tavrin
