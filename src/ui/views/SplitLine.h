#pragma once

#include <QAbstractSlider>

#include "ui/views/Zoom.h"

namespace tavrin {

/// The line between before and after, which is dragged across the picture: left of it the portrait as it was taken,
/// right of it the result. It stays at its place of the picture while that is zoomed and moved; where that place is
/// out of sight, it waits at the view's edge. Arrows, Page keys, Home and End move it while it has the focus.
class SplitLine : public QAbstractSlider {
    Q_OBJECT

  public:
    static constexpr int kSteps = 1000;  ///< the picture's width

    /// Lies on its parent, the view, and is hidden at first.
    explicit SplitLine(QWidget* view);

    /// Goes to its place in a picture that lies so in the view.
    void placeOn(const QRectF& frame);
    /// Where the picture is divided, in points of the view; may lie outside of it.
    double x(const QRectF& frame) const { return frame.x() + frame.width() * value() / kSteps; }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QRectF frame_;
    double grabbedAt_ = 0.0;
};

}  // namespace tavrin
