#include "ui/strip/StripView.h"

#include <algorithm>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/strip/PictureDelegate.h"

namespace tavrin {

namespace {

constexpr const char* kThinBar = R"(
QScrollBar:horizontal { height: 10px; border: 0; background: palette(window); }
QScrollBar::handle:horizontal { background: palette(mid); border-radius: 4px; margin: 1px; min-width: 28px; }
QScrollBar::add-line:horizontal, QScrollBar::sub-line:horizontal { width: 0; }
)";

}  // namespace

StripView::StripView(QWidget* parent) : QListView(parent) {
    setFlow(LeftToRight);
    setWrapping(false);
    setUniformItemSizes(true);
    setItemDelegate(new PictureDelegate(this));
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // so that its coming and going moves nothing
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    viewport()->setBackgroundRole(QPalette::Window);
    horizontalScrollBar()->setStyleSheet(kThinBar);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    soon_.setSingleShot(true);
    soon_.setInterval(15);
    connect(&soon_, &QTimer::timeout, this, &StripView::viewChanged);
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        // With Shift or Ctrl pictures are only selected.
        if (QGuiApplication::keyboardModifiers() == Qt::NoModifier) emit opened(index.row());
    });
}

QSize StripView::sizeHint() const {
    return {320, PictureDelegate::kItem.height() + horizontalScrollBar()->sizeHint().height()};
}

std::pair<int, int> StripView::visibleRows() const {
    if (!model() || model()->rowCount() == 0) return {0, -1};
    constexpr int kStep = PictureDelegate::kItem.width();
    const QScrollBar& bar = *horizontalScrollBar();
    const int first = (isRightToLeft() ? bar.maximum() - bar.value() : bar.value()) / kStep;
    return {first, std::min(first + viewport()->width() / kStep + 1, model()->rowCount() - 1)};
}

void StripView::showRow(int row) {
    const int last = model()->rowCount() - 1;
    for (const int near : {row - 1, row + 1, row})
        scrollTo(model()->index(std::clamp(near, 0, std::max(last, 0)), 0));
}

void StripView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int ahead = isRightToLeft() ? -1 : 1;
    if (plain && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        emit walked(event->key() == Qt::Key_Right ? ahead : -ahead);
    } else if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
               currentIndex().isValid()) {
        emit opened(currentIndex().row());
    } else {
        QListView::keyPressEvent(event);
    }
}

/// A wheel turns up and down, the row runs from side to side.
void StripView::wheelEvent(QWheelEvent* event) {
    const QPoint turn = event->pixelDelta().isNull() ? event->angleDelta() : event->pixelDelta();
    const int way = std::abs(turn.x()) > std::abs(turn.y()) ? turn.x() : turn.y();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - (isRightToLeft() ? -way : way));
    event->accept();
}

void StripView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    soon_.start();
}

void StripView::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    if (!soon_.isActive()) soon_.start();  // also while it goes on
}

void StripView::rowsInserted(const QModelIndex& parent, int start, int end) {
    QListView::rowsInserted(parent, start, end);
    soon_.start();
}

void StripView::reset() {
    QListView::reset();
    soon_.start();
}

void StripView::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    soon_.start();
}

}  // namespace tavrin
