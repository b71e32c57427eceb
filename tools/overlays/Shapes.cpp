#include "overlays/Shapes.h"

#include <cmath>

namespace tavrin::overlays {

namespace {

constexpr double kPi = 3.14159265358979323846;

}  // namespace

QImage clearPicture(double part) {
    QImage picture(qRound(kWidth * part), qRound(kHeight * part), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

Brush::Brush(QImage& picture) : QPainter(&picture) {
    setRenderHint(Antialiasing);
    setPen(Qt::NoPen);
    scale(static_cast<double>(picture.width()) / kWidth, static_cast<double>(picture.height()) / kHeight);
}

QLinearGradient gold(const QPointF& from, const QPointF& to) {
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0.0, QColor(150, 110, 38));
    gradient.setColorAt(0.15, QColor(244, 214, 124));
    gradient.setColorAt(0.3, QColor(190, 144, 58));
    gradient.setColorAt(0.45, QColor(255, 240, 180));
    gradient.setColorAt(0.6, QColor(198, 152, 62));
    gradient.setColorAt(0.8, QColor(246, 220, 136));
    gradient.setColorAt(1.0, QColor(142, 102, 34));
    return gradient;
}

QPainterPath snowCrystal(Random& random) {
    const double first = random.between(0.3, 0.45), second = random.between(0.55, 0.75);
    const double branch = random.between(0.22, 0.34);
    QPainterPath arm;
    arm.lineTo(1.0, 0.0);
    for (const double at : {first, second}) {
        const double length = at == first ? branch : 0.7 * branch;
        for (const double side : {-1.0, 1.0}) {
            arm.moveTo(at, 0.0);
            arm.lineTo(at + 0.5 * length, side * 0.866 * length);
        }
    }
    QPainterPath crystal;
    for (int i = 0; i < 6; ++i)
        crystal.addPath(QTransform().rotate(60.0 * i).map(arm));
    return crystal;
}

void drawCrystal(QPainter& painter, Random& random, const QPointF& at, double size, const QColor& color) {
    painter.save();
    painter.translate(at);
    painter.rotate(random.between(0.0, 60.0));
    painter.scale(size, size);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, random.between(0.07, 0.1), Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(snowCrystal(random));
    painter.restore();
}

void drawLight(QPainter& painter, const QPointF& at, double radius, const QColor& color, double strength) {
    const auto shade = [&](double part) {
        QColor c = color;
        c.setAlphaF(static_cast<float>(part * strength));
        return c;
    };
    QRadialGradient disc(at, radius);
    disc.setColorAt(0.0, shade(0.62));
    disc.setColorAt(0.75, shade(0.72));
    disc.setColorAt(0.9, shade(1.0));
    disc.setColorAt(1.0, shade(0.0));
    painter.setBrush(disc);
    painter.drawEllipse(at, radius, radius);
}

QPointF placeAround(Random& random) {
    for (;;) {
        const double x = random.unit(), y = random.unit() * random.between(0.5, 1.0);
        const double fromFace = std::hypot((x - 0.5) / 0.36, (y - 0.5) / 0.4);
        if (fromFace > 1.0 && random.unit() < 0.4 + 0.6 * std::sin(kPi * 0.5 * std::min(1.0, fromFace - 1.0)))
            return {x * kWidth, y * kHeight};
    }
}

}  // namespace tavrin::overlays
