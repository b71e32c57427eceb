#include "core/text/TextPaint.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QGlyphRun>
#include <QPen>

#include "core/raster/BitmapContext.h"
#include "core/raster/BoxBlur.h"
#include "core/raster/ColorMath.h"

namespace tavrin {

namespace {

constexpr double kFarAway = 4e6;         // pixels; the painter counts in limited numbers
constexpr double kLargestPicture = 512;  // pixels a glyph in colours is drawn at before it is enlarged

// The pixels that a text can touch; empty when there are none.
QRectF reachOf(const LaidOutText& text, const QTransform& toDevice, const TextStyle& style) {
    const double pen = style.outline.isValid() ? style.outlineWidth * LaidOutText::kSize : 0.0;
    const double miter = 2.0 * pen;  // corners reach further than half a pen
    const QRectF reach = toDevice.mapRect(text.bounds.adjusted(-miter, -miter, miter, miter));
    const auto near = [](double value) { return std::abs(value) < kFarAway; };  // false for NaN
    const bool sane = near(reach.left()) && near(reach.top()) && near(reach.right()) && near(reach.bottom());
    return sane ? reach : QRectF();
}

QRect deviceRect(const QPainter& painter) {
    return QRect(0, 0, painter.device()->width(), painter.device()->height());
}

// A glyph in colours, drawn upright at about its final size; `origin` is the place of its base line's start in it.
QImage drawPicture(QRawFont font, quint32 index, double size, QPoint& origin) {
    font.setPixelSize(size);
    const QRect box = font.boundingRect(index).toAlignedRect().adjusted(-1, -1, 1, 1);
    QImage picture(box.size(), QImage::Format_RGBA8888_Premultiplied);
    if (picture.isNull()) return picture;
    picture.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({index});
    run.setPositions({QPointF(0, 0)});
    QPainter(&picture).drawGlyphRun(-box.topLeft(), run);
    origin = -box.topLeft();
    return picture;
}

void tint(QImage& picture, const QColor& color) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), color);
}

void paintPicture(QPainter& painter, const ColourGlyph& glyph, const QTransform& toDevice, const QColor& as) {
    const double scale =
        std::max(std::hypot(toDevice.m11(), toDevice.m12()), std::hypot(toDevice.m21(), toDevice.m22()));
    const double size = clampTo(std::ceil(scale * LaidOutText::kSize), 1.0, kLargestPicture);
    const double toUnits = LaidOutText::kSize / size;
    const QRectF box = glyph.font.boundingRect(glyph.index).translated(glyph.position);
    if (!toDevice.mapRect(box).intersects(QRectF(deviceRect(painter)))) return;
    QPoint origin;
    QImage picture = drawPicture(glyph.font, glyph.index, size, origin);
    if (picture.isNull()) return;
    if (as.isValid()) tint(picture, as);
    painter.setTransform(QTransform::fromScale(toUnits, toUnits) *
                         QTransform::fromTranslate(glyph.position.x(), glyph.position.y()) * toDevice);
    painter.drawImage(-origin, BitmapContext::forPainter(picture));
}

// A picture of how much of each pixel of `area` a text covers, in 128ths of a 255th.
std::vector<std::int32_t> coverageOf(const LaidOutText& text, QTransform toDevice, TextStyle style, QRect area,
                                     const RunContext& run) {
    QImage mask(area.size(), QImage::Format_Alpha8);
    if (mask.isNull()) throw std::bad_alloc();
    mask.fill(0);
    if (style.fill.isValid()) style.fill = Qt::black;
    if (style.outline.isValid()) style.outline = Qt::black;
    style.picturesAs = QColor();
    QPainter painter(&mask);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintText(painter, text, toDevice * QTransform::fromTranslate(-area.x(), -area.y()), style, run);
    painter.end();
    if (run.isSuperseded()) return {};
    std::vector<std::int32_t> coverage(static_cast<std::size_t>(area.width()) *
                                       static_cast<std::size_t>(area.height()));
    auto out = coverage.begin();
    for (int y = 0; y < mask.height(); ++y) {
        const std::uint8_t* row = mask.constScanLine(y);
        out = std::transform(row, row + mask.width(), out, [](std::uint8_t value) { return value * 128; });
    }
    return coverage;
}

// Radii of three box blurs that together have nearly the deviation of a Gaussian (P. Kovesi, "Fast almost-Gaussian
// filtering", 2010): some of one size, the others one larger.
struct BoxRadii {
    int radius[3] = {0, 0, 0};
    int reach() const { return radius[0] + radius[1] + radius[2]; }
};

BoxRadii boxesFor(double sigma) {
    const double wanted = 12.0 * sigma * sigma;
    const int small = static_cast<int>((std::sqrt(wanted / 3.0 + 1.0) - 1.0) / 2.0);
    const double w = 2.0 * small + 1.0;
    const int count = static_cast<int>(std::lround((3.0 * w * w + 12.0 * w + 9.0 - wanted) / (4.0 * w + 4.0)));
    BoxRadii boxes;
    for (int i = 0; i < 3; ++i)
        boxes.radius[i] = small + (i < count ? 0 : 1);
    return boxes;
}

void blur(std::vector<std::int32_t>& coverage, const BoxRadii& boxes, QRect area, const RunContext& run) {
    std::vector<std::int32_t> other(coverage.size());
    for (const int radius : boxes.radius) {
        if (radius == 0) continue;
        if (run.isSuperseded()) return;
        boxBlur_Int({}, coverage.data(), other.data(), area.width(), area.height(), radius);
        coverage.swap(other);
    }
}

QImage inColor(const std::vector<std::int32_t>& coverage, const QColor& color, QRect area) {
    QImage image(area.size(), QImage::Format_RGBA8888_Premultiplied);
    if (image.isNull()) throw std::bad_alloc();
    const int channels[4] = {color.red(), color.green(), color.blue(), 255};
    auto in = coverage.begin();
    for (int y = 0; y < image.height(); ++y) {
        std::uint8_t* out = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, ++in) {
            for (const int channel : channels)
                *out++ = static_cast<std::uint8_t>((*in * channel + 128 * 255 / 2) / (128 * 255));
        }
    }
    return image;
}

}  // namespace

QColor colorOf(double red, double green, double blue) {
    const auto byte = [](double channel) { return static_cast<int>(clampTo(channel, 0.0, 1.0) * 255.0 + 0.5); };
    return QColor(byte(red), byte(green), byte(blue));
}

void paintText(QPainter& painter, const LaidOutText& text, const QTransform& toDevice, const TextStyle& style,
               const RunContext& run) {
    if (!reachOf(text, toDevice, style).intersects(QRectF(deviceRect(painter)))) return;
    painter.save();
    painter.setTransform(toDevice);
    if (style.fill.isValid()) {
        for (const QPainterPath& piece : text.outlines) {
            if (run.isSuperseded()) break;
            painter.fillPath(piece, BitmapContext::forPainter(style.fill));
        }
    }
    if (style.outline.isValid() && style.outlineWidth > 0.0) {
        QPen pen(BitmapContext::forPainter(style.outline), style.outlineWidth * LaidOutText::kSize);
        pen.setJoinStyle(Qt::SvgMiterJoin);
        pen.setMiterLimit(4.0);
        for (const QPainterPath& piece : text.outlines) {
            if (run.isSuperseded()) break;
            painter.strokePath(piece.simplified(), pen);  // joined letters have one outline
        }
    }
    for (const ColourGlyph& glyph : text.pictures) {
        if (run.isSuperseded()) break;
        paintPicture(painter, glyph, toDevice, style.picturesAs);
    }
    painter.restore();
}

void paintTextShadow(QPainter& painter, const LaidOutText& text, const QTransform& toDevice, const TextStyle& style,
                     const TextShadow& shadow, const RunContext& run) {
    const QTransform shifted = toDevice * QTransform::fromTranslate(shadow.offset.x(), shadow.offset.y());
    const QRectF reach = reachOf(text, shifted, style);
    if (reach.isEmpty()) return;
    const QRect device = deviceRect(painter);
    const BoxRadii boxes = boxesFor(clampTo(shadow.sigma, 0.0, 0.25 * std::min(device.width(), device.height())));
    const int far = boxes.reach() + 1;
    const QRect area = reach.toAlignedRect().adjusted(-far, -far, far, far) & device.adjusted(-far, -far, far, far);
    if (!area.intersects(device)) return;
    std::vector<std::int32_t> coverage = coverageOf(text, shifted, style, area, run);
    if (coverage.empty()) return;
    blur(coverage, boxes, area, run);
    if (run.isSuperseded()) return;
    painter.save();
    painter.resetTransform();
    const QImage image = inColor(coverage, shadow.color, area);
    painter.drawImage(area.topLeft(), BitmapContext::forPainter(image));
    painter.restore();
}

}  // namespace tavrin
