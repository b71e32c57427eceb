#include "ui/views/PictureView.h"

#include <cmath>
#include <cstring>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QWheelEvent>

namespace tavrin {

namespace {

// No colour near a picture that is judged for colour.
const QColor kSurround(58, 58, 58), kFocus(150, 150, 150);

/// Rows of a picture of another size are none of this one's.
void putRows(QImage& picture, const PublishedRows& rows) {
    if (picture.size() != QSize(rows.pixels.width(), rows.height)) return;
    std::memcpy(picture.scanLine(rows.firstRow), rows.pixels.constBits(),
                static_cast<std::size_t>(rows.pixels.sizeInBytes()));
}

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

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    setObjectName("mainQLXView");
    setAccessibleName(tr("Picture"));
    setMinimumSize(240, 240);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&shrinker_, &Shrinker::done, this, [this](const QImage& small, qint64 key) {
        small_ = small;
        smallOf_ = key;
        update();
    });
}

void PictureView::show(const PublishedRows& rows) {
    takeRows(rows);
    update();
}

void PictureView::takeRows(const PublishedRows& rows) {
    if (rows.edited) return putRows(rows.isPreview() ? preview_ : full_, rows);
    if (rows.isPreview()) {
        preview_ = rows.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        fullRows_ = 0;
        return;
    }
    if (full_.size() != QSize(rows.pixels.width(), rows.height))
        full_ = QImage(rows.pixels.width(), rows.height, QImage::Format_RGBA8888);
    if (rows.rowCount == rows.height) {
        full_ = rows.pixels;
    } else {
        putRows(full_, rows);
    }
    fullRows_ = rows.firstRow + rows.rowCount;
    setOutputSize(full_.size());
}

void PictureView::setOutputSize(QSize pixels) {
    if (zoom_.setPicture(pixels)) zoomChanged();
}

void PictureView::setTransparent(bool transparent) {
    transparent_ = transparent;
}

void PictureView::showInstead(const QImage& picture, const QString& word) {
    instead_ = picture;
    insteadWord_ = word;
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

void PictureView::zoomChanged() {
    update();
    emit zoomed();
}

void PictureView::setZoomHome() {
    zoom_.setZoomHome();
    zoomChanged();
}

void PictureView::setZoomMagnify() {
    zoom_.setZoomMagnify();
    zoomChanged();
}

void PictureView::zoomBy(double factor) {
    zoom_.zoomAbout(pointer(), factor);
    zoomChanged();
}

void PictureView::zoomToPixels() {
    zoom_.setPixelScale(pointer(), 1.0);
    zoomChanged();
}

/// The middle when the pointer is elsewhere.
QPointF PictureView::pointer() const {
    return underMouse() ? QPointF(mapFromGlobal(QCursor::pos())) : QPointF(width() / 2.0, height() / 2.0);
}

void PictureView::paintPicture(QPainter& painter) {
    const QRectF frame = zoom_.frame();
    if (transparent_) painter.fillRect(frame, gridBrush());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom_.pixelScale() < 2.0);
    if (!instead_.isNull()) {
        painter.drawImage(frame, instead_);
        painter.setPen(Qt::white);
        const QRectF word = painter.fontMetrics().boundingRect(insteadWord_).adjusted(-8, -4, 8, 4);
        const QRectF place(QPointF(std::max(frame.x(), 0.0) + 8, std::max(frame.y(), 0.0) + 8), word.size());
        painter.fillRect(place, QColor(0, 0, 0, 170));
        painter.drawText(place, Qt::AlignCenter, insteadWord_);
    } else if (isFull()) {
        paintFull(painter, frame);
    } else {
        painter.drawImage(frame, preview_);
    }
}

/// What is smaller on the screen is made so elsewhere; until it is there the preview stands in.
void PictureView::paintFull(QPainter& painter, const QRectF& frame) {
    const double ratio = devicePixelRatioF();
    if (zoom_.pixelScale() >= 1.0) {
        const QRectF seen = frame.intersected(QRectF(rect()));
        painter.drawImage(seen, full_, QRectF(zoom_.pictureAt(seen.topLeft()), zoom_.pictureAt(seen.bottomRight())));
        return;
    }
    const QSize size = (frame.size() * ratio).toSize();
    if (smallOf_ == full_.cacheKey() && small_.size() == size) {
        small_.setDevicePixelRatio(ratio);
        painter.drawImage(QPointF(std::round(frame.x() * ratio), std::round(frame.y() * ratio)) / ratio, small_);
        return;
    }
    shrinker_.want(full_, size);
    painter.drawImage(frame, preview_.isNull() ? full_ : preview_);
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

void PictureView::resizeEvent(QResizeEvent*) {
    zoom_.setView(size(), devicePixelRatioF());
    zoomChanged();
}

bool PictureView::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            zoom_.zoomAbout(gesture->position(), 1.0 + gesture->value());
            zoomChanged();
            return true;
        }
    }
    return QWidget::event(event);
}

void PictureView::wheelEvent(QWheelEvent* event) {
    constexpr double kNotch = 120.0;
    zoom_.zoomAbout(event->position(), std::pow(1.15, event->angleDelta().y() / kNotch));
    zoomChanged();
    event->accept();
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    panning_ = event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && spaceHeld_);
    pressed_ = event->button() == Qt::LeftButton && !spaceHeld_;
    panFrom_ = pressedAt_ = event->position();
    if (panning_) setCursor(Qt::ClosedHandCursor);
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
    if (panning_) {
        zoom_.pan(event->position() - panFrom_);
        panFrom_ = event->position();
        zoomChanged();
    }
    const QPointF way = event->position() - pressedAt_;
    dragging_ = dragging_ || (pressed_ && way.manhattanLength() >= QApplication::startDragDistance());
    const QRectF frame = zoom_.frame();
    if (dragging_) emit dragged({way.x() / frame.width(), -way.y() / frame.height()});
}

void PictureView::mouseReleaseEvent(QMouseEvent*) {
    panning_ = pressed_ = false;
    if (std::exchange(dragging_, false)) emit dragEnded();
    spaceHeld_ ? setCursor(Qt::OpenHandCursor) : unsetCursor();
}

void PictureView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return QWidget::keyPressEvent(event);
    spaceHeld_ = true;
    if (!panning_) setCursor(Qt::OpenHandCursor);
}

void PictureView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->isAutoRepeat()) return QWidget::keyReleaseEvent(event);
    spaceHeld_ = false;
    if (!panning_) unsetCursor();
}

}  // namespace tavrin
