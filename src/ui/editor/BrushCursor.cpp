#include "ui/editor/BrushCursor.h"

#include <cmath>

#include <QEvent>
#include <QPainter>

#include "ui/views/PictureView.h"

namespace tavrin {

namespace {

constexpr int kCross = 8;  // points to each side

}  // namespace

BrushCursor::BrushCursor(PictureView* view) : QWidget(view), view_(view) {
    setObjectName("brushCursor");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(view->rect());
    view->installEventFilter(this);
    connect(view, &PictureView::zoomed, this, qOverload<>(&QWidget::update));
}

double BrushCursor::scale() const {
    return view_->zoom().frame().width() / view_->zoom().picture().width();
}

void BrushCursor::show(const Look& look) {
    update(touched());
    look_ = look;
    update(touched());
}

void BrushCursor::follow(const std::optional<QPointF>& mouse) {
    update(touched());
    mouse_ = mouse;
    update(touched());
}

/// What the cursor covers, and nothing more: what is below it is painted again with each move.
QRect BrushCursor::touched() const {
    if (!mouse_) return {};
    const auto around = [](const QPointF& at, double half) {
        return QRectF(at.x() - half, at.y() - half, 2 * half, 2 * half).toAlignedRect();
    };
    QRect all = around(*mouse_, look_.radius * scale() + 3.0);
    if (look_.source) all |= around(*mouse_ + *look_.source * scale(), kCross + 2.0);
    return all;
}

bool BrushCursor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) setGeometry(view_->rect());
    return QWidget::eventFilter(watched, event);
}

/// While a colour is about to be taken the circles have it, and 0.8 of it.
void BrushCursor::paintEvent(QPaintEvent*) {
    if (!mouse_) return;
    light_ = Qt::white;
    dark_ = Qt::black;
    if (look_.picksColor) {
        const QPoint pixel = view_->zoom().pixelAt(*mouse_);
        const QImage& picture = view_->fullPicture();
        if (!picture.rect().contains(pixel)) return;
        light_ = picture.pixelColor(pixel);
        light_.setAlpha(255);
        dark_ = QColor(light_.red() * 4 / 5, light_.green() * 4 / 5, light_.blue() * 4 / 5);
    }
    QPainter painter(this);
    if (look_.brush) {
        const double radius = look_.radius * scale();
        paintCircle(painter, radius);
        paintCircle(painter, radius - 1.0);
        const double full = radius * look_.hardness;
        if (full > 2.0 && full < radius - 3.0) paintCircle(painter, full);
    }
    if (look_.source) paintCross(painter);
}

/// Points in two colours by turns, half a point apart in angle, so that it shows on any picture.
void BrushCursor::paintCircle(QPainter& painter, double radius) const {
    if (radius <= 0.0) return;
    const double step = 0.5 / std::max(radius, 1.0);
    QPoint last(-1, -1);
    std::vector<QRect> light, dark;
    bool odd = false;
    for (double angle = 0.0; angle < 6.4; angle += step) {
        const QPoint at(static_cast<int>(mouse_->x() + std::cos(angle) * radius),
                        static_cast<int>(mouse_->y() + std::sin(angle) * radius));
        if (at == last || at.x() < 0 || at.y() < 0) continue;
        last = at;
        odd = !odd;
        (odd ? light : dark).emplace_back(at, QSize(1, 1));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(light_);
    painter.drawRects(light.data(), static_cast<int>(light.size()));
    painter.setBrush(dark_);
    painter.drawRects(dark.data(), static_cast<int>(dark.size()));
}

void BrushCursor::paintCross(QPainter& painter) const {
    const QPoint middle = (*mouse_ + *look_.source * scale()).toPoint();
    for (int i = -kCross; i <= kCross; ++i) {
        const QColor& color = i % 2 == 0 ? light_ : dark_;
        painter.fillRect(QRect(middle + QPoint(i, 0), QSize(1, 1)), color);
        painter.fillRect(QRect(middle + QPoint(0, i), QSize(1, 1)), color);
    }
}

}  // namespace tavrin
