#include "delivery/SheetPdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "core/files/AtomicFile.h"
#include "core/image/ImageReader.h"

namespace tavrin {

namespace {

constexpr int kDpi = 600;

/// A page in hundredths of an inch, in points.
QPageSize sizeOf(const PrinterPage& page) {
    constexpr double kPoints = 0.72;
    const QSizeF points(static_cast<double>(page.iPageWidth) * kPoints,
                        static_cast<double>(page.iPageHeight) * kPoints);
    return QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch);
}

QColor ground() {
    constexpr auto grey = static_cast<float>(kSheetGround);
    return QColor::fromRgbF(grey, grey, grey);
}

class PdfSheets {
  public:
    PdfSheets(const PrinterPage& page, const SheetLook& look)
        : page_(page), look_(look), size_(pixels(page.iPageWidth), pixels(page.iPageHeight)) {
        bytes_.open(QIODevice::WriteOnly);
        writer_ = std::make_unique<QPdfWriter>(&bytes_);
        writer_->setCreator(QStringLiteral("Tavrin"));
        writer_->setResolution(kDpi);
        writer_->setPageSize(sizeOf(page));
        writer_->setPageMargins(QMarginsF());
        painter_.begin(writer_.get());
        painter_.setRenderHint(QPainter::LosslessImageRendering);
    }

    void add(const QImage& picture) {
        if (sheets_++ > 0) writer_->newPage();
        painter_.save();
        if (look_.mirrored) painter_.setTransform(QTransform(-1, 0, 0, 1, size_.width(), 0));
        painter_.fillRect(QRectF(QPointF(), size_), ground());
        const double proportion = static_cast<double>(picture.width()) / picture.height();
        const std::vector<SheetSlot> places = slotsOf(page_, kDpi, proportion);
        if (look_.cutMarks) drawMarks(places);
        for (const SheetSlot& slot : places)
            drawSlot(slot, picture);
        painter_.restore();
    }

    QByteArray take() {
        painter_.end();
        return bytes_.data();
    }

  private:
    static double pixels(std::int64_t hundredths) { return static_cast<double>(hundredths * kDpi / 100); }
    /// Rows run downward here.
    QRectF onPage(const QRectF& area) const {
        return {area.x(), size_.height() - area.bottom(), area.width(), area.height()};
    }

    void drawMarks(const std::vector<SheetSlot>& places) {
        for (const SheetSlot& slot : places) {
            for (const QRectF& mark : cutMarks(slot, kDpi))
                painter_.fillRect(onPage(mark), Qt::black);
        }
    }

    void drawSlot(const SheetSlot& slot, const QImage& picture) {
        const QRectF area = onPage(slot.area);
        painter_.save();
        painter_.translate(slot.turned ? area.topRight() : area.topLeft());
        if (slot.turned) painter_.rotate(90.0);
        const QRect part =
            partFor(picture.size(), slot.frame(), look_.fit).toAlignedRect().intersected(picture.rect());
        // The same picture in several slots is in the file once; parts of it would each be a picture of their own.
        if (part == picture.rect())
            painter_.drawImage(placeIn(slot.frame(), picture.size(), look_.fit), picture);
        else
            painter_.drawImage(QRectF(QPointF(), slot.frame()), cutOut(picture, part));
        painter_.restore();
    }

    /// The slots of a page mostly have one size, so that one part serves them.
    const QImage& cutOut(const QImage& picture, const QRect& part) {
        if (part != part_ || picture.cacheKey() != cutFrom_) cut_ = picture.copy(part);
        part_ = part;
        cutFrom_ = picture.cacheKey();
        return cut_;
    }

    const PrinterPage& page_;
    const SheetLook& look_;
    const QSizeF size_;
    QBuffer bytes_;
    std::unique_ptr<QPdfWriter> writer_;
    QPainter painter_;
    int sheets_ = 0;
    QImage cut_;
    QRect part_;
    qint64 cutFrom_ = 0;
};

}  // namespace

std::string writeSheetsAsPdf(const PrinterPage& page, const std::vector<std::string>& pictures, const SheetLook& look,
                             const std::string& path) {
    PdfSheets sheets(page, look);
    for (const std::string& picture : pictures) {
        const ReadPicture read = readPicture(picture);
        if (!read.error.empty()) return picture + ": " + read.error + ".";
        sheets.add(read.pixels);
    }
    const QByteArray bytes = sheets.take();
    AtomicFile file(path);
    file.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return file.commit() ? std::string() : path + ": " + file.error() + ".";
}

}  // namespace tavrin
