#include "key/refine/screen/CellLook.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "key/refine/grid/Middle.h"

namespace tavrin::refine {

namespace {

// The means of the three channels, and of their squares together, over one row of cells.
void lookAtRow(const Shot& shot, int row, int size, Cells& cells) {
    const auto width = static_cast<std::size_t>(shot.width);
    std::vector<float> lines(7 * width);
    float* planes[7];
    for (std::size_t i = 0; i < 7; ++i)
        planes[i] = lines.data() + i * width;
    const auto [r, g, b, rs, gs, bs, squares] = planes;
    const int first = row * size, last = std::min(first + size, shot.height);
    for (int y = first; y < last; ++y) {
        loadColors({shot, 0, shot.width}, y, r, g, b);
        for (std::size_t x = 0; x < width; ++x) {
            rs[x] += r[x];
            gs[x] += g[x];
            bs[x] += b[x];
            squares[x] += r[x] * r[x] + g[x] * g[x] + b[x] * b[x];
        }
    }
    for (int c = 0; c < cells.columns(); ++c) {
        const int begin = c * size, end = std::min(begin + size, shot.width);
        for (int plane = 0; plane < 4; ++plane)
            cells.row(row, plane)[c] = std::accumulate(planes[3 + plane] + begin, planes[3 + plane] + end, 0.0f) /
                                       static_cast<float>((end - begin) * (last - first));
    }
}

}  // namespace

Cells lookAtCells(const RunContext& context, const Shot& shot, int size) {
    Cells cells = Cells::over(shot.width, shot.height, size, 4);
    runRows(context, cells.rows(), 4, [&](int row) {
        lookAtRow(shot, row, size, cells);
        float* const variances = cells.row(row, 3);
        for (int c = 0; c < cells.columns(); ++c) {
            for (int plane = 0; plane < 3; ++plane)
                variances[c] -= cells.row(row, plane)[c] * cells.row(row, plane)[c];
        }
    });
    return cells;
}

float screenVariance(const Cells& look, const Cells& shares) {
    std::vector<float> variances;
    for (std::size_t i = 0; i < look.count(); ++i) {
        if (shares.row(0, 0)[i] > kScreenCell) variances.push_back(look.row(0, 3)[i]);
    }
    return middleOf(variances);
}

}  // namespace tavrin::refine
