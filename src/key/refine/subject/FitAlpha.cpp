#include "key/refine/subject/FitAlpha.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/CellRows.h"
#include "key/refine/grid/MatteLoops.h"
#include "key/refine/grid/RowRing.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr double kCell = 8.0;
constexpr double kGlobalShare = 0.1, kNoise = 100.0;  // of the covariance
constexpr float kSureAlpha = 0.95f;
constexpr int kSums = 9;  // of colours and their products
constexpr int kHalo = 4;  // columns beyond an area that its windows look at

// The six different products of three channels.
constexpr int kPairs[6][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 1}, {1, 2}, {2, 2}};

// Sums of the sure pixels' colours and products in some cells of a row, over all of a cell's pixels.
void sumColors(const Shot& shot, const Mask& sure, int row, int firstCell, int endCell, int size, Cells& cells) {
    const int left = firstCell * size, width = std::min(endCell * size, shot.width) - left;
    const int top = row * size, bottom = std::min(top + size, shot.height);
    const auto length = static_cast<std::size_t>(width);
    const auto lines = std::make_unique_for_overwrite<float[]>((kSums + 1 + static_cast<std::size_t>(size)) * length);
    float *const sums = lines.get(), *const weights = sums + (kSums + 1) * length;
    for (int y = top; y < bottom; ++y)
        sure.unpack(y, left, width, weights + std::ptrdiff_t{y - top} * width);
    sumLoops().sumProducts({shot.pixelRow(top) + left, shot.width, weights, bottom - top, width}, shot.blue, sums);
    const int whole = width / size, rest = width % size;
    for (int plane = 0; plane <= kSums; ++plane) {
        // The weight comes last in the cells.
        const float* const from = sums + (plane + 1) % (kSums + 1) * width;
        float* const to = cells.row(row, plane) + firstCell;
        sumLoops().sumGroups(from, size, whole, to);
        for (int c = 0; c < whole; ++c)
            to[c] /= static_cast<float>(size * (bottom - top));
        if (rest > 0)
            to[whole] =
                std::accumulate(from + whole * size, from + width, 0.0f) / static_cast<float>(rest * (bottom - top));
    }
}

using Symmetric3 = std::array<double, 6>;  // as kPairs

Symmetric3 covariance(const std::array<double, kSums>& means) {
    Symmetric3 result;
    for (std::size_t i = 0; i < 6; ++i)
        result[i] = means[3 + i] -
                    means[static_cast<std::size_t>(kPairs[i][0])] * means[static_cast<std::size_t>(kPairs[i][1])];
    return result;
}

std::array<double, kSums> overallMeans(const Cells& cells) {
    const std::vector<double> sums = cells.sums();
    const double weight = std::max(sums[kSums], 1e-6);
    std::array<double, kSums> means;
    for (std::size_t i = 0; i < kSums; ++i)
        means[i] = sums[i] / weight;
    return means;
}

// What is added to the covariance of every cell.
Symmetric3 commonCovariance(const Cells& cells) {
    Symmetric3 common = covariance(overallMeans(cells));
    for (std::size_t i = 0; i < 6; ++i)
        common[i] = kGlobalShare * common[i] + (kPairs[i][0] == kPairs[i][1] ? kNoise : 0.0);
    return common;
}

// The cells that rows of the areas around the open pixels are spread from.
Mask cellsAround(const Shot& shot, const Mask& open, int size) {
    Cells grid = Cells::over(shot.width, shot.height, size, 0);
    Mask cells(grid.columns(), grid.rows());
    const auto cell = [size](int pixel, int count) { return std::clamp(pixel / size, 0, count - 1); };
    for (int top = 0; top < shot.height; top += kBlockRows) {
        const int first = cell(top - 1 - size, grid.rows()), last = cell(top + kBlockRows + size, grid.rows());
        forColumns(open, top, std::min(top + kBlockRows, shot.height), [&](int left, int right) {
            const int begin = cell(left - kHalo - size, grid.columns()),
                      end = cell(right + kHalo + size, grid.columns());
            for (int row = first; row <= last; ++row)
                cells.set(row, begin, end + 1);
        });
    }
    return cells;
}

Cells sumsOf(const RunContext& context, const Shot& shot, const Mask& sure, int size) {
    Cells cells = Cells::over(shot.width, shot.height, size, kSums + 1);
    runRows(context, cells.rows(), 2, [&](int row) {
        int done = 0;  // cells that were summed already
        forColumns(sure, row * size, std::min((row + 1) * size, shot.height), [&](int left, int right) {
            const int begin = std::max(left / size, done);
            done = (right + size - 1) / size;
            if (begin < done) sumColors(shot, sure, row, begin, done, size, cells);
        });
    });
    return cells;
}

}  // namespace

Separation separate(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& sure,
                    const Mask& open) {
    Separation result;
    const int size = result.size = shot.cell(kCell);
    const Cells cells = sumsOf(context, shot, sure, size);
    const Symmetric3 common = commonCovariance(cells);
    const Mask wanted = cellsAround(shot, open, size);
    const Cells means = pushPull(context, cells, wanted);
    result.weights = result.subject = Cells(cells.columns(), cells.rows(), 3);
    result.certainty = Cells(cells.columns(), cells.rows(), 1);
    const CellPoints middles(plate.colors, kPlateCell, shot.width, size);
    runRows(context, cells.rows(), 4, [&](int row) {
        std::vector<float> screen(3 * static_cast<std::size_t>(cells.columns()));
        float *const r = screen.data(), *const g = r + cells.columns(), *const b = g + cells.columns();
        forColumns(wanted, row, row + 1, [&](int left, int right) {
            const int y = std::min(row * size + size / 2, shot.height - 1);
            middles.fill(y, 0, left, right, r);
            middles.fill(y, 1, left, right, g);
            middles.fill(y, 2, left, right, b);
            const float* from[kSums];
            for (int i = 0; i < kSums; ++i)
                from[i] = means.row(row, i) + left;
            float* const to[] = {result.weights.row(row, 0) + left, result.weights.row(row, 1) + left,
                                 result.weights.row(row, 2) + left, result.certainty.row(row, 0) + left};
            matteLoops().directions(from, {r, g, b}, common.data(), right - left, to);
            for (int i = 0; i < 3; ++i)
                std::copy(from[i], from[i] + (right - left), result.subject.row(row, i) + left);
        });
    });
    return result;
}

Cells nearerSide(const RunContext& context, const Mask& solid, const Mask& screen) {
    const Cells inside = sharesOf(context, solid, kNearCell), outside = sharesOf(context, screen, kNearCell);
    Cells cells(inside.columns(), inside.rows(), 2);
    for (std::size_t i = 0; i < cells.count(); ++i) {
        cells.row(0, 0)[i] = inside.row(0, 0)[i];
        cells.row(0, 1)[i] = inside.row(0, 0)[i] + outside.row(0, 0)[i];
    }
    Cells nearer = pushPull(context, cells);
    for (std::size_t i = 0; i < nearer.count(); ++i)
        nearer.row(0, 0)[i] = smoothStep(nearer.row(0, 0)[i], 0.15f, 0.5f);
    return nearer;
}

FitRows::FitRows(const Fit& fit, const Strip& strip)
    : strip_(strip),
      start_(strip, fit.plate),
      weights_(fit.separation.weights, fit.separation.size, strip.left, strip.width),
      certainty_(fit.separation.certainty, fit.separation.size, strip.left, strip.width),
      nearer_(fit.nearer, kNearCell, strip.left, strip.width),
      lines_(5 * static_cast<std::size_t>(strip.width)) {}

void FitRows::fill(int y, float* alpha) {
    start_.go(y);
    for (int i = 0; i < 3; ++i)
        weights_.fill(y, i, line(static_cast<std::size_t>(i)));
    certainty_.fill(y, 0, line(3));
    nearer_.fill(y, 0, line(4));
    start_.alpha(alpha);
    matteLoops().fit(start_.own(), start_.screen(), {line(0), line(1), line(2)}, line(3), line(4),
                     strip_.shot.keyRow(y) + strip_.left, strip_.width, alpha);
}

Mask surePixels(const RunContext& context, const Fit& fit, const Mask& solid, const Mask& open) {
    Mask whole = solid;
    runAreas(context, open, [&](const Area& area) {
        const Strip strip = area.strip(fit.shot, kHalo);
        FitRows rows(fit, strip);
        RowRing<1, std::function<void(int, float**)>> ring(strip.width, fit.shot.height, 1,
                                                           [&](int y, float** planes) { rows.fill(y, planes[0]); });
        PaddedRows scratch(strip.width, 2);
        std::vector<std::uint8_t> flags(static_cast<std::size_t>(strip.width) + 8);
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            sumLoops().boxSums(ring.around(y, 0, 1), 1, strip.width, scratch.row(0), scratch.row(1));
            rowLoops().above(scratch.row(1), kSureAlpha * 9.0f, strip.width, flags.data());
            whole.pack(y, area.left, area.width(), flags.data() + (area.left - strip.left));
        }
    });
    Mask sure = shrunk(context, whole, 1);
    sure |= solid;
    return sure;
}

AlphaPlane fitAlpha(const RunContext& context, const Fit& fit, const Mask& solid, const Mask& open) {
    const auto width = static_cast<std::size_t>(fit.shot.width);
    auto plane = std::make_unique_for_overwrite<std::uint16_t[]>(width * static_cast<std::size_t>(fit.shot.height));
    runRows(context, fit.shot.height, 16, [&](int y) {
        std::uint16_t* const to = plane.get() + static_cast<std::size_t>(y) * width;
        for (int x = 0; x < fit.shot.width; x += kGrainColumns) {
            const int end = std::min(x + kGrainColumns, fit.shot.width);
            std::fill(to + x, to + end, solid.isClear(y, x, end) ? std::uint16_t{0} : std::uint16_t{65535});
        }
    });
    runAreas(context, open, [&](const Area& area) {
        FitRows rows(fit, area.strip(fit.shot, 0));
        std::vector<float> alpha(static_cast<std::size_t>(area.width()));
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            rows.fill(y, alpha.data());
            matteLoops().storeAlpha(alpha.data(), area.width(),
                                    plane.get() + static_cast<std::size_t>(y) * width + area.left);
        }
    });
    return plane;
}

}  // namespace tavrin::refine
