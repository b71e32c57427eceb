#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace tavrin {

/// Leaves the wheel to the panel around a control that has no focus, so that scrolling changes no picture.
class WheelGuard : public QObject {
  public:
    explicit WheelGuard(QWidget* control) : QObject(control) {
        control->setFocusPolicy(Qt::StrongFocus);
        control->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
        event->ignore();
        return true;
    }
};

}  // namespace tavrin
