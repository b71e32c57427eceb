#pragma once

#include <QImage>
#include <QWidget>

#include "core/state/Interface.h"
#include "ui/views/Shrinker.h"
#include "ui/views/Zoom.h"

namespace tavrin {

/// Shows the combined picture: the preview at once, then the full picture in its place. It paints copies of its own,
/// never the engine's buffers. The wheel and a pinch zoom about the pointer, the middle button and Space pan.
class PictureView : public QWidget {
    Q_OBJECT

  public:
    enum class DropZone { none, foreground, background };

    explicit PictureView(QWidget* parent = nullptr);

    void show(const PublishedRows& rows);
    /// Size of the full picture, by which zoom and 100 percent go.
    void setOutputSize(QSize pixels);
    /// A grid shows through transparent parts.
    void setTransparent(bool transparent);
    /// Shows another picture in the place of the combined one, with a word that says which; a null one ends that.
    void showInstead(const QImage& picture, const QString& word);
    /// Marks the half of the view that a dragged file would land on.
    void setDropZone(DropZone zone);
    DropZone zoneAt(const QPoint& position) const;

    /// The full picture as far as it has arrived; null before the first row.
    const QImage& fullPicture() const { return full_; }
    bool isFull() const { return fullRows_ > 0 && fullRows_ == full_.height(); }
    /// Part of the full picture that has arrived, 0 to 1.
    double progress() const { return full_.isNull() ? 0.0 : static_cast<double>(fullRows_) / full_.height(); }
    const Zoom& zoom() const { return zoom_; }

    void setZoomHome();
    void setZoomMagnify();
    void zoomBy(double factor);
    void zoomToPixels();

    QSize sizeHint() const override { return {640, 800}; }

  signals:
    void zoomed();
    /// The left button drags on the picture: how far since the press, to the right and up, in parts of its width and
    /// height. A click by itself is none.
    void dragged(const QPointF& share);
    void dragEnded();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    QPointF pointer() const;
    void zoomChanged();
    void takeRows(const PublishedRows& rows);
    void paintPicture(QPainter& painter);
    void paintFull(QPainter& painter, const QRectF& frame);
    void paintHint(QPainter& painter);
    void paintDropZones(QPainter& painter);

    Zoom zoom_;
    Shrinker shrinker_;
    QImage preview_, full_, instead_;
    QString insteadWord_;
    int fullRows_ = 0;    // rows of `full_` that have arrived, from the top
    QImage small_;        // `full_` at the size of its frame
    qint64 smallOf_ = 0;  // and of which `full_`
    bool transparent_ = false, spaceHeld_ = false, panning_ = false;
    bool pressed_ = false, dragging_ = false;
    QPointF panFrom_, pressedAt_;
    DropZone dropZone_ = DropZone::none;
};

}  // namespace tavrin
