#include "editor/brush/KeptColors.h"

namespace tavrin {

KeptColors::KeptColors(int width, int height)
    : columns_((width + kSide - 1) / kSide),
      tiles_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>((height + kSide - 1) / kSide)) {}

void KeptColors::clear() {
    if (filled_ == 0) return;
    for (std::unique_ptr<Tile>& tile : tiles_)
        tile.reset();
    filled_ = 0;
}

bool KeptColors::makeRoom(const Box& box) {
    const int across = (box.right - 1) / kSide - box.left / kSide + 1;
    const int down = (box.bottom - 1) / kSide - box.top / kSide + 1;
    const auto needed = static_cast<std::size_t>(across) * static_cast<std::size_t>(down);
    if (needed > kMostTiles) return false;
    if (filled_ + needed > kMostTiles) clear();
    for (int row = 0; row < down; ++row) {
        for (int column = 0; column < across; ++column) {
            std::unique_ptr<Tile>& tile = tiles_[tileOf(box.left + column * kSide, box.top + row * kSide)];
            if (tile) continue;
            tile = std::make_unique_for_overwrite<Tile>();
            ++filled_;
        }
    }
    return true;
}

}  // namespace tavrin
