#include "delivery/SheetLayout.h"

#include <algorithm>

namespace tavrin {

namespace {

/// The largest rectangle of a picture's proportions in the middle of an area that begins at (0, 0).
QRectF inMiddle(QSizeF proportions, QSizeF area) {
    const QSizeF size = proportions.scaled(area, Qt::KeepAspectRatio);
    return {QPointF((area.width() - size.width()) / 2, (area.height() - size.height()) / 2), size};
}

}  // namespace

bool isOnPage(const PrinterPage& page, const PrinterPageImage& slot) {
    const std::int64_t x = slot.iX, y = slot.iY, width = slot.iWidth, height = slot.iHeight;
    const std::int64_t pageWidth = page.iPageWidth, pageHeight = page.iPageHeight;
    // Each by itself first, so that no sum runs over.
    return width > 0 && height > 0 && width <= pageWidth && height <= pageHeight && x > -width && y > -height &&
           x < pageWidth && y < pageHeight;
}

std::vector<SheetSlot> slotsOf(const PrinterPage& page, int dpi, double proportion) {
    const auto pixels = [dpi](std::int64_t hundredths) { return static_cast<double>(hundredths * dpi / 100); };
    std::vector<SheetSlot> places;
    for (const PrinterPageImage& slot : page.oPrinterPageImages) {
        if (!isOnPage(page, slot)) continue;
        const QRectF area(pixels(slot.iX), pixels(slot.iY), pixels(slot.iWidth), pixels(slot.iHeight));
        if (area.isEmpty()) continue;
        const double shape = area.width() / area.height();
        const bool turned = (proportion >= 1.0 && shape < 1.0) || (proportion <= 1.0 && shape > 1.0);
        places.push_back({area, turned});
    }
    return places;
}

QRectF partFor(QSize picture, QSizeF frame, SlotFit fit) {
    return fit == SlotFit::fill ? inMiddle(frame, picture) : QRectF(QPointF(), QSizeF(picture));
}

QRectF placeIn(QSizeF frame, QSize picture, SlotFit fit) {
    return fit == SlotFit::whole ? inMiddle(picture, frame) : QRectF(QPointF(), frame);
}

std::vector<QRectF> cutMarks(const SheetSlot& slot, int dpi) {
    const double gap = dpi / 32.0, length = dpi / 8.0, thick = dpi / 200.0;
    const QRectF& area = slot.area;
    std::vector<QRectF> marks;
    for (const double x : {area.left(), area.right()}) {
        for (const double y : {area.top() - gap - length, area.bottom() + gap})
            marks.emplace_back(x - thick / 2, y, thick, length);
    }
    for (const double y : {area.top(), area.bottom()}) {
        for (const double x : {area.left() - gap - length, area.right() + gap})
            marks.emplace_back(x, y - thick / 2, length, thick);
    }
    return marks;
}

}  // namespace tavrin
