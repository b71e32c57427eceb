#include "core/raster/BitmapContext.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "core/raster/Pixels.h"
#include "core/raster/Resampling.h"

namespace tavrin {

namespace {

/// Coordinates beyond this are nobody's intention, and the painter below counts in limited numbers.
constexpr double kFarAway = 4e6;

bool isReasonable(const QRectF& r) {
    const auto near = [](double value) { return std::abs(value) < kFarAway; };  // false for NaN
    return near(r.left()) && near(r.top()) && near(r.right()) && near(r.bottom()) && !r.isEmpty();
}

bool isReasonable(const QTransform& t, const QRectF& r) {
    return isReasonable(r) && isReasonable(t.mapRect(r));
}

bool isWhole(double value) {
    return std::abs(value - std::round(value)) < 1e-6;
}

// Cosines of right angles miss 0 and 1 by a rounding error, which would make a plain turn a resampling.
double snap(double value) {
    return isWhole(value) ? std::round(value) : value;
}

// Picture pixels (x right, y down) to buffer pixels. Corners that should lie on whole pixels do so exactly.
QTransform pictureToDevice(const QImage& picture, const QRectF& rect, const QTransform& device) {
    const double w = picture.width(), h = picture.height();
    const QPointF origin = device.map(rect.bottomLeft());  // the greater y is the top of the picture
    const QPointF right = device.map(rect.bottomRight()), down = device.map(rect.topLeft());
    const double x = snap(origin.x()), y = snap(origin.y());
    return QTransform((snap(right.x()) - x) / w, (snap(right.y()) - y) / w, (snap(down.x()) - x) / h,
                      (snap(down.y()) - y) / h, x, y);
}

double scaleX(const QTransform& t) {
    return std::hypot(t.m11(), t.m12());
}
double scaleY(const QTransform& t) {
    return std::hypot(t.m21(), t.m22());
}

bool isUpright(const QTransform& t) {
    return (t.m12() == 0 && t.m21() == 0) || (t.m11() == 0 && t.m22() == 0);
}

bool liesOnPixels(const QTransform& t, const QRectF& rect) {
    const QRectF r = t.mapRect(rect);
    return isUpright(t) && isWhole(r.left()) && isWhole(r.top()) && isWhole(r.right()) && isWhole(r.bottom());
}

bool isExact(const QTransform& t, const QRect& picture) {
    return liesOnPixels(t, picture) && isWhole(scaleX(t)) && isWhole(scaleY(t)) && std::lround(scaleX(t)) == 1 &&
           std::lround(scaleY(t)) == 1;
}

// A part of a picture over the same bytes, which must outlive it.
QImage partOf(const QImage& picture, const QRect& part) {
    if (part == picture.rect()) return picture;
    const uchar* first = picture.constScanLine(part.y()) + qsizetype{4} * part.x();
    return QImage(first, part.width(), part.height(), picture.bytesPerLine(), picture.format());
}

// The pixels of a picture that can be seen in a buffer, with a margin for the interpolation at its edges.
QRect visiblePart(const QImage& picture, const QTransform& mapping, const QRect& buffer) {
    constexpr int kMargin = 2;
    bool invertible = false;
    const QRectF seen = mapping.inverted(&invertible).mapRect(QRectF(buffer));
    if (!invertible || !isReasonable(seen)) return picture.rect();
    return seen.toAlignedRect().adjusted(-kMargin, -kMargin, kMargin, kMargin) & picture.rect();
}

int reduced(int size, double scale) {
    return scale < 1 ? std::max(1, static_cast<int>(std::lround(size * scale))) : size;
}

constexpr bool kExchanges = QSysInfo::ByteOrder == QSysInfo::LittleEndian;

QImage inOurFormat(const QImage& picture) {
    const QImage::Format own = picture.format();
    if (own == QImage::Format_RGBX8888 || own == QImage::Format_RGBA8888_Premultiplied) return picture;
    return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_RGBA8888_Premultiplied
                                                             : QImage::Format_RGBX8888);
}

bool isUpsideUp(const QTransform& t) {
    return t.m12() == 0 && t.m21() == 0 && t.m11() > 0 && t.m22() > 0;
}

QImage reducedByArea(const QImage& picture, int width, int height, const RunContext& run) {
    QImage result = newPicture(width, height, picture.format());
    if (result.isNull()) throw std::bad_alloc();
    return drawResampled(picture, QRectF(result.rect()), result, run) ? result : QImage();
}

std::uint8_t nearestByte(double fraction) {
    if (!(fraction > 0)) return 0;
    return static_cast<std::uint8_t>(std::min(fraction, 1.0) * 255.0 + 0.5);
}

}  // namespace

BitmapContext::BitmapContext(std::uint8_t* bytes, int width, int height)
    : image_(bytes, width, height, qsizetype{4} * width,
             kExchanges ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGBA8888_Premultiplied) {}

BitmapContext::~BitmapContext() = default;

QTransform BitmapContext::toDevice() const {
    return transform_ * QTransform(1, 0, 0, -1, 0, image_.height());
}

QColor BitmapContext::forPainter(const QColor& color) {
    return kExchanges ? QColor(color.blue(), color.green(), color.red(), color.alpha()) : color;
}

QImage BitmapContext::forPainter(const QImage& picture) {
    const bool opaque = picture.format() == QImage::Format_RGBX8888;
    if (!kExchanges || (!opaque && picture.format() != QImage::Format_RGBA8888_Premultiplied)) return picture;
    return QImage(picture.constBits(), picture.width(), picture.height(), picture.bytesPerLine(),
                  opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
}

std::unique_ptr<QPainter> BitmapContext::painter() {
    auto painter = std::make_unique<QPainter>(&image_);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    painter->setTransform(toDevice());
    return painter;
}

/// Paints the buffer strip by strip where somebody may want it to stop. Each pixel comes out as in one go; what has
/// soft edges, which would not, is painted to its end.
bool BitmapContext::paintInStrips(QPainter& painter, const RunContext& run, const std::function<void()>& paint) {
    constexpr int kStripRows = 128;  // enough for the painter to use more than one core
    const QTransform mapping = painter.transform();
    if (!run.superseded || painter.testRenderHint(QPainter::Antialiasing)) {
        paint();
        return !run.isSuperseded();
    }
    for (int y = 0; y < image_.height(); y += kStripRows) {
        if (run.isSuperseded()) return false;
        painter.resetTransform();
        painter.setClipRect(0, y, image_.width(), kStripRows);
        painter.setTransform(mapping);
        paint();
    }
    return !run.isSuperseded();
}

bool BitmapContext::fillRect(const QRectF& rect, double red, double green, double blue, double alpha,
                             const RunContext& run) {
    if (image_.isNull() || !isReasonable(toDevice(), rect)) return true;
    const QColor color = forPainter({nearestByte(red), nearestByte(green), nearestByte(blue), nearestByte(alpha)});
    const auto filling = painter();
    filling->setRenderHint(QPainter::Antialiasing, !liesOnPixels(toDevice(), rect));
    return paintInStrips(*filling, run, [&] { filling->fillRect(rect, color); });
}

bool BitmapContext::drawImage(const QImage& any, const QRectF& rect, double opacity, const RunContext& run) {
    if (image_.isNull() || any.isNull() || !isReasonable(toDevice(), rect)) return true;
    const QImage picture = inOurFormat(any);
    if (picture.isNull()) throw std::bad_alloc();
    QTransform mapping = pictureToDevice(picture, rect, toDevice());
    if (!mapping.mapRect(QRectF(picture.rect())).intersects(QRectF(image_.rect()))) return true;
    if (isExact(mapping, picture.rect())) return drawExact(picture, mapping, opacity, run);
    if (isUpsideUp(mapping) && opacity == 1.0 && !picture.hasAlphaChannel())
        return drawResampled(picture, mapping.mapRect(QRectF(picture.rect())), image_, run);
    const bool enlarged = scaleX(mapping) > 1 || scaleY(mapping) > 1;
    // What is enlarged is cut to what can be seen. What is only reduced stays whole: its edges then lie where the
    // rectangle has them, and the result is no larger than the picture.
    const QRect part = enlarged ? visiblePart(picture, mapping, image_.rect()) : picture.rect();
    if (part.isEmpty()) return true;
    mapping = QTransform::fromTranslate(part.x(), part.y()) * mapping;
    const int w = reduced(part.width(), scaleX(mapping)), h = reduced(part.height(), scaleY(mapping));
    if (w == part.width() && h == part.height()) return drawSmooth(partOf(picture, part), mapping, opacity, run);
    const QImage small = reducedByArea(partOf(picture, part), w, h, run);
    if (small.isNull()) return false;
    const double stepX = static_cast<double>(part.width()) / w, stepY = static_cast<double>(part.height()) / h;
    mapping = QTransform::fromScale(stepX, stepY) * mapping;
    return isExact(mapping, small.rect()) ? drawExact(small, mapping, opacity, run)
                                          : drawSmooth(small, mapping, opacity, run);
}

// Whole pixels to whole pixels: a quarter turn and mirrors, which move pixels and compute nothing.
bool BitmapContext::drawExact(const QImage& picture, const QTransform& mapping, double opacity,
                              const RunContext& run) {
    const QRect target = mapping.mapRect(QRectF(picture.rect())).toRect();
    const QTransform quarter(0, 1, -1, 0, 0, 0);
    QImage upright = picture;
    QTransform rest(std::round(mapping.m11()), std::round(mapping.m12()), std::round(mapping.m21()),
                    std::round(mapping.m22()), 0, 0);
    if (rest.m11() == 0) {
        upright = upright.transformed(quarter);
        rest = quarter.inverted() * rest;
    }
    if (rest.m11() < 0 || rest.m22() < 0) upright = upright.mirrored(rest.m11() < 0, rest.m22() < 0);
    QPainter painter(&image_);
    painter.setOpacity(opacity);
    return paintInStrips(painter, run, [&] { painter.drawImage(target.topLeft(), forPainter(upright)); });
}

bool BitmapContext::drawSmooth(const QImage& picture, const QTransform& mapping, double opacity,
                               const RunContext& run) {
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::Antialiasing, !liesOnPixels(mapping, picture.rect()));
    painter.setTransform(mapping);
    painter.setOpacity(opacity);
    return paintInStrips(painter, run, [&] { painter.drawImage(0, 0, forPainter(picture)); });
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
    QImage copy = image_.copy();
    copy.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    return copy;
}

}  // namespace tavrin
