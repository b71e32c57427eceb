#pragma once

#include <QColor>
#include <QPainter>

#include "core/raster/Rows.h"
#include "core/text/LaidOutText.h"

namespace tavrin {

/// What a text is painted with. An invalid colour paints nothing.
struct TextStyle {
    QColor fill;
    QColor outline;             ///< a stroke centred on the outline of the glyphs
    double outlineWidth = 0.0;  ///< as a part of the font's size
    QColor picturesAs;          ///< one colour for the glyphs that have their own; invalid: as they are
};

/// A blurred copy of the text behind it, in buffer pixels.
struct TextShadow {
    QColor color;
    QPointF offset;      ///< y downward
    double sigma = 0.0;  ///< standard deviation of the blur
};

/// A colour of channels from 0 to 1, to the nearest byte.
QColor colorOf(double red, double green, double blue);

/// Paints a text with the painter of a context, or into a mask. `toDevice` brings its units to buffer pixels, y
/// downward. A text that `toDevice` takes beyond all reason (not finite, millions of pixels away) paints nothing. A
/// superseded run leaves out what is still to come, here and below.
void paintText(QPainter& painter, const LaidOutText& text, const QTransform& toDevice, const TextStyle& style,
               const RunContext& run = {});

/// Paints the shadow that the text would throw when painted in this style.
void paintTextShadow(QPainter& painter, const LaidOutText& text, const QTransform& toDevice, const TextStyle& style,
                     const TextShadow& shadow, const RunContext& run = {});

}  // namespace tavrin
