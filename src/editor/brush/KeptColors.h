#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "core/raster/ColorMath.h"

namespace tavrin {

/// What a tool wants at a pixel: real channels, which may lie beyond 0 to 255, and alpha.
struct OutColor {
    Rgb color;
    double alpha;
};

/// What the key or a search has made of pixels, kept for the next stamp of the same tool: those of a stroke lie
/// nearly on each other. In tiles, so that memory goes by where strokes are, and never beyond a limit.
class KeptColors {
  public:
    /// Pixels [left, right) x [top, bottom).
    struct Box {
        int left, top, right, bottom;
    };
    enum class State : std::uint8_t { unknown, leftAlone, color };
    /// What was made of one pixel; `out` means something where `state` is `color`.
    struct Entry {
        State& state;
        OutColor& out;
    };

    KeptColors(int width, int height);

    void clear();
    /// Makes room for these pixels, at the cost of others where there is no more.
    /// @return false when they are too many at once; none may then be asked for
    bool makeRoom(const Box& box);
    /// The entry of a pixel for which room was made. Several threads may ask, each for pixels of its own.
    Entry at(int x, int y) {
        Tile& tile = *tiles_[tileOf(x, y)];
        const auto i = static_cast<std::size_t>(y % kSide * kSide + x % kSide);
        return {tile.states[i], tile.outs[i]};
    }

  private:
    static constexpr int kSide = 64;
    static constexpr std::size_t kMostTiles = 512;  // 68 MB
    struct Tile {
        Tile() = default;  // colours are written before they are read
        State states[kSide * kSide] = {};
        OutColor outs[kSide * kSide];
    };

    std::size_t tileOf(int x, int y) const {
        return static_cast<std::size_t>(y / kSide) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(x / kSide);
    }

    int columns_;
    std::vector<std::unique_ptr<Tile>> tiles_;
    std::size_t filled_ = 0;
};

}  // namespace tavrin
