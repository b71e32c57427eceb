#include <algorithm>
#include <cmath>

#include "key/refine/Plate.h"
#include "key/refine/RowRing.h"
#include "key/refine/ScreenRatio.h"

namespace tavrin::refine {

namespace {

constexpr double kSmoothReach = 6.0, kReachCell = 8.0;
constexpr float kFarSpreads = 3.0f, kLeastSpread = 0.008f;
constexpr float kLeastLight = 0.4f, kMostLight = 1.15f;  // of the plate's
constexpr std::uint8_t kMostKey = 89;                    // the key's alpha below 0.35
constexpr float kSoftShare = 0.9f;                       // of a cell that a shadow is followed through
constexpr double kLargeArea = 0.02;                      // of the picture

// Least or greatest of 2r + 1 rows and columns.
template <class Choose>
void windowOf(const float* const* rows, int r, int width, Choose choose, float* columns, float* to) {
    for (int x = -r; x < width + r; ++x)
        columns[x] = rows[0][x];
    for (int i = 1; i <= 2 * r; ++i) {
        const float* const row = rows[i];
        for (int x = -r; x < width + r; ++x)
            columns[x] = choose(columns[x], row[x]);
    }
    // Joined to itself in steps that double, until it spans the window.
    int have = 1;
    for (; have < 2 * r + 1;) {
        const int step = std::min(have, 2 * r + 1 - have);
        for (int x = -r; x < width + r - (have + step - 1); ++x)
            columns[x] = choose(columns[x], columns[x + step]);
        have += step;
    }
    for (int x = 0; x < width; ++x)
        to[x] = columns[x - r];
}

// Which pixels of a block are near their plate, and which may be smooth shadow on it.
void lookAt(const Shot& shot, const Plate& plate, int first, int last, Mask& near, Mask& soft) {
    const auto width = static_cast<std::size_t>(shot.width);
    const int reach = std::min(shot.px(kSmoothReach), kRowPad - 1);
    const float spread = plate.spread, limit = kFarSpreads * std::max(spread, kLeastSpread);
    StartRows rows(shot, plate);
    RowRing<1, std::function<void(int, float**)>> strays(shot.width, shot.height, 2, [&](int y, float** planes) {
        rows.go(y);
        rows.alpha(planes[0]);
        for (std::size_t x = 0; x < width; ++x)
            planes[0][x] = std::abs(planes[0][x]);
    });
    ScreenRatio ratio(shot, plate);
    RowRing<2, std::function<void(int, float**)>> ratios(
        shot.width, shot.height, reach, [&](int y, float** planes) { ratio.fill(y, planes[0], planes[1]); });

    PaddedRows scratch(shot.width, 4);
    float *const columns = scratch.row(0), *const low = scratch.row(1), *const high = scratch.row(2);
    std::vector<std::uint8_t> flags(width + 8);
    for (int y = first; y < last; ++y) {
        boxSums(strays.around(y, 0, 2), 2, shot.width, columns, low);
        for (std::size_t x = 0; x < width; ++x)
            flags[x] = low[x] / 25.0f < limit;
        near.pack(y, flags.data());

        const float* const* window = ratios.around(y, 0, reach);
        windowOf(
            window, reach, shot.width, [](float a, float b) { return b < a ? b : a; }, columns, low);
        windowOf(
            window, reach, shot.width, [](float a, float b) { return a < b ? b : a; }, columns, high);
        const float *const light = ratios.at(y, 0), *const off = ratios.at(y, 1);
        const std::uint8_t* const key = shot.keyRow(y);
        for (std::size_t x = 0; x < width; ++x)
            flags[x] = (off[x] < 4.0f + 300.0f * spread) & (light[x] > kLeastLight) & (light[x] < kMostLight) &
                       (key[x] <= kMostKey) & (high[x] - low[x] < 0.12f + 3.0f * spread);
        soft.pack(y, flags.data());
    }
}

// Where one gets from the large areas of the screen through soft cells only: a shadow fades, but cloth of the
// screen's hue has an outline.
Mask reachable(const RunContext& context, const Mask& screen, const Mask& soft, int cell) {
    Mask either = soft;
    either |= screen;
    const Cells open = sharesOf(context, either, cell), seeds = sharesOf(context, screen, cell);
    std::vector<std::uint8_t> set(open.count());
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = open.row(0, 0)[i] > kSoftShare;
    const Parts parts = findParts(open.columns(), open.rows(), set, Neighbours::four);
    std::vector<double> areas(static_cast<std::size_t>(parts.count) + 1);
    for (std::size_t i = 0; i < set.size(); ++i)
        areas[static_cast<std::size_t>(parts.labels[i])] += static_cast<double>(seeds.row(0, 0)[i]) * cell * cell;
    areas[0] = 0.0;
    const double least = kLargeArea * screen.width() * screen.height();
    const Mask cells = maskOf(screen.width(), screen.height(), cell, [&](int c, int row) {
        const auto i = static_cast<std::size_t>(row * open.columns() + c);
        return areas[static_cast<std::size_t>(parts.labels[i])] > least;
    });
    return grown(context, cells, cell / 2);
}

}  // namespace

void mendScreen(const RunContext& context, const Shot& shot, Plate& plate) {
    Mask near(shot.width, shot.height), soft(shot.width, shot.height);
    runBlocks(context, shot.height, 64, [&](int first, int last) { lookAt(shot, plate, first, last, near, soft); });
    plate.screen &= near;
    Mask shadows = reachable(context, plate.screen, soft, shot.px(kReachCell));
    shadows &= soft;
    plate.screen |= shadows;
}

}  // namespace tavrin::refine
