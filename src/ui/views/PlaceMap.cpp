#include "ui/views/PlaceMap.h"

#include <algorithm>

namespace tavrin {

PlaceMap::PlaceMap(const SystemInfo& info, QSizeF bounds, bool centred) {
    constexpr double kShare = 0.9;
    const double width = std::max(1, info.iOutputPixelWidth.load()),
                 height = std::max(1, info.iOutputPixelHeight.load());
    QSizeF size;
    if (width <= height) {
        size.setHeight(kShare * bounds.height());
        size.setWidth(size.height() * width / height);
    } else {
        size.setWidth(kShare * bounds.width());
        size.setHeight(size.width() * height / width);
    }
    const QPointF origin((bounds.width() - size.width()) / 2.0, (bounds.height() - size.height()) / 2.0);
    imageRect = QRectF(centred ? origin : QPointF(), size);
    dViewScale = std::min(size.width() / width, size.height() / height);
}

LayerBox::LayerBox(const BitmapInfo& layer, const PlaceMap& map)
    : iXOrg(static_cast<int>(layer.iOrgXoff * map.imageRect.width() / 1000.0)),
      iYOrg(static_cast<int>(layer.iOrgYoff * map.imageRect.height() / 1000.0)) {
    const double w = layer.fOrgScale * layer.iOrgWidth * map.dViewScale;
    const double h = layer.fOrgScale * layer.iOrgHeight * map.dViewScale;
    const int iSoureImageXOrg = static_cast<int>((w * layer.fScale - w) * -0.5);
    const int iSoureImageYOrg = static_cast<int>((h * layer.fScale - h) * -0.5);
    sourceImageRect = QRectF(map.imageRect.x() + iXOrg + iSoureImageXOrg, map.imageRect.y() + iYOrg + iSoureImageYOrg,
                             w * layer.fScale, h * layer.fScale);
}

QRectF itemInMap(const FontObject& item, const PlaceMap& map, double dViewPixelPerInch, double dpi) {
    const double unit = dViewPixelPerInch / (item.isImage ? dpi : 72.0);
    const double width = item.isImage ? item.imageSizeWidth : item.rectSizeWidth;
    const double height = item.isImage ? item.imageSizeHeight : item.rectSizeHeight;
    const int x = static_cast<int>(item.xPos * dViewPixelPerInch),
              y = static_cast<int>(item.yPos * dViewPixelPerInch);
    return QRectF(map.imageRect.x() + x, map.imageRect.y() + y, width * unit * item.dGlobalScaleX,
                  height * unit * item.dGlobalScaleY);
}

}  // namespace tavrin
