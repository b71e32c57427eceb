// The part of a stamp for the tools that look around a pixel. Sums are whole numbers, so those of a square come from
// sums over columns with the same result as pixel by pixel.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/raster/Rows.h"
#include "editor/brush/Stamp.h"

namespace tavrin {

namespace {

constexpr int kEdgeHalf = 3;    // of the square of "Blend Edge"
constexpr int kGreenAhead = 5;  // an edge is softened beside pixels that are greener than this
constexpr int kGrain = 8;

int halfOf(const Stamp& stamp) {
    if (stamp.brush == kBlendEdge) return kEdgeHalf;
    if (stamp.brush != kBlur && stamp.brush != kSmooth) return 0;
    return static_cast<int>(1.0 + 9.0 * stamp.settings.dBrushSlider);
}

std::uint8_t largestOf(const QLXPixel& p) {
    return std::max({p.red, p.green, p.blue});
}

bool isGreener(int red, int green, int blue) {
    return green > red + kGreenAhead && green > blue + kGreenAhead;
}

}  // namespace

void StampPainter::prepareNeighbours(const Stamp& stamp) {
    half_ = halfOf(stamp);
    if (half_ == 0) return;
    const int reach = stamp.iRadius + half_;
    left_ = std::max(stamp.iXCursor - reach, 0);
    columns_ = std::min(stamp.iXCursor + reach + 1, pixels_.iWidth) - left_;
    top_ = std::max(stamp.iYCursor - reach, 0);
    const int rows = std::min(stamp.iYCursor + reach + 1, pixels_.iHeight) - top_;
    // One more column, so that a sum is the difference of two.
    sums_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns_ + 1));
    if (stamp.brush != kBlendEdge || !key_.adjustsForeground) return;
    adjusted_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns_));
    runRows({}, rows, kGrain, [&](int row) {
        Adjusted* out = &adjusted_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_)];
        for (int column = 0; column < columns_; ++column) {
            const QLXPixel p = key_.spill.adjustedForeground(left_ + column, top_ + row);
            out[column] = {p.red, p.green, p.blue, isGreener(p.red, p.green, p.blue)};
        }
    });
}

// Its colour was made before: no sums are needed for it.
bool StampPainter::isKept(const QLXPixel& s, int x, int y) {
    return keeps_ && !pixels_.isEmptied(s) && kept_.at(x, y).state != KeptColors::State::unknown;
}

// Sums of the columns from the left up to each one, over the rows in reach of row y, for its pixels [from, to).
void StampPainter::sumRow(int y, int from, int to) {
    Sums* sums = &sums_[static_cast<std::size_t>(y - top_) * static_cast<std::size_t>(columns_ + 1)];
    const int begin = std::max(from - half_ - left_, 0), end = std::min(to + half_ - left_, columns_);
    std::fill(sums + begin, sums + end + 1, Sums{});
    const int first = std::max(y - half_, 0), last = std::min(y + half_, pixels_.iHeight - 1);
    for (int row = first; row <= last; ++row) {
        const QLXPixel* pixels = &pixels_.snapShot(left_, row);
        for (int column = begin; column < end; ++column) {
            const QLXPixel& p = pixels[column];
            if (!counts(p)) continue;
            Sums& sum = sums[column + 1];
            sum.red += p.red;
            sum.green += p.green;
            sum.blue += p.blue;
            sum.largest += largestOf(p);
            ++sum.count;
        }
    }
    for (int column = begin; column < end; ++column) {
        const Sums& before = sums[column];
        Sums& sum = sums[column + 1];
        sum = {sum.red + before.red, sum.green + before.green, sum.blue + before.blue, sum.largest + before.largest,
               sum.count + before.count};
    }
}

// The square around a pixel without the pixel itself.
StampPainter::Sums StampPainter::around(const QLXPixel& s, int x, int y) const {
    const Sums* sums = &sums_[static_cast<std::size_t>(y - top_) * static_cast<std::size_t>(columns_ + 1)];
    const Sums& from = sums[std::max(x - half_ - left_, 0)];
    const Sums& to = sums[std::min(x + half_ - left_ + 1, columns_)];
    Sums sum = {to.red - from.red, to.green - from.green, to.blue - from.blue, to.largest - from.largest,
                to.count - from.count};
    if (!counts(s)) return sum;
    return {sum.red - s.red, sum.green - s.green, sum.blue - s.blue, sum.largest - largestOf(s), sum.count - 1};
}

// A pixel with nothing around it that counts stays as it is.
std::optional<Rgb> StampPainter::averaged(const Stamp& stamp, const QLXPixel& s, int x, int y) const {
    const Sums sum = around(s, x, y);
    if (sum.count == 0) return {};
    const double count = sum.count;
    if (stamp.brush != kSmooth) {
        const Rgb average{sum.red / count, sum.green / count, sum.blue / count};
        return stamp.brush == kBlur ? average : blendEdge(average, s, x, y, sum.count);
    }
    const double largest = largestOf(s);
    if (largest == 0.0) return {};
    // A dark fleck is lifted fully, a bright one comes half the way down.
    const double q = sum.largest / count / largest;
    if (q <= 1.0) return Rgb{s.red * (q + 1.0) / 2.0, s.green * (q + 1.0) / 2.0, s.blue * (q + 1.0) / 2.0};
    const Rgb lifted{s.red * q, s.green * q, s.blue * q};
    if (tavrin::largestOf(lifted) > 255.0) return {};
    return lifted;
}

// Only next to green, and the more the stronger the foreground changes here.
Rgb StampPainter::blendEdge(const Rgb& average, const QLXPixel& s, int x, int y, int count) const {
    const auto at = [this](int column, int row) -> Adjusted {
        if (!key_.adjustsForeground) {
            const std::uint8_t* p = pixels_.pFOrg + pixels_.index(column, row) * kPixelBytes;
            return {p[0], p[1], p[2], isGreener(p[0], p[1], p[2])};
        }
        return adjusted_[static_cast<std::size_t>(row - top_) * static_cast<std::size_t>(columns_) +
                         static_cast<std::size_t>(column - left_)];
    };
    const Adjusted o = at(x, y);
    bool isNearGreen = false;
    int difference = 0;
    for (int row = std::max(y - half_, 0); row <= std::min(y + half_, pixels_.iHeight - 1); ++row) {
        for (int column = std::max(x - half_, 0); column <= std::min(x + half_, pixels_.iWidth - 1); ++column) {
            if ((row == y && column == x) || !counts(pixels_.snapShot(column, row))) continue;
            const Adjusted p = at(column, row);
            difference += std::abs(p.red - o.red) + std::abs(p.green - o.green) + std::abs(p.blue - o.blue);
            isNearGreen = isNearGreen || p.isGreen;
        }
    }
    const double m = std::min(static_cast<double>(difference) / count * 4.0, 255.0);
    const double amount = isNearGreen ? m / 255.0 : 0.0, rest = 1.0 - amount;
    return {average.r * amount + s.red * rest, average.g * amount + s.green * rest,
            average.b * amount + s.blue * rest};
}

}  // namespace tavrin
