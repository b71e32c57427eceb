#pragma once

#include <optional>

#include <QImage>
#include <QWidget>

#include "core/state/Interface.h"
#include "ui/views/ItemBox.h"
#include "ui/views/Shrinker.h"
#include "ui/views/SplitLine.h"
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
    /// The picture that lies left of the split line, while that is shown; it covers the same place as the combined
    /// one.
    void setBefore(const QImage& picture);
    void setSplit(bool on);
    bool isSplit() const { return !splitLine_->isHidden(); }
    SplitLine* splitLine() const { return splitLine_; }
    /// Frames an item, with an icon on two of its corners; nothing ends that.
    void setSelection(const std::optional<ItemBox>& box) {
        selection_ = box;
        update();
    }
    const std::optional<ItemBox>& selection() const { return selection_; }
    /// The icons of a framed item: what edits it, on its corner 2, and what deletes it, on corner 1.
    void setItemIcons(const QImage& edit, const QImage& remove);
    /// A click asks about its pixel, and no drag moves anything.
    void setAsking(bool on);
    bool isAsking() const { return asking_; }
    /// A tool draws on the picture with the left button.
    void setDrawing(bool on);
    /// The left button moves what is shown: Space is held.
    bool isPanHeld() const { return spaceHeld_ || panning_; }
    /// What is shown, in words: for those who do not see it.
    QString description() const;
    /// A point of the view, from the lower left corner of the picture's frame, y upward.
    QPoint fromLowerLeft(const QPointF& view) const;

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
    /// Zooms about the middle to so many device pixels to a pixel of the picture.
    void setPixelScale(double scale);

    QSize sizeHint() const override { return {640, 800}; }

  signals:
    void zoomed();
    /// The left button was pressed, at points from the lower left corner of the picture's frame.
    void pressed(const QPoint& at);
    /// The left button drags on the picture: how far since the press, to the right and up, in parts of its width and
    /// height, and in points. A click by itself is none.
    void dragged(const QPointF& share, const QPointF& points);
    void dragEnded();
    /// The pointer is over another pixel of the picture; outside of it, and when it leaves, (-1, -1).
    void pointed(const QPoint& pixel);
    void asked(const QPoint& pixel);

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
    void leaveEvent(QEvent* event) override;

  private:
    QPointF pointer() const;
    void zoomChanged();
    void placeSplit();
    void speak();
    void takeRows(const PublishedRows& rows);
    void takeEdited(const PublishedRows& rows);
    bool isSmallDue() const;
    void wantSmall(QSize size);
    void takeSmall(const QImage& small, qint64 key);
    void point(const QPointF& at);
    void beginPress(const QPointF& at);
    void showCursor();
    void paintPicture(QPainter& painter);
    void paintAfter(QPainter& painter, const QRectF& frame);
    void paintBefore(QPainter& painter, const QRectF& frame);
    void paintOther(QPainter& painter, const QImage& picture, const QRectF& frame);
    void paintExactly(QPainter& painter, const QImage& picture, const QRectF& frame);
    void paintFull(QPainter& painter, const QRectF& frame);
    void paintWord(QPainter& painter, const QString& word, const QPointF& at, Qt::Alignment side);
    void paintSelection(QPainter& painter, const QRectF& frame);
    void paintHint(QPainter& painter);
    void paintDropZones(QPainter& painter);

    Zoom zoom_;
    Shrinker shrinker_;
    SplitLine* splitLine_;
    QImage preview_, full_, instead_, before_;
    QString insteadWord_;
    std::optional<ItemBox> selection_;
    QImage editIcon_, deleteIcon_;
    int fullRows_ = 0;    // rows of `full_` that have arrived, from the top
    QImage small_;        // `full_` at the size of its frame
    qint64 smallOf_ = 0;  // and of which `full_`
    /// The small picture that is being made: of which `full_`, and which rows of it were edited since.
    struct {
        qint64 of = 0;
        QSize size = {};
        qint64 edited = 0;  // `full_` with these edits; 0 without any
        int firstRow = 0, lastRow = 0;
    } due_;
    bool transparent_ = false, spaceHeld_ = false, panning_ = false;
    bool pressed_ = false, dragging_ = false, asking_ = false, drawing_ = false;
    QPoint pointed_{-1, -1};
    QPointF panFrom_, pressedAt_;
    DropZone dropZone_ = DropZone::none;
};

}  // namespace tavrin
