#pragma once

#include <QRectF>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// The output in the small: where a layer or an item lies in a miniature of the picture. All rectangles are points
/// from the lower left corner of the small view, y upward.
struct PlaceMap {
    QRectF imageRect;         ///< the output
    double dViewScale = 1.0;  ///< points to a pixel of the output

    /// @param bounds the small view; the output takes 0.9 of it, in its middle or from its own corner
    PlaceMap(const SystemInfo& info, QSizeF bounds, bool centred);
    PlaceMap() = default;
};

/// The box of the active layer in the map.
struct LayerBox {
    int iXOrg = 0, iYOrg = 0;  ///< the layer's offset, in points
    QRectF sourceImageRect;

    LayerBox(const BitmapInfo& layer, const PlaceMap& map);
    /// The offset in thousandths of the output that so many points are.
    static int thousandths(int points, double side) { return static_cast<int>(points * 1000.0 / side); }
};

/// The box of a text or picture item in the map.
/// @param dViewPixelPerInch points to an inch of the output
QRectF itemInMap(const FontObject& item, const PlaceMap& map, double dViewPixelPerInch, double dpi);

}  // namespace tavrin
