#pragma once

#include <QSlider>

namespace tavrin {

/// A slider whose handle jumps to the pointer. The wheel acts on it only while it has the focus, and belongs to the
/// panel otherwise. Arrows go by steps: Shift is finer, Ctrl coarser.
class Groove : public QSlider {
    Q_OBJECT

  public:
    explicit Groove(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {140, 22}; }

  signals:
    void stepped(int direction, Qt::KeyboardModifiers modifiers);
    void resetWanted();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// A slider that goes while it is held gets no release, and its step of undo would never end.
    void hideEvent(QHideEvent*) override { setSliderDown(false); }

  private:
    int valueAt(double x) const;
    int wheelTurned_ = 0;  // eighths of a degree that made no whole notch yet
};

}  // namespace tavrin
