#include "sample/Hair.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QPainterPath>

#include "sample/Random.h"

namespace tavrin::sample {

namespace {

constexpr double kMiddle = 800.0;
constexpr int kPieces = 44;
using Guide = std::array<QPointF, 6>;

// A smooth curve through the points of the guide, t from 0 to 1.
QPointF onCurve(const Guide& guide, double t) {
    const int last = static_cast<int>(guide.size()) - 1;
    const double place = t * last;
    const int i = std::min(static_cast<int>(place), last - 1);
    const double f = place - i;
    const auto at = [&](int k) { return guide[static_cast<std::size_t>(std::clamp(k, 0, last))]; };
    const QPointF a = at(i - 1), b = at(i), c = at(i + 1), d = at(i + 2);
    return 0.5 * (2.0 * b + (c - a) * f + (2.0 * a - 5.0 * b + 4.0 * c - d) * (f * f) +
                  (3.0 * b - a - 3.0 * c + d) * (f * f * f));
}

struct Strand {
    Guide guide;
    double width = 2.0;  // at its thickest, in pixels of the finished picture
    double wave = 0.0;   // sideways swing of the lower half
    double phase = 0.0;
    double lightness = 1.0;
    double shine = 0.5;  // strength of the highlights along the way
    double reach = 1.0;  // part of the guide that it follows
};

QColor hairColor(double lightness, double warmth) {
    const auto part = [&](double value) { return static_cast<float>(std::clamp(value * lightness, 0.0, 1.0)); };
    return QColor::fromRgbF(part(0.40 + 0.05 * warmth), part(0.235 + 0.01 * warmth), part(0.145 - 0.02 * warmth));
}

void paintStrand(QPainter& painter, const Strand& strand, double warmth) {
    std::array<QPointF, kPieces + 1> line;
    for (int i = 0; i <= kPieces; ++i) {
        const double t = strand.reach * i / kPieces;
        const double swing = strand.wave * t * t * std::sin(12.0 * t + strand.phase);
        line[static_cast<std::size_t>(i)] = onCurve(strand.guide, t) + QPointF(swing, 0.25 * swing);
    }
    QPolygonF left, right;
    for (std::size_t i = 0; i <= kPieces; ++i) {
        const QPointF along = line[std::min<std::size_t>(i + 1, kPieces)] - line[i > 0 ? i - 1 : 0];
        const double length = std::max(1e-6, std::hypot(along.x(), along.y()));
        const double t = static_cast<double>(i) / kPieces;
        const double half = 0.5 * strand.width * std::min(1.0, 0.35 + 4.0 * t) * std::sqrt(1.0 - 0.97 * t * t);
        const QPointF side(-along.y() / length * half, along.x() / length * half);
        left << line[i] + side;
        right.prepend(line[i] - side);
    }
    QLinearGradient light(line.front(), line.back());
    for (int i = 0; i <= 16; ++i) {
        const double t = i / 16.0;
        const double crown = std::exp(-std::pow((t - 0.15) / 0.10, 2));
        const double bend = std::exp(-std::pow((t - 0.58 - 0.03 * std::sin(strand.phase)) / 0.13, 2));
        const double shade = 0.72 + strand.shine * (0.75 * crown + 0.62 * bend);
        light.setColorAt(t, hairColor(strand.lightness * shade, warmth));
    }
    painter.setBrush(light);
    painter.drawPolygon(left + right, Qt::WindingFill);
}

// The way of one strand: side -1 or 1, u 0 next to the face to 1 outermost, and how far it strays from its place.
Guide sideGuide(double side, double u, double stray, Random& random) {
    const auto jitter = [&](double amount) { return stray * amount * random.normal(); };
    const auto out = [&](double x) { return kMiddle + side * x; };
    return {QPointF(782.0 + 3.0 * side + jitter(3), 512.0 - 124.0 * u + jitter(3)),
            QPointF(out(128.0 + 22.0 * u) + jitter(5), 552.0 - 112.0 * u + jitter(5)),
            QPointF(out(212.0 + 88.0 * u) + jitter(8), 762.0 - 112.0 * u + jitter(8)),
            QPointF(out(202.0 + 152.0 * u) + jitter(12), 1020.0 - 30.0 * u + jitter(14)),
            QPointF(out(214.0 + 176.0 * u) + jitter(18), 1310.0 + jitter(20)),
            QPointF(out(150.0 + 210.0 * u) + jitter(26), 1570.0 + 60.0 * u + jitter(60))};
}

Strand sideStrand(double side, double u, double stray, Random& random) {
    Strand strand;
    strand.guide = sideGuide(side, u, stray, random);
    // Neighbours swing together, which makes locks.
    strand.phase = 3.2 * u + 0.9 * side + 0.3 * random.normal();
    strand.wave = 52.0 + 16.0 * std::sin(23.0 * u) + 5.0 * random.normal();
    strand.width = random.between(1.6, 4.2);
    const double lock = 0.16 * std::sin(41.0 * u + side) + 0.10 * std::sin(97.0 * u);
    strand.lightness = (side < 0 ? 1.18 : 0.92) * (1.0 + lock + 0.13 * random.normal());
    strand.shine = random.between(0.25, 0.95);
    strand.reach = random.between(0.80, 1.0);
    return strand;
}

void paintFlyaways(QPainter& painter, Random& random) {
    for (int i = 0; i < 300; ++i) {
        const double side = random.unit() < 0.5 ? -1.0 : 1.0;
        Strand strand = sideStrand(side, random.between(0.55, 1.05), 1.3, random);
        const double lift = std::abs(random.normal());
        for (std::size_t k = 2; k < strand.guide.size(); ++k) {
            const double grow = static_cast<double>(k * k) / 25.0;
            strand.guide[k] +=
                QPointF(side * lift * (40.0 + 62.0 * grow) * std::min(1.0, 3.0 * grow) + 9.0 * random.normal(),
                        16.0 * random.normal());
        }
        strand.guide[1] += QPointF(side * 9.0 * lift, -13.0 * lift);
        strand.width = random.between(0.6, 1.9);
        strand.wave *= random.between(0.5, 1.9);
        strand.reach = random.between(0.45, 1.0);
        strand.lightness *= 1.18;
        paintStrand(painter, strand, random.normal());
    }
    for (int i = 0; i < 120; ++i) {  // short new hair that stands up along the crown
        const double angle = random.between(-1.45, 1.45);
        const QPointF out(std::sin(angle), -std::cos(angle));
        const QPointF root = QPointF(kMiddle, 660.0) + QPointF(out.x() * 268.0, out.y() * 252.0);
        const QPointF across(out.y() * random.normal() * 15.0, -out.x() * random.normal() * 15.0);
        const double length = random.between(18.0, 92.0);
        Strand strand;
        for (std::size_t k = 0; k < strand.guide.size(); ++k) {
            const double t = static_cast<double>(k) / 5.0;
            strand.guide[k] = root + out * (length * t) + across * (4.0 * t * t) + QPointF(0.0, 26.0 * t * t);
        }
        strand.width = random.between(0.5, 1.3);
        strand.lightness = random.between(0.9, 1.6);
        paintStrand(painter, strand, random.normal());
    }
}

}  // namespace

void paintBackHair(QPainter& painter) {
    Random random(11);
    painter.setPen(Qt::NoPen);
    QPainterPath mass(QPointF(800, 406));
    mass.cubicTo(1010, 406, 1086, 600, 1078, 800);
    mass.cubicTo(1090, 1050, 1140, 1250, 1116, 1440);
    mass.cubicTo(1080, 1500, 980, 1520, 800, 1500);
    mass.cubicTo(620, 1520, 520, 1500, 484, 1440);
    mass.cubicTo(460, 1250, 510, 1050, 522, 800);
    mass.cubicTo(514, 600, 590, 406, 800, 406);
    painter.setBrush(hairColor(0.34, 0.0));
    painter.drawPath(mass);
    for (int i = 0; i < 1100; ++i) {
        Strand strand = sideStrand(i % 2 == 0 ? -1.0 : 1.0, random.between(-0.6, 1.02), 1.6, random);
        strand.lightness *= 0.62;
        paintStrand(painter, strand, random.normal());
    }
}

void paintFrontHair(QPainter& painter) {
    Random random(12);
    painter.setPen(Qt::NoPen);
    for (const double side : {1.0, -1.0}) {
        QPainterPath mass(QPointF(782, 394));  // what lies under the strands, so that no skin shows between them
        const auto out = [&](double x) { return kMiddle + side * x; };
        mass.cubicTo(out(170), 394, out(284), 520, out(296), 690);
        mass.cubicTo(out(300), 860, out(352), 1010, out(372), 1290);
        mass.cubicTo(out(340), 1400, out(290), 1420, out(262), 1440);
        mass.cubicTo(out(236), 1280, out(196), 1100, out(216), 900);
        mass.cubicTo(out(220), 720, out(185), 540, 784, 500);
        painter.setBrush(hairColor(side < 0 ? 0.62 : 0.50, 0.0));
        painter.drawPath(mass);
    }
    for (int i = 0; i < 3600; ++i) {  // from the outside in, and from dark to light
        const double u = std::clamp(1.0 - i / 3600.0 + 0.22 * random.normal(), 0.0, 1.0);
        Strand strand = sideStrand(i % 2 == 0 ? -1.0 : 1.0, u, 0.75, random);
        strand.lightness *= 0.82 + 0.22 * i / 3600.0;
        paintStrand(painter, strand, random.normal());
    }
    paintFlyaways(painter, random);
}

void paintBrow(QPainter& painter, QPointF inner, QPointF peak, QPointF outer) {
    Random random(13);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 260; ++i) {
        const double t = random.unit();
        const QPointF place = inner * ((1 - t) * (1 - t)) + peak * (2 * t * (1 - t)) + outer * (t * t);
        const QPointF along = (peak - inner) * (1 - t) + (outer - peak) * t;
        const double length = std::hypot(along.x(), along.y());
        const QPointF root = place + QPointF(0.0, random.between(-0.8, 0.8) * 9.0 * (1.0 - 0.75 * t));
        const QPointF grow = along * (24.0 / length) + QPointF(0.0, -5.0 * (1.0 - t));
        Strand hair;
        for (std::size_t k = 0; k < hair.guide.size(); ++k)
            hair.guide[k] = root + grow * (static_cast<double>(k) / 5.0);
        hair.width = random.between(1.0, 2.2);
        hair.lightness = random.between(0.55, 0.85);
        hair.shine = 0.1;
        paintStrand(painter, hair, 0.0);
    }
}

}  // namespace tavrin::sample
