#include "sample/Landscape.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sample/Plane.h"
#include "sample/Random.h"

namespace tavrin::sample {

namespace {

using Color = std::array<double, 3>;  // linear light

Color mix(const Color& a, const Color& b, double t) {
    t = std::clamp(t, 0.0, 1.0);
    return {a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t, a[2] + (b[2] - a[2]) * t};
}

// Smooth noise along a line: octaves of values at whole places, joined by cosines of the distance.
class Ridge {
  public:
    Ridge(std::uint64_t seed, double length, double roughness) : length_(length), roughness_(roughness) {
        Random random(seed);
        for (double& value : values_)
            value = random.between(-1.0, 1.0);
    }
    double height(double x) const {
        double sum = 0.0, size = 1.0, place = x / length_;
        for (int octave = 0; octave < 6; ++octave) {
            const double base = std::floor(place), f = place - base, smooth = f * f * (3.0 - 2.0 * f);
            const auto i = static_cast<std::size_t>(base + 512.0 + 37.0 * octave);
            sum += size * (values_[i % 512] * (1.0 - smooth) + values_[(i + 1) % 512] * smooth);
            place *= 2.07;
            size *= roughness_;
        }
        return sum;
    }

  private:
    std::array<double, 512> values_;
    double length_, roughness_;
};

struct Hill {
    double level, rise, length, roughness, blur, haze;
    Color color;
};

constexpr Color kZenith{0.060, 0.115, 0.30}, kMiddleSky{0.36, 0.30, 0.42}, kGlow{1.05, 0.55, 0.24};
constexpr double kSunX = 0.68, kHorizon = 0.62;

Color sky(double x, double y) {
    const double up = (kHorizon - y) / kHorizon;
    Color color = up > 0.42 ? mix(kMiddleSky, kZenith, (up - 0.42) / 0.58) : mix(kGlow, kMiddleSky, up / 0.42);
    const double dx = x - kSunX, dy = (y - 0.55) * 1.25, near = dx * dx + dy * dy;
    const double halo = 0.75 * std::exp(-near / 0.018) + 0.30 * std::exp(-near / 0.16);
    return {color[0] + 1.25 * halo, color[1] + 0.78 * halo, color[2] + 0.38 * halo};
}

void paintHill(std::array<Plane, 3>& picture, const Hill& hill, std::uint64_t seed) {
    const int width = picture[0].width, height = picture[0].height;
    const Ridge ridge(seed, hill.length, hill.roughness);
    Plane cover(width, height);
    for (int x = 0; x < width; ++x) {
        const double top = (hill.level - hill.rise * ridge.height(static_cast<double>(x) / height)) * height;
        for (int y = std::max(0, static_cast<int>(top)); y < height; ++y)
            cover.at(x, y) = std::min(1.0, y + 1 - top);
    }
    blur(cover, hill.blur);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double below = static_cast<double>(y) / height - hill.level;
            const double toSun = std::exp(-std::pow(static_cast<double>(x) / width - kSunX, 2) / 0.07);
            const Color haze = mix(hill.color, kGlow, hill.haze * (0.10 + 0.26 * toSun - 0.8 * below));
            for (std::size_t c = 0; c < 3; ++c) {
                double& value = picture[c].at(x, y);
                value += (haze[c] - value) * cover.at(x, y);
            }
        }
    }
}

// Points of light out of focus: discs with a slightly bright rim.
void paintLights(std::array<Plane, 3>& picture, int count) {
    Random random(31);
    const int width = picture[0].width, height = picture[0].height;
    for (int i = 0; i < count; ++i) {
        const double radius = width * random.between(0.009, 0.028);
        const double cx = width * random.unit(), cy = height * (0.80 + 0.17 * random.unit() * random.unit());
        const double strength = random.between(0.10, 0.55);
        const Color color = mix({1.0, 0.52, 0.20}, {1.0, 0.80, 0.52}, random.unit());
        const int reach = static_cast<int>(radius) + 3;
        for (int y = std::max(0, static_cast<int>(cy) - reach); y < std::min(height, static_cast<int>(cy) + reach);
             ++y) {
            for (int x = std::max(0, static_cast<int>(cx) - reach); x < std::min(width, static_cast<int>(cx) + reach);
                 ++x) {
                const double r = std::hypot(x - cx, y - cy);
                const double inside = std::clamp((radius - r) / 2.5 + 0.5, 0.0, 1.0);
                const double rim = 0.75 + 0.45 * std::pow(std::min(r / radius, 1.0), 6);
                for (std::size_t c = 0; c < 3; ++c)
                    picture[c].at(x, y) += strength * inside * rim * color[c];
            }
        }
    }
}

}  // namespace

QImage paintLandscape(int width, int height) {
    std::array<Plane, 3> picture{Plane(width, height), Plane(width, height), Plane(width, height)};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Color color = sky(static_cast<double>(x) / width, static_cast<double>(y) / height);
            for (std::size_t c = 0; c < 3; ++c)
                picture[c].at(x, y) = color[c];
        }
    }
    const Hill hills[] = {{0.560, 0.030, 0.30, 0.45, 3.0, 1.0, {0.30, 0.24, 0.33}},
                          {0.605, 0.034, 0.22, 0.46, 3.5, 0.75, {0.175, 0.150, 0.225}},
                          {0.665, 0.036, 0.26, 0.48, 4.5, 0.45, {0.085, 0.082, 0.120}},
                          {0.755, 0.040, 0.34, 0.50, 6.5, 0.22, {0.034, 0.038, 0.052}},
                          {0.880, 0.034, 0.28, 0.55, 10.0, 0.08, {0.012, 0.014, 0.019}}};
    std::uint64_t seed = 41;
    for (const Hill& hill : hills)
        paintHill(picture, hill, seed++);
    paintLights(picture, 38);
    for (Plane& plane : picture)
        blur(plane, 1.6);

    Random random(32);
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (std::size_t c = 0; c < 3; ++c) {
                const double exposed = 1.0 - std::exp(-1.35 * picture[c].at(x, y));  // highlights roll off
                const double value = 255.0 * std::pow(exposed, 1.0 / 2.2) + 1.1 * random.normal();
                image.scanLine(y)[3 * x + static_cast<int>(c)] =
                    static_cast<uchar>(std::clamp(value + 0.5, 0.0, 255.0));
            }
        }
    }
    return image;
}

}  // namespace tavrin::sample
