#include "core/raster/BlurBitmap.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <vector>

#include "core/Log.h"

namespace tavrin {

namespace {

// A window this wide is a flat mean of any picture, and its moments still fit 64 bits.
constexpr int kMaxReach = 50'000;

int windowReach(int dpi, double radius) {
    const double reach = dpi * radius;
    if (!(reach >= 1.0)) return 1;
    return reach < kMaxReach ? static_cast<int>(reach) : kMaxReach;
}

/// Sums over the two sides of a window that slides along a line. The weight at distance d from the centre is
/// (n - d)^2 + 1 on both sides and n^2 in the centre (one less than the series would have). As that is a
/// polynomial of the position, three moments a side (of 1, j and j^2) give the weighted sum in constant time,
/// in whole numbers and so without rounding.
class SideMoments {
  public:
    void add(std::int64_t j, std::int64_t v) {
        m0_ += v;
        m1_ += j * v;
        m2_ += j * j * v;
    }
    void remove(std::int64_t j, std::int64_t v) { add(j, -v); }
    /// The sum of ((j - origin)^2 + 1) * v.
    std::int64_t weighted(std::int64_t origin) const { return m2_ - 2 * origin * m1_ + (origin * origin + 1) * m0_; }

  private:
    std::int64_t m0_ = 0, m1_ = 0, m2_ = 0;
};

/// Walks lines of `count` samples, `stride` bytes apart, in several neighbouring lanes at once.
class WindowLine {
  public:
    WindowLine(int count, int reach, int lanes) : count_(count), reach_(reach), lanes_(lanes) {
        left_.resize(static_cast<std::size_t>(lanes));
        right_.resize(static_cast<std::size_t>(lanes));
    }

    /// Calls `put(position, lane, mean)` for every sample; `mean` is truncated. `weights` from `weightSums`.
    template <class Put>
    void run(const std::uint8_t* line, std::size_t stride, const std::vector<std::int64_t>& weights, Put put) {
        const std::int64_t n = reach_;
        for (int lane = 0; lane < lanes_; ++lane) {
            left_[lane] = right_[lane] = SideMoments();
            for (int j = 1; j <= std::min(reach_, count_ - 1); ++j)
                right_[lane].add(j, line[j * stride + lane]);
        }
        for (int x = 0; x < count_; ++x) {
            const std::uint8_t* here = line + x * stride;
            for (int lane = 0; lane < lanes_; ++lane) {
                const std::int64_t sum =
                    left_[lane].weighted(x - n) + n * n * here[lane] + right_[lane].weighted(x + n);
                put(x, lane, static_cast<std::uint8_t>(sum / weights[x]));
            }
            slide(line, stride, x);
        }
    }

  private:
    void slide(const std::uint8_t* line, std::size_t stride, int x) {
        const bool leaves = x >= reach_, enters = x + 1 + static_cast<std::int64_t>(reach_) < count_;
        for (int lane = 0; lane < lanes_; ++lane) {
            left_[lane].add(x, line[x * stride + lane]);
            if (leaves) left_[lane].remove(x - reach_, line[(x - reach_) * stride + lane]);
            if (x + 1 < count_) right_[lane].remove(x + 1, line[(x + 1) * stride + lane]);
            if (enters) right_[lane].add(x + 1 + reach_, line[(x + 1 + reach_) * stride + lane]);
        }
    }

    int count_, reach_, lanes_;
    std::vector<SideMoments> left_, right_;
};

// The weights that lie inside the line, for each position: the mean renormalises at the ends.
std::vector<std::int64_t> weightSums(int count, int reach) {
    const std::vector<std::uint8_t> ones(static_cast<std::size_t>(count), 1);
    std::vector<std::int64_t> sums(static_cast<std::size_t>(count));
    const std::int64_t n = reach;
    SideMoments left, right;
    for (int j = 1; j <= std::min(reach, count - 1); ++j)
        right.add(j, 1);
    for (int x = 0; x < count; ++x) {
        sums[x] = left.weighted(x - n) + n * n + right.weighted(x + n);
        left.add(x, 1);
        if (x >= reach) left.remove(x - reach, 1);
        if (x + 1 < count) right.remove(x + 1, 1);
        if (x + 1 + n < count) right.add(x + 1 + n, 1);
    }
    return sums;
}

void blurRows(const std::uint8_t* buffer, std::uint8_t* copy, int width, int height, int reach) {
    const std::vector<std::int64_t> weights = weightSums(width, reach);
    runRowRanges({}, height, 16, [&](int first, int last) {
        WindowLine window(width, reach, 3);
        for (int y = first; y < last; ++y) {
            std::uint8_t* out = copy + pixelOffset(width, 0, y);
            window.run(buffer + pixelOffset(width, 0, y), kPixelBytes, weights,
                       [&](int x, int lane, std::uint8_t mean) { out[x * kPixelBytes + lane] = mean; });
        }
    });
}

// Takes the blurred colour where red and green change little enough; blue takes no part in the test.
void takeWhereClose(std::uint8_t* pixel, const std::uint8_t* blurred, int threshold) {
    const int change = std::abs(pixel[0] - blurred[0]) + std::abs(pixel[1] - blurred[1]);
    if (change >= threshold) return;
    pixel[0] = blurred[0];
    pixel[1] = blurred[1];
    pixel[2] = blurred[2];
}

void blurColumns(const std::uint8_t* copy, std::uint8_t* buffer, int width, int height, int reach, int threshold) {
    constexpr int kColumns = 32;  // a block's moments stay in the first-level cache
    const std::vector<std::int64_t> weights = weightSums(height, reach);
    const std::size_t stride = pixelOffset(width, 0, 1);
    runRowRanges({}, width, kColumns, [&](int first, int last) {
        const int lanes = (last - first) * kPixelBytes;
        WindowLine window(height, reach, lanes);
        std::vector<std::uint8_t> row(static_cast<std::size_t>(lanes));
        const std::size_t offset = pixelOffset(width, first, 0);
        window.run(copy + offset, stride, weights, [&](int y, int lane, std::uint8_t mean) {
            row[lane] = mean;
            if (lane % kPixelBytes != 3) return;
            takeWhereClose(buffer + offset + y * stride + lane - 3, &row[lane - 3], threshold);
        });
    });
}

}  // namespace

void BlurBitmap(SystemInfo& info, std::uint8_t* buffer, int width, int height, int dpi, int threshold,
                double radius) {
    if (!buffer || width < 1 || height < 1) return;
    std::vector<std::uint8_t> copy;
    try {
        copy.resize(pixelBytes(width, height));
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
        return;
    }
    const int reach = windowReach(dpi, radius);
    if (!info.isStale()) blurRows(buffer, copy.data(), width, height, reach);
    blurColumns(copy.data(), buffer, width, height, reach, threshold);
}

}  // namespace tavrin
