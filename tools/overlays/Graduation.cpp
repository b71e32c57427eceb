#include "overlays/Graduation.h"

#include <cmath>

#include <QPolygonF>

#include "overlays/Shapes.h"

namespace tavrin::overlays {

namespace {

const QColor kNavy(22, 34, 74), kDeepNavy(12, 20, 46);

QPolygonF star(const QPointF& at, double radius, double turn) {
    constexpr double kPi = 3.14159265358979323846;
    QPolygonF points;
    for (int i = 0; i < 10; ++i) {
        const double r = i % 2 == 0 ? radius : 0.42 * radius;
        const double angle = turn + kPi * i / 5.0;
        points << at + QPointF(r * std::sin(angle), -r * std::cos(angle));
    }
    return points;
}

void drawEdge(QPainter& painter) {
    const QBrush brush(gold({0.0, 0.0}, {1.0 * kWidth, 1.0 * kHeight}));
    const auto box = [&](double inset, double thickness, const QBrush& color) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, thickness, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.drawRect(QRectF(inset, inset, kWidth - 2.0 * inset, kHeight - 2.0 * inset));
    };
    box(18.0, 36.0, kNavy);
    box(40.0, 8.0, brush);
    box(54.0, 3.0, brush);
}

// Two bands across the corner, cut off at the edges of the picture.
void drawRibbon(QPainter& painter) {
    const auto band = [&](double from, double to, const QBrush& brush) {
        painter.setBrush(brush);
        painter.drawPolygon(
            QPolygonF({{0.0, kHeight - to}, {to, 1.0 * kHeight}, {from, 1.0 * kHeight}, {0.0, kHeight - from}}));
    };
    const QLinearGradient shine = gold({0.0, kHeight - 520.0}, {520.0, 1.0 * kHeight});
    QLinearGradient cloth(0.0, kHeight - 250.0, 250.0, 1.0 * kHeight);
    cloth.setColorAt(0.0, kNavy);
    cloth.setColorAt(0.5, QColor(44, 62, 118));
    cloth.setColorAt(1.0, kDeepNavy);
    painter.setPen(Qt::NoPen);
    QLinearGradient ivory(0.0, kHeight - 330.0, 165.0, 1.0 * kHeight);
    ivory.setColorAt(0.0, QColor(255, 251, 240));
    ivory.setColorAt(1.0, QColor(232, 222, 196));
    band(0.0, 330.0, ivory);
    band(330.0, 500.0, cloth);
    band(318.0, 332.0, shine);
    band(498.0, 512.0, shine);
    band(470.0, 475.0, shine);
}

// The cap seen a little from above, its tassel hanging to the right; the middle of the board at the origin.
void drawCap(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    QPainterPath skull;
    skull.moveTo(-58.0, 14.0);
    skull.lineTo(-58.0, 62.0);
    skull.cubicTo(-36.0, 88.0, 36.0, 88.0, 58.0, 62.0);
    skull.lineTo(58.0, 14.0);
    skull.closeSubpath();
    painter.setBrush(kDeepNavy);
    painter.drawPath(skull);
    QLinearGradient board(-120.0, -50.0, 120.0, 50.0);
    board.setColorAt(0.0, QColor(58, 76, 136));
    board.setColorAt(1.0, kNavy);
    painter.setBrush(board);
    painter.setPen(QPen(QColor(206, 164, 72), 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolygon(QPolygonF({{0.0, -52.0}, {122.0, 0.0}, {0.0, 52.0}, {-122.0, 0.0}}));
    QPainterPath cord;
    cord.cubicTo(40.0, 6.0, 84.0, 12.0, 92.0, 26.0);
    cord.lineTo(92.0, 78.0);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(214, 168, 70), 6.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(cord);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gold({78.0, 78.0}, {108.0, 120.0}));
    painter.drawPolygon(QPolygonF({{86.0, 76.0}, {98.0, 76.0}, {106.0, 124.0}, {78.0, 124.0}}));
    painter.drawEllipse(QPointF(92.0, 76.0), 8.0, 7.0);
    painter.drawEllipse(QPointF(0.0, 0.0), 8.0, 5.0);
}

}  // namespace

QImage drawGraduationFrame() {
    QImage picture = clearPicture();
    Brush painter(picture);
    drawEdge(painter);
    drawRibbon(painter);
    painter.translate(112.0, kHeight - 132.0);
    painter.rotate(-8.0);
    painter.scale(0.82, 0.82);
    drawCap(painter);
    painter.end();
    return picture;
}

QImage drawGraduationStars() {
    QImage picture = clearPicture();
    Brush painter(picture);
    Random random(1907);
    for (int i = 0; i < 90; ++i) {
        const QPointF at = placeAround(random);
        const double radius = random.between(6.0, 20.0);
        QLinearGradient shine = gold(at - QPointF(radius, radius), at + QPointF(radius, radius));
        painter.setBrush(shine);
        painter.setOpacity(random.between(0.7, 1.0));
        painter.drawPolygon(star(at, radius, random.between(0.0, 1.2)));
    }
    painter.end();
    return picture;
}

QImage drawGraduationLights() {
    QImage picture = clearPicture(0.5);
    Brush painter(picture);
    Random random(77);
    for (int i = 0; i < 34; ++i) {
        const QPointF at(random.between(0.0, kWidth), random.between(-0.05, 0.75) * kHeight);
        const QColor color = QColor::fromHsv(static_cast<int>(random.between(34.0, 50.0)), 120, 255);
        drawLight(painter, at, random.between(40.0, 130.0), color, random.between(0.12, 0.4));
    }
    painter.end();
    return picture;
}

}  // namespace tavrin::overlays
