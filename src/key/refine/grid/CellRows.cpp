#include "key/refine/grid/CellRows.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tavrin::refine {

// The strip begins in the middle of a segment between two cells, and may begin or end beyond them all.
CellRows::CellRows(const Cells& cells, int size, int left, int width)
    : cells_(cells),
      size_(size),
      width_(width),
      spreadRows_(2 * static_cast<std::size_t>(cells.planes()), -1),
      shares_(static_cast<std::size_t>(size + kSpreadBeyond)) {
    const int start = left - size / 2 + size;  // from the segment before the first cell's middle on
    first_ = start / size - 1;
    before_ = start % size;
    count_ = (before_ + width + size - 1) / size;
    line_.resize(static_cast<std::size_t>(count_ + 1 + kSpreadBeyond));
    rows_ = std::make_unique_for_overwrite<float[]>(spreadRows_.size() * length());
    for (int i = 0; i < size; ++i)
        shares_[static_cast<std::size_t>(i)] =
            (static_cast<float>(size / 2 + i) + 0.5f) / static_cast<float>(size) - 0.5f;
}

// A row of cells as a row of pixels.
const float* CellRows::spread(int cellRow, int plane) {
    const auto slot = static_cast<std::size_t>(2 * plane + (cellRow & 1));
    float* const to = rows_.get() + slot * length();
    if (std::exchange(spreadRows_[slot], cellRow) == cellRow) return to + before_;
    // Cells first_ to first_ + count_, of which the first and the last may not be there.
    const float* const row = cells_.row(cellRow, plane);
    const int begin = std::clamp(-first_, 0, count_ + 1), end = std::clamp(cells_.columns() - first_, 0, count_ + 1);
    std::fill_n(line_.begin(), begin, row[0]);
    if (begin < end) std::copy(row + first_ + begin, row + first_ + end, line_.begin() + begin);
    std::fill(line_.begin() + end, line_.begin() + count_ + 1, row[cells_.columns() - 1]);
    rowLoops().spread(line_.data(), shares_.data(), size_, count_, to);
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

void CellPoints::fill(int y, int plane, int first, int last, float* to) const {
    const Point row = place(y, cells_.rows());
    const float *const above = cells_.row(row.before, plane), *const below = cells_.row(row.after, plane);
    const auto along = [](const float* line, const Point& at) {
        return line[at.before] + (line[at.after] - line[at.before]) * at.share;
    };
    for (int i = first; i < last; ++i) {
        const Point& column = columns_[static_cast<std::size_t>(i)];
        const float upper = along(above, column);
        *to++ = upper + (along(below, column) - upper) * row.share;
    }
}

}  // namespace tavrin::refine
