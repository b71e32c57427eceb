#include "delivery/print/PrintSheet.h"

#include <algorithm>

#include "core/image/ImageWriter.h"
#include "core/raster/BitmapContext.h"
#include "core/state/SystemInfo.h"
#include "delivery/print/Caption.h"
#include "pipeline/SaveImage.h"

namespace tavrin {

namespace {

constexpr double kRightAngle = 1.5707963267948966;

void drawSlot(BitmapContext& sheet, const SheetSlot& slot, const QImage& picture, SlotFit fit) {
    const QRect part = partFor(picture.size(), slot.frame(), fit).toAlignedRect().intersected(picture.rect());
    const QImage seen = part == picture.rect() ? picture : picture.copy(part);
    sheet.saveState();
    sheet.translate(slot.area.x(), slot.area.y() + (slot.turned ? slot.area.height() : 0.0));
    if (slot.turned) sheet.rotate(-kRightAngle);
    sheet.drawImage(seen, placeIn(slot.frame(), seen.size(), fit));
    sheet.restoreState();
}

void drawMarks(BitmapContext& sheet, const std::vector<SheetSlot>& places, int dpi) {
    for (const SheetSlot& slot : places) {
        for (const QRectF& mark : cutMarks(slot, dpi))
            sheet.fillRect(mark, 0.0, 0.0, 0.0, 1.0);
    }
}

void drawCaption(BitmapContext& sheet, const PrinterPage& page, int dpi, const SheetLook& look) {
    const std::optional<QRectF> room = captionRoom(page, dpi);
    if (look.caption.empty() || !room) return;
    sheet.painter()->fillPath(captionShapes(look.caption, *room), Qt::black);
}

void mirror(PixelView sheet) {
    for (int y = 0; y < sheet.height; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(sheet.at(0, y));
        std::reverse(row, row + sheet.width);
    }
}

}  // namespace

void drawPage(BitmapContext& sheet, const PrinterPage& page, int dpi, const QImage& picture, double proportion,
              const SheetLook& look) {
    const std::vector<SheetSlot> places = slotsOf(page, dpi, proportion);
    sheet.fillRect(QRectF(0, 0, sheet.width(), sheet.height()), kSheetGround, kSheetGround, kSheetGround, 1.0);
    if (look.cutMarks) drawMarks(sheet, places, dpi);
    drawCaption(sheet, page, dpi, look);
    for (const SheetSlot& slot : places)
        drawSlot(sheet, slot, picture, look.fit);
}

void drawSheet(SystemInfo& info, const QImage& picture, double proportion, const SheetLook& look) {
    const std::int32_t index = info.iCurrentTemplateIndex;
    if (!info.oBitmapTemplateRep || index < 0 || index >= info.iPrinterPageCount()) return;
    BitmapContext& sheet = *info.oBitmapTemplateRep;
    drawPage(sheet, info.oPrinterPages[static_cast<std::size_t>(index)], info.iTemplateImageDPI, picture, proportion,
             look);
    if (look.mirrored) mirror({info.pBitmapTemplateData, sheet.width(), sheet.height()});
}

std::string writeSheet(const SystemInfo& info, const std::string& path) {
    if (!info.pBitmapTemplateData) return "There is no print sheet.";
    return writePicture(path, {info.pBitmapTemplateData,
                               info.iTemplatePixelWidth,
                               info.iTemplatePixelHeight,
                               fileTypeForPath(path),
                               info.iTemplateImageDPI,
                               {}});
}

}  // namespace tavrin
