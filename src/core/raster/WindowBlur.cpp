#include "core/raster/WindowBlur.h"

#include <memory>
#include <new>

#include "core/raster/Pixels.h"
#include "core/raster/WindowLanes.h"

namespace tavrin {

namespace {

constexpr int kRows = 16, kColumnSamples = 64;  // that go through the vectors together

/// The rows from `first` to `last` - 1, turned so that they lie side by side, and turned back.
template <class Sample>
void blurRowPiece(const SampleGrid<Sample>& grid, int reach, const std::vector<std::uint64_t>& weights, int first,
                  int last, Sample* to) {
    const std::ptrdiff_t rowStep = static_cast<std::ptrdiff_t>(grid.width) * grid.pixelStep;
    const int rows = last - first, lanes = rows * grid.channels;
    const auto samples = static_cast<std::size_t>(lanes) * static_cast<std::size_t>(grid.width);
    const std::unique_ptr<Sample[]> lines(new Sample[samples]), means(new Sample[samples]);
    const auto eachSample = [&](auto work) {
        std::size_t turned = 0;
        for (int x = 0; x < grid.width; ++x) {
            for (int row = 0; row < rows; ++row) {
                const std::ptrdiff_t at = (first + row) * rowStep + x * grid.pixelStep;
                for (int channel = 0; channel < grid.channels; ++channel)
                    work(at + channel, turned++);
            }
        }
    };
    eachSample([&](std::ptrdiff_t at, std::size_t turned) { lines[turned] = grid.first[at]; });
    windowMeans({lines.get(), lanes, 1, lanes, grid.width}, reach, weights, means.get());
    eachSample([&](std::ptrdiff_t at, std::size_t turned) { to[at] = means[turned]; });
}

template <class Sample>
bool blurRows(const RunContext& context, const SampleGrid<Sample>& grid, int reach, Sample* to) {
    const std::vector<std::uint64_t> weights = windowWeightSums(grid.width, reach);
    return runRowRanges(context, grid.height, kRows,
                        [&](int first, int last) { blurRowPiece(grid, reach, weights, first, last, to); });
}

/// `take(pixels, blurred, count)` gets some pixels of the grid and their blurred samples.
template <class Sample, class Take>
bool blurColumns(const RunContext& context, const Sample* from, const SampleGrid<Sample>& grid, int reach,
                 const Take& take) {
    const std::vector<std::uint64_t> weights = windowWeightSums(grid.height, reach);
    const std::ptrdiff_t rowStep = static_cast<std::ptrdiff_t>(grid.width) * grid.pixelStep;
    return runRowRanges(context, grid.width, std::max(kColumnSamples / grid.pixelStep, 1), [&](int first, int last) {
        const int lanes = (last - first) * grid.pixelStep;
        const std::ptrdiff_t left = static_cast<std::ptrdiff_t>(first) * grid.pixelStep;
        const std::unique_ptr<Sample[]> means(
            new Sample[static_cast<std::size_t>(lanes) * static_cast<std::size_t>(grid.height)]);
        windowMeans({from + left, rowStep, 1, lanes, grid.height}, reach, weights, means.get());
        for (int y = 0; y < grid.height; ++y)
            take(grid.first + left + y * rowStep, means.get() + static_cast<std::ptrdiff_t>(y) * lanes, last - first);
    });
}

/// A buffer laid out as the grid, with undefined samples.
template <class Sample>
PixelBuffer bufferLike(const SampleGrid<Sample>& grid) {
    const std::int64_t bytes = std::int64_t{grid.height} * grid.pixelStep * static_cast<int>(sizeof(Sample));
    return PixelBuffer(grid.width, static_cast<int>((bytes + kPixelBytes - 1) / kPixelBytes));
}

template <class Sample>
bool blurGrid(const RunContext& context, const SampleGrid<Sample>& grid, int reach) {
    if (!grid.first || grid.width < 1 || grid.height < 1) return true;
    reach = std::clamp(reach, 1, kMaxWindowReach);
    const auto take = [&](Sample* pixels, const Sample* blurred, int count) {
        if (grid.pixelStep == grid.channels) {
            std::copy_n(blurred, count * grid.pixelStep, pixels);
            return;
        }
        for (int i = 0; i < count; ++i, pixels += grid.pixelStep, blurred += grid.pixelStep)
            std::copy_n(blurred, grid.channels, pixels);
    };
    const PixelBuffer buffer = bufferLike(grid);
    if (!buffer.data()) throw std::bad_alloc();
    auto* const copy = reinterpret_cast<Sample*>(buffer.data());
    return blurRows(context, grid, reach, copy) &&
           blurColumns(context, static_cast<const Sample*>(copy), grid, reach, take);
}

}  // namespace

bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint8_t>& grid, int reach) {
    return blurGrid(context, grid, reach);
}

bool blurWithWindow(const RunContext& context, const SampleGrid<std::uint16_t>& grid, int reach) {
    return blurGrid(context, grid, reach);
}

bool blurRowsWithWindow(const RunContext& context, const SampleGrid<std::uint8_t>& grid, int reach,
                        std::uint8_t* to) {
    return blurRows(context, grid, reach, to);
}

bool blurColumnsWithWindow(const RunContext& context, const std::uint8_t* from, const SampleGrid<std::uint8_t>& grid,
                           int reach, const TakePixels& take) {
    return blurColumns(context, from, grid, reach, take);
}

}  // namespace tavrin
