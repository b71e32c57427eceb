#include "key/refine/subject/Marks.h"

#include <algorithm>
#include <climits>

#include "key/refine/grid/Parts.h"
#include "key/refine/grid/RowLoops.h"
#include "key/refine/screen/CoverMask.h"

namespace tavrin::refine {

namespace {

constexpr double kMarkCell = 8.0, kMostMark = 0.004;  // of all cells
constexpr float kOtherCover = 0.25f;                  // the least alpha of what has another hue than the screen
constexpr double kFill = 0.45;                        // of the box around a mark
constexpr int kMostLength = 2;                        // in widths
constexpr float kMostOther = 0.02f;                   // of a mark's pixels, for the colours of a JPEG file

// A part of the open and solid cells.
struct Mark {
    int cells = 0, left = INT_MAX, right = 0, top = INT_MAX, bottom = 0;
    bool subject = false;  // has something that is surely subject
    float pixels = 0.0f, other = 0.0f;

    void add(int column, int row) {
        ++cells;
        left = std::min(left, column);
        right = std::max(right, column);
        top = std::min(top, row);
        bottom = std::max(bottom, row);
    }
    // What comes into the picture at a side goes on beyond it.
    bool isWithin(int columns, int rows) const {
        return left > 0 && top > 0 && right < columns - 1 && bottom < rows - 1;
    }
    // A lone hair is long and thin, whichever way it lies.
    bool isCompact() const {
        const int wide = right - left + 1, high = bottom - top + 1;
        return cells >= kFill * wide * high && std::max(wide, high) <= kMostLength * std::min(wide, high);
    }
};

std::vector<Mark> listParts(const Parts& parts, const Cells& subject) {
    std::vector<Mark> marks(static_cast<std::size_t>(parts.count) + 1);
    for (std::size_t i = 0; i < subject.count(); ++i) {
        Mark& mark = marks[static_cast<std::size_t>(parts.labels[i])];
        mark.add(static_cast<int>(i) % subject.columns(), static_cast<int>(i) / subject.columns());
        mark.subject |= subject.row(0, 0)[i] > 0.0f;
    }
    marks[0].subject = true;  // what is no part
    return marks;
}

}  // namespace

Mask findMarks(const RunContext& context, const Shot& shot, const Plate& plate, const Core& core, const Mask& open) {
    const int size = shot.cell(kMarkCell);
    const Cells shares = sharesOf(context, open, size), subject = sharesOf(context, core.sure, size);
    std::vector<std::uint8_t> set(shares.count());
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = shares.row(0, 0)[i] > 0.0f || subject.row(0, 0)[i] > 0.0f;
    const Parts parts = findParts(shares.columns(), shares.rows(), set, Neighbours::eight);
    std::vector<Mark> marks = listParts(parts, subject);
    const auto markAt = [&](std::size_t cell) -> Mark& {
        return marks[static_cast<std::size_t>(parts.labels[cell])];
    };
    const double most = kMostMark * static_cast<double>(set.size());
    const auto maskOfMarks = [&](const auto& isOne) {
        Mask mask = maskOf(context, shot.width, shot.height, size, [&](int c, int row) {
            return isOne(markAt(static_cast<std::size_t>(row * shares.columns() + c)));
        });
        mask &= open;
        return mask;
    };
    const auto maybe = [&](const Mark& mark) {
        return !mark.subject && mark.cells < most && mark.isCompact() &&
               mark.isWithin(shares.columns(), shares.rows());
    };
    if (std::none_of(marks.begin(), marks.end(), maybe)) return Mask(shot.width, shot.height);
    const Mask found = maskOfMarks(maybe);
    Mask other(shot.width, shot.height);
    runAreas(context, found, [&](const Area& area) {
        maskByCover(context, shot, plate, area, {rowLoops().above, kOtherCover}, other);
    });
    other &= found;
    const Cells otherShares = sharesOf(context, other, size);
    for (std::size_t i = 0; i < set.size(); ++i) {
        markAt(i).pixels += shares.row(0, 0)[i];
        markAt(i).other += otherShares.row(0, 0)[i];
    }
    return maskOfMarks([&](const Mark& mark) { return maybe(mark) && mark.other <= kMostOther * mark.pixels; });
}

}  // namespace tavrin::refine
