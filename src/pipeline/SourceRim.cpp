#include "pipeline/SourceRim.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr int kDeepest = 8, kNear = 11, kFar = 21;  // steps from the edge
constexpr int kSteps = 1000;                        // along the longer side, in either direction, a pixel or more
constexpr double kBreak = 6.0;                      // levels, of a mean over the line
constexpr int kScreenExcess = 20;                   // of the screen's channel over both others

/// A source seen from one of its sides: lines parallel to it, the outermost first.
struct Side {
    const QImage& source;
    bool upright;   ///< the lines are columns
    bool backward;  ///< counted from the right or from below

    int step() const { return std::max(1, std::max(source.width(), source.height()) / kSteps); }
    int lines() const { return (upright ? source.width() : source.height()) / step(); }
    int length() const { return upright ? source.height() : source.width(); }
    const std::uint8_t* pixel(int steps, int along) const {
        const int line = steps * step();
        const int across = backward ? (upright ? source.width() : source.height()) - 1 - line : line;
        return upright ? source.constScanLine(along) + std::ptrdiff_t{kPixelBytes} * across
                       : source.constScanLine(across) + std::ptrdiff_t{kPixelBytes} * along;
    }
};

bool isScreen(const std::uint8_t* p, bool blue) {
    return blue ? p[2] >= std::max(p[0], p[1]) + kScreenExcess : p[1] >= std::max(p[0], p[2]) + kScreenExcess;
}

using Means = std::array<double, 3>;

/// Mean colour of a line where the screen lies further in.
Means meanOf(const Side& side, int line, bool blue) {
    Means sum{};
    int count = 0;
    for (int along = 0; along < side.length(); along += side.step()) {
        if (!isScreen(side.pixel(kNear, along), blue) || !isScreen(side.pixel(kFar, along), blue)) continue;
        ++count;
        for (std::size_t c = 0; c < 3; ++c)
            sum[c] += side.pixel(line, along)[c];
    }
    for (double& channel : sum)
        channel /= std::max(count, 1);
    return sum;
}

bool showsScreen(const Side& side, bool blue) {
    int count = 0;
    for (int along = 0; along < side.length(); along += side.step())
        count += isScreen(side.pixel(kNear, along), blue) && isScreen(side.pixel(kFar, along), blue);
    return 3 * count > side.length() / side.step();
}

int rimOf(const Side& side, bool blue) {
    if (side.lines() < 4 * kFar || !showsScreen(side, blue)) return 0;
    const Means near = meanOf(side, kNear, blue), far = meanOf(side, kFar, blue);
    const auto breaksOff = [&](int line) {
        const Means mean = meanOf(side, line, blue);
        double most = 0.0;
        for (std::size_t c = 0; c < 3; ++c) {
            // A screen that grows darker toward the edge goes on doing so.
            const double expected = near[c] + (near[c] - far[c]) * (kNear - line) / (kFar - kNear);
            most = std::max(most, std::abs(mean[c] - expected));
        }
        return most > kBreak;
    };
    int depth = 0;
    while (depth < kDeepest && breaksOff(depth))
        ++depth;
    return depth * side.step();
}

}  // namespace

SourceRim findRim(const QImage& source, bool blue) {
    if (source.depth() != 8 * kPixelBytes) return {};
    return {rimOf({source, true, false}, blue), rimOf({source, false, false}, blue),
            rimOf({source, true, true}, blue), rimOf({source, false, true}, blue)};
}

}  // namespace tavrin
