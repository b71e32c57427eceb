#include "delivery/print/Caption.h"

#include <algorithm>

#include <QDateTime>
#include <QFont>
#include <QTransform>

#include "core/text/TextMacros.h"

namespace tavrin {

QPainterPath captionShapes(const std::string& text, const QRectF& room) {
    constexpr int kDrawn = 200;  // pixels, from which the outlines are scaled
    QFont font(QStringLiteral("Sans Serif"));
    font.setPixelSize(kDrawn);
    QPainterPath shapes;
    shapes.addText(0, 0, font, QString::fromStdString(text).simplified());
    const QRectF bounds = shapes.boundingRect();
    if (bounds.isEmpty()) return {};
    constexpr double kLetters = 0.72;  // of the line's height
    const double scale = std::min(kLetters * room.height() / kDrawn, room.width() / bounds.width());
    constexpr double kMiddle = 0.36;  // of the letters' height above their foot
    const QPointF foot(room.center().x() - scale * bounds.center().x(), room.center().y() - kMiddle * scale * kDrawn);
    return QTransform(scale, 0, 0, -scale, foot.x(), foot.y()).map(shapes);
}

std::string captionText(const std::string& caption, const std::string& picture) {
    return expandMacros(caption, picture, QDateTime::currentDateTime());
}

}  // namespace tavrin
