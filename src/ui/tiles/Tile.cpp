#include "ui/tiles/Tile.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include "ui/bind/ControlRow.h"

namespace tavrin {

namespace {

constexpr int kMargin = 4, kLineTop = Tile::kPictureSide + 2 * kMargin;
constexpr double kFaded = 0.45, kBadge = 16.0;

/// In force: a tick on a disc, so that colour is not all that tells.
void paintTick(QPainter& painter, const QRectF& box, const QPalette& palette) {
    painter.setPen(QPen(palette.color(QPalette::HighlightedText), 1));
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawEllipse(box);
    painter.setPen(QPen(palette.color(QPalette::HighlightedText), 2));
    const QPointF c = box.center();
    const QPointF tick[] = {c + QPointF(-3.5, 0.5), c + QPointF(-1, 3), c + QPointF(4, -3)};
    painter.drawPolyline(tick, 3);
}

void paintCross(QPainter& painter, const QRectF& box, const QPalette& palette) {
    painter.setPen(QPen(palette.color(QPalette::WindowText), 2));
    painter.setBrush(palette.color(QPalette::Window));
    painter.drawRect(box);
    painter.drawLine(box.topLeft(), box.bottomRight());
    painter.drawLine(box.topRight(), box.bottomLeft());
}

}  // namespace

Tile::Tile(const TileLook& look, QWidget* parent) : QToolButton(parent), look_(look) {
    setObjectName(QString::fromStdString(look.control));
    setProperty("handler", QString::fromStdString(look.handler));
    setText(labelOf(look).replace('&', "&&"));
    setAccessibleName(labelOf(look));
    setToolTip(ControlRow::translated(look.toolTip.c_str()));
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString Tile::labelOf(const TileLook& look) {
    return ControlRow::translated(look.label.c_str());
}

/// A click does not check it: that follows from the settings.
void Tile::setChanges(SettingValues changes) {
    changes_ = std::move(changes);
    setChecked(changes_.empty());
}

void Tile::distrust() {
    stale_ = true;
    update();
}

void Tile::show(const QImage& picture, const QString& missing) {
    picture_ = picture;
    missing_ = missing;
    stale_ = false;
    const QString told = ControlRow::translated(look_.toolTip.c_str());
    setToolTip(missing.isEmpty() ? told : told + '\n' + missing);
    setAccessibleDescription(missing);
    update();
}

QSize Tile::sizeHint() const {
    return {kPictureSide, kLineTop + fontMetrics().height() + 2 * kMargin};
}

QSize Tile::minimumSizeHint() const {
    return {40, sizeHint().height()};
}

/// Whole in its box. Where that is wide enough a pixel of it is one of the screen.
QRectF Tile::paintPicture(QPainter& painter, const QRectF& box) const {
    const double ratio = devicePixelRatioF();
    const QSizeF size =
        picture_.isNull() ? QSizeF(box.height() * 0.8, box.height()) : QSizeF(picture_.size()) / ratio;
    QRectF place({0, 0}, size.scaled(box.size(), Qt::KeepAspectRatio).boundedTo(size));
    place.moveCenter(box.center());
    place.moveTopLeft(QPointF((place.topLeft() * ratio).toPoint()) / ratio);
    if (picture_.isNull()) {
        painter.fillRect(place, palette().color(QPalette::Button));
        return place;
    }
    painter.setOpacity(stale_ ? kFaded : 1.0);
    painter.drawImage(place, picture_);
    painter.setOpacity(1.0);
    return place;
}

void Tile::paintState(QPainter& painter, const QRectF& shown) const {
    const QRectF badge(shown.right() - kBadge - 3, shown.bottom() - kBadge - 3, kBadge, kBadge);
    if (isChecked()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
        painter.drawRoundedRect(shown.adjusted(-1.5, -1.5, 1.5, 1.5), 2, 2);
        paintTick(painter, badge, palette());
    } else if (!missing_.isEmpty()) {
        paintCross(painter, badge, palette());
    }
    if (!hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}

void Tile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (underMouse() || isDown()) painter.fillRect(rect(), palette().color(QPalette::Button));
    const QRectF box(kMargin, kMargin, width() - 2 * kMargin, kPictureSide);
    const QRectF shown = paintPicture(painter, box);
    const QRect line(1, kLineTop, width() - 2, height() - kLineTop);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString name = missing_.isEmpty() ? text() : tr("%1: missing").arg(text());
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop,
                     fontMetrics().elidedText(name, Qt::ElideRight, line.width()));
    paintState(painter, shown);
    if (stale_) emit wanted();
}

void Tile::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QToolButton::keyPressEvent(event);
}

}  // namespace tavrin
