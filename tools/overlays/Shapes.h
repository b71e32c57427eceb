#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "sample/Random.h"

namespace tavrin::overlays {

using sample::Random;

/// Size of the overlays in pixels, the shape of an upright 8 x 10 print. Soft ones are half as large.
inline constexpr int kWidth = 1440, kHeight = 1800;

/// A clear picture; `part` of the full size.
QImage clearPicture(double part = 1.0);

/// A painter that works in full-size coordinates on a picture of any part of it.
class Brush : public QPainter {
  public:
    explicit Brush(QImage& picture);
};

/// Polished gold, light and dark in bands from `from` to `to`.
QLinearGradient gold(const QPointF& from, const QPointF& to);

/// A six-armed snow crystal around the origin, its arms 1 long.
QPainterPath snowCrystal(Random& random);

/// Strokes a snow crystal.
void drawCrystal(QPainter& painter, Random& random, const QPointF& at, double size, const QColor& color);

/// A light out of focus: an even disc with a brighter rim.
void drawLight(QPainter& painter, const QPointF& at, double radius, const QColor& color, double strength);

/// A place that leaves the subject free: near the edges of the picture, more often at the top.
QPointF placeAround(Random& random);

}  // namespace tavrin::overlays
