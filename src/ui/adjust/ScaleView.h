#pragma once

#include <QWidget>

#include "ui/bind/Binder.h"
#include "ui/views/PlaceMap.h"

namespace tavrin {

/// A small map of the output on which one thing is dragged to its place; arrows move it by a point. One drag is one
/// step of undo.
class PlaceView : public QWidget {
    Q_OBJECT

  public:
    explicit PlaceView(Binder& binder, QWidget* parent = nullptr);

    /// The output has another shape.
    void imageSizeChange();
    QSize sizeHint() const override { return {220, 180}; }

  signals:
    /// A drag begins.
    void grabbed();

  protected:
    SystemInfo& info() const { return binder_.editor().info(); }
    const PlaceMap& map() const;
    /// What is filled in the map and how; a null rectangle when there is nothing.
    virtual QRectF box() const = 0;
    virtual QColor color() const = 0;
    virtual bool isCentred() const = 0;
    virtual QString label() const = 0;
    /// A drag begins, and where it has led: points to the right and up since it began.
    virtual bool begin() = 0;
    virtual void moveBy(const QPointF& points) = 0;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Binder& binder_;

  private:
    void step(const QPointF& points);

    mutable PlaceMap map_;
    mutable bool bImageSizeChanged_ = true;  // the map is to be laid out anew
    bool dragging_ = false;
    QPointF from_;
};

/// The active layer in the output: blue for the portrait, green for the background.
class ScaleView : public PlaceView {
    Q_OBJECT

  public:
    explicit ScaleView(Binder& binder, QWidget* parent = nullptr);

  protected:
    QRectF box() const override;
    QColor color() const override;
    bool isCentred() const override { return true; }
    QString label() const override;
    bool begin() override;
    void moveBy(const QPointF& points) override;

  private:
    const BitmapInfo& layer() const;

    int iXMouseStart_ = 0, iYMouseStart_ = 0;
};

/// The item that is selected on the picture.
class TextScaleView : public PlaceView {
    Q_OBJECT

  public:
    explicit TextScaleView(Binder& binder, QWidget* parent = nullptr);
    /// Shows an item of the list; -1 shows none.
    void showItem(int index);

  protected:
    QRectF box() const override;
    QColor color() const override { return Qt::blue; }
    bool isCentred() const override { return false; }
    QString label() const override { return tr("Place of an item"); }
    bool begin() override;
    void moveBy(const QPointF& points) override;

  private:
    double dViewPixelPerInch() const;
    const FontObject* item() const;

    int index_ = -1;
    double dXMouseStart_ = 0.0, dYMouseStart_ = 0.0;
};

}  // namespace tavrin
