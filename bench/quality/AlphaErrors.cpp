#include "quality/AlphaErrors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavrin::quality {

namespace {

constexpr double kScreenBelow = 0.02, kSubjectAbove = 0.98;

struct Mean {
    double sum = 0.0;
    double count = 0.0;

    void add(double value) {
        sum += value;
        count += 1.0;
    }
    double value() const { return count > 0.0 ? sum / count : 0.0; }
};

/// Sets every byte within `kEdgeReach` of a set one, along a line of `count` bytes that lie `step` apart.
void widenLine(std::uint8_t* line, int count, std::size_t step, std::vector<std::uint8_t>& before) {
    before.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        before[static_cast<std::size_t>(i)] = line[static_cast<std::size_t>(i) * step];
    int last = -kEdgeReach - 1;
    for (int i = 0, ahead = 0; i < count; ++i) {
        for (; ahead < count && ahead <= i + kEdgeReach; ++ahead) {
            if (before[static_cast<std::size_t>(ahead)]) last = ahead;
        }
        line[static_cast<std::size_t>(i) * step] = last >= i - kEdgeReach;
    }
}

constexpr int kKernelReach = 4;
using Kernel = std::array<double, 2 * kKernelReach + 1>;

/// A Gaussian and its derivative, both scaled so that the kernel of two dimensions that is their product has squares
/// that add up to 1.
struct GradientKernel {
    Kernel smooth{}, slope{};

    GradientKernel() {
        constexpr double kSigma = 1.4;
        double smoothSquares = 0.0, slopeSquares = 0.0;
        for (int i = -kKernelReach; i <= kKernelReach; ++i) {
            const auto at = static_cast<std::size_t>(i + kKernelReach);
            smooth[at] = std::exp(-i * i / (2.0 * kSigma * kSigma));
            slope[at] = i * smooth[at];
            smoothSquares += smooth[at] * smooth[at];
            slopeSquares += slope[at] * slope[at];
        }
        for (double& value : smooth)
            value /= std::sqrt(smoothSquares);
        for (double& value : slope)
            value /= std::sqrt(slopeSquares);
    }
};

/// Lengths of the gradients of a picture of one channel, 0 to 1.
std::vector<double> gradientLengths(const std::vector<double>& picture, int width, int height) {
    static const GradientKernel kernel;
    const auto at = [width](int x, int y) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    };
    std::vector<double> smooth(picture.size()), slope(picture.size()), lengths(picture.size());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int i = -kKernelReach; i <= kKernelReach; ++i) {
                const auto k = static_cast<std::size_t>(i + kKernelReach);
                const double value = picture[at(std::clamp(x + i, 0, width - 1), y)];
                smooth[at(x, y)] += kernel.smooth[k] * value;
                slope[at(x, y)] += kernel.slope[k] * value;
            }
        }
    }
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            double across = 0.0, down = 0.0;
            for (int i = -kKernelReach; i <= kKernelReach; ++i) {
                const auto k = static_cast<std::size_t>(i + kKernelReach);
                const std::size_t from = at(x, std::clamp(y + i, 0, height - 1));
                across += kernel.smooth[k] * slope[from];
                down += kernel.slope[k] * smooth[from];
            }
            lengths[at(x, y)] = std::hypot(across, down);
        }
    }
    return lengths;
}

}  // namespace

QImage readTruth(const std::string& path) {
    const QImage image(QString::fromStdString(path));
    return image.isNull() || !image.isGrayscale() ? QImage() : image.convertToFormat(QImage::Format_Grayscale8);
}

std::vector<std::uint8_t> nearEdges(const QImage& truth) {
    const int width = truth.width(), height = truth.height();
    const auto rowLength = static_cast<std::size_t>(width);
    std::vector<std::uint8_t> near(rowLength * static_cast<std::size_t>(height)), scratch;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* line = truth.constScanLine(y);
        std::uint8_t* out = near.data() + static_cast<std::size_t>(y) * rowLength;
        for (int x = 0; x < width; ++x)
            out[x] = line[x] > kScreenBelow * 255.0 && line[x] < kSubjectAbove * 255.0;
        widenLine(out, width, 1, scratch);
    }
    for (int x = 0; x < width; ++x)
        widenLine(near.data() + x, height, rowLength, scratch);
    return near;
}

double gradientError(const std::uint8_t* rgba, const QImage& truth) {
    const int width = truth.width(), height = truth.height();
    std::vector<double> keyed, wanted;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* line = truth.constScanLine(y);
        for (int x = 0; x < width; ++x, rgba += 4) {
            keyed.push_back(rgba[3] / 255.0);
            wanted.push_back(line[x] / 255.0);
        }
    }
    const std::vector<double> one = gradientLengths(keyed, width, height),
                              other = gradientLengths(wanted, width, height);
    double sum = 0.0;
    for (std::size_t i = 0; i < one.size(); ++i)
        sum += (one[i] - other[i]) * (one[i] - other[i]);
    return sum / 1000.0;
}

AlphaErrors measureAlpha(const std::uint8_t* rgba, const QImage& truth) {
    const std::vector<std::uint8_t> near = nearEdges(truth);
    Mean all, edges, holes, residue;
    const std::uint8_t* edge = near.data();
    for (int y = 0; y < truth.height(); ++y) {
        const std::uint8_t* line = truth.constScanLine(y);
        for (int x = 0; x < truth.width(); ++x, rgba += 4, ++edge) {
            const double error = std::abs(rgba[3] - line[x]) / 255.0;
            all.add(error);
            if (*edge) edges.add(error);
            if (line[x] > kSubjectAbove * 255.0) holes.add(error);
            if (line[x] < kScreenBelow * 255.0) residue.add(error);
        }
    }
    return {all.sum / 1000.0, all.value(), edges.value(), holes.value(), residue.value()};
}

}  // namespace tavrin::quality
