#include "ui/views/ItemBox.h"

#include <cstdlib>

namespace tavrin {

ItemScale::ItemScale(const SystemInfo& info, QSizeF fitted, double zoomed)
    : zoom(zoomed), dpi(std::max(1, info.iOutputImageDPI.load())) {
    const double width = info.dOutputImageWidthInInches, height = info.dOutputImageHeightInInches;
    perInch = height < width ? fitted.width() / width : height > 0.0 ? fitted.height() / height : 1.0;
}

ItemBox::ItemBox(const FontObject& item, const ItemScale& scale) {
    const double unit = item.isImage ? scale.perInch / scale.dpi : scale.perInch / 72.0;
    const double width = item.isImage ? item.imageSizeWidth : item.rectSizeWidth;
    const double height = item.isImage ? item.imageSizeHeight : item.rectSizeHeight;
    x1 = static_cast<int>(item.xPos * scale.perInch);
    y1 = static_cast<int>(item.yPos * scale.perInch);
    x2 = static_cast<int>(x1 + width * unit * item.dGlobalScaleX);
    y2 = static_cast<int>(y1 + height * unit * item.dGlobalScaleY);
    for (int* corner : {&x1, &y1, &x2, &y2})
        *corner = static_cast<int>(*corner * scale.zoom);
}

void ItemBox::moveBy(int dx, int dy) {
    x1 += dx;
    x2 += dx;
    y1 += dy;
    y2 += dy;
}

QRectF ItemBox::inView(const QRectF& frame) const {
    return QRectF(QPointF(frame.x() + x1, frame.bottom() - y2), QPointF(frame.x() + x2, frame.bottom() - y1));
}

bool isAtCorner(const QPoint& click, int x, int y) {
    constexpr int kReach = 20;  // points, in both axes
    return std::abs(click.x() - x) <= kReach && std::abs(click.y() - y) <= kReach;
}

}  // namespace tavrin
