#include "key/pixel/KeyDecision.h"

#include <algorithm>

#include "key/pixel/KeyedRun.h"

namespace tavrin {

namespace {

constexpr int kLastCell = 19;
constexpr std::size_t kVectorPadding = 8;

}  // namespace

GridStep gridStep(int position, int size) {
    const double f = clampTo(position * 20.0 / size - 0.5, 0.0, 19.0);
    const int low = static_cast<int>(f);
    return {low, std::min(low + 1, kLastCell), f - low};
}

void layOutColumns(ScreenField& screen, int width) {
    screen.columnParts.assign(static_cast<std::size_t>(width) + kVectorPadding, 0.0);
    int cell = -1;
    for (int x = 0; x < width; ++x) {
        const GridStep step = gridStep(x, width);
        screen.columnParts[static_cast<std::size_t>(x)] = step.part;
        const bool begins = x == 0 || screen.runs.back().count == KeyedRun::kMaxPixels;
        if (begins || (screen.local && step.low != cell)) screen.runs.push_back({x, 0});
        ++screen.runs.back().count;
        cell = step.low;
    }
}

ScreenCells screenCells(const ScreenField& screen, int x, int y, int width, int height) {
    if (!screen.local) return {};
    const GridStep row = gridStep(y, height), column = gridStep(x, width);
    const Rgb* top = screen.cells.data() + row.low * (kLastCell + 1);
    const Rgb* bottom = screen.cells.data() + row.high * (kLastCell + 1);
    return {top[column.low], top[column.high], bottom[column.low], bottom[column.high], row.part};
}

}  // namespace tavrin
