#pragma once

#include <QImage>
#include <QWidget>

#include "core/state/Interface.h"

namespace tavrin {

/// Shows the combined picture, fitted to the widget: the preview at once, then the full picture over it as its
/// rows arrive. It paints copies of its own, never the engine's buffers.
class PictureView : public QWidget {
    Q_OBJECT

  public:
    enum class DropZone { none, foreground, background };

    explicit PictureView(QWidget* parent = nullptr);

    void show(const PublishedRows& rows);
    /// Marks the half of the view that a dragged file would land on.
    void setDropZone(DropZone zone);
    DropZone zoneAt(const QPoint& position) const;
    /// The full picture as far as it has arrived; null before the first row.
    const QImage& fullPicture() const { return full_; }
    bool isFull() const { return fullRows_ > 0 && fullRows_ == full_.height(); }

    QSize sizeHint() const override { return {640, 800}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QRect pictureRect() const;
    void paintPicture(QPainter& painter);
    void paintHint(QPainter& painter);
    void paintDropZones(QPainter& painter);

    QImage preview_, full_;
    int fullRows_ = 0;  // rows of `full_` that have arrived, from the top
    QImage scaled_;     // `full_` at the size of the widget, once it is whole
    DropZone dropZone_ = DropZone::none;
};

}  // namespace tavrin
