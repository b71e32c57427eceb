#include "textures/Parchment.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPainterPath>

#include "sample/Random.h"
#include "textures/Noise.h"

namespace tavrin::textures {

namespace {

using sample::Random;

constexpr int kSize = 1400;
using Color = std::array<double, 3>;
constexpr Color kSkin{0.957, 0.914, 0.816};   // the clean sheet
constexpr Color kStain{0.890, 0.812, 0.660};  // where it has darkened
constexpr Color kEdge{0.722, 0.588, 0.408};   // the rim, touched and dried out

// Clouds of several sizes: the broad ones strongest.
Plane clouds(int cells, int octaves, double fading, std::uint64_t seed) {
    Plane out(kSize, kSize);
    double amount = 1.0;
    for (int i = 0; i < octaves; ++i) {
        add(out, hills(kSize, kSize, cells << i, cells << i, seed + static_cast<std::uint64_t>(i)), amount);
        amount *= fading;
    }
    normalise(out);
    return out;
}

// Fibres as a picture of light and dark hairs on middle grey.
Plane paintFibres() {
    QImage picture(kSize, kSize, QImage::Format_RGB32);
    picture.fill(qRgb(128, 128, 128));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    Random random(31);
    for (int i = 0; i < 1500; ++i) {
        const double x = random.between(0.0, kSize), y = random.between(0.0, kSize);
        const double angle = random.between(0.0, 2.0 * std::numbers::pi), length = random.between(14.0, 80.0);
        const double bend = 0.35 * length * random.normal(), turn = 0.3 * length * random.normal();
        const double c = std::cos(angle), s = std::sin(angle);
        QPainterPath path(QPointF(x, y));
        path.cubicTo(x + 0.33 * length * c - bend * s, y + 0.33 * length * s + bend * c,
                     x + 0.66 * length * c + turn * s, y + 0.66 * length * s - turn * c, x + length * c,
                     y + length * s);
        const int grey = random.unit() < 0.4 ? 235 : 40;
        const int strength = static_cast<int>(random.between(25.0, 110.0));
        painter.setPen(
            QPen(QColor(grey, grey, grey, strength), random.between(0.7, 1.7), Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(path);
    }
    painter.end();
    Plane out(kSize, kSize);
    for (int y = 0; y < kSize; ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < kSize; ++x)
            out.at(x, y) = (qRed(line[x]) - 128) / 128.0;
    }
    return out;
}

// 0 inside the sheet, 1 at its rim; `wave` moves the line to and fro.
double rimAt(int x, int y, double wave) {
    const double left = std::min(x, kSize - 1 - x), top = std::min(y, kSize - 1 - y);
    constexpr double kReach = 120.0;
    const double sideways = std::exp(-left / kReach), upright = std::exp(-top / kReach);
    const double near = sideways + upright - sideways * upright;
    return std::clamp(near * (0.78 + 0.17 * std::tanh(wave)), 0.0, 1.0);
}

Color mix(const Color& from, const Color& to, double amount) {
    Color out{};
    for (std::size_t c = 0; c < 3; ++c)
        out[c] = from[c] + (to[c] - from[c]) * amount;
    return out;
}

}  // namespace

QImage paintParchment() {
    const Plane blotches = clouds(7, 7, 0.72, 41), mottle = clouds(60, 4, 0.9, 51), wave = clouds(12, 6, 0.8, 61);
    const Plane fibres = paintFibres();
    QImage picture(kSize, kSize, QImage::Format_RGB888);
    for (int y = 0; y < kSize; ++y) {
        uchar* line = picture.scanLine(y);
        for (int x = 0; x < kSize; ++x) {
            const double stain = smoothStep(-2.0, 3.2, blotches.at(x, y) + 0.25 * mottle.at(x, y));
            const double rim = rimAt(x, y, wave.at(x, y));
            const Color color = mix(mix(kSkin, kStain, stain), kEdge, 0.80 * rim * rim + 0.14 * rim);
            const double light = 1.0 + 0.009 * mottle.at(x, y) + 0.13 * fibres.at(x, y);
            for (std::size_t c = 0; c < 3; ++c)
                line[3 * x + static_cast<int>(c)] = toByte(color[c] * light);
        }
    }
    return picture;
}

}  // namespace tavrin::textures
