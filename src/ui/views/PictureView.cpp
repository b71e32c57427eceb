#include "ui/views/PictureView.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QWheelEvent>

#include "ui/views/PictureAccess.h"

namespace tavrin {

namespace {

/// Rows of a picture of another size are none of this one's.
void putRows(QImage& picture, const PublishedRows& rows) {
    if (picture.size() != QSize(rows.pixels.width(), rows.height)) return;
    std::memcpy(picture.scanLine(rows.firstRow), rows.pixels.constBits(),
                static_cast<std::size_t>(rows.pixels.sizeInBytes()));
}

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent), splitLine_(new SplitLine(this)) {
    setObjectName("mainQLXView");
    setAccessibleName(tr("Picture"));
    makePictureAccessible();
    setMinimumSize(240, 240);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    connect(splitLine_, &SplitLine::valueChanged, this, &PictureView::placeSplit);
    connect(&shrinker_, &Shrinker::done, this, &PictureView::takeSmall);
}

void PictureView::show(const PublishedRows& rows) {
    takeRows(rows);
    update();
}

void PictureView::takeRows(const PublishedRows& rows) {
    if (rows.edited) return takeEdited(rows);
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
    if (isFull()) speak();
}

/// Only their part of the small picture is made anew, so that a stroke is seen at once. While that is being made the
/// rows are remembered: wanted anew at each piece it would never be ready, and each would copy the whole picture.
void PictureView::takeEdited(const PublishedRows& rows) {
    const bool smallStands = smallOf_ == full_.cacheKey() && !small_.isNull(), isDue = isSmallDue();
    putRows(rows.isPreview() ? preview_ : full_, rows);
    if (rows.isPreview() || rows.height != full_.height()) return;
    const int first = rows.firstRow, last = first + rows.rowCount;
    if (smallStands) {
        shrinkRows(full_, first, last, small_);
        smallOf_ = full_.cacheKey();
    } else if (isDue) {
        due_.firstRow = due_.edited == 0 ? first : std::min(due_.firstRow, first);
        due_.lastRow = std::max(due_.lastRow, last);
        due_.edited = full_.cacheKey();
    }
}

/// A small picture is being made of this one, or of this one before some edits.
bool PictureView::isSmallDue() const {
    const qint64 key = full_.cacheKey();
    return due_.of != 0 && (due_.edited == 0 ? due_.of : due_.edited) == key;
}

void PictureView::wantSmall(QSize size) {
    if (isSmallDue() && due_.size == size) return;
    due_ = {full_.cacheKey(), size, 0, 0, 0};
    shrinker_.want(full_, size);
}

void PictureView::takeSmall(const QImage& small, qint64 key) {
    const bool isDue = key == due_.of && isSmallDue();
    small_ = small;
    smallOf_ = key;
    if (isDue && due_.edited != 0) {
        shrinkRows(full_, due_.firstRow, due_.lastRow, small_);
        smallOf_ = due_.edited;
    }
    if (key == due_.of) due_ = {};
    update();
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
    speak();
}

void PictureView::setBefore(const QImage& picture) {
    before_ = picture;
    update();
}

void PictureView::setSplit(bool on) {
    splitLine_->setVisible(on);
    placeSplit();
    speak();
}

void PictureView::placeSplit() {
    splitLine_->placeOn(zoom_.shownFrame());
    update();
}

QString PictureView::description() const {
    const QString shown = full_.isNull() && preview_.isNull() ? tr("nothing")
                          : isSplit()                         ? tr("before and after")
                          : !instead_.isNull()                ? insteadWord_
                          : isFull()                          ? tr("result")
                                                              : tr("preview");
    return tr("%1 x %2 pixels, %3 percent, %4")
        .arg(zoom_.picture().width())
        .arg(zoom_.picture().height())
        .arg(qRound(100.0 * zoom_.pixelScale()))
        .arg(shown);
}

/// Those who do not see the picture hear what became of it.
void PictureView::speak() {
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent event(this, description());
    QAccessible::updateAccessibility(&event);
}

void PictureView::setItemIcons(const QImage& edit, const QImage& remove) {
    editIcon_ = edit;
    deleteIcon_ = remove;
}

void PictureView::setAsking(bool on) {
    asking_ = on;
    showCursor();
}

void PictureView::setDrawing(bool on) {
    drawing_ = on;
    showCursor();
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
    placeSplit();
    speak();
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

void PictureView::setPixelScale(double scale) {
    zoom_.setPixelScale({width() / 2.0, height() / 2.0}, scale);
    zoomChanged();
}

/// The middle when the pointer is elsewhere.
QPointF PictureView::pointer() const {
    return underMouse() ? QPointF(mapFromGlobal(QCursor::pos())) : QPointF(width() / 2.0, height() / 2.0);
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
    panFrom_ = pressedAt_ = event->position();
    if (event->button() == Qt::LeftButton && !spaceHeld_) beginPress(event->position());
    showCursor();
}

void PictureView::beginPress(const QPointF& at) {
    if (asking_) {
        point(at);
        if (pointed_.x() >= 0) emit asked(pointed_);
        return;
    }
    pressed_ = true;
    emit pressed(fromLowerLeft(at));
}

QPoint PictureView::fromLowerLeft(const QPointF& view) const {
    const QRectF frame = zoom_.shownFrame();
    return QPointF(view.x() - frame.x(), frame.bottom() - view.y()).toPoint();
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
    if (panning_) {
        zoom_.pan(event->position() - panFrom_);
        panFrom_ = event->position();
        zoomChanged();
    }
    point(event->position());
    const QPointF way = event->position() - pressedAt_;
    dragging_ = dragging_ || (pressed_ && way.manhattanLength() >= QApplication::startDragDistance());
    const QRectF frame = zoom_.frame();
    if (dragging_) emit dragged({way.x() / frame.width(), -way.y() / frame.height()}, {way.x(), -way.y()});
}

void PictureView::mouseReleaseEvent(QMouseEvent*) {
    panning_ = pressed_ = false;
    if (std::exchange(dragging_, false)) emit dragEnded();
    showCursor();
}

void PictureView::point(const QPointF& at) {
    QPoint pixel = zoom_.pixelAt(at);
    if (!QRect(QPoint(), full_.size()).contains(pixel)) pixel = {-1, -1};
    if (std::exchange(pointed_, pixel) != pixel) emit pointed(pixel);
}

void PictureView::leaveEvent(QEvent*) {
    if (std::exchange(pointed_, {-1, -1}) != QPoint(-1, -1)) emit pointed(pointed_);
}

void PictureView::showCursor() {
    if (panning_) return setCursor(Qt::ClosedHandCursor);
    if (spaceHeld_) return setCursor(Qt::OpenHandCursor);
    asking_ || drawing_ ? setCursor(Qt::CrossCursor) : unsetCursor();
}

/// Arrows move what is shown, as a drag with the middle button does.
void PictureView::keyPressEvent(QKeyEvent* event) {
    constexpr double kStep = 40.0;  // points
    const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 1.0 : kStep;
    switch (event->key()) {
        case Qt::Key_Space:
            spaceHeld_ = true;
            return showCursor();
        case Qt::Key_Left:
            zoom_.pan({step, 0});
            break;
        case Qt::Key_Right:
            zoom_.pan({-step, 0});
            break;
        case Qt::Key_Up:
            zoom_.pan({0, step});
            break;
        case Qt::Key_Down:
            zoom_.pan({0, -step});
            break;
        default:
            return QWidget::keyPressEvent(event);
    }
    zoomChanged();
}

void PictureView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->isAutoRepeat()) return QWidget::keyReleaseEvent(event);
    spaceHeld_ = false;
    showCursor();
}

}  // namespace tavrin
