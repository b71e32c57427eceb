#include "overlays/Party.h"

#include <array>
#include <cmath>

#include <QPolygonF>

#include "overlays/Shapes.h"

namespace tavrin::overlays {

namespace {

const std::array<QColor, 6> kColors = {QColor(236, 72, 92),  QColor(250, 178, 50), QColor(252, 222, 90),
                                       QColor(76, 186, 128), QColor(64, 142, 220), QColor(156, 96, 200)};

QColor anyColor(Random& random) {
    return kColors[static_cast<std::size_t>(random.unit() * kColors.size())];
}

// A cord that sags from one end to the other, with pennants along it.
void drawPennants(QPainter& painter, const QPointF& from, const QPointF& to, std::size_t firstColor) {
    constexpr int kCount = 7;
    constexpr double kSag = 90.0;
    const auto cord = [&](double t) { return from + (to - from) * t + QPointF(0.0, kSag * 4.0 * t * (1.0 - t)); };
    QPainterPath line(from);
    line.quadTo((from + to) * 0.5 + QPointF(0.0, 2.0 * kSag), to);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(250, 246, 236), 6.0));
    painter.drawPath(line);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < kCount; ++i) {
        const QPointF a = cord((i + 0.1) / kCount), b = cord((i + 0.9) / kCount);
        const QPointF along = b - a, down(-along.y(), along.x());
        const QPointF tip = (a + b) * 0.5 + down * 1.2;
        const QColor color = kColors[(firstColor + static_cast<std::size_t>(i)) % kColors.size()];
        QLinearGradient cloth(a, b);
        cloth.setColorAt(0.0, color.lighter(108));
        cloth.setColorAt(0.5, color);
        cloth.setColorAt(1.0, color.darker(116));
        painter.setBrush(cloth);
        painter.drawPolygon(QPolygonF({a, b, tip}));
        painter.setBrush(QColor(255, 255, 255, 70));
        painter.drawPolygon(QPolygonF({a, b, b + down * 0.1, a + down * 0.1}));
    }
}

}  // namespace

QImage drawPartyFrame() {
    QImage picture = clearPicture();
    Brush painter(picture);
    drawPennants(painter, {-30.0, 40.0}, {0.5 * kWidth, 14.0}, 0);
    drawPennants(painter, {0.5 * kWidth, 14.0}, {kWidth + 30.0, 60.0}, 3);
    painter.end();
    return picture;
}

QImage drawPartyConfetti() {
    QImage picture = clearPicture();
    Brush painter(picture);
    Random random(604);
    for (int i = 0; i < 190; ++i) {
        painter.save();
        painter.translate(placeAround(random));
        painter.rotate(random.between(0.0, 360.0));
        const double size = random.between(8.0, 20.0), tilt = random.between(0.35, 1.0);
        painter.scale(1.0, tilt);
        painter.setBrush(anyColor(random).lighter(static_cast<int>(86.0 + 30.0 * tilt)));
        if (random.unit() < 0.4) {
            painter.drawEllipse(QPointF(), 0.6 * size, 0.6 * size);
        } else {
            painter.drawRoundedRect(QRectF(-size, -0.45 * size, 2.0 * size, 0.9 * size), 2.0, 2.0);
        }
        painter.restore();
    }
    painter.end();
    return picture;
}

QImage drawPartyLights() {
    QImage picture = clearPicture(0.5);
    Brush painter(picture);
    Random random(98);
    for (int i = 0; i < 40; ++i) {
        const QPointF at(random.between(0.0, kWidth), random.between(-0.05, 0.85) * kHeight);
        drawLight(painter, at, random.between(36.0, 120.0), anyColor(random).lighter(120),
                  random.between(0.18, 0.45));
    }
    painter.end();
    return picture;
}

}  // namespace tavrin::overlays
