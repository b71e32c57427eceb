#include "key/refine/grid/Cells.h"

#include <algorithm>
#include <utility>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/CellRows.h"
#include "key/refine/grid/MatteLoops.h"
#include "key/refine/grid/RowRing.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr int kFewCells = 2;
constexpr int kGrainRows = 16;

// Means of 2 x 2 cells; of those that are there at the right and lower end.
Cells halved(const RunContext& context, const Cells& cells) {
    Cells half((cells.columns() + 1) / 2, (cells.rows() + 1) / 2, cells.planes());
    runRows(context, half.rows(), kGrainRows, [&](int y) {
        for (int plane = 0; plane < cells.planes(); ++plane) {
            const float* const upper = cells.row(2 * y, plane);
            const float* const lower = cells.row(std::min(2 * y + 1, cells.rows() - 1), plane);
            float* const to = half.row(y, plane);
            matteLoops().halve(upper, lower, cells.columns() / 2, to);
            const int last = cells.columns() - 1;
            if (cells.columns() % 2 != 0) to[last / 2] = (upper[last] + lower[last]) * 0.5f;
        }
    });
    return half;
}

// Rows of some columns of a level, from its own means and the finished coarser level.
class PullRow {
  public:
    PullRow(const Cells& level, const Cells& coarser, int left, int width)
        : level_(level),
          left_(left),
          width_(width),
          coarse_(coarser, 2, left, width),
          padded_(width, 4),
          lines_(4 * static_cast<std::size_t>(width)) {}

    void work(int y, Cells& to) {
        const int values = level_.planes() - 1;
        float *const weight = line(0), *const rest = line(1), *const sums = line(2), *const far = line(3);
        boxSums(y, values, sums);
        matteLoops().shares(sums, width_, weight, rest);
        for (int plane = 0; plane < values; ++plane) {
            boxSums(y, plane, sums);
            coarse_.fill(y, plane, far);
            matteLoops().blend(sums, weight, far, rest, width_, to.row(y, plane) + left_);
        }
    }

  private:
    float* line(std::size_t i) { return lines_.data() + i * static_cast<std::size_t>(width_); }

    void boxSums(int y, int plane, float* to) {
        const int columns = level_.columns(), first = std::max(left_ - 1, 0),
                  last = std::min(left_ + width_ + 1, columns);
        const float* rows[3];
        for (int i = -1; i <= 1; ++i) {
            float* const row = padded_.row(i + 1);
            const float* const from = level_.row(mirrored(y + i, level_.rows()), plane);
            std::copy(from + first, from + last, row + (first - left_));
            row[-1] = from[mirrored(left_ - 1, columns)];
            row[width_] = from[mirrored(left_ + width_, columns)];
            rows[i + 1] = row;
        }
        sumLoops().boxSums(rows, 1, width_, padded_.row(3), to);
    }

    const Cells& level_;
    int left_, width_;
    CellRows coarse_;
    PaddedRows padded_;
    std::vector<float> lines_;
};

// One cell of a value everywhere: the mean of all.
Cells meanOf(const Cells& cells) {
    Cells mean(1, 1, cells.planes() - 1);
    const std::vector<double> sums = cells.sums();
    const double weight = std::max(sums.back(), 1e-6);
    for (int plane = 0; plane < mean.planes(); ++plane)
        *mean.row(0, plane) = static_cast<float>(sums[static_cast<std::size_t>(plane)] / weight);
    return mean;
}

}  // namespace

Cells::Cells(int columns, int rows, int planes)
    : columns_(columns), rows_(rows), planes_(planes), values_(count() * static_cast<std::size_t>(planes)) {}

Cells Cells::over(int width, int height, int size, int planes) {
    return Cells((width + size - 1) / size, (height + size - 1) / size, planes);
}

// Side by side: each sum waits for its last addition.
std::vector<double> Cells::sums() const {
    std::vector<double> sums(static_cast<std::size_t>(planes_));
    for (std::size_t i = 0; i < count(); ++i) {
        for (std::size_t plane = 0; plane < sums.size(); ++plane)
            sums[plane] += static_cast<double>(values_[plane * count() + i]);
    }
    return sums;
}

Cells pushPull(const RunContext& context, const Cells& cells, const Mask& wanted) {
    std::vector<Cells> coarser;
    const auto level = [&](std::size_t i) -> const Cells& { return i == 0 ? cells : coarser[i - 1]; };
    while (std::min(level(coarser.size()).columns(), level(coarser.size()).rows()) > kFewCells) {
        Cells half = halved(context, level(coarser.size()));
        coarser.push_back(std::move(half));
    }
    Cells filled = meanOf(level(coarser.size()));
    for (std::size_t i = coarser.size() + 1; i-- > 0;) {
        const Cells& own = level(i);
        Cells next(own.columns(), own.rows(), own.planes() - 1);
        runRowRanges(context, own.rows(), kGrainRows, [&](int first, int last) {
            const auto work = [&](int left, int right) {
                PullRow row(own, filled, left, right - left);
                for (int y = first; y < last; ++y)
                    row.work(y, next);
            };
            // The finest level is most of the work.
            i == 0 ? forColumns(wanted, first, last, work) : work(0, own.columns());
        });
        filled = std::move(next);
    }
    return filled;
}

Cells pushPull(const RunContext& context, const Cells& cells) {
    return pushPull(context, cells, Mask(cells.columns(), cells.rows()).inverted());
}

Cells sharesOf(const RunContext& context, const Mask& mask, int size) {
    Cells cells = Cells::over(mask.width(), mask.height(), size, 1);
    runRows(context, cells.rows(), 4, [&](int row) {
        std::vector<int> counts(static_cast<std::size_t>(cells.columns()));
        const int first = row * size, last = std::min(first + size, mask.height());
        for (int y = first; y < last; ++y) {
            sumLoops().countBits(mask.row(y), size, mask.width(), counts.data());
        }
        const int whole = mask.width() / size, rest = mask.width() % size;
        const auto pixels = static_cast<float>(size * (last - first));
        float* const to = cells.row(row, 0);
        for (int c = 0; c < whole; ++c)
            to[c] = static_cast<float>(counts[static_cast<std::size_t>(c)]) / pixels;
        if (rest > 0) to[whole] = static_cast<float>(counts.back()) / static_cast<float>(rest * (last - first));
    });
    return cells;
}

Mask maskOf(const RunContext& context, int width, int height, int size, const std::function<bool(int, int)>& isSet) {
    Mask mask(width, height);
    const Cells grid = Cells::over(width, height, size, 0);
    runRows(context, grid.rows(), 4, [&](int row) {
        for (int c = 0; c < grid.columns(); ++c) {
            if (isSet(c, row)) mask.set(row * size, c * size, std::min((c + 1) * size, width));
        }
        const std::uint64_t* const first = mask.row(row * size);
        for (int y = row * size + 1; y < std::min((row + 1) * size, height); ++y)
            std::copy_n(first, mask.words(), mask.row(y));
    });
    return mask;
}

Cells blurred(const RunContext& context, const Cells& cells, double reach) {
    const int whole = static_cast<int>(reach), columns = cells.columns();
    const auto rest = static_cast<float>(reach - whole);
    // `line(k)` is what lies k cells beyond.
    const auto blur = [&](const auto& line, float* to) {
        const float *const before = line(-whole - 1), *const after = line(whole + 1);
        for (int x = 0; x < columns; ++x)
            to[x] = rest * (before[x] + after[x]);
        for (int k = -whole; k <= whole; ++k) {
            const float* const from = line(k);
            for (int x = 0; x < columns; ++x)
                to[x] += from[x];
        }
        for (int x = 0; x < columns; ++x)
            to[x] /= static_cast<float>(2 * whole + 1) + 2.0f * rest;
    };
    Cells across(columns, cells.rows(), 1), result(across);
    runRowRanges(context, cells.rows(), kGrainRows, [&](int first, int last) {
        PaddedRows padded(columns, 1);
        for (int y = first; y < last; ++y) {
            std::copy_n(cells.row(y, 0), columns, padded.row(0));
            padded.pad(0, whole + 1);
            blur([&](int k) { return padded.row(0) + k; }, across.row(y, 0));
        }
    });
    runRows(context, cells.rows(), kGrainRows, [&](int y) {
        blur([&](int k) { return across.row(mirrored(y + k, cells.rows()), 0); }, result.row(y, 0));
    });
    return result;
}

Cells least5(const RunContext& context, const Cells& cells) {
    const int columns = cells.columns();
    // `line(k)` is what lies k cells beyond.
    const auto least = [&](const auto& line, float* to) {
        const float *const a = line(-2), *const b = line(-1), *const c = line(0), *const d = line(1),
                           *const e = line(2);
        for (int x = 0; x < columns; ++x)
            to[x] = std::min(std::min(std::min(a[x], b[x]), std::min(d[x], e[x])), c[x]);
    };
    Cells across(columns, cells.rows(), 1), result(across);
    runRowRanges(context, cells.rows(), kGrainRows, [&](int first, int last) {
        PaddedRows padded(columns, 1);
        for (int y = first; y < last; ++y) {
            std::copy_n(cells.row(y, 0), columns, padded.row(0));
            padded.pad(0, 2);
            least([&](int k) { return padded.row(0) + k; }, across.row(y, 0));
        }
    });
    runRows(context, cells.rows(), kGrainRows, [&](int y) {
        least([&](int k) { return across.row(mirrored(y + k, cells.rows()), 0); }, result.row(y, 0));
    });
    return result;
}

}  // namespace tavrin::refine
