#include "textures/Icons.h"

#include <QPainter>
#include <QPolygonF>

namespace tavrin::textures {

namespace {

constexpr int kSize = 64;

// A disc with a white ring and a dark outline: one of them stands out on any picture.
QImage drawDisc(const QColor& top, const QColor& bottom) {
    QImage icon(kSize, kSize, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QPointF middle(0.5 * kSize, 0.5 * kSize);
    painter.setBrush(QColor(24, 28, 34));
    painter.drawEllipse(middle, 31.0, 31.0);
    painter.setBrush(Qt::white);
    painter.drawEllipse(middle, 29.0, 29.0);
    QLinearGradient fill(0.0, 6.0, 0.0, 58.0);
    fill.setColorAt(0.0, top);
    fill.setColorAt(1.0, bottom);
    painter.setBrush(fill);
    painter.drawEllipse(middle, 25.5, 25.5);
    return icon;
}

QImage withCleanRim(QImage icon) {
    for (int y = 0; y < kSize; ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(icon.scanLine(y));
        for (int x = 0; x < kSize; ++x) {
            if (qAlpha(line[x]) < 128) line[x] = 0;
        }
    }
    return icon;
}

}  // namespace

QImage drawEditIcon() {
    QImage icon = drawDisc(QColor(64, 140, 226), QColor(22, 84, 170));
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(32.0, 32.0);
    painter.rotate(-45.0);  // the pencil lies along x, its point at the left
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(14.5, -6.0, 6.5, 12.0), 2.5, 2.5);
    painter.drawRect(QRectF(-9.0, -6.0, 21.0, 12.0));
    painter.setBrush(QColor(255, 222, 160));
    painter.drawPolygon(QPolygonF({{-9.0, -6.0}, {-20.5, 0.0}, {-9.0, 6.0}}));
    painter.setBrush(QColor(24, 28, 34));
    painter.drawPolygon(QPolygonF({{-15.5, -2.6}, {-20.5, 0.0}, {-15.5, 2.6}}));
    painter.end();
    return withCleanRim(icon);
}

QImage drawDeleteIcon() {
    QImage icon = drawDisc(QColor(232, 78, 70), QColor(176, 26, 30));
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 8.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(22.0, 22.0), QPointF(42.0, 42.0));
    painter.drawLine(QPointF(42.0, 22.0), QPointF(22.0, 42.0));
    painter.end();
    return withCleanRim(icon);
}

}  // namespace tavrin::textures
