#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QRectF>

#include "core/raster/Rows.h"

namespace tavrin {

/// A drawing context bound to the bytes of a pixel buffer: what is drawn changes the buffer, what is written into
/// the buffer is seen by the next snapshot. Coordinates start at the bottom left with y growing upward; as far as
/// drawing is concerned the buffer's alpha is premultiplied. Drawing is antialiased, pictures are scaled smoothly.
/// What takes a `run` gives up between two strips of rows once that is superseded, and returns false then.
class BitmapContext {
  public:
    /// Binds to `bytes` (4 * width * height, the first row at the top), which must outlive the context.
    BitmapContext(std::uint8_t* bytes, int width, int height);
    ~BitmapContext();
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;

    int width() const { return image_.width(); }
    int height() const { return image_.height(); }

    /// Fills a rectangle with a colour, channels 0 to 1 and not premultiplied; each becomes the nearest byte, so that
    /// a whole number divided by 255 comes back as it was. A rectangle that is empty or beyond all reason (not
    /// finite, millions of pixels away) draws nothing, here and below.
    bool fillRect(const QRectF& rect, double red, double green, double blue, double alpha,
                  const RunContext& run = {});

    /// Draws a picture, scaled to the rectangle, over what is there: averaged over areas where it is reduced,
    /// interpolated where it is enlarged, turned or lies between pixels. Opaque pixels of a picture that is neither
    /// scaled nor shifted between pixels, also mirrored or turned by right angles, go through unchanged. A rectangle
    /// on whole pixels is filled to its edges. `opacity` is that of the whole picture, 0 to 1.
    /// Throws std::bad_alloc where there is no room for a picture in between.
    bool drawImage(const QImage& picture, const QRectF& rect, double opacity = 1.0, const RunContext& run = {});

    /// The coordinate system; each call acts on what later calls draw. Angles in radians, anticlockwise.
    void scale(double x, double y);
    void translate(double x, double y);
    void rotate(double angle);
    void saveState();
    void restoreState();

    /// A copy of the picture as it stands, which stays valid when the buffer is overwritten.
    QImage snapshot() const;

    /// For text and shapes: a painter with this context's coordinate system, y upward. It must be gone before
    /// the next call of another operation. Its colours and pictures have to come out of `forPainter`.
    std::unique_ptr<QPainter> painter();

    /// A colour, or an RGBA picture (premultiplied or opaque; its bytes must outlive the result), as `painter` wants
    /// it: with red and blue exchanged. The painter's library draws pixels in that order alone at full speed, and it
    /// treats all colours alike.
    static QColor forPainter(const QColor& color);
    static QImage forPainter(const QImage& picture);

  private:
    QTransform toDevice() const;
    bool drawExact(const QImage& picture, const QTransform& mapping, double opacity, const RunContext& run);
    bool drawSmooth(const QImage& picture, const QTransform& mapping, double opacity, const RunContext& run);
    bool paintInStrips(QPainter& painter, const RunContext& run, const std::function<void()>& paint);

    QImage image_;  // the buffer, as the painter wants it
    QTransform transform_;
    std::vector<QTransform> saved_;
};

}  // namespace tavrin
