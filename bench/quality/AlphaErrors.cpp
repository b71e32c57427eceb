#include "quality/AlphaErrors.h"

#include <algorithm>
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
