#include "ui/look/TileDesk.h"

#include <algorithm>

namespace tavrin {

TileDesk::TileDesk(Results& results, const QList<TileRow*>& rows, QObject* parent)
    : QObject(parent), results_(results), rows_(rows) {
    soon_.setSingleShot(true);
    soon_.setInterval(15);
    connect(&soon_, &QTimer::timeout, this, &TileDesk::fetch);
    for (const TileRow* row : rows_)
        connect(row, &TileRow::wanted, &soon_, [this] {
            if (!soon_.isActive()) soon_.start();
        });
    connect(&results_, &Results::looksChanged, this, &TileDesk::distrust);
    connect(&results_, &Results::lookMade, this, &TileDesk::take);
}

void TileDesk::distrust() {
    for (const TileRow* row : rows_)
        for (Tile* tile : row->tiles())
            tile->distrust();
    soon_.start();
}

/// The rows that came into view last are made first.
void TileDesk::fetch() {
    ++turn_;
    std::vector<TileRow*> seen;
    for (TileRow* row : rows_) {
        if (row->visibleRegion().isEmpty()) {
            since_.erase(row);
            continue;
        }
        since_.try_emplace(row, turn_);
        seen.push_back(row);
    }
    std::ranges::stable_sort(seen, std::greater(), [this](const TileRow* row) { return since_.at(row); });
    std::vector<SettingValues> looks;
    double ratio = 1.0;
    for (TileRow* row : seen) {
        row->refresh();
        ratio = std::max(ratio, row->devicePixelRatioF());
        for (const Tile* tile : row->tiles())
            if (tile->isStale() && !tile->visibleRegion().isEmpty() &&
                std::ranges::find(looks, tile->changes()) == looks.end())
                looks.push_back(tile->changes());
    }
    results_.wantLooks(looks, static_cast<int>(Tile::kPictureSide * ratio));
}

/// Of rows out of view nobody knows what their looks change by now.
void TileDesk::take(const SideWish& wish, const QImage& picture, const QString& missing) {
    for (const auto& [row, turn] : since_)
        for (Tile* tile : row->tiles())
            if (tile->isStale() && tile->changes() == wish.look) tile->show(picture, missing);
}

}  // namespace tavrin
