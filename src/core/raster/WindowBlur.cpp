#include "core/raster/WindowBlur.h"

#include <memory>
#include <new>

#include "core/Log.h"
#include "core/raster/QuadraticWindow.h"

namespace tavrin {

namespace {

constexpr int kRowLanes = 8, kColumnLanes = 64;

/// The lines of one direction: `lines` of them, `lineStep` samples apart, each of `count` samples `step` apart.
struct Direction {
    int lines, count;
    std::ptrdiff_t step, lineStep;
    int lanes;  // lines that are walked side by side
};

template <class Sample>
bool blurLines(const RunContext& context, const Direction& d, int channels, int reach, const Sample* from,
               Sample* to) {
    const std::vector<std::uint64_t> weights = windowWeightSums(d.count, reach);
    return runRowRanges(context, d.lines, d.lanes, [&](int first, int last) {
        QuadraticWindow<Sample> window;
        for (int channel = 0; channel < channels; ++channel) {
            const std::ptrdiff_t offset = first * d.lineStep + channel;
            window.run({from + offset, d.step, d.lineStep, last - first, d.count}, reach, weights,
                       [&](int i, int lane, Sample mean) { to[offset + i * d.step + lane * d.lineStep] = mean; });
        }
    });
}

template <class Sample>
bool blurGrid(const RunContext& context, const SampleGrid<Sample>& grid, int reach) {
    if (!grid.first || grid.width < 1 || grid.height < 1) return true;
    reach = std::clamp(reach, 1, kMaxWindowReach);
    const std::ptrdiff_t rowStep = static_cast<std::ptrdiff_t>(grid.width) * grid.pixelStep;
    try {
        const std::unique_ptr<Sample[]> copy(new Sample[static_cast<std::size_t>(rowStep) * grid.height]);
        return blurLines<Sample>(context, {grid.height, grid.width, grid.pixelStep, rowStep, kRowLanes},
                                 grid.channels, reach, grid.first, copy.get()) &&
               blurLines<Sample>(context, {grid.width, grid.height, rowStep, grid.pixelStep, kColumnLanes},
                                 grid.channels, reach, copy.get(), grid.first);
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
        return false;
    }
}

}  // namespace

bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint8_t>& grid, int reach) {
    return blurGrid(context, grid, reach);
}

bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint16_t>& grid, int reach) {
    return blurGrid(context, grid, reach);
}

}  // namespace tavrin
