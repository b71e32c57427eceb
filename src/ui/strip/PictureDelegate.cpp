#include "ui/strip/PictureDelegate.h"

#include <QPainter>

#include "ui/strip/PictureList.h"

namespace tavrin {

namespace {

constexpr int kMargin = 4;
constexpr double kBadge = 16.0;
const QColor kKeep(46, 139, 87), kReject(190, 50, 45), kLookAgain(230, 170, 30), kInk(255, 255, 255),
    kDarkInk(30, 20, 0);

void paintKeep(QPainter& painter, const QRectF& box) {
    painter.setBrush(kKeep);
    painter.drawEllipse(box);
    painter.setPen(QPen(kInk, 2));
    const QPointF c = box.center();
    const QPointF tick[] = {c + QPointF(-3.5, 0.5), c + QPointF(-1, 3), c + QPointF(4, -3)};
    painter.drawPolyline(tick, 3);
}

void paintReject(QPainter& painter, const QRectF& box) {
    painter.setBrush(kReject);
    painter.drawRect(box);
    painter.setPen(QPen(kInk, 2));
    const QRectF cross = box.adjusted(4.5, 4.5, -4.5, -4.5);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

void paintLookAgain(QPainter& painter, const QRectF& box) {
    const QPointF corners[] = {{box.center().x(), box.top() - 1}, box.bottomRight(), box.bottomLeft()};
    painter.setBrush(kLookAgain);
    painter.drawPolygon(corners, 3);
    painter.setPen(QPen(kDarkInk, 2));
    const QPointF c = box.center();
    painter.drawLine(c + QPointF(0, -3), c + QPointF(0, 2));
    painter.drawPoint(c + QPointF(0, 5));
}

void paintMark(QPainter& painter, const QRectF& item, PictureMark mark) {
    if (mark == PictureMark::none) return;
    const QRectF box(item.right() - kBadge - 3, item.bottom() - kBadge - 3, kBadge, kBadge);
    painter.setPen(QPen(QColor(0, 0, 0, 160), 1));  // to be seen on any picture
    if (mark == PictureMark::keep) paintKeep(painter, box);
    if (mark == PictureMark::reject) paintReject(painter, box);
    if (mark == PictureMark::lookAgain) paintLookAgain(painter, box);
}

/// The small picture whole in its box, as sharp as the screen is.
QRectF paintSmall(QPainter& painter, const QRectF& box, const QPixmap& small) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QSizeF size = QSizeF(small.size()) / ratio;
    const QSizeF fitted = size.scaled(box.size(), Qt::KeepAspectRatio).boundedTo(size);
    QRectF place({0, 0}, fitted);
    place.moveCenter(box.center());
    painter.drawPixmap(place, small, QRectF(small.rect()));
    return place;
}

void paintStandIn(QPainter& painter, const QRectF& box, const QPalette& palette, const QString& name, bool failed) {
    painter.fillRect(box, palette.color(QPalette::Button));
    painter.setPen(palette.color(QPalette::PlaceholderText));
    const QString text = painter.fontMetrics().elidedText(name, Qt::ElideMiddle, static_cast<int>(box.width()) - 4);
    painter.drawText(box, failed ? Qt::AlignHCenter | Qt::AlignBottom : Qt::AlignCenter, text);
    if (!failed) return;
    painter.setPen(QPen(palette.color(QPalette::PlaceholderText), 2));
    const QRectF sign(box.center().x() - 10, box.center().y() - 16, 20, 20);
    painter.drawRect(sign);
    painter.drawLine(sign.topLeft(), sign.bottomRight());
}

}  // namespace

void PictureDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF item(option.rect);
    const QRectF box = item.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const QColor accent = option.palette.color(QPalette::Highlight);
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor soft = accent;
        soft.setAlpha(90);
        painter->fillRect(item, soft);
    }
    const auto small = index.data(Qt::DecorationRole).value<QPixmap>();
    QRectF shown = box;
    if (small.isNull()) {
        paintStandIn(*painter, box, option.palette, index.data().toString(),
                     !index.data(PictureList::ProblemRole).toString().isEmpty());
    } else {
        shown = paintSmall(*painter, box, small);
    }
    painter->setBrush(Qt::NoBrush);
    if (index.data(PictureList::PresentRole).toBool()) {
        painter->setPen(QPen(accent, 3));
        painter->drawRoundedRect(shown.adjusted(-1.5, -1.5, 1.5, 1.5), 2, 2);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setPen(QPen(option.palette.color(QPalette::WindowText), 1, Qt::DotLine));
        painter->drawRect(item.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    paintMark(*painter, box, static_cast<PictureMark>(index.data(PictureList::MarkRole).toInt()));
    painter->restore();
}

}  // namespace tavrin
