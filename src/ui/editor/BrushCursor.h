#pragma once

#include <optional>

#include <QColor>
#include <QPointF>
#include <QWidget>

namespace tavrin {

class PictureView;

/// The brush over the picture: two circles as wide as its stamp, a third where its full strength ends, and the cross
/// from where "Copy" takes its pixels. It lies over the view and takes nothing of what the mouse does.
class BrushCursor : public QWidget {
    Q_OBJECT

  public:
    explicit BrushCursor(PictureView* view);

    /// What is shown. Lengths are pixels of the picture.
    struct Look {
        bool brush = false;  ///< there are circles; a tool without a stamp has none
        double radius = 0.0;
        double hardness = 1.0;  ///< share of the radius with full strength
        bool picksColor = false;
        std::optional<QPointF> source;  ///< of "Copy", from the mouse, y downward
    };
    void show(const Look& look);
    const Look& look() const { return look_; }
    /// Where the mouse is, in the view; nothing when it is elsewhere.
    void follow(const std::optional<QPointF>& mouse);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Points of the view per pixel of the picture.
    double scale() const;
    QRect touched() const;
    void paintCircle(QPainter& painter, double radius) const;
    void paintCross(QPainter& painter) const;

    PictureView* view_;
    Look look_;
    std::optional<QPointF> mouse_;
    QColor light_ = Qt::white, dark_ = Qt::black;
};

}  // namespace tavrin
