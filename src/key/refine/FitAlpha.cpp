#include "key/refine/FitAlpha.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "key/refine/Areas.h"
#include "key/refine/MatteLoops.h"
#include "key/refine/RowRing.h"

namespace tavrin::refine {

namespace {

constexpr double kCell = 8.0;
constexpr double kGlobalShare = 0.1, kNoise = 100.0;  // of the covariance
constexpr float kSureAlpha = 0.95f;
constexpr int kSums = 9;  // of colours and their products
constexpr int kHalo = 4;  // columns beyond an area that its windows look at

// The six different products of three channels.
constexpr int kPairs[6][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 1}, {1, 2}, {2, 2}};

// Sums of the sure pixels' colours and products, column by column.
class ColumnSums {
  public:
    ColumnSums(const Strip& strip, const Mask& sure)
        : strip_(strip),
          sure_(sure),
          length_(static_cast<std::size_t>(strip.width)),
          lines_((4 + kSums + 1) * length_) {}

    void addRow(int y) {
        float* const weight = line(3);
        const int count = strip_.width;
        loadColors(strip_, y, line(0), line(1), line(2));
        sure_.unpack(y, strip_.left, count, weight);
        for (std::size_t c = 0; c < 3; ++c)
            rowLoops().add(line(c), weight, count, sum(c));
        for (std::size_t pair = 0; pair < 6; ++pair)
            rowLoops().addProduct(line(static_cast<std::size_t>(kPairs[pair][0])),
                                  line(static_cast<std::size_t>(kPairs[pair][1])), weight, count, sum(3 + pair));
        rowLoops().add(weight, weight, count, sum(kSums));
    }

    float* sum(std::size_t i) { return line(4 + i); }

  private:
    float* line(std::size_t i) { return lines_.data() + i * length_; }

    Strip strip_;
    const Mask& sure_;
    std::size_t length_;
    std::vector<float> lines_;
};

// Adds some words of one row of cells to these, over all of a cell's pixels.
void sumColors(const Shot& shot, const Mask& sure, int size, int row, const Strip& strip, Cells& cells) {
    const int first = row * size, last = std::min(first + size, shot.height);
    ColumnSums sums(strip, sure);
    for (int y = first; y < last; ++y)
        sums.addRow(y);
    for (std::size_t plane = 0; plane <= kSums; ++plane) {
        const float* const from = sums.sum(plane);
        float* const to = cells.row(row, static_cast<int>(plane));
        for (int x = 0; x < strip.width;) {
            const int cell = (strip.left + x) / size, columns = std::min((cell + 1) * size, shot.width) - cell * size;
            const int end = std::min((cell + 1) * size - strip.left, strip.width);
            float all = 0.0f;
            for (; x < end; ++x)
                all += from[x];
            to[cell] += all / static_cast<float>(columns * (last - first));
        }
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
    const double weight = std::max(cells.sum(kSums), 1e-6);
    std::array<double, kSums> means;
    for (int i = 0; i < kSums; ++i)
        means[static_cast<std::size_t>(i)] = cells.sum(i) / weight;
    return means;
}

// The plate at the middle of each cell of a row, three planes.
std::vector<float> screenColors(const Shot& shot, const Plate& plate, int size, int row, int columns) {
    std::vector<float> colors(3 * static_cast<std::size_t>(columns)), line(static_cast<std::size_t>(shot.width));
    CellRows rows(plate.colors, kPlateCell, 0, shot.width);
    for (int plane = 0; plane < 3; ++plane) {
        rows.fill(std::min(row * size + size / 2, shot.height - 1), plane, line.data());
        for (int c = 0; c < columns; ++c)
            colors[static_cast<std::size_t>(plane * columns + c)] =
                line[static_cast<std::size_t>(std::min(c * size + size / 2, shot.width - 1))];
    }
    return colors;
}

// What is added to the covariance of every cell.
Symmetric3 commonCovariance(const Cells& cells) {
    Symmetric3 common = covariance(overallMeans(cells));
    for (std::size_t i = 0; i < 6; ++i)
        common[i] = kGlobalShare * common[i] + (kPairs[i][0] == kPairs[i][1] ? kNoise : 0.0);
    return common;
}

}  // namespace

Separation separate(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& sure) {
    Separation result;
    const int size = result.size = shot.cell(kCell);
    Cells cells = Cells::over(shot.width, shot.height, size, kSums + 1);
    runRows(context, cells.rows(), 2, [&](int row) {
        forWords(sure, row * size, std::min((row + 1) * size, shot.height), [&](int word, int words) {
            sumColors(shot, sure, size, row, {shot, word * 64, std::min(words * 64, shot.width - word * 64)}, cells);
        });
    });
    const Symmetric3 common = commonCovariance(cells);
    const Cells means = pushPull(context, cells);
    result.weights = result.subject = Cells(cells.columns(), cells.rows(), 3);
    result.certainty = Cells(cells.columns(), cells.rows(), 1);
    runRows(context, cells.rows(), 4, [&](int row) {
        const int columns = cells.columns();
        const std::vector<float> screen = screenColors(shot, plate, size, row, columns);
        const float* from[kSums];
        for (int i = 0; i < kSums; ++i)
            from[i] = means.row(row, i);
        float* const to[] = {result.weights.row(row, 0), result.weights.row(row, 1), result.weights.row(row, 2),
                             result.certainty.row(row, 0)};
        matteLoops().directions(from, {screen.data(), screen.data() + columns, screen.data() + 2 * columns},
                                common.data(), columns, to);
        for (int i = 0; i < 3; ++i)
            std::copy_n(from[i], columns, result.subject.row(row, i));
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
            rowLoops().boxSums(ring.around(y, 0, 1), 1, strip.width, scratch.row(0), scratch.row(1));
            rowLoops().above(scratch.row(1), kSureAlpha * 9.0f, strip.width, flags.data());
            whole.pack(y, area.word(), area.width(), flags.data() + (area.left - strip.left));
        }
    });
    Mask sure = shrunk(context, whole, 1);
    sure |= solid;
    return sure;
}

AlphaPlane fitAlpha(const RunContext& context, const Fit& fit, const Mask& solid, const Mask& open) {
    const auto width = static_cast<std::size_t>(fit.shot.width);
    AlphaPlane plane(width * static_cast<std::size_t>(fit.shot.height));
    runRows(context, fit.shot.height, 16, [&](int y) {
        std::uint16_t* const to = plane.data() + static_cast<std::size_t>(y) * width;
        for (std::size_t x = 0; x < width; x += 64) {
            if (solid.row(y)[x / 64] != 0) std::fill(to + x, to + std::min(x + 64, width), std::uint16_t{65535});
        }
    });
    runAreas(context, open, [&](const Area& area) {
        FitRows rows(fit, area.strip(fit.shot, 0));
        std::vector<float> alpha(static_cast<std::size_t>(area.width()));
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            rows.fill(y, alpha.data());
            matteLoops().storeAlpha(alpha.data(), area.width(),
                                    plane.data() + static_cast<std::size_t>(y) * width + area.left);
        }
    });
    return plane;
}

}  // namespace tavrin::refine
