#include "ui/views/SplitLine.h"

#include <algorithm>

#include <QKeyEvent>
#include <QPainter>

namespace tavrin {

namespace {

constexpr int kReach = 9;  // points on each side that take hold of the line
constexpr QSizeF kGrip(14, 36);

}  // namespace

SplitLine::SplitLine(QWidget* view) : QAbstractSlider(view) {
    setObjectName("splitLine");
    setProperty("handler", "ShowSplit");
    setAccessibleName(tr("Line between before and after"));
    setToolTip(tr("Drag it across the picture: the portrait as it was taken on its left, the result on its right"));
    setLayoutDirection(Qt::LeftToRight);  // the picture is not mirrored either
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SplitHCursor);
    setRange(0, kSteps);
    setSingleStep(kSteps / 100);
    setPageStep(kSteps / 10);
    setValue(kSteps / 2);
    hide();
}

void SplitLine::placeOn(const QRectF& frame) {
    frame_ = frame;
    const double shown = std::clamp(x(frame), 0.0, static_cast<double>(parentWidget()->width()));
    setGeometry(qRound(shown) - kReach, 0, 2 * kReach, parentWidget()->height());
}

/// Arrows are this line's while it has the focus, whatever they do in the window.
bool SplitLine::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key >= Qt::Key_Home && key <= Qt::Key_PageDown) {
            event->accept();
            return true;
        }
    }
    return QAbstractSlider::event(event);
}

void SplitLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = kReach;
    const QRectF line(middle - 0.5, std::max(frame_.top(), 0.0), 1.0,
                      std::min(frame_.bottom(), static_cast<double>(height())) - std::max(frame_.top(), 0.0));
    painter.fillRect(line.adjusted(-1, 0, 1, 0), QColor(0, 0, 0, 110));  // seen on white, too
    painter.fillRect(line, Qt::white);
    const QRectF grip(QPointF(middle - kGrip.width() / 2, line.center().y() - kGrip.height() / 2), kGrip);
    painter.setPen(QPen(hasFocus() ? QColor(79, 157, 232) : QColor(255, 255, 255), hasFocus() ? 2.0 : 1.0));
    painter.setBrush(QColor(30, 30, 30, 220));
    painter.drawRoundedRect(grip, 4, 4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (const double side : {-1.0, 1.0}) {
        const QPointF tip = grip.center() + QPointF(side * 5, 0), back = grip.center() + QPointF(side * 1.5, 0);
        painter.drawPolygon(QPolygonF{tip, back + QPointF(0, -4), back + QPointF(0, 4)});
    }
}

void SplitLine::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    grabbedAt_ = event->position().x() - kReach;
    setSliderDown(true);
}

void SplitLine::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return event->ignore();
    const double at = mapToParent(event->position()).x() - grabbedAt_;
    setValue(qRound((at - frame_.x()) * kSteps / frame_.width()));
}

/// The wheel zooms, on the line as beside it.
void SplitLine::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace tavrin
