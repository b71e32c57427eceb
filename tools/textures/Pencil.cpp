#include "textures/Pencil.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "sample/Random.h"
#include "textures/Noise.h"

namespace tavrin::textures {

namespace {

using sample::Random;

constexpr int kSize = 1400;

struct Stroke {
    double x = 0.0, y = 0.0;  // the middle
    double angle = 0.0;       // radians, against the clock from the right
    double length = 250.0;
    double width = 6.0;
    double bow = 0.0;  // how far the middle lies beside the straight line, in pixels
    double pressure = 0.5;
    double phase = 0.0;  // of the slow change of the pressure along the stroke
};

// A layer of shading: sweeps of the hand side by side, each with some strokes.
struct Layer {
    double angle;
    double pressure;
    double spacing;     // between the strokes of a sweep
    int columns, rows;  // of sweeps
};

// How hard the lead presses at `along` (-1 to 1) and `across` (-1 to 1) of the stroke.
double pressureAt(const Stroke& stroke, double along, double across) {
    const double ends = smoothStep(1.0, 0.72, std::abs(along));
    const double swing = 0.86 + 0.14 * std::sin(stroke.phase + 3.5 * along);
    const double side = 1.0 - across * across;
    return stroke.pressure * ends * swing * side;
}

// Graphite stays on the hills of the paper; the harder the lead presses, the further down it reaches.
void draw(Plane& light, const Plane& tooth, const Stroke& stroke) {
    const double cosine = std::cos(stroke.angle), sine = -std::sin(stroke.angle);
    const double half = 0.5 * stroke.length, margin = stroke.width + std::abs(stroke.bow);
    const int reachX = static_cast<int>(half * std::abs(cosine) + margin) + 1;
    const int reachY = static_cast<int>(half * std::abs(sine) + margin) + 1;
    const int middleX = static_cast<int>(stroke.x), middleY = static_cast<int>(stroke.y);
    for (int dy = -reachY; dy <= reachY; ++dy) {
        const int y = (middleY + dy + 2 * kSize) % kSize;
        for (int dx = -reachX; dx <= reachX; ++dx) {
            const double along = (dx * cosine + dy * sine) / half;
            if (std::abs(along) >= 1.0) continue;
            const double straight = dy * cosine - dx * sine - stroke.bow * (1.0 - along * along);
            const double across = straight / (0.5 * stroke.width);
            if (std::abs(across) >= 1.0) continue;
            const int x = (middleX + dx + 2 * kSize) % kSize;
            const double pressure = pressureAt(stroke, along, across);
            const double reached = smoothStep(-2.4, 2.4, tooth.at(x, y) - 0.5 + 1.8 * pressure);
            light.at(x, y) *= 1.0 - pressure * (0.50 + 0.50 * reached);
        }
    }
}

// One sweep: strokes beside each other, alike but never the same.
void sweep(Plane& light, const Plane& tooth, const Layer& layer, double x, double y, Random& random) {
    const double angle = layer.angle + 0.045 * random.normal();
    const double length = random.between(260.0, 380.0), bow = random.between(2.0, 9.0);
    const double pressure = layer.pressure * random.between(0.88, 1.12);
    const int count = static_cast<int>(random.between(16.0, 26.0));
    for (int i = 0; i < count; ++i) {
        const double beside = (i - 0.5 * count + 0.35 * random.normal()) * layer.spacing;
        const double ahead = 16.0 * random.normal();
        Stroke stroke;
        stroke.angle = angle + 0.018 * random.normal();
        stroke.x = x + ahead * std::cos(angle) + beside * std::sin(angle);
        stroke.y = y - ahead * std::sin(angle) + beside * std::cos(angle);
        stroke.length = length * random.between(0.82, 1.15);
        stroke.width = random.between(5.5, 10.5);
        stroke.bow = bow + 1.5 * random.normal();
        stroke.pressure = std::clamp(pressure * (1.0 + 0.50 * random.normal()), 0.05, 0.85);
        stroke.phase = random.between(0.0, 2.0 * std::numbers::pi);
        draw(light, tooth, stroke);
    }
}

void shade(Plane& light, const Plane& tooth, const Layer& layer, Random& random) {
    const double stepX = static_cast<double>(kSize) / layer.columns, stepY = static_cast<double>(kSize) / layer.rows;
    for (int row = 0; row < layer.rows; ++row) {
        for (int column = 0; column < layer.columns; ++column) {
            const double x = (column + 0.5 * (row % 2) + random.between(-0.22, 0.22)) * stepX;
            const double y = (row + random.between(-0.22, 0.22)) * stepY;
            sweep(light, tooth, layer, x, y, random);
        }
    }
}

Plane paperTooth() {
    Plane tooth = hills(kSize, kSize, kSize / 3, kSize / 3, 11);
    add(tooth, hills(kSize, kSize, kSize / 8, kSize / 8, 12), 0.5);
    normalise(tooth);
    return tooth;
}

QImage finish(Plane& light, const Plane& tooth) {
    // A pencil of middle hardness: the sketch deepens these greys, so a softer one would run together into black.
    constexpr double kPaper = 0.975, kGraphite = 0.40;
    for (std::size_t i = 0; i < light.values.size(); ++i)
        light.values[i] = kGraphite + (kPaper - kGraphite) * light.values[i] + 0.008 * tooth.values[i];
    return toGreyPicture(light);
}

constexpr Layer kFirst{0.92, 0.42, 7.8, 14, 10};
constexpr Layer kSecond{2.18, 0.28, 9.4, 13, 9};

}  // namespace

QImage drawPencilDense() {
    Plane light(kSize, kSize, 1.0);
    const Plane tooth = paperTooth();
    Random random(21);
    shade(light, tooth, kFirst, random);
    return finish(light, tooth);
}

QImage drawPencilDenseCross() {
    Plane light(kSize, kSize, 1.0);
    const Plane tooth = paperTooth();
    Random random(22);
    shade(light, tooth, kFirst, random);
    shade(light, tooth, kSecond, random);
    return finish(light, tooth);
}

}  // namespace tavrin::textures
