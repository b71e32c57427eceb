#include "textures/Materials.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <span>
#include <vector>

#include "textures/Noise.h"

namespace tavrin::textures {

namespace {

constexpr int kSize = 1600;

using Color = std::array<double, 3>;

// A colour at a place of 0 to 1 on a row of evenly spaced ones.
Color rampAt(std::span<const Color> ramp, double place) {
    const double last = static_cast<double>(ramp.size() - 1), at = std::clamp(place, 0.0, 1.0) * last;
    const auto i = static_cast<std::size_t>(std::min(at, last - 1.0));
    const double part = at - static_cast<double>(i);
    Color out{};
    for (std::size_t c = 0; c < 3; ++c)
        out[c] = ramp[i][c] + (ramp[i + 1][c] - ramp[i][c]) * part;
    return out;
}

QImage toPicture(const Plane& plane, std::span<const Color> ramp) {
    QImage picture(plane.width, plane.height, QImage::Format_RGB888);
    for (int y = 0; y < plane.height; ++y) {
        uchar* line = picture.scanLine(y);
        for (int x = 0; x < plane.width; ++x) {
            const Color color = rampAt(ramp, plane.at(x, y));
            for (int c = 0; c < 3; ++c)
                *line++ = toByte(color[static_cast<std::size_t>(c)]);
        }
    }
    return picture;
}

struct Octave {
    int cellsX, cellsY;
    double amount;
};

Plane clouds(std::initializer_list<Octave> octaves, std::uint64_t seed) {
    Plane out(kSize, kSize);
    for (const Octave& octave : octaves)
        add(out, hills(kSize, kSize, octave.cellsX, octave.cellsY, seed++), octave.amount);
    normalise(out);
    return out;
}

// Veins that run through the stone in one direction: dark where a wave along it, bent by `bend`, passes zero.
struct Veins {
    int across, down;  // waves across the width and down the height
    double bent;       // how far the bend moves them, in parts of a wave
    double sharp, amount;
};

void addVeins(Plane& plane, const Plane& bend, const Plane& strength, const Veins& veins) {
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double wave = static_cast<double>(veins.across * x + veins.down * y) / kSize;
            const double distance = std::abs(std::sin(std::numbers::pi * (wave + veins.bent * bend.at(x, y))));
            const double here = smoothStep(-0.9, 1.6, strength.at(x, y));
            plane.at(x, y) -= veins.amount * here * std::exp(-distance / (veins.sharp * (0.4 + here)));
        }
    }
}

}  // namespace

QImage planeWalnut() {
    const Plane bend = clouds({{4, 4, 1.0}, {7, 4, 0.35}, {29, 5, 0.12}}, 401);
    const Plane fibres = clouds({{533, 8, 1.0}, {800, 23, 0.8}}, 411), pores = clouds({{640, 40, 1.0}}, 421);
    const Plane shade = clouds({{6, 4, 1.0}, {40, 4, 0.6}}, 431);
    Plane out(kSize, kSize);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            // Years of different width, seen on a board cut beside the heart.
            const double place = 2.0 * std::numbers::pi * x / kSize;
            const double rings = 19.0 * x / kSize + 1.1 * std::sin(3.0 * place) + 0.9 * bend.at(x, y);
            const double ring = rings - std::floor(rings);
            // A year's wood darkens slowly and ends sharply.
            const double year = smoothStep(0.0, 0.82, ring) - smoothStep(0.86, 1.0, ring);
            const double pore = smoothStep(1.15, 2.3, pores.at(x, y)) * (0.35 + 0.65 * year);
            out.at(x, y) = 0.60 - 0.19 * year + 0.06 * fibres.at(x, y) + 0.075 * shade.at(x, y) - 0.26 * pore;
        }
    }
    constexpr Color kRamp[] = {{0.11, 0.06, 0.035}, {0.27, 0.155, 0.085}, {0.44, 0.275, 0.16}, {0.60, 0.41, 0.255}};
    return toPicture(out, kRamp);
}

QImage brushGold() {
    const Plane strokes = clouds({{5, 800, 1.0}, {11, 1600, 0.9}, {4, 267, 0.6}}, 501);
    const Plane sheen = clouds({{4, 4, 1.0}}, 511);
    Plane out(kSize, kSize);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double across = 2.0 * std::numbers::pi * (2.0 * x + y) / kSize;
            const double light = 0.56 + 0.15 * std::sin(across + 0.7 * sheen.at(x, y)) + 0.04 * sheen.at(x, y);
            out.at(x, y) = light + 0.042 * strokes.at(x, y);
        }
    }
    constexpr Color kRamp[] = {
        {0.33, 0.21, 0.06}, {0.60, 0.42, 0.15}, {0.80, 0.62, 0.28}, {0.93, 0.80, 0.47}, {1.0, 0.95, 0.76}};
    return toPicture(out, kRamp);
}

QImage polishMarble() {
    const auto crooked = [](int cells, std::uint64_t seed) {
        return clouds({{cells, cells, 1.0},
                       {2 * cells + 1, 2 * cells + 1, 0.55},
                       {5 * cells, 5 * cells, 0.22},
                       {13 * cells, 13 * cells, 0.09},
                       {31 * cells, 31 * cells, 0.035}},
                      seed);
    };
    const auto patches = [](int cells, std::uint64_t seed) {
        return clouds({{cells, cells, 1.0}, {3 * cells, 3 * cells, 0.6}}, seed);
    };
    Plane out(kSize, kSize, 0.90);
    add(out, crooked(6, 601), 0.065);
    addVeins(out, crooked(5, 611), patches(5, 621), {2, 1, 0.17, 0.30, 0.30});
    addVeins(out, crooked(5, 611), patches(7, 631), {2, 1, 0.17, 0.024, 0.55});
    addVeins(out, crooked(7, 641), patches(7, 651), {3, -2, 0.19, 0.020, 0.32});
    addVeins(out, crooked(9, 661), patches(9, 671), {5, 2, 0.24, 0.014, 0.24});
    add(out, clouds({{200, 200, 1.0}, {400, 400, 0.7}}, 681), 0.006);
    constexpr Color kRamp[] = {
        {0.24, 0.25, 0.28}, {0.47, 0.48, 0.51}, {0.72, 0.72, 0.73}, {0.90, 0.895, 0.885}, {0.985, 0.98, 0.97}};
    return toPicture(out, kRamp);
}

QImage drapeVelvet() {
    const Plane folds = clouds({{9, 4, 1.0}, {17, 5, 0.35}}, 701), nap = clouds({{800, 640, 1.0}}, 711);
    const Plane brushed = clouds({{13, 16, 1.0}, {37, 45, 0.45}}, 721);
    const Plane light = lightFromAbove(folds);
    Plane slope = light;
    normalise(slope);
    Plane out(kSize, kSize);
    for (std::size_t i = 0; i < out.values.size(); ++i) {
        // Velvet shines where it turns away from the eye.
        const double sheen = std::abs(slope.values[i]);
        out.values[i] = 0.17 + 0.20 * std::pow(sheen, 1.3) + 0.045 * brushed.values[i] + 0.022 * nap.values[i];
    }
    constexpr Color kRamp[] = {{0.09, 0.01, 0.025}, {0.30, 0.03, 0.075}, {0.52, 0.085, 0.15}, {0.74, 0.26, 0.32}};
    return toPicture(out, kRamp);
}

}  // namespace tavrin::textures
