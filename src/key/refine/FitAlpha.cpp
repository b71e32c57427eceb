#include "key/refine/FitAlpha.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "key/refine/RowRing.h"

namespace tavrin::refine {

namespace {

constexpr double kCell = 8.0;
constexpr double kGlobalShare = 0.1, kNoise = 100.0;  // of the covariance
constexpr double kAlike = 5.0;  // distance of two colours, in deviations squared, that says little
constexpr float kSureAlpha = 0.95f;
constexpr int kSums = 9;  // of colours and their products
constexpr int kBlockRows = 64;

// The six different products of three channels.
constexpr int kPairs[6][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 1}, {1, 2}, {2, 2}};

int cellSize(const Shot& shot) {
    return std::max(2, shot.px(kCell));
}

// Sums of the sure pixels' colours and products in one row of cells, over all of a cell's pixels.
void sumColors(const Shot& shot, const Mask& sure, int size, int row, Cells& cells) {
    const auto width = static_cast<std::size_t>(shot.width);
    std::vector<float> lines(4 * width), sums((kSums + 1) * width);
    const int first = row * size, last = std::min(first + size, shot.height);
    float *const r = lines.data(), *const g = r + width, *const b = g + width, *const weight = b + width;
    const float* const channels[3] = {r, g, b};
    for (int y = first; y < last; ++y) {
        loadColors(shot, y, r, g, b);
        sure.unpack(y, weight);
        for (std::size_t pair = 0; pair < 6; ++pair) {
            const float *const one = channels[kPairs[pair][0]], *const other = channels[kPairs[pair][1]];
            float* const sum = sums.data() + (3 + pair) * width;
            for (std::size_t x = 0; x < width; ++x)
                sum[x] += weight[x] * one[x] * other[x];
        }
        for (std::size_t c = 0; c < 3; ++c) {
            float* const sum = sums.data() + c * width;
            for (std::size_t x = 0; x < width; ++x)
                sum[x] += weight[x] * channels[c][x];
        }
        float* const sum = sums.data() + kSums * width;
        for (std::size_t x = 0; x < width; ++x)
            sum[x] += weight[x];
    }
    for (int plane = 0; plane <= kSums; ++plane) {
        const float* const from = sums.data() + static_cast<std::size_t>(plane) * width;
        for (int c = 0; c < cells.columns(); ++c) {
            const int begin = c * size, end = std::min(begin + size, shot.width);
            float all = 0.0f;
            for (int x = begin; x < end; ++x)
                all += from[x];
            cells.row(row, plane)[c] = all / static_cast<float>((end - begin) * (last - first));
        }
    }
}

using Vector3 = std::array<double, 3>;
using Symmetric3 = std::array<double, 6>;  // as kPairs

Symmetric3 covariance(const std::array<double, kSums>& means) {
    Symmetric3 result;
    for (std::size_t i = 0; i < 6; ++i)
        result[i] = means[3 + i] -
                    means[static_cast<std::size_t>(kPairs[i][0])] * means[static_cast<std::size_t>(kPairs[i][1])];
    return result;
}

// Solves s x = d by the adjoint; s is positive definite.
Vector3 solve(const Symmetric3& s, const Vector3& d) {
    const auto [a, b, c, e, f, i] = s;
    const double aa = e * i - f * f, ab = c * f - b * i, ac = b * f - c * e;
    const double bb = a * i - c * c, bc = b * c - a * f, cc = a * e - b * b;
    const double whole = a * aa + b * ab + c * ac;
    return {(aa * d[0] + ab * d[1] + ac * d[2]) / whole, (ab * d[0] + bb * d[1] + bc * d[2]) / whole,
            (ac * d[0] + bc * d[1] + cc * d[2]) / whole};
}

std::array<double, kSums> overallMeans(const Cells& cells) {
    const double weight = std::max(cells.sum(kSums), 1e-6);
    std::array<double, kSums> means;
    for (int i = 0; i < kSums; ++i)
        means[static_cast<std::size_t>(i)] = cells.sum(i) / weight;
    return means;
}

}  // namespace

Separation separate(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& sure) {
    Separation result;
    const int size = result.size = cellSize(shot);
    Cells cells = Cells::over(shot.width, shot.height, size, kSums + 1);
    runRows(context, cells.rows(), 2, [&](int row) { sumColors(shot, sure, size, row, cells); });
    const Symmetric3 overall = covariance(overallMeans(cells));
    const Cells means = pushPull(context, cells);
    result.weights = Cells(cells.columns(), cells.rows(), 3);
    result.subject = result.weights;
    result.certainty = Cells(cells.columns(), cells.rows(), 1);
    runRows(context, cells.rows(), 4, [&](int row) {
        std::vector<float> screen(3 * static_cast<std::size_t>(cells.columns()));
        // The plate at the middle of each cell.
        CellRows plateRows(plate.colors, kPlateCell);
        std::vector<float> line(static_cast<std::size_t>(shot.width));
        for (int plane = 0; plane < 3; ++plane) {
            plateRows.fill(std::min(row * size + size / 2, shot.height - 1), plane, shot.width, line.data());
            for (int c = 0; c < cells.columns(); ++c)
                screen[static_cast<std::size_t>(plane * cells.columns() + c)] =
                    line[static_cast<std::size_t>(std::min(c * size + size / 2, shot.width - 1))];
        }
        for (int c = 0; c < cells.columns(); ++c) {
            std::array<double, kSums> mean;
            for (int i = 0; i < kSums; ++i)
                mean[static_cast<std::size_t>(i)] = static_cast<double>(means.row(row, i)[c]);
            Symmetric3 s = covariance(mean);
            for (std::size_t i = 0; i < 6; ++i)
                s[i] = (1.0 - kGlobalShare) * s[i] + kGlobalShare * overall[i] +
                       (kPairs[i][0] == kPairs[i][1] ? kNoise : 0.0);
            Vector3 apart;
            for (std::size_t i = 0; i < 3; ++i)
                apart[i] = mean[i] -
                           static_cast<double>(
                               screen[i * static_cast<std::size_t>(cells.columns()) + static_cast<std::size_t>(c)]);
            const Vector3 y = solve(s, apart);
            const double squared = std::max(y[0] * apart[0] + y[1] * apart[1] + y[2] * apart[2], 1e-6);
            for (int i = 0; i < 3; ++i) {
                result.weights.row(row, i)[c] = static_cast<float>(y[static_cast<std::size_t>(i)] / squared);
                result.subject.row(row, i)[c] = static_cast<float>(mean[static_cast<std::size_t>(i)]);
            }
            result.certainty.row(row, 0)[c] =
                static_cast<float>(squared * squared / (squared * squared + kAlike * kAlike));
        }
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

FitRows::FitRows(const Shot& shot, const Plate& plate, const Separation& separation, const Cells& nearer)
    : width_(shot.width),
      start_(shot, plate),
      weights_(separation.weights, separation.size),
      certainty_(separation.certainty, separation.size),
      nearer_(nearer, kNearCell),
      lines_(5 * static_cast<std::size_t>(shot.width)) {}

void FitRows::fill(int y, float* alpha) {
    start_.go(y);
    for (int i = 0; i < 3; ++i)
        weights_.fill(y, i, width_, line(static_cast<std::size_t>(i)));
    certainty_.fill(y, 0, width_, line(3));
    nearer_.fill(y, 0, width_, line(4));
    start_.alpha(alpha);
    const float *const r = start_.r(), *const g = start_.g(), *const b = start_.b();
    const float *const pr = start_.plateR(), *const pg = start_.plateG(), *const pb = start_.plateB();
    const float *const wr = line(0), *const wg = line(1), *const wb = line(2), *const sure = line(3),
                       *const near = line(4);
    for (int x = 0; x < width_; ++x) {
        const float fit = (r[x] - pr[x]) * wr[x] + (g[x] - pg[x]) * wg[x] + (b[x] - pb[x]) * wb[x];
        const float simple = std::max(std::max(alpha[x], 0.0f), near[x]);
        alpha[x] = sure[x] * fit + (1.0f - sure[x]) * simple;
    }
}

Mask surePixels(const RunContext& context, const Shot& shot, const Plate& plate, const Separation& separation,
                const Cells& nearer, const Mask& solid) {
    Mask whole(shot.width, shot.height);
    runBlocks(context, shot.height, kBlockRows, [&](int first, int last) {
        FitRows fit(shot, plate, separation, nearer);
        RowRing<1, std::function<void(int, float**)>> ring(shot.width, shot.height, 1,
                                                           [&](int y, float** planes) { fit.fill(y, planes[0]); });
        PaddedRows scratch(shot.width, 2);
        std::vector<std::uint8_t> flags(static_cast<std::size_t>(shot.width) + 8);
        float* const sums = scratch.row(1);
        for (int y = first; y < last && !(y != first && context.isSuperseded()); ++y) {
            boxSums(ring.around(y, 0, 1), 1, shot.width, scratch.row(0), sums);
            for (int x = 0; x < shot.width; ++x)
                flags[static_cast<std::size_t>(x)] = sums[x] / 9.0f > kSureAlpha;
            whole.pack(y, flags.data());
        }
    });
    Mask sure = shrunk(context, whole, 1);
    sure |= solid;
    return sure;
}

AlphaPlane fitAlpha(const RunContext& context, const Shot& shot, const Plate& plate, const Separation& separation,
                    const Cells& nearer) {
    AlphaPlane plane(static_cast<std::size_t>(shot.width) * static_cast<std::size_t>(shot.height));
    runBlocks(context, shot.height, kBlockRows, [&](int first, int last) {
        FitRows fit(shot, plate, separation, nearer);
        std::vector<float> alpha(static_cast<std::size_t>(shot.width));
        for (int y = first; y < last && !(y != first && context.isSuperseded()); ++y) {
            fit.fill(y, alpha.data());
            std::uint16_t* const to = plane.data() + static_cast<std::size_t>(y) * alpha.size();
            for (std::size_t x = 0; x < alpha.size(); ++x)
                to[x] = static_cast<std::uint16_t>(
                    static_cast<int>(std::clamp(alpha[x], 0.0f, 1.0f) * kAlphaSteps + 0.5f));
        }
    });
    return plane;
}

}  // namespace tavrin::refine
