#include "delivery/print/SheetPdf.h"

#include <cmath>

#include "core/image/ImageReader.h"
#include "core/raster/Rows.h"
#include "delivery/print/Caption.h"
#include "delivery/print/PlainJpeg.h"

namespace tavrin {

namespace {

constexpr int kDpi = 600;
constexpr double kPoints = 72.0 / kDpi;

int pixelsOf(std::int64_t hundredths) {
    return static_cast<int>(hundredths * kDpi / 100);
}

std::string text(double number) {
    return QByteArray::number(number, 'f', 4).toStdString() + ' ';
}

std::string text(const QRectF& rect) {
    return text(rect.x()) + text(rect.y()) + text(rect.width()) + text(rect.height());
}

std::string moved(double x, double y) {
    return "1 0 0 1 " + text(x) + text(y) + "cm\n";
}

/// Opaque, red first, four bytes a pixel. Transparent parts show the sheet.
QImage onGround(const QImage& picture) {
    if (!picture.hasAlphaChannel()) return picture.convertToFormat(QImage::Format_RGBX8888);
    QImage flat = picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    std::uint8_t* bytes = flat.bits();
    const auto pitch = static_cast<std::ptrdiff_t>(flat.bytesPerLine());
    constexpr int kGrain = 16;
    runRows({}, flat.height(), kGrain, [&](int y) {
        std::uint8_t* row = bytes + y * pitch;
        for (int x = 0; x < 4 * flat.width(); x += 4) {
            const double ground = kSheetGround * (255 - row[x + 3]);
            for (int c = x; c < x + 3; ++c)
                row[c] = static_cast<std::uint8_t>(std::min(255.0, row[c] + ground + 0.5));
            row[x + 3] = 255;
        }
    });
    flat.reinterpretAsFormat(QImage::Format_RGBX8888);
    return flat;
}

/// Outlines of letters as the operators of a page.
std::string outlines(const QPainterPath& shapes) {
    std::string drawn;
    for (const QPolygonF& polygon : shapes.toSubpathPolygons()) {
        for (qsizetype i = 0; i < polygon.size(); ++i)
            drawn += text(polygon[i].x()) + text(polygon[i].y()) + (i == 0 ? "m\n" : "l\n");
        drawn += "h\n";
    }
    return drawn + "f\n";
}

}  // namespace

std::string readForSheet(const std::string& path, SheetPicture& picture) {
    ReadPicture read = readPicture(path);
    if (!read.error.empty()) return path + ": " + read.error + ".";
    picture = {std::move(read.pixels), read.damage.empty() ? plainJpeg(path) : std::string(), path};
    return "";
}

SheetPdf::SheetPdf(const std::string& path, const SheetPlan& plan)
    : path_(path),
      plan_(plan),
      width_(pixelsOf(plan.page.iPageWidth)),
      height_(pixelsOf(plan.page.iPageHeight)),
      file_(path),
      pages_(file_.reserve()) {}

void SheetPdf::add(const SheetPicture& picture) {
    int number = 0;
    if (!picture.jpeg.empty() && !plan_.profile) {
        number = file_.addJpeg(picture.jpeg, picture.pixels.size());
    } else {
        const QImage flat = onGround(picture.pixels);
        number = file_.addPicture(plan_.profile ? plan_.profile->converted(flat) : flat);
    }
    const int drawn = file_.addStream("", drawSheet(picture));
    const double width = plan_.paper ? plan_.paper->width : width_ * kPoints;
    const double height = plan_.paper ? plan_.paper->height : height_ * kPoints;
    sheets_.push_back(file_.add("<< /Type /Page /Parent " + std::to_string(pages_) + " 0 R /MediaBox [0 0 " +
                                text(width) + text(height) + "] /Contents " + std::to_string(drawn) +
                                " 0 R /Resources << /XObject << /Picture " + std::to_string(number) +
                                " 0 R >> >> >>"));
}

std::string SheetPdf::colour(double grey) const {
    std::array<double, 3> colour{grey, grey, grey};
    if (plan_.profile) colour = plan_.profile->converted(colour);
    return text(colour[0]) + text(colour[1]) + text(colour[2]) + "rg\n";
}

/// In the sheet's pixels, from its lower left corner.
std::string SheetPdf::drawSheet(const SheetPicture& picture) const {
    QRectF shown(0, 0, width_ * kPoints, height_ * kPoints);
    if (plan_.paper) shown = printedArea(*plan_.paper, marginsOn(*plan_.paper, width_, height_));
    std::string drawn = text(shown) + "re W n\n" + moved(shown.x(), shown.y());
    drawn += text(kPoints) + "0 0 " + text(kPoints) + "0 0 cm\n";
    if (plan_.look.mirrored) drawn += "-1 0 0 1 " + text(width_) + "0 cm\n";
    drawn += colour(kSheetGround) + text(QRectF(0, 0, width_, height_)) + "re f\n" + colour(0.0);
    const std::vector<SheetSlot> places = slotsOf(plan_.page, kDpi, picture.shape());
    if (plan_.look.cutMarks) {
        for (const SheetSlot& slot : places) {
            for (const QRectF& mark : cutMarks(slot, kDpi))
                drawn += text(mark) + "re f\n";
        }
    }
    return drawn + drawCaption(picture.name) + drawSlots(picture, places);
}

std::string SheetPdf::drawSlots(const SheetPicture& picture, const std::vector<SheetSlot>& places) const {
    std::string drawn;
    const QSizeF size = picture.pixels.size();
    for (const SheetSlot& slot : places) {
        const QSizeF frame = slot.frame();
        const QRectF part = partFor(picture.pixels.size(), frame, plan_.look.fit);
        const QRectF place = placeIn(frame, part.size().toSize(), plan_.look.fit);
        // The whole picture is laid so that its part comes to the place; rows of the part run downward.
        const double across = place.width() / part.width(), down = place.height() / part.height();
        drawn += "q " + moved(slot.area.x(), slot.area.y() + (slot.turned ? slot.area.height() : 0.0));
        if (slot.turned) drawn += "0 -1 1 0 0 0 cm\n";
        drawn += text(QRectF(QPointF(), frame)) + "re W n\n";
        drawn += text(across * size.width()) + "0 0 " + text(down * size.height()) +
                 text(place.x() - across * part.x()) + text(place.y() - down * (size.height() - part.bottom())) +
                 "cm /Picture Do Q\n";
    }
    return drawn;
}

std::string SheetPdf::drawCaption(const std::string& picture) const {
    const std::optional<QRectF> room = captionRoom(plan_.page, kDpi);
    if (plan_.look.caption.empty() || !room) return "";
    return outlines(captionShapes(captionText(plan_.look.caption, picture), *room));
}

std::string SheetPdf::commit() {
    std::string kids;
    for (const int sheet : sheets_)
        kids += std::to_string(sheet) + " 0 R ";
    file_.put(pages_, "<< /Type /Pages /Count " + std::to_string(sheets_.size()) + " /Kids [" + kids + "] >>");
    const int catalog = file_.add("<< /Type /Catalog /Pages " + std::to_string(pages_) +
                                  " 0 R /ViewerPreferences << /PrintScaling /None >> >>");
    const std::string problem = file_.commit(catalog);
    return problem.empty() ? problem : path_ + ": " + problem + ".";
}

std::string writeSheetsAsPdf(const SheetPlan& plan, const std::vector<std::string>& pictures,
                             const std::string& path) {
    SheetPdf sheets(path, plan);
    for (const std::string& name : pictures) {
        SheetPicture picture;
        if (const std::string problem = readForSheet(name, picture); !problem.empty()) return problem;
        sheets.add(picture);
    }
    return sheets.commit();
}

}  // namespace tavrin
