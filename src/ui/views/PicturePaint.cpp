// How the view paints what it shows.
#include <cmath>

#include <QPainter>

#include "ui/views/PictureView.h"

namespace tavrin {

namespace {

// No colour near a picture that is judged for colour.
const QColor kSurround(58, 58, 58), kFocus(150, 150, 150);

/// White with grey bars of 5 points every 10, both ways.
QBrush gridBrush() {
    QPixmap tile(10, 10);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    const QColor bar = QColor::fromRgbF(0.8F, 0.8F, 0.8F);
    painter.fillRect(0, 0, 5, 10, bar);
    painter.fillRect(0, 0, 10, 5, bar);
    painter.end();
    return QBrush(tile);
}

}  // namespace

void PictureView::paintEvent(QPaintEvent*) {
    zoom_.setView(size(), devicePixelRatioF());  // the window may have gone to another screen
    QPainter painter(this);
    painter.fillRect(rect(), kSurround);
    if (preview_.isNull() && fullRows_ < 1) {
        paintHint(painter);
    } else {
        paintPicture(painter);
    }
    if (hasFocus()) {
        painter.setPen(QPen(kFocus, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    if (dropZone_ != DropZone::none) paintDropZones(painter);
}

void PictureView::paintPicture(QPainter& painter) {
    const QRectF frame = zoom_.shownFrame();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom_.pixelScale() < 2.0);
    if (isSplit() && !before_.isNull()) {
        paintBefore(painter, frame);
    } else {
        paintAfter(painter, frame);
    }
    if (selection_) paintSelection(painter, frame);
}

void PictureView::paintAfter(QPainter& painter, const QRectF& frame) {
    if (!instead_.isNull()) {
        paintOther(painter, instead_, frame);
        paintWord(painter, insteadWord_, {std::max(frame.x(), 0.0) + 8, std::max(frame.y(), 0.0) + 8}, Qt::AlignLeft);
        return;
    }
    if (transparent_) painter.fillRect(frame, gridBrush());
    if (isFull()) {
        paintFull(painter, frame);
    } else {
        painter.drawImage(frame, preview_);
    }
}

/// Both sides of the line, and over each its word. The line lies on a whole device pixel, so that no column mixes.
void PictureView::paintBefore(QPainter& painter, const QRectF& frame) {
    const double ratio = devicePixelRatioF(), line = std::round(splitLine_->x(frame) * ratio) / ratio;
    painter.save();
    painter.setClipRect(QRectF(line, 0, std::max(0.0, width() - line), height()));
    paintAfter(painter, frame);
    painter.setClipRect(QRectF(0, 0, std::max(0.0, line), height()));
    paintOther(painter, before_, frame);
    painter.restore();
    const double top = std::max(frame.y(), 0.0) + 8;
    paintWord(painter, tr("Before"), {line - 14, top}, Qt::AlignRight);
    paintWord(painter, tr("After"), {line + 14, top}, Qt::AlignLeft);
}

/// A picture of the same place as the combined one, whatever its size.
void PictureView::paintOther(QPainter& painter, const QImage& picture, const QRectF& frame) {
    if (picture.size() == zoom_.shownSize()) return paintExactly(painter, picture, frame);
    const QRectF seen = frame.intersected(QRectF(rect()));
    const double x = picture.width() / frame.width(), y = picture.height() / frame.height();
    painter.drawImage(
        seen, picture,
        QRectF((seen.x() - frame.x()) * x, (seen.y() - frame.y()) * y, seen.width() * x, seen.height() * y));
}

/// What is smaller on the screen is made so elsewhere; until it is there the preview stands in.
void PictureView::paintFull(QPainter& painter, const QRectF& frame) {
    if (zoom_.pixelScale() >= 1.0 || zoom_.isActualPixels()) return paintOther(painter, full_, frame);
    const QSize size = zoom_.shownSize();
    if (smallOf_ == full_.cacheKey() && small_.size() == size) return paintExactly(painter, small_, frame);
    wantSmall(size);
    painter.drawImage(frame, preview_.isNull() ? full_ : preview_);
}

/// Pixel by device pixel. The painter is scaled, not the picture: a ratio of its own would copy it.
void PictureView::paintExactly(QPainter& painter, const QImage& picture, const QRectF& frame) {
    const double ratio = devicePixelRatioF();
    painter.save();
    painter.scale(1.0 / ratio, 1.0 / ratio);
    const QPoint origin = (frame.topLeft() * ratio).toPoint();
    const QRect room(QPoint(), (QSizeF(size()) * ratio).toSize());
    const QRect seen = QRect(origin, picture.size()).intersected(room.adjusted(-1, -1, 1, 1));
    painter.drawImage(seen.topLeft(), picture, seen.translated(-origin));
    painter.restore();
}

/// @param at the corner of its plate that lies on `side`
void PictureView::paintWord(QPainter& painter, const QString& word, const QPointF& at, Qt::Alignment side) {
    const QSizeF size = painter.fontMetrics().size(Qt::TextSingleLine, word) + QSize(16, 8);
    const QRectF plate(QPointF(side == Qt::AlignRight ? at.x() - size.width() : at.x(), at.y()), size);
    painter.setPen(Qt::white);
    painter.fillRect(plate, QColor(0, 0, 0, 170));
    painter.drawText(plate, Qt::AlignCenter, word);
}

void PictureView::paintSelection(QPainter& painter, const QRectF& frame) {
    const QRectF box = selection_->inView(frame);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::red, 1));
    painter.drawRect(box);
    const auto icon = [&](const QImage& picture, const QPointF& corner) {
        const QSizeF size = picture.size();
        painter.drawImage(QRectF(corner - QPointF(size.width() / 2, size.height() / 2), size), picture);
    };
    icon(editIcon_, box.topRight());
    icon(deleteIcon_, box.bottomLeft());
}

void PictureView::paintHint(QPainter& painter) {
    painter.setPen(QColor(200, 200, 200));
    painter.drawText(rect(), Qt::AlignCenter,
                     tr("Drop a portrait on the left half\nand a background on the right half,\n"
                        "or open them from the File menu."));
}

void PictureView::paintDropZones(QPainter& painter) {
    const QRect left(0, 0, width() / 2, height());
    const QRect right(left.width(), 0, width() - left.width(), height());
    painter.fillRect(rect(), QColor(20, 20, 20, 150));
    const auto zone = [&](const QRect& area, const QString& text, bool active) {
        const QRect box = area.adjusted(16, 16, -16, -16);
        painter.setPen(QPen(active ? QColor(120, 200, 255) : QColor(150, 150, 150), active ? 4 : 2, Qt::DashLine));
        painter.setBrush(active ? QColor(60, 120, 180, 90) : QColor(0, 0, 0, 0));
        painter.drawRoundedRect(box, 10, 10);
        painter.setPen(Qt::white);
        painter.drawText(box, Qt::AlignCenter, text);
    };
    zone(left, tr("Portrait"), dropZone_ == DropZone::foreground);
    zone(right, tr("Background"), dropZone_ == DropZone::background);
}

}  // namespace tavrin
