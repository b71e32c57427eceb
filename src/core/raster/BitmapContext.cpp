#include "core/raster/BitmapContext.h"

#include <cmath>
#include <numbers>

namespace tavrin {

namespace {

bool isWhole(double value) {
    return std::abs(value - std::round(value)) < 1e-6;
}

// Cosines of right angles miss 0 and 1 by a rounding error, which would make a plain turn a resampling.
double snap(double value) {
    return isWhole(value) ? std::round(value) : value;
}

QTransform snapped(const QTransform& t) {
    return QTransform(snap(t.m11()), snap(t.m12()), snap(t.m21()), snap(t.m22()), snap(t.dx()), snap(t.dy()));
}

}  // namespace

BitmapContext::BitmapContext(std::uint8_t* bytes, int width, int height)
    : image_(bytes, width, height, qsizetype{4} * width, QImage::Format_RGBA8888_Premultiplied) {}

BitmapContext::~BitmapContext() = default;

QTransform BitmapContext::toDevice() const {
    return transform_ * QTransform(1, 0, 0, -1, 0, image_.height());
}

std::unique_ptr<QPainter> BitmapContext::painter() {
    auto painter = std::make_unique<QPainter>(&image_);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    painter->setTransform(toDevice());
    return painter;
}

void BitmapContext::fillRect(const QRectF& rect, double red, double green, double blue, double alpha) {
    painter()->fillRect(rect, QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                                               static_cast<float>(blue), static_cast<float>(alpha)));
}

// Picture pixels (x right, y down) to buffer pixels.
static QTransform pictureToDevice(const QImage& picture, const QRectF& rect, const QTransform& device) {
    QTransform toRect;
    toRect.translate(rect.x(), rect.y() + rect.height());
    toRect.scale(rect.width() / picture.width(), -rect.height() / picture.height());
    return snapped(toRect * device);
}

void BitmapContext::drawImage(const QImage& picture, const QRectF& rect) {
    if (picture.isNull() || rect.isEmpty()) return;
    QImage source = picture;
    QTransform mapping = pictureToDevice(source, rect, toDevice());
    const double scaleX = std::hypot(mapping.m11(), mapping.m12());
    const double scaleY = std::hypot(mapping.m21(), mapping.m22());
    if (!isWhole(scaleX * source.width()) || !isWhole(scaleY * source.height()) || scaleX != 1.0 || scaleY != 1.0) {
        // Area average when reducing, so that fine patterns do not alias.
        const int w = std::max(1, static_cast<int>(std::lround(scaleX * source.width())));
        const int h = std::max(1, static_cast<int>(std::lround(scaleY * source.height())));
        if (w != source.width() || h != source.height()) {
            source = source.scaled(w, h, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            mapping = pictureToDevice(source, rect, toDevice());
        }
    }
    if (copyUnscaled(source, mapping, rect)) return;
    QPainter painter(&image_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setTransform(mapping);
    painter.drawImage(0, 0, source);
}

bool BitmapContext::copyUnscaled(const QImage&, const QTransform&, const QRectF&) {
    return false;
}

void BitmapContext::scale(double x, double y) {
    transform_ = QTransform::fromScale(x, y) * transform_;
}
void BitmapContext::translate(double x, double y) {
    transform_ = QTransform::fromTranslate(x, y) * transform_;
}
void BitmapContext::rotate(double angle) {
    transform_ = QTransform().rotateRadians(angle) * transform_;
}
void BitmapContext::saveState() {
    saved_.push_back(transform_);
}
void BitmapContext::restoreState() {
    if (saved_.empty()) return;
    transform_ = saved_.back();
    saved_.pop_back();
}

QImage BitmapContext::snapshot() const {
    return image_.copy();
}

}  // namespace tavrin
