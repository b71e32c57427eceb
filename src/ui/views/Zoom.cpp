#include "ui/views/Zoom.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

QSizeF Zoom::fitted() const {
    const QSizeF room(std::max(1.0, view_.width() - 2.0 * kMargin), std::max(1.0, view_.height() - 2.0 * kMargin));
    return QSizeF(picture_).scaled(room, Qt::KeepAspectRatio);
}

double Zoom::pixelScale() const {
    return frame().width() * ratio_ / picture_.width();
}

bool Zoom::isActualPixels() const {
    return std::abs(pixelScale() - 1.0) < 1e-6;
}

QRectF Zoom::shownFrame() const {
    const QRectF exact = frame();
    if (pixelScale() > 1.0 && !isActualPixels()) return exact;
    return {QPointF(std::round(exact.x() * ratio_), std::round(exact.y() * ratio_)) / ratio_, exact.size()};
}

QPoint Zoom::pixelAt(const QPointF& view) const {
    const QRectF rect = shownFrame();
    constexpr double kSlack = 1e-6;  // the edge of a pixel belongs to it, however its place was rounded
    return {static_cast<int>(std::floor((view.x() - rect.x()) * picture_.width() / rect.width() + kSlack)),
            static_cast<int>(std::floor((view.y() - rect.y()) * picture_.height() / rect.height() + kSlack))};
}

void Zoom::setView(QSizeF points, double devicePixelRatio) {
    if (points == view_ && devicePixelRatio == ratio_) return;  // less than fitted stays so
    const bool home = isHome();
    const QPointF seen = pictureAt(middle());
    const double scale = pixelScale();
    view_ = points;
    ratio_ = devicePixelRatio;
    if (home) return setZoomHome();
    dZoom_ *= scale / pixelScale();
    origin_ += middle() - viewAt(seen);
}

bool Zoom::setPicture(QSize pixels) {
    if (pixels == picture_ || pixels.isEmpty()) return false;
    picture_ = pixels;
    setZoomHome();
    return true;
}

void Zoom::setZoomHome() {
    dZoom_ = 1.0;
    const QSizeF size = fitted();
    origin_ = middle() - QPointF(size.width() / 2.0, size.height() / 2.0);
}

void Zoom::setZoomMagnify() {
    zoomAbout(middle(), (dZoom_ + 0.1) / dZoom_);
}

void Zoom::zoomAbout(const QPointF& at, double factor) {
    const QPointF held = pictureAt(at);
    const double largest = std::max(dZoom_, dZoom_ * kLargest / pixelScale());
    dZoom_ = std::clamp(dZoom_ * factor, std::min(kLeast, largest), largest);
    origin_ += at - viewAt(held);
}

void Zoom::setPixelScale(const QPointF& at, double scale) {
    zoomAbout(at, scale / pixelScale());
}

void Zoom::pan(const QPointF& by) {
    const QSizeF size = frame().size();
    const double keptX = std::min(kKept, size.width()), keptY = std::min(kKept, size.height());
    // A place beyond these ends, to which zooming about a pointer may lead, is no reason to jump.
    const auto moved = [](double from, double by, double low, double high) {
        return std::clamp(from + by, std::min(low, from), std::max(high, from));
    };
    origin_.setX(moved(origin_.x(), by.x(), keptX - size.width(), view_.width() - keptX));
    origin_.setY(moved(origin_.y(), by.y(), keptY - size.height(), view_.height() - keptY));
}

QPointF Zoom::pictureAt(const QPointF& view) const {
    const QRectF rect = frame();
    return {(view.x() - rect.x()) * picture_.width() / rect.width(),
            (view.y() - rect.y()) * picture_.height() / rect.height()};
}

QPointF Zoom::viewAt(const QPointF& picture) const {
    const QRectF rect = frame();
    return {rect.x() + picture.x() * rect.width() / picture_.width(),
            rect.y() + picture.y() * rect.height() / picture_.height()};
}

}  // namespace tavrin
