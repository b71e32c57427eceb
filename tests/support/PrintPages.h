#pragma once

#include <cstdint>
#include <vector>

#include <QRect>

#include "core/state/PageLists.h"

namespace tavrin::test {

/// A print page with slots at these places, all in hundredths of an inch from the lower left corner.
inline PrinterPage pageOf(std::int64_t width, std::int64_t height, const std::vector<QRect>& places) {
    PrinterPage page;
    page.iPageWidth = width;
    page.iPageHeight = height;
    for (const QRect& place : places) {
        PrinterPageImage slot;
        slot.iX = place.x();
        slot.iY = place.y();
        slot.iWidth = place.width();
        slot.iHeight = place.height();
        page.oPrinterPageImages.push_back(slot);
    }
    return page;
}

/// A print page that is all one slot.
inline PrinterPage pageOf(const char* title, std::int64_t width, std::int64_t height) {
    PrinterPage page = pageOf(width, height, {QRect(0, 0, static_cast<int>(width), static_cast<int>(height))});
    page.sPageTitle = title;
    return page;
}

}  // namespace tavrin::test
