#include "key/refine/Cells.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "key/refine/MatteLoops.h"
#include "key/refine/RowRing.h"

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

// One row of a level, from its own means and the finished coarser level.
class PullRow {
  public:
    PullRow(const Cells& level, const Cells& coarser)
        : level_(level),
          coarse_(coarser, 2, 0, level.columns()),
          padded_(level.columns(), 5),
          weight_(static_cast<std::size_t>(level.columns())),
          rest_(weight_.size()),
          sums_(weight_.size()),
          far_(weight_.size()) {}

    void work(int y, Cells& to) {
        const int columns = level_.columns(), values = level_.planes() - 1;
        boxSums(y, values, sums_.data());
        matteLoops().shares(sums_.data(), columns, weight_.data(), rest_.data());
        for (int plane = 0; plane < values; ++plane) {
            boxSums(y, plane, sums_.data());
            coarse_.fill(y, plane, far_.data());
            matteLoops().blend(sums_.data(), weight_.data(), far_.data(), rest_.data(), columns, to.row(y, plane));
        }
    }

  private:
    void boxSums(int y, int plane, float* to) {
        const float* rows[3];
        for (int i = -1; i <= 1; ++i) {
            float* const row = padded_.row(i + 1);
            std::copy_n(level_.row(mirrored(y + i, level_.rows()), plane), level_.columns(), row);
            padded_.pad(i + 1, 1);
            rows[i + 1] = row;
        }
        rowLoops().boxSums(rows, 1, level_.columns(), padded_.row(3), to);
    }

    const Cells& level_;
    CellRows coarse_;
    PaddedRows padded_;
    std::vector<float> weight_, rest_, sums_, far_;
};

// One cell of a value everywhere: the mean of all.
Cells meanOf(const Cells& cells) {
    Cells mean(1, 1, cells.planes() - 1);
    const double weight = std::max(cells.sum(cells.planes() - 1), 1e-6);
    for (int plane = 0; plane < mean.planes(); ++plane)
        *mean.row(0, plane) = static_cast<float>(cells.sum(plane) / weight);
    return mean;
}

// Set cells side by side, by their places in scan order.
struct Run {
    int begin, end;
    std::size_t joined;  // an earlier run of the same part, or itself
};

// The first run of its part, as far as the parts are joined.
std::size_t firstOf(const std::vector<Run>& runs, std::size_t i) {
    while (runs[i].joined != i)
        i = runs[i].joined;
    return i;
}

// The runs of the rows, each joined to those that touch it above; `slant` is 1 where corners touch too.
std::vector<Run> joinedRuns(int columns, int rows, const std::vector<std::uint8_t>& set, int slant) {
    std::vector<Run> runs;
    const auto isSet = [&](int at) { return set[static_cast<std::size_t>(at)] != 0; };
    std::size_t above = 0;
    for (int y = 0; y < rows; ++y) {
        const std::size_t first = runs.size();
        for (int at = y * columns, end = at + columns; at < end; ++at) {
            if (!isSet(at)) continue;
            const int begin = at;
            while (at < end && isSet(at))
                ++at;
            const std::size_t own = runs.size();
            runs.push_back({begin, at, own});
            while (above < first && runs[above].end + columns + slant <= begin)
                ++above;
            for (std::size_t i = above; i < first && runs[i].begin + columns < at + slant; ++i) {
                const std::size_t one = firstOf(runs, i), other = firstOf(runs, own);
                runs[std::max(one, other)].joined = std::min(one, other);
            }
        }
        above = first;
    }
    return runs;
}

}  // namespace

Cells::Cells(int columns, int rows, int planes)
    : columns_(columns), rows_(rows), planes_(planes), values_(count() * static_cast<std::size_t>(planes)) {}

Cells Cells::over(int width, int height, int size, int planes) {
    return Cells((width + size - 1) / size, (height + size - 1) / size, planes);
}

double Cells::sum(int plane) const {
    double sum = 0.0;
    const float* const values = row(0, plane);
    for (std::size_t i = 0; i < count(); ++i)
        sum += static_cast<double>(values[i]);
    return sum;
}

// The strip begins in the middle of a segment between two cells, and may begin or end beyond them all.
CellRows::CellRows(const Cells& cells, int size, int left, int width)
    : cells_(cells),
      size_(size),
      width_(width),
      spreadRows_(2 * static_cast<std::size_t>(cells.planes()), -1),
      shares_(static_cast<std::size_t>(size + 3)) {
    const int start = left - size / 2 + size;  // from the segment before the first cell's middle on
    first_ = start / size - 1;
    before_ = start % size;
    count_ = (before_ + width + size - 1) / size;
    line_.resize(static_cast<std::size_t>(count_) + 2);
    rows_.resize(spreadRows_.size() * static_cast<std::size_t>(count_ * size + 8));
    for (int i = 0; i < size; ++i)
        shares_[static_cast<std::size_t>(i)] =
            (static_cast<float>(size / 2 + i) + 0.5f) / static_cast<float>(size) - 0.5f;
}

// A row of cells as a row of pixels.
const float* CellRows::spread(int cellRow, int plane) {
    const auto slot = static_cast<std::size_t>(2 * plane + (cellRow & 1));
    float* const to = rows_.data() + slot * static_cast<std::size_t>(count_ * size_ + 8);
    if (std::exchange(spreadRows_[slot], cellRow) == cellRow) return to + before_;
    // Cells first_ to first_ + count_, of which the first and the last may not be there.
    const float* cells = cells_.row(cellRow, plane) + first_;
    if (first_ < 0 || first_ + count_ >= cells_.columns()) {
        for (int i = 0; i <= count_; ++i)
            line_[static_cast<std::size_t>(i)] = cells[std::clamp(i, -first_, cells_.columns() - 1 - first_)];
        cells = line_.data();
    }
    rowLoops().spread(cells, shares_.data(), size_, count_, to);
    return to + before_;
}

void CellRows::fill(int y, int plane, float* to) {
    const int next = (y - size_ / 2 + size_) / size_, last = cells_.rows() - 1;
    const int above = std::clamp(next - 1, 0, last), below = std::min(next, last);
    const float share = shares_[static_cast<std::size_t>((y - size_ / 2 + size_) % size_)];
    rowLoops().mix(spread(above, plane), spread(below, plane), share, width_, to);
}

CellPoints::CellPoints(const Cells& cells, int size, int width, int step) : cells_(cells), size_(size) {
    for (int x = 0; x < width; x += step)
        columns_.push_back(place(std::min(x + step / 2, width - 1), cells.columns()));
}

CellPoints::Point CellPoints::place(int at, int count) const {
    const int next = (at - size_ / 2 + size_) / size_, beyond = (at - size_ / 2 + size_) % size_;
    const auto size = static_cast<float>(size_);
    return {std::clamp(next - 1, 0, count - 1), std::min(next, count - 1),
            (static_cast<float>(size_ / 2 + beyond) + 0.5f) / size - 0.5f};
}

void CellPoints::fill(int y, int plane, float* to) const {
    const Point row = place(y, cells_.rows());
    const float *const above = cells_.row(row.before, plane), *const below = cells_.row(row.after, plane);
    const auto along = [](const float* line, const Point& at) {
        return line[at.before] + (line[at.after] - line[at.before]) * at.share;
    };
    for (const Point& column : columns_) {
        const float upper = along(above, column);
        *to++ = upper + (along(below, column) - upper) * row.share;
    }
}

Cells pushPull(const RunContext& context, const Cells& cells) {
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
            PullRow row(own, filled);
            for (int y = first; y < last; ++y)
                row.work(y, next);
        });
        filled = std::move(next);
    }
    return filled;
}

Cells sharesOf(const RunContext& context, const Mask& mask, int size) {
    Cells cells = Cells::over(mask.width(), mask.height(), size, 1);
    runRows(context, cells.rows(), 4, [&](int row) {
        std::vector<int> counts(static_cast<std::size_t>(cells.columns()));
        const int first = row * size, last = std::min(first + size, mask.height());
        for (int y = first; y < last; ++y) {
            rowLoops().countBits(mask.row(y), size, mask.width(), counts.data());
        }
        for (int c = 0; c < cells.columns(); ++c) {
            const int pixels = (std::min((c + 1) * size, mask.width()) - c * size) * (last - first);
            cells.row(row, 0)[c] =
                static_cast<float>(counts[static_cast<std::size_t>(c)]) / static_cast<float>(pixels);
        }
    });
    return cells;
}

Mask maskOf(const RunContext& context, int width, int height, int size, const std::function<bool(int, int)>& isSet) {
    Mask mask(width, height);
    const Cells grid = Cells::over(width, height, size, 0);
    runRows(context, grid.rows(), 4, [&](int row) {
        std::uint64_t* const first = mask.row(row * size);
        for (int c = 0; c < grid.columns(); ++c) {
            if (!isSet(c, row)) continue;
            for (int x = c * size, end = std::min(x + size, width); x < end; ++x)
                first[x / 64] |= std::uint64_t{1} << (x % 64);
        }
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

Cells least5(const Cells& cells) {
    Cells result(cells.columns(), cells.rows(), 1);
    for (int y = 0; y < cells.rows(); ++y) {
        for (int x = 0; x < cells.columns(); ++x) {
            float least = cells.row(y, 0)[x];
            for (int j = std::max(y - 2, 0); j <= std::min(y + 2, cells.rows() - 1); ++j) {
                const float* const row = cells.row(j, 0);
                for (int i = std::max(x - 2, 0); i <= std::min(x + 2, cells.columns() - 1); ++i)
                    least = std::min(least, row[i]);
            }
            result.row(y, 0)[x] = least;
        }
    }
    return result;
}

Parts findParts(int columns, int rows, const std::vector<std::uint8_t>& set, Neighbours neighbours) {
    const std::vector<Run> runs = joinedRuns(columns, rows, set, neighbours == Neighbours::eight ? 1 : 0);
    Parts parts;
    parts.labels.resize(set.size());
    std::vector<int> numbers(runs.size());  // of the parts whose first run it is
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const std::size_t first = firstOf(runs, i);
        if (first == i) numbers[i] = ++parts.count;
        std::fill(parts.labels.begin() + runs[i].begin, parts.labels.begin() + runs[i].end, numbers[first]);
    }
    return parts;
}

}  // namespace tavrin::refine
