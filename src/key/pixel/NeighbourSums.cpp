#include "key/pixel/NeighbourSums.h"

#include <algorithm>
#include <array>

namespace tavrin {

namespace {

constexpr int kReach = 2;  // pixels to each side

// The channels side by side in one number, far enough apart for the sum of a block.
std::uint64_t channels(const std::uint8_t* p) {
    return p[0] | std::uint64_t{p[1]} << 16 | std::uint64_t{p[2]} << 32;
}

}  // namespace

void sumNeighbours(ConstPixelView picture, int x, int y, int count, NeighbourSums& around) {
    const int top = std::max(y - kReach, 0), bottom = std::min(y + kReach, picture.height - 1);
    const int left = std::max(x - kReach, 0), right = std::min(x + count - 1 + kReach, picture.width - 1);
    std::array<std::uint64_t, KeyedRun::kMaxPixels + 2 * kReach> columns;  // from x - kReach on
    std::fill_n(columns.begin(), count + 2 * kReach, 0);
    for (int row = top; row <= bottom; ++row) {
        const std::uint8_t* p = picture.at(left, row);
        for (int column = left; column <= right; ++column, p += kPixelBytes)
            columns[static_cast<std::size_t>(column - x + kReach)] += channels(p);
    }
    for (std::int32_t* sums : {around.r, around.g, around.b, around.pixels})
        std::fill(sums + count, sums + (count + 7) / 8 * 8, 0);
    const std::uint8_t* centre = picture.at(x, y);
    std::uint64_t block = columns[0] + columns[1] + columns[2] + columns[3];
    for (int i = 0; i < count; ++i, centre += kPixelBytes) {
        const std::size_t first = static_cast<std::size_t>(i);
        block += columns[first + 2 * kReach];
        const std::uint64_t sum = block - channels(centre);
        block -= columns[first];
        around.r[i] = static_cast<std::int32_t>(sum & 0xFFFF);
        around.g[i] = static_cast<std::int32_t>(sum >> 16 & 0xFFFF);
        around.b[i] = static_cast<std::int32_t>(sum >> 32);
        const int across = std::min(x + i + kReach, picture.width - 1) - std::max(x + i - kReach, 0) + 1;
        around.pixels[i] = (bottom - top + 1) * across - 1;
    }
}

}  // namespace tavrin
