#pragma once

#include <QPainter>
#include <QPolygonF>

namespace tavrin::sample {

/// Hair behind the neck and shoulders; painted before the body.
void paintBackHair(QPainter& painter);
/// Hair from the parting down both sides, over the face; ends with the loose strands.
void paintFrontHair(QPainter& painter);
/// One eyebrow as short hairs from (x0, y0) over (x1, y1) to (x2, y2).
void paintBrow(QPainter& painter, QPointF inner, QPointF peak, QPointF outer);

}  // namespace tavrin::sample
