#include "key/refine/grid/Areas.h"

#include <algorithm>

namespace tavrin::refine {

namespace {

constexpr int kMostGrains = 32;  // so that the rows stay in the cache
constexpr int kGrainsOfWord = 64 / kGrainColumns;

// Which columns' grains have any pixel of the rows [top, bottom).
std::vector<std::uint8_t> grainsOf(const Mask& wanted, int top, int bottom) {
    const auto words = static_cast<std::size_t>(wanted.words());
    std::vector<std::uint64_t> any(words);
    for (int y = top; y < bottom; ++y) {
        const std::uint64_t* const row = wanted.row(y);
        for (std::size_t i = 0; i < words; ++i)
            any[i] |= row[i];
    }
    std::vector<std::uint8_t> grains(words * kGrainsOfWord);
    for (std::size_t i = 0; i < grains.size(); ++i)
        grains[i] = (any[i / kGrainsOfWord] >> (i % kGrainsOfWord * kGrainColumns) & 0xFFFF) != 0;
    return grains;
}

}  // namespace

Strip Area::strip(const Shot& shot, int halo) const {
    const int first = std::max(left - halo, 0);
    return {shot, first, std::min(right + halo, shot.width) - first};
}

void forColumns(const Mask& wanted, int top, int bottom, const std::function<void(int, int)>& work) {
    const std::vector<std::uint8_t> grains = grainsOf(wanted, top, bottom);
    const int count = static_cast<int>(grains.size());
    const auto isSet = [&](int grain) { return grain < count && grains[static_cast<std::size_t>(grain)] != 0; };
    for (int grain = 0, end = 0; grain < count; grain = end) {
        end = grain + 1;
        if (!isSet(grain)) continue;
        // A gap of one grain costs less than two borders.
        while (end - grain < kMostGrains && (isSet(end) || (isSet(end + 1) && end + 1 - grain < kMostGrains)))
            ++end;
        work(grain * kGrainColumns, std::min(end * kGrainColumns, wanted.width()));
    }
}

bool runAreas(const RunContext& context, const Mask& wanted, const std::function<void(const Area&)>& work) {
    return runRows(context, blocksOf(wanted.height()), 1, [&](int block) {
        const int top = block * kBlockRows, bottom = std::min(top + kBlockRows, wanted.height());
        forColumns(wanted, top, bottom, [&](int left, int right) {
            if (context.isSuperseded()) return;
            Area area{left, right, top, bottom, block};
            while (wanted.isClear(area.top, left, right))
                ++area.top;
            while (wanted.isClear(area.bottom - 1, left, right))
                --area.bottom;
            work(area);
        });
    });
}

}  // namespace tavrin::refine
