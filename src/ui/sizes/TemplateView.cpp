#include "ui/sizes/TemplateView.h"

#include <algorithm>

#include <QPainter>

#include "core/raster/BitmapContext.h"
#include "delivery/print/PrintSheet.h"

namespace tavrin {

TemplateView::TemplateView(const SystemInfo& info, std::function<QImage()> picture, QWidget* parent)
    : QWidget(parent), info_(info), picture_(std::move(picture)) {
    setObjectName("imageViewEditTemplate");
    setAccessibleName(tr("The print page with the picture in its places"));
    setToolTip(tr("The sheet as it is printed: grey is paper that stays free"));
    setMinimumHeight(200);
}

void TemplateView::setTemplate(std::int32_t index) {
    iSelectedTemplate_ = index;
    ownPage_.reset();
    refresh();
}

void TemplateView::setPage(const PrinterPage& page) {
    ownPage_ = page;
    refresh();
}

void TemplateView::setLook(const SheetLook& look) {
    look_ = look;
    refresh();
}

void TemplateView::refresh() {
    sheet_ = QImage();
    update();
}

const PrinterPage* TemplateView::page() const {
    if (ownPage_) return &*ownPage_;
    const bool isThere = iSelectedTemplate_ >= 0 && iSelectedTemplate_ < info_.iPrinterPageCount();
    return isThere ? &info_.oPrinterPages[static_cast<std::size_t>(iSelectedTemplate_)] : nullptr;
}

/// The sheet at as many dots an inch as the view has room for, which the painter of printed sheets fills.
void TemplateView::makeSheet() {
    const PrinterPage* shown = this->page();
    if (!shown) return;
    const PrinterPage& page = *shown;
    const double pageWidth = static_cast<double>(page.iPageWidth), pageHeight = static_cast<double>(page.iPageHeight);
    if (pageWidth < 1 || pageHeight < 1) return;
    const double dots = devicePixelRatioF() * std::min(width() / pageWidth, height() / pageHeight);
    const int dpi = std::max(1, static_cast<int>(dots * 100.0));
    const int sheetWidth = static_cast<int>(pageWidth * dpi / 100.0);
    const int sheetHeight = static_cast<int>(pageHeight * dpi / 100.0);
    if (sheetWidth < 1 || sheetHeight < 1) return;
    sheet_ = QImage(sheetWidth, sheetHeight, QImage::Format_RGBA8888_Premultiplied);
    BitmapContext sheet(sheet_.bits(), sheetWidth, sheetHeight);
    const double proportion =
        static_cast<double>(info_.iOutputPixelWidth) / std::max(1, info_.iOutputPixelHeight.load());
    // No more of the picture than the sheet can show: it is drawn with every pass.
    const int most = 2 * std::max(sheetWidth, sheetHeight);
    QImage picture = picture_();
    if (picture.width() > most || picture.height() > most)
        picture = picture.scaled(most, most, Qt::KeepAspectRatio, Qt::FastTransformation);
    if (picture.isNull()) {
        picture = QImage(1, 1, QImage::Format_RGBA8888_Premultiplied);
        picture.fill(Qt::white);
    }
    drawPage(sheet, page, dpi, picture, proportion, look_);
    if (look_.mirrored) sheet_ = sheet_.mirrored(true, false);
    sheet_.setDevicePixelRatio(devicePixelRatioF());
}

void TemplateView::paintEvent(QPaintEvent*) {
    if (sheet_.isNull()) makeSheet();
    if (sheet_.isNull()) return;
    const QSizeF shown = QSizeF(sheet_.size()) / sheet_.devicePixelRatio();
    QPainter(this).drawImage(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2), sheet_);
}

}  // namespace tavrin
