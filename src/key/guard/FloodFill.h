#pragma once

#include <array>
#include <cstdint>

namespace tavrin {

/// The stack of pixels from which a flood fill goes on. Its size is fixed: what does not fit is dropped, and a part
/// of a very jagged region stays unfilled.
class SeedStack {
  public:
    static constexpr int kEntries = 6100;

    void clear() { iNextSeed = -1; }
    int topIndex() const { return iNextSeed; }
    void push(int x, int y) {
        if (iNextSeed >= kEntries - 1) return;
        ++iNextSeed;
        xSeedList[iNextSeed] = x;
        ySeedList[iNextSeed] = y;
    }
    /// Takes the newest seed; the stack must not be empty.
    void pop(int& x, int& y) {
        x = xSeedList[iNextSeed];
        y = ySeedList[iNextSeed];
        --iNextSeed;
    }

  private:
    std::array<std::int32_t, kEntries> xSeedList, ySeedList;
    int iNextSeed = -1;
};

/// The walks of a scanline flood fill, from (x, y) to the right end of the run and then from the pixel before it to
/// the left end. Of the neighbours above and below, the first pixel of each run becomes a seed. `Region` has
/// - `width`, `height`
/// - `stopped()`: asked at every pixel; true ends the fill
/// - `contains(x, y)`: the pixel belongs to the region and is not filled yet; `fill(x, y)` fills it
/// @return false when stopped
template <class Region>
bool fillRun(Region& region, SeedStack& seeds, int x, int y) {
    const auto walk = [&](int at, int step) {
        bool above = false, below = false;
        const auto look = [&](int row, bool& inRun) {
            const bool contains = region.contains(at, row);
            if (contains && !inRun) seeds.push(at, row);
            inRun = contains;
        };
        for (; at >= 0 && at < region.width && region.contains(at, y); at += step) {
            if (region.stopped()) return false;
            region.fill(at, y);
            if (y > 0) look(y - 1, above);
            if (y < region.height - 1) look(y + 1, below);
        }
        return true;
    };
    return walk(x, 1) && walk(x - 1, -1);
}

/// Fills what is connected with (x, y). More open seeds than `highestTop` + 1 end the fill.
/// @return false when stopped
template <class Region>
bool floodFill(Region& region, SeedStack& seeds, int x, int y, int highestTop) {
    seeds.clear();
    seeds.push(x, y);
    while (seeds.topIndex() >= 0 && seeds.topIndex() <= highestTop) {
        seeds.pop(x, y);
        if (!fillRun(region, seeds, x, y)) return false;
    }
    return true;
}

}  // namespace tavrin
