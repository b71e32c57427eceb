#include "ui/PictureView.h"

#include <cstring>

#include <QPainter>

namespace tavrin {

namespace {

const QColor kSurround(58, 60, 64);

/// Rows of a picture of another size are none of this one's.
void putRows(QImage& picture, const PublishedRows& rows) {
    if (picture.size() != QSize(rows.pixels.width(), rows.height)) return;
    std::memcpy(picture.scanLine(rows.firstRow), rows.pixels.constBits(),
                static_cast<std::size_t>(rows.pixels.sizeInBytes()));
}

void drawChecks(QPainter& painter, const QRect& rect) {
    constexpr int kCheck = 12;
    painter.fillRect(rect, QColor(200, 200, 200));
    for (int y = rect.top(); y <= rect.bottom(); y += kCheck) {
        for (int x = rect.left() + ((y - rect.top()) / kCheck % 2) * kCheck; x <= rect.right(); x += 2 * kCheck) {
            painter.fillRect(QRect(x, y, kCheck, kCheck).intersected(rect), QColor(160, 160, 160));
        }
    }
}

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(240, 240);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureView::show(const PublishedRows& rows) {
    scaled_ = QImage();
    if (rows.edited) {
        putRows(rows.lowRes ? preview_ : full_, rows);
    } else if (rows.lowRes) {
        preview_ = rows.pixels;
        fullRows_ = 0;
    } else {
        if (full_.size() != QSize(rows.pixels.width(), rows.height)) {
            full_ = QImage(rows.pixels.width(), rows.height, QImage::Format_RGBA8888);
        }
        if (rows.rowCount == rows.height) {
            full_ = rows.pixels;
        } else {
            putRows(full_, rows);
        }
        fullRows_ = rows.firstRow + rows.rowCount;
    }
    update();
}

void PictureView::setDropZone(DropZone zone) {
    if (zone == dropZone_) return;
    dropZone_ = zone;
    update();
}

PictureView::DropZone PictureView::zoneAt(const QPoint& position) const {
    return position.x() < width() / 2 ? DropZone::foreground : DropZone::background;
}

QRect PictureView::pictureRect() const {
    const QSize picture = fullRows_ > 0 ? full_.size() : preview_.size();
    if (picture.isEmpty()) return {};
    const QSize fitted = picture.scaled(size() - QSize(24, 24), Qt::KeepAspectRatio);
    return QRect(QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted);
}

void PictureView::paintPicture(QPainter& painter) {
    const QRect rect = pictureRect();
    const double ratio = devicePixelRatioF();
    drawChecks(painter, rect);
    if (isFull()) {
        if (scaled_.isNull()) {
            scaled_ = full_.scaled(rect.size() * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            scaled_.setDevicePixelRatio(ratio);
        }
        painter.drawImage(rect.topLeft(), scaled_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect, preview_);
    if (fullRows_ < 1) return;
    const double share = static_cast<double>(fullRows_) / full_.height();
    painter.drawImage(QRectF(rect.x(), rect.y(), rect.width(), rect.height() * share), full_,
                      QRectF(0, 0, full_.width(), fullRows_));
}

void PictureView::paintHint(QPainter& painter) {
    painter.setPen(QColor(190, 192, 196));
    painter.drawText(rect(), Qt::AlignCenter,
                     tr("Drop a portrait on the left half\nand a background on the right half,\n"
                        "or open them from the File menu."));
}

void PictureView::paintDropZones(QPainter& painter) {
    const QRect left(0, 0, width() / 2, height());
    const QRect right(left.width(), 0, width() - left.width(), height());
    painter.fillRect(rect(), QColor(20, 22, 26, 150));
    const auto zone = [&](const QRect& area, const QString& text, bool active) {
        const QRect box = area.adjusted(16, 16, -16, -16);
        painter.setPen(QPen(active ? QColor(120, 200, 255) : QColor(150, 152, 156), active ? 4 : 2, Qt::DashLine));
        painter.setBrush(active ? QColor(60, 120, 180, 90) : QColor(0, 0, 0, 0));
        painter.drawRoundedRect(box, 10, 10);
        painter.setPen(Qt::white);
        painter.drawText(box, Qt::AlignCenter, text);
    };
    zone(left, tr("Portrait"), dropZone_ == DropZone::foreground);
    zone(right, tr("Background"), dropZone_ == DropZone::background);
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), kSurround);
    if (preview_.isNull() && fullRows_ < 1) {
        paintHint(painter);
    } else {
        paintPicture(painter);
    }
    if (dropZone_ != DropZone::none) paintDropZones(painter);
}

void PictureView::resizeEvent(QResizeEvent*) {
    scaled_ = QImage();
}

}  // namespace tavrin
