#include "overlays/Gold.h"

#include "overlays/Shapes.h"

namespace tavrin::overlays {

namespace {

constexpr double kInset = 46.0, kGap = 30.0, kCorner = 250.0;

// A scroll that starts on the diagonal and rolls up along the upper edge; its twin is its mirror image.
QPainterPath scroll() {
    QPainterPath path;
    path.moveTo(20.0, 20.0);
    path.cubicTo(70.0, 20.0, 96.0, 60.0, 150.0, 52.0);
    path.cubicTo(206.0, 44.0, 216.0, -12.0, 176.0, -14.0);
    path.cubicTo(146.0, -14.0, 142.0, 24.0, 168.0, 24.0);
    path.cubicTo(182.0, 22.0, 184.0, 6.0, 174.0, 4.0);
    return path;
}

QPainterPath leaf(double x, double y, double angle, double length) {
    QPainterPath path;
    path.cubicTo(0.25 * length, -0.28 * length, 0.75 * length, -0.2 * length, length, 0.0);
    path.cubicTo(0.7 * length, 0.12 * length, 0.3 * length, 0.14 * length, 0.0, 0.0);
    return QTransform().translate(x, y).rotate(angle).map(path);
}

// Everything of one corner, its outer angle at the origin.
void drawCorner(QPainter& painter, const QBrush& brush) {
    const QTransform mirrored(0, 1, 1, 0, 0, 0);
    for (const QTransform& side : {QTransform(), mirrored}) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(brush, 9.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(side.map(scroll()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(brush);
        painter.drawPath(side.map(leaf(96.0, 40.0, 34.0, 58.0)));
        painter.drawPath(side.map(leaf(150.0, 52.0, 8.0, 84.0)));
        painter.drawPath(side.map(leaf(60.0, 26.0, -38.0, 40.0)));
        painter.drawEllipse(side.map(QPointF(174.0, 5.0)), 8.0, 8.0);
    }
    painter.drawPath(leaf(18.0, 18.0, 45.0, 92.0));
    painter.drawEllipse(QPointF(18.0, 18.0), 13.0, 13.0);
}

}  // namespace

QImage drawGoldFrame() {
    QImage picture = clearPicture();
    Brush painter(picture);
    const QBrush brush(gold({0.0, 0.0}, {1.0 * kWidth, 1.0 * kHeight}));
    const auto frame = [&](double inset, double thickness, double corner) {
        const QRectF r(inset, inset, kWidth - 2.0 * inset, kHeight - 2.0 * inset);
        painter.setPen(QPen(brush, thickness, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(r.left() + corner, r.top()), QPointF(r.right() - corner, r.top()));
        painter.drawLine(QPointF(r.left() + corner, r.bottom()), QPointF(r.right() - corner, r.bottom()));
        painter.drawLine(QPointF(r.left(), r.top() + corner), QPointF(r.left(), r.bottom() - corner));
        painter.drawLine(QPointF(r.right(), r.top() + corner), QPointF(r.right(), r.bottom() - corner));
    };
    frame(kInset, 12.0, kCorner - 40.0);
    frame(kInset + kGap, 4.0, kCorner - 10.0);
    painter.setPen(Qt::NoPen);
    for (const double x : {1.0, -1.0}) {
        for (const double y : {1.0, -1.0}) {
            const QPointF corner(x > 0 ? kInset : kWidth - kInset, y > 0 ? kInset : kHeight - kInset);
            painter.save();
            painter.translate(corner);
            painter.scale(x, y);
            drawCorner(painter, QBrush(gold({0.0, 0.0}, {170.0, 170.0})));
            painter.restore();
        }
    }
    painter.end();
    return picture;
}

}  // namespace tavrin::overlays
