#include <algorithm>
#include <cmath>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/Parts.h"
#include "key/refine/grid/RowRing.h"
#include "key/refine/grid/SumLoops.h"
#include "key/refine/screen/CoverMask.h"
#include "key/refine/screen/Plate.h"
#include "key/refine/screen/ScreenRatio.h"

namespace tavrin::refine {

namespace {

constexpr int kHalo = 4;  // columns beyond an area that its windows look at
constexpr double kSmoothReach = 6.0, kReachCell = 8.0;
constexpr int kLeastSmoothReach = 2;  // in a window of 3 x 3 the crests of dark hair are as smooth as a shadow
constexpr float kFarSpreads = 3.0f, kLeastSpread = 0.008f;
constexpr float kLeastLight = 0.4f, kMostLight = 1.15f;  // of the plate's
constexpr std::uint8_t kMostKey = 89;                    // the key's alpha below 0.35
constexpr std::uint8_t kNextToNothing = 16;              // 0.06
constexpr double kClearReach = 4.0;                      // less is hair that the key has nearly taken away
constexpr float kSoftShare = 0.9f;                       // of a cell that a shadow is followed through
constexpr double kLargeArea = 0.02, kLeastArea = 0.001;  // of the picture
constexpr float kOtherCover = 0.4f;                      // the least alpha of what is no screen in any light
constexpr double kMeanSamples = 10'000;

// Which pixels of an area are near their plate.
void findNear(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area, Mask& near) {
    const Strip strip = area.strip(shot, kHalo);
    StartRows rows(strip, plate);
    RowRing<1, std::function<void(int, float**)>> strays(strip.width, shot.height, 2, [&](int y, float** planes) {
        rows.go(y);
        rows.alpha(planes[0]);
        for (int x = 0; x < strip.width; ++x)
            planes[0][x] = std::abs(planes[0][x]);
    });
    PaddedRows scratch(strip.width, 2);
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(strip.width) + 8);
    const float limit = kFarSpreads * std::max(plate.spread, kLeastSpread) * 25.0f;
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        sumLoops().boxSums(strays.around(y, 0, 2), 2, strip.width, scratch.row(0), scratch.row(1));
        rowLoops().below(scratch.row(1), limit, strip.width, flags.data());
        near.pack(y, area.left, area.width(), flags.data() + (area.left - strip.left));
    }
}

// Which pixels of an area may be smooth shadow on the screen.
void findSoft(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area, Mask& soft) {
    const int reach = std::clamp(shot.px(kSmoothReach), kLeastSmoothReach, kRowPad - 1);
    const Strip strip = area.strip(shot, reach + kHalo);
    ScreenRatio ratio(strip, plate);
    RowRing<2, std::function<void(int, float**)>> ratios(
        strip.width, shot.height, reach, [&](int y, float** planes) { ratio.fill(y, planes[0], planes[1]); });
    PaddedRows scratch(strip.width, 2);
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(area.width()) + 8);
    const float offLimit = 4.0f + 300.0f * plate.spread, rangeLimit = 0.12f + 3.0f * plate.spread;
    const int inset = area.left - strip.left;
    const float *const low = scratch.row(0) + inset - reach, *const high = scratch.row(1) + inset - reach;
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        rowLoops().windowRange(ratios.around(y, 0, reach), reach, strip.width, scratch.row(0), scratch.row(1));
        const float *const light = ratios.at(y, 0) + inset, *const off = ratios.at(y, 1) + inset;
        for (int x = 0; x < area.width(); ++x)
            flags[static_cast<std::size_t>(x)] = (off[x] < offLimit) & (light[x] > kLeastLight) &
                                                 (light[x] < kMostLight) & (high[x] - low[x] < rangeLimit);
        soft.pack(y, area.left, area.width(), flags.data());
    }
}

// The pixels to which the key gave `most` or less.
Mask thinPixels(const RunContext& context, const Shot& shot, std::uint8_t most) {
    Mask thin(shot.width, shot.height);
    runRows(context, shot.height, 32,
            [&](int y) { rowLoops().atMost(shot.keyRow(y), most, shot.width, thin.row(y)); });
    return thin;
}

// Where one gets from the large areas of the screen through soft cells only: a shadow fades, but cloth of the
// screen's hue has an outline.
Mask reachable(const RunContext& context, const Shot& shot, const Mask& screen, const Mask& soft, double area) {
    const int cell = shot.cell(kReachCell);
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
    const double least = area * screen.width() * screen.height();
    const Mask cells = maskOf(context, screen.width(), screen.height(), cell, [&](int c, int row) {
        const auto i = static_cast<std::size_t>(row * open.columns() + c);
        return areas[static_cast<std::size_t>(parts.labels[i])] > least;
    });
    return grown(context, cells, cell / 2);
}

// A plate of one colour: the mean of the screen's pixels.
Plate evenPlate(const Shot& shot, const Mask& screen) {
    const int step =
        std::max(1, static_cast<int>(std::sqrt(static_cast<double>(shot.width) * shot.height / kMeanSamples)));
    std::vector<float> lines(3 * static_cast<std::size_t>(shot.width));
    float *const r = lines.data(), *const g = r + shot.width, *const b = g + shot.width;
    double sums[3] = {}, count = 0.0;
    for (int y = step / 2; y < shot.height; y += step) {
        loadColors({shot, 0, shot.width}, y, r, g, b);
        for (int x = step / 2; x < shot.width; x += step) {
            if (!screen.at(x, y)) continue;
            sums[0] += static_cast<double>(r[x]);
            sums[1] += static_cast<double>(g[x]);
            sums[2] += static_cast<double>(b[x]);
            count += 1.0;
        }
    }
    Plate plate;
    plate.colors = Cells(1, 1, 3);
    for (int c = 0; c < 3; ++c)
        *plate.colors.row(0, c) = static_cast<float>(sums[c] / std::max(count, 1.0));
    return plate;
}

}  // namespace

void dropStrangers(const RunContext& context, const Shot& shot, Mask& screen) {
    Mask large = reachable(context, shot, screen, Mask(shot.width, shot.height), kLeastArea);
    Mask small = large.inverted(), alike(shot.width, shot.height);
    small &= screen;
    large &= screen;
    if (large.count() == 0) return;
    const Plate plate = evenPlate(shot, large);
    runAreas(context, small, [&](const Area& area) {
        maskByCover(context, shot, plate, area, {rowLoops().below, kOtherCover}, alike);
    });
    small &= alike;
    screen = std::move(large);
    screen |= small;
}

Mask clearParts(const RunContext& context, const Shot& shot) {
    return shrunk(context, thinPixels(context, shot, kNextToNothing), shot.px(kClearReach));
}

Mask mendedScreen(const RunContext& context, const Shot& shot, const Plate& plate, PlateLook& look) {
    if (look.near.width() == 0) {
        look.near = look.asked = look.soft = Mask(shot.width, shot.height);
        runAreas(context, plate.screen, [&](const Area& area) { findNear(context, shot, plate, area, look.near); });
    }
    Mask screen = plate.screen;
    screen &= look.near;
    Mask open = thinPixels(context, shot, kMostKey);
    open &= screen.inverted();
    Mask unknown = look.asked.inverted();
    unknown &= open;
    runAreas(context, unknown, [&](const Area& area) { findSoft(context, shot, plate, area, look.soft); });
    look.asked |= unknown;
    open &= look.soft;
    Mask shadows = reachable(context, shot, screen, open, kLargeArea);
    // A gap that is all shadow: nothing speaks for a subject there.
    shadows |= thinPixels(context, shot, 0);
    shadows |= clearParts(context, shot);
    shadows &= open;
    screen |= shadows;
    followDrift(context, shot, plate.difference, screen);
    if (plate.cloth.width() > 0) screen &= plate.cloth.inverted();
    return screen;
}

}  // namespace tavrin::refine
