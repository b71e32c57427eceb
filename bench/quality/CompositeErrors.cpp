#include "quality/CompositeErrors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "quality/AlphaErrors.h"
#include "quality/ColorDifference.h"

namespace tavrin::quality {

namespace {

using Color = std::array<double, 3>;

/// The screen's colour all over the picture, from cells of 16 x 16 pixels: the mean of the cell's pure screen pixels.
/// A cell without any takes the mean of its neighbours, ring by ring inward.
class ScreenColors {
  public:
    ScreenColors(const std::uint8_t* source, const QImage& truth)
        : columns_((truth.width() + kCell - 1) / kCell),
          rows_((truth.height() + kCell - 1) / kCell),
          cells_(static_cast<std::size_t>(columns_ * rows_)) {
        gather(source, truth);
        while (fillRing()) {
        }
    }

    /// Bilinear between the middles of the cells.
    Color at(int x, int y) const {
        const double fx = std::clamp((x + 0.5) / kCell - 0.5, 0.0, columns_ - 1.0);
        const double fy = std::clamp((y + 0.5) / kCell - 0.5, 0.0, rows_ - 1.0);
        const int x0 = static_cast<int>(fx), y0 = static_cast<int>(fy);
        const int x1 = std::min(x0 + 1, columns_ - 1), y1 = std::min(y0 + 1, rows_ - 1);
        const double tx = fx - x0, ty = fy - y0;
        Color color;
        for (std::size_t c = 0; c < 3; ++c) {
            const double upper = cell(x0, y0).color[c] * (1.0 - tx) + cell(x1, y0).color[c] * tx;
            const double lower = cell(x0, y1).color[c] * (1.0 - tx) + cell(x1, y1).color[c] * tx;
            color[c] = upper * (1.0 - ty) + lower * ty;
        }
        return color;
    }

  private:
    static constexpr int kCell = 16;
    static constexpr double kFewest = 4.0;  // pixels that make a cell's mean worth having

    struct Cell {
        Color color{};  // a sum until `count` pixels have been averaged
        double count = 0.0;
    };

    const Cell& cell(int column, int row) const { return cells_[static_cast<std::size_t>(row * columns_ + column)]; }

    void gather(const std::uint8_t* source, const QImage& truth) {
        for (int y = 0; y < truth.height(); ++y) {
            const std::uint8_t* alpha = truth.constScanLine(y);
            for (int x = 0; x < truth.width(); ++x, source += 4) {
                if (alpha[x] != 0) continue;
                Cell& cell = cells_[static_cast<std::size_t>(y / kCell * columns_ + x / kCell)];
                for (std::size_t c = 0; c < 3; ++c)
                    cell.color[c] += source[c];
                cell.count += 1.0;
            }
        }
        for (Cell& cell : cells_)
            finish(cell, kFewest);
    }

    static void finish(Cell& cell, double fewest) {
        if (cell.count < fewest) {
            cell = Cell();
            return;
        }
        for (double& channel : cell.color)
            channel /= cell.count;
        cell.count = 1.0;
    }

    /// @return whether a cell was filled
    bool fillRing() {
        const std::vector<Cell> before = cells_;
        bool filled = false;
        for (int row = 0; row < rows_; ++row) {
            for (int column = 0; column < columns_; ++column) {
                Cell& cell = cells_[static_cast<std::size_t>(row * columns_ + column)];
                if (cell.count > 0.0) continue;
                addNeighbours(before, column, row, cell);
                finish(cell, 1.0);
                filled = filled || cell.count > 0.0;
            }
        }
        return filled;
    }

    void addNeighbours(const std::vector<Cell>& before, int column, int row, Cell& sum) const {
        for (int y = std::max(row - 1, 0); y <= std::min(row + 1, rows_ - 1); ++y) {
            for (int x = std::max(column - 1, 0); x <= std::min(column + 1, columns_ - 1); ++x) {
                const Cell& other = before[static_cast<std::size_t>(y * columns_ + x)];
                if (other.count == 0.0) continue;
                for (std::size_t c = 0; c < 3; ++c)
                    sum.color[c] += other.color[c];
                sum.count += 1.0;
            }
        }
    }

    int columns_, rows_;
    std::vector<Cell> cells_;
};

Color idealColor(const Composite& at, double alpha, const Color& screen) {
    Color ideal;
    for (std::size_t c = 0; c < 3; ++c) {
        const double mixed = at.subject ? alpha * at.subject[c] + (1.0 - alpha) * at.background[c]
                                        : at.source[c] + (1.0 - alpha) * (at.background[c] - screen[c]);
        ideal[c] = std::clamp(mixed, 0.0, 255.0);
    }
    return ideal;
}

/// Squared distance over three channels.
double squaredError(const Color& one, const Color& other) {
    double sum = 0.0;
    for (std::size_t c = 0; c < 3; ++c)
        sum += (one[c] - other[c]) * (one[c] - other[c]);
    return sum;
}

double rootMean(double sum, double pixels) {
    return pixels > 0.0 ? std::sqrt(sum / (3.0 * pixels)) : 0.0;
}

}  // namespace

double CompositeErrors::psnrEdges() const {
    return edges > 0.0 ? std::min(20.0 * std::log10(255.0 / edges), 99.0) : 99.0;
}

CompositeErrors measureComposite(const Composite& composite, const QImage& truth) {
    const ScreenColors screen(composite.source, truth);
    const std::vector<std::uint8_t> near = nearEdges(truth);
    double all = 0.0, edges = 0.0, colors = 0.0, edgePixels = 0.0;
    std::size_t i = 0;
    for (int y = 0; y < truth.height(); ++y) {
        const std::uint8_t* alpha = truth.constScanLine(y);
        for (int x = 0; x < truth.width(); ++x, ++i) {
            const Composite at = {composite.source + 4 * i, composite.background + 4 * i, composite.result + 4 * i,
                                  composite.subject ? composite.subject + 4 * i : nullptr};
            const Color ideal = idealColor(at, alpha[x] / 255.0, screen.at(x, y));
            const Color made = {double(at.result[0]), double(at.result[1]), double(at.result[2])};
            const double error = squaredError(made, ideal);
            all += error;
            if (!near[i]) continue;
            edges += error;
            colors += colorDifference(labOf(made), labOf(ideal));
            edgePixels += 1.0;
        }
    }
    return {rootMean(all, static_cast<double>(i)), rootMean(edges, edgePixels),
            edgePixels > 0.0 ? colors / edgePixels : 0.0};
}

}  // namespace tavrin::quality
