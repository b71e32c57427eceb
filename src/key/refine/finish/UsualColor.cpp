#include "key/refine/finish/UsualColor.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <numeric>
#include <vector>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr double kFarReach = 20.0;    // from the edges of the inside
constexpr int kRowStep = 4;           // of the rows that are looked at
constexpr double kFewCells = 5.0;     // of the inside, far from its edges
constexpr double kCommonShare = 0.1;  // of the spread over the whole subject in that of a cell
constexpr double kNoise = 100.0;      // of a channel, squared
constexpr double kCommonLine = 0.15;  // of the whole subject's line
constexpr std::size_t kSums = 9;      // of colours and their products

// Sums of the pixels in some columns of one row of cells, over all that are looked at.
void sumColors(const Shot& shot, const Mask& inside, int row, int left, int right, Cells& cells) {
    const int top = row * kUsualCell, bottom = std::min(top + kUsualCell, shot.height), width = right - left;
    const int rows = (bottom - top + kRowStep - 1) / kRowStep;
    const auto length = static_cast<std::size_t>(width);
    const auto lines = std::make_unique_for_overwrite<float[]>((kSums + 1 + kUsualCell) * length);
    float *const sums = lines.get(), *const weights = sums + (kSums + 1) * length;
    for (int i = 0; i < rows; ++i)
        inside.unpack(top + i * kRowStep, left, width, weights + std::ptrdiff_t{i} * width);
    const std::ptrdiff_t pitch = std::ptrdiff_t{kRowStep} * shot.width;
    sumLoops().sumProducts({shot.pixelRow(top) + left, pitch, weights, rows, width}, shot.blue, sums);
    const int whole = width / kUsualCell, rest = width % kUsualCell;
    for (std::size_t plane = 0; plane <= kSums; ++plane) {
        const float* const from = sums + (plane + 1) % (kSums + 1) * length;  // the weight comes last in the cells
        float* const to = cells.row(row, static_cast<int>(plane)) + left / kUsualCell;
        sumLoops().sumGroups(from, kUsualCell, whole, to);
        for (int c = 0; c < whole; ++c)
            to[c] /= static_cast<float>(kUsualCell * rows);
        if (rest > 0)
            to[whole] =
                std::accumulate(from + whole * kUsualCell, from + width, 0.0f) / static_cast<float>(rest * rows);
    }
}

// Mean and spread of colours.
struct Spread {
    double r, g, b;
    double rr, rg, rb, gb, bb;
};

// From means of the colours and of their products.
Spread spreadOf(const std::array<double, kSums>& m) {
    return {m[0],
            m[1],
            m[2],
            m[3] - m[0] * m[0],
            m[4] - m[0] * m[1],
            m[5] - m[0] * m[2],
            m[7] - m[1] * m[2],
            m[8] - m[2] * m[2]};
}

struct Line {
    double base, perR, perB;
};

// What the screen's channel has beyond the mean of the others, by these. Where they hardly vary, it is the same for
// all of them.
Line lineOf(const Spread& s) {
    const double rr = s.rr + kNoise, bb = s.bb + kNoise, rg = s.rg + 0.5 * kNoise, gb = s.gb + 0.5 * kNoise;
    const double whole = rr * bb - s.rb * s.rb;
    const double perR = (rg * bb - gb * s.rb) / whole, perB = (gb * rr - rg * s.rb) / whole;
    return {s.g - perR * s.r - perB * s.b, perR - 0.5, perB - 0.5};
}

// What `share` of the way from one to the other has.
Line between(const Line& one, const Line& other, double share) {
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    return {mix(one.base, other.base), mix(one.perR, other.perR), mix(one.perB, other.perB)};
}

Spread widened(const Spread& cell, const Spread& common) {
    const auto mix = [](double a, double b) { return a + (b - a) * kCommonShare; };
    return {cell.r,
            cell.g,
            cell.b,
            mix(cell.rr, common.rr),
            mix(cell.rg, common.rg),
            mix(cell.rb, common.rb),
            mix(cell.gb, common.gb),
            mix(cell.bb, common.bb)};
}

}  // namespace

Cells usualLead(const RunContext& context, const Shot& shot, const Mask& solid) {
    Cells cells = Cells::over(shot.width, shot.height, kUsualCell, static_cast<int>(kSums) + 1);
    Cells lead(cells.columns(), cells.rows(), 3);
    if (context.isSuperseded()) return lead;
    const Mask inside = shrunk(context, solid, shot.px(kFarReach));
    runRows(context, cells.rows(), 2, [&](int row) {
        forColumns(inside, row * kUsualCell, std::min((row + 1) * kUsualCell, shot.height),
                   [&](int left, int right) { sumColors(shot, inside, row, left, right, cells); });
    });
    const std::vector<double> sums = cells.sums();
    if (sums[kSums] <= kFewCells) return lead;
    std::array<double, kSums> overall;
    for (std::size_t i = 0; i < kSums; ++i)
        overall[i] = sums[i] / sums[kSums];
    const Spread common = spreadOf(overall);
    const Line commonLine = lineOf(common);
    const Cells means = pushPull(context, cells);
    runRows(context, lead.rows(), 8, [&](int row) {
        for (int x = 0; x < lead.columns(); ++x) {
            std::array<double, kSums> here;
            for (std::size_t i = 0; i < kSums; ++i)
                here[i] = static_cast<double>(means.row(row, static_cast<int>(i))[x]);
            const Line line = between(lineOf(widened(spreadOf(here), common)), commonLine, kCommonLine);
            lead.row(row, 0)[x] = static_cast<float>(line.base);
            lead.row(row, 1)[x] = static_cast<float>(line.perR);
            lead.row(row, 2)[x] = static_cast<float>(line.perB);
        }
    });
    return lead;
}

}  // namespace tavrin::refine
