#pragma once

#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QSize>

namespace tavrin {

/// Where the picture lies in its view. Positions and sizes in the view are points, with y downward; the picture's
/// are its own pixels. No rule of the program is here, and no widget.
class Zoom {
  public:
    static constexpr double kMargin = 12.0;   ///< points around a picture that is fitted
    static constexpr double kLeast = 0.1;     ///< of the fitted size
    static constexpr double kLargest = 32.0;  ///< device pixels to a pixel of the picture
    static constexpr double kKept = 40.0;     ///< points of the picture that panning leaves in the view

    /// The view has another size, or lies on another screen. A fitted picture is fitted again, another keeps its size
    /// and the place that is in the middle.
    void setView(QSizeF points, double devicePixelRatio);
    /// A picture of another size is fitted.
    /// @return whether it is of another size
    bool setPicture(QSize pixels);

    QSize picture() const { return picture_; }
    /// Times the fitted size.
    double dZoom() const { return dZoom_; }
    /// Small changes of the zoom count as fitted.
    bool isHome() const { return dZoom_ < 1.01; }
    /// The picture's rectangle in the view.
    QRectF frame() const { return {origin_, fitted() * dZoom_}; }
    /// The same as it is painted: up to 100 percent it begins on a whole device pixel, so that none is blurred.
    QRectF shownFrame() const;
    /// Its size in device pixels.
    QSize shownSize() const { return (frame().size() * ratio_).toSize(); }
    bool isActualPixels() const;
    /// The picture's pixel that is painted at a place of the view; may lie outside of the picture.
    QPoint pixelAt(const QPointF& view) const;
    /// Device pixels to a pixel of the picture; 1 is 100 percent.
    double pixelScale() const;

    void setZoomHome();
    /// A tenth of the fitted size larger, about the middle of the view.
    void setZoomMagnify();
    /// Larger by a factor. The place of the picture that is at `at` stays there.
    void zoomAbout(const QPointF& at, double factor);
    void setPixelScale(const QPointF& at, double scale);
    void pan(const QPointF& by);

    QPointF pictureAt(const QPointF& view) const;
    QPointF viewAt(const QPointF& picture) const;

  private:
    QSizeF fitted() const;
    QPointF middle() const { return {view_.width() / 2.0, view_.height() / 2.0}; }

    QSizeF view_{1.0, 1.0};
    QSize picture_{1, 1};
    double ratio_ = 1.0, dZoom_ = 1.0;
    QPointF origin_;
};

}  // namespace tavrin
