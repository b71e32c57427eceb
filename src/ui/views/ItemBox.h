#pragma once

#include <QPoint>
#include <QRectF>
#include <QSizeF>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// How a text or picture item lies on the picture that is shown. Positions are points from the lower left corner of
/// the picture's frame, y upward, whole as the selection has always counted them.
struct ItemScale {
    double perInch = 1.0;  ///< points of the fitted picture to an inch
    double zoom = 1.0;     ///< times the fitted size
    double dpi = 72.0;     ///< of the full picture, in which picture items are sized

    /// @param fitted the frame of the picture when it is fitted, in points
    ItemScale(const SystemInfo& info, QSizeF fitted, double zoom);
};

/// The rectangle of an item: (x1, y1) is the corner at its `xPos` and `yPos`, (x2, y2) the one across.
struct ItemBox {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;

    ItemBox(const FontObject& item, const ItemScale& scale);
    ItemBox() = default;
    bool holds(const QPoint& at) const { return at.x() >= x1 && at.x() <= x2 && at.y() >= y1 && at.y() <= y2; }
    void moveBy(int dx, int dy);
    /// In the view, whose y counts downward.
    QRectF inView(const QRectF& frame) const;
};

/// Whether a click means the icon on a corner.
bool isAtCorner(const QPoint& click, int x, int y);

}  // namespace tavrin
