#include "ui/tiles/TileRow.h"

#include <QGridLayout>
#include <QKeyEvent>

namespace tavrin {

namespace {

constexpr std::size_t kMostColumns = 5;

/// So that no line is much shorter than the others.
std::size_t columnsFor(std::size_t tiles) {
    const std::size_t lines = (tiles + kMostColumns - 1) / kMostColumns;
    return (tiles + lines - 1) / lines;
}

}  // namespace

TileRow::TileRow(TileSet set, Binder& binder, QWidget* parent)
    : QWidget(parent), set_(std::move(set)), binder_(binder), columns_(columnsFor(set_.looks.size())) {
    setObjectName(QString::fromStdString(set_.name));
    setAccessibleName(tr("%1: looks").arg(ControlRow::translated(set_.title)));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 4);
    grid->setSpacing(2);
    for (const TileLook& look : set_.looks) {
        auto* tile = new Tile(look, this);
        const int place = static_cast<int>(tiles_.size()), columns = static_cast<int>(columns_);
        grid->addWidget(tile, place / columns, place % columns);
        tiles_.push_back(tile);
        tile->installEventFilter(this);
        connect(tile, &Tile::wanted, this, &TileRow::wanted);
        connect(tile, &Tile::clicked, this, [this, &look] { take(look); });
    }
    soon_.setSingleShot(true);
    soon_.setInterval(100);
    connect(&soon_, &QTimer::timeout, this, [this] {
        if (!visibleRegion().isEmpty()) refresh();
    });
    connect(&binder, &Binder::shown, &soon_, qOverload<>(&QTimer::start));
}

std::vector<QWidget*> TileRow::rowsOf(std::string_view group, Binder& binder) {
    std::vector<QWidget*> rows;
    for (TileSet& set : tileSetsOf(group))
        rows.push_back(new TileRow(std::move(set), binder));
    return rows;
}

void TileRow::take(const TileLook& look) {
    const QString label = tr("%1: %2").arg(ControlRow::translated(set_.title), Tile::labelOf(look));
    binder_.run(label, [&](SettingEditor& editor) { editor.apply(set_.settings, look.write); });
    refresh();
}

void TileRow::refresh() {
    soon_.stop();
    if (!scratch_) scratch_ = std::make_unique<SystemInfo>();
    for (Tile* tile : tiles_)
        tile->setChanges(changesOf(binder_.editor().info(), set_, tile->look(), *scratch_));
}

void TileRow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    soon_.start();
}

void TileRow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    emit wanted();
}

QWidget* TileRow::neighbour(std::size_t tile, int key) const {
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    std::size_t next = tiles_.size();
    if (key == Qt::Key_Up && tile >= columns_) next = tile - columns_;
    if (key == Qt::Key_Down) next = tile + columns_;
    if (key == (mirrored ? Qt::Key_Left : Qt::Key_Right)) next = tile + 1;
    if (key == (mirrored ? Qt::Key_Right : Qt::Key_Left) && tile > 0) next = tile - 1;
    return next < tiles_.size() ? tiles_[next] : nullptr;
}

bool TileRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const auto tile = static_cast<std::size_t>(std::ranges::find(tiles_, watched) - tiles_.begin());
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_Left && key != Qt::Key_Right) return false;
    if (QWidget* next = neighbour(tile, key)) next->setFocus(Qt::TabFocusReason);
    return true;
}

}  // namespace tavrin
