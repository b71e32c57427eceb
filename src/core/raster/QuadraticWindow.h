#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavrin {

/// A window that reaches further than this is a flat mean of any picture, and its sums still fit 64 bits.
inline constexpr int kMaxWindowReach = 50'000;

/// The reach in pixels of a window of that many inches to each side, at least 1.
int windowReach(int dpi, double inches);

/// Neighbouring lines of samples, rows or columns, that are walked side by side. Steps are in samples.
template <class Sample>
struct SampleLines {
    const Sample* first;
    std::ptrdiff_t step;      ///< from a sample to the next one of its line
    std::ptrdiff_t laneStep;  ///< from a line to the next
    int lanes, count;         ///< lines, and samples in each

    std::uint64_t at(int i, int lane) const { return first[i * step + lane * laneStep]; }
};

/// The weighted mean of the window that all separable blurs of the engine share: it reaches n samples to both sides;
/// a sample at distance d has the weight (n - d)^2 + 1, the centre n^2 (one less than the series would have). Samples
/// outside the line are left out and the weights renormalised.
///
/// As the weight is a polynomial of the position, three moments a side (of 1, j and j^2) give the weighted sum in
/// constant time, in whole numbers and so without rounding. Sums wrap around on the way; the results do not.
template <class Sample>
class QuadraticWindow {
  public:
    /// Calls `put(position, lane, mean)` for every sample, position by position; `mean` is truncated. `reach` is from
    /// 1 to kMaxWindowReach, `weights` from `windowWeightSums` for this count and reach.
    template <class Put>
    void run(const SampleLines<Sample>& lines, int reach, const std::vector<std::uint64_t>& weights, Put put) {
        const std::uint64_t n = static_cast<std::uint64_t>(reach);
        left_.assign(static_cast<std::size_t>(lines.lanes), {});
        right_.assign(static_cast<std::size_t>(lines.lanes), {});
        for (int j = 1; j <= std::min(reach, lines.count - 1); ++j) {
            for (int lane = 0; lane < lines.lanes; ++lane)
                right_[lane].add(j, lines.at(j, lane));
        }
        for (int x = 0; x < lines.count; ++x) {
            for (int lane = 0; lane < lines.lanes; ++lane) {
                const std::uint64_t sum =
                    left_[lane].weighted(x - n) + n * n * lines.at(x, lane) + right_[lane].weighted(x + n);
                put(x, lane, static_cast<Sample>(sum / weights[x]));
            }
            slide(lines, reach, x);
        }
    }

  private:
    /// Sums over one side of the window as it slides along a line.
    class SideMoments {
      public:
        void add(std::uint64_t j, std::uint64_t v) {
            m0_ += v;
            m1_ += j * v;
            m2_ += j * j * v;
        }
        void remove(std::uint64_t j, std::uint64_t v) { add(j, 0 - v); }
        /// The sum of ((j - origin)^2 + 1) * v.
        std::uint64_t weighted(std::uint64_t origin) const {
            return m2_ - 2 * origin * m1_ + (origin * origin + 1) * m0_;
        }

      private:
        std::uint64_t m0_ = 0, m1_ = 0, m2_ = 0;
    };

    void slide(const SampleLines<Sample>& lines, int reach, int x) {
        const bool leaves = x >= reach, enters = x + 1 + static_cast<std::int64_t>(reach) < lines.count;
        for (int lane = 0; lane < lines.lanes; ++lane) {
            left_[lane].add(x, lines.at(x, lane));
            if (leaves) left_[lane].remove(x - reach, lines.at(x - reach, lane));
            if (x + 1 < lines.count) right_[lane].remove(x + 1, lines.at(x + 1, lane));
            if (enters) right_[lane].add(x + 1 + reach, lines.at(x + 1 + reach, lane));
        }
    }

    std::vector<SideMoments> left_, right_;
};

/// The sum of the weights that lie inside a line of `count` samples, for each position of the window.
std::vector<std::uint64_t> windowWeightSums(int count, int reach);

}  // namespace tavrin
