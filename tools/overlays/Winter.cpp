#include "overlays/Winter.h"

#include <algorithm>

#include "overlays/Shapes.h"

namespace tavrin::overlays {

namespace {

// White that fades from the edge inward.
void drawFrostEdge(QPainter& painter) {
    constexpr double kDepth = 170.0;
    const QRectF whole(0.0, 0.0, kWidth, kHeight);
    const auto side = [&](const QPointF& from, const QPointF& to) {
        QLinearGradient frost(from, to);
        frost.setColorAt(0.0, QColor(246, 251, 255, 225));
        frost.setColorAt(0.25, QColor(240, 248, 255, 130));
        frost.setColorAt(0.6, QColor(236, 246, 255, 40));
        frost.setColorAt(1.0, QColor(236, 246, 255, 0));
        painter.fillRect(whole, frost);
    };
    side({0.0, 0.0}, {kDepth, 0.0});
    side({1.0 * kWidth, 0.0}, {kWidth - kDepth, 0.0});
    side({0.0, 0.0}, {0.0, kDepth});
    side({0.0, 1.0 * kHeight}, {0.0, kHeight - kDepth});
}

void drawEdgeCrystals(QPainter& painter, Random& random) {
    for (int i = 0; i < 150; ++i) {
        const double along = random.unit(), depth = random.unit() * random.unit() * 120.0;
        const double where = random.unit() * 2.0 * (kWidth + kHeight);
        QPointF at;
        if (where < 2.0 * kWidth) {
            at = {along * kWidth, where < kWidth ? depth : kHeight - depth};
        } else {
            at = {where < 2.0 * kWidth + kHeight ? depth : kWidth - depth, along * kHeight};
        }
        drawCrystal(painter, random, at, random.between(12.0, 42.0), QColor(255, 255, 255, 190));
    }
}

}  // namespace

QImage drawWinterFrame() {
    QImage picture = clearPicture();
    Brush painter(picture);
    Random random(2412);
    drawFrostEdge(painter);
    drawEdgeCrystals(painter, random);
    for (const auto& [x, y, size] : {std::tuple{150.0, 160.0, 150.0},
                                     {330.0, 90.0, 64.0},
                                     {90.0, 350.0, 56.0},
                                     {kWidth - 160.0, kHeight - 170.0, 160.0},
                                     {kWidth - 350.0, kHeight - 90.0, 70.0},
                                     {kWidth - 90.0, kHeight - 370.0, 60.0}}) {
        drawCrystal(painter, random, {x, y}, size, QColor(255, 255, 255, 240));
    }
    painter.end();
    return picture;
}

QImage drawWinterSnow() {
    QImage picture = clearPicture();
    Brush painter(picture);
    Random random(31);
    for (int i = 0; i < 60; ++i)
        drawCrystal(painter, random, placeAround(random), random.between(9.0, 26.0), QColor(255, 255, 255, 215));
    for (int i = 0; i < 170; ++i) {
        const QPointF at = placeAround(random);
        const double radius = random.between(2.5, 7.0);
        QRadialGradient flake(at, radius);
        flake.setColorAt(0.0, QColor(255, 255, 255, 235));
        flake.setColorAt(0.6, QColor(255, 255, 255, 190));
        flake.setColorAt(1.0, QColor(255, 255, 255, 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(flake);
        painter.drawEllipse(at, radius, radius);
    }
    painter.end();
    return picture;
}

QImage drawWinterHaze() {
    QImage picture = clearPicture(0.5);
    Brush painter(picture);
    Random random(12);
    painter.fillRect(QRectF(0.0, 0.0, kWidth, kHeight), QColor(214, 232, 250, 40));
    for (int i = 0; i < 90; ++i) {
        const QPointF at(random.between(0.0, kWidth), random.between(0.0, kHeight));
        drawLight(painter, at, random.between(10.0, 46.0), QColor(250, 253, 255), random.between(0.2, 0.55));
    }
    painter.end();
    return picture;
}

}  // namespace tavrin::overlays
