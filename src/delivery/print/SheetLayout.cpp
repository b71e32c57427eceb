#include "delivery/print/SheetLayout.h"

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

std::optional<QRectF> captionRoom(const PrinterPage& page, int dpi) {
    const double width = static_cast<double>(page.iPageWidth * dpi / 100);
    const double height = static_cast<double>(page.iPageHeight * dpi / 100);
    double lowest = height, highest = 0;
    for (const SheetSlot& slot : slotsOf(page, dpi, 1.0)) {
        lowest = std::min(lowest, slot.area.top());
        highest = std::max(highest, slot.area.bottom());
    }
    const double least = 0.12 * dpi, best = 0.2 * dpi, marks = 0.17 * dpi, side = 0.25 * dpi;
    const bool below = lowest >= least;
    const double free = below ? lowest : height - highest;
    if (free < least || width < 4 * side) return {};
    // Close to the pictures but clear of their cut marks; in a narrow strip in its middle.
    const double line = std::min(best, free);
    const double gap = std::min(marks, (free - line) / 2);
    const double y = below ? lowest - gap - line : highest + gap;
    return QRectF(side, y, width - 2 * side, line);
}

}  // namespace tavrin
