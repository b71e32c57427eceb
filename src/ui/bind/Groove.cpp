#include "ui/bind/Groove.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

namespace tavrin {

namespace {

constexpr int kHandle = 13;  // points across
constexpr int kNotch = 120;

}  // namespace

Groove::Groove(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumWidth(60);
}

int Groove::valueAt(double x) const {
    return QStyle::sliderValueFromPosition(minimum(), maximum(), qRound(x - kHandle / 2.0), width() - kHandle,
                                           layoutDirection() == Qt::RightToLeft);
}

void Groove::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    setSliderDown(true);
    setSliderPosition(valueAt(event->position().x()));
}

void Groove::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) setSliderPosition(valueAt(event->position().x()));
}

void Groove::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) setSliderDown(false);
}

void Groove::keyPressEvent(QKeyEvent* event) {
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (event->key()) {
        case Qt::Key_Left:
            return emit stepped(-forward, event->modifiers());
        case Qt::Key_Right:
            return emit stepped(forward, event->modifiers());
        case Qt::Key_Down:
            return emit stepped(-1, event->modifiers());
        case Qt::Key_Up:
            return emit stepped(1, event->modifiers());
        case Qt::Key_Delete:
            return emit resetWanted();
        default:
            QSlider::keyPressEvent(event);
    }
}

void Groove::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) return event->ignore();
    wheelTurned_ += event->angleDelta().y();
    for (; wheelTurned_ >= kNotch; wheelTurned_ -= kNotch)
        emit stepped(1, event->modifiers());
    for (; wheelTurned_ <= -kNotch; wheelTurned_ += kNotch)
        emit stepped(-1, event->modifiers());
    event->accept();
}

void Groove::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool reversed = layoutDirection() == Qt::RightToLeft;
    const double x = kHandle / 2.0 + QStyle::sliderPositionFromValue(minimum(), maximum(), sliderPosition(),
                                                                     width() - kHandle, reversed);
    const double y = height() / 2.0;
    const auto line = [&](double from, double to, const QColor& colour) {
        painter.setBrush(colour);
        painter.drawRoundedRect(QRectF(from, y - 1.5, to - from, 3), 1.5, 1.5);
    };
    const double left = kHandle / 2.0, right = width() - kHandle / 2.0;
    const QColor filled = isEnabled() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid);
    line(left, right, palette().color(QPalette::Mid));
    reversed ? line(x, right, filled) : line(left, x, filled);
    if (hasFocus()) {
        painter.setPen(QPen(filled, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(x, y), kHandle / 2.0 + 1.5, kHandle / 2.0 + 1.5);
    }
    painter.setPen(QPen(palette().color(QPalette::Dark), 0.6));
    painter.setBrush(palette().color(QPalette::BrightText));
    painter.drawEllipse(QPointF(x, y), kHandle / 2.0 - 1, kHandle / 2.0 - 1);
}

}  // namespace tavrin
