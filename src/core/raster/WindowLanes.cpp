#include "core/raster/WindowLanes.h"

#include <algorithm>
#include <limits>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/raster/WindowLanes.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Slides the window along a few vectors of lines. Each side has three sums over its samples, of 1, k and k * k times
// the sample, where k is how far the sample lies within the reach. They are whole numbers that doubles hold exactly.
template <class Sample>
class SlidingLanes {
    static constexpr int kMoments = 6;

  public:
    SlidingLanes(const SampleLines<Sample>& lines, int reach, const std::vector<std::uint64_t>& weights,
                 Sample* means)
        : lines_(lines),
          reach_(reach),
          weights_(weights),
          means_(means),
          moments_(static_cast<std::size_t>(lines.lanes) * kMoments, 0.0) {}

    void run() {
        for (int x = 1; x <= std::min(reach_, lines_.count - 1); ++x)
            overLanes([&](auto d, int lane) HWY_ATTR { meet(d, lane, x); });
        for (int x = 0; x < lines_.count; ++x) {
            // Most of a line has samples all around.
            if (x >= reach_ && x + 1 + reach_ < lines_.count) {
                overLanes([&](auto d, int lane) HWY_ATTR { step<true>(d, lane, x); });
            } else {
                overLanes([&](auto d, int lane) HWY_ATTR { step<false>(d, lane, x); });
            }
        }
    }

  private:
    // The lanes that fill no vector go one by one.
    template <class Work>
    HWY_INLINE void overLanes(const Work& work) const {
        const HWY_CAPPED(double, 8) wide;
        const HWY_CAPPED(double, 1) one;
        const int width = static_cast<int>(hn::Lanes(wide));
        int lane = 0;
        for (; lane + width <= lines_.lanes; lane += width)
            work(wide, lane);
        for (; lane < lines_.lanes; ++lane)
            work(one, lane);
    }

    template <class D>
    HWY_INLINE hn::Vec<D> sample(D d, int x, int lane) const {
        const hn::Rebind<Sample, D> samples;
        const hn::Rebind<std::int32_t, D> words;
        return hn::PromoteTo(d, hn::PromoteTo(words, hn::LoadU(samples, lines_.first + x * lines_.step + lane)));
    }

    template <class D>
    HWY_INLINE void write(D, int x, int lane, hn::Vec<D> mean) const {
        const hn::Rebind<Sample, D> samples;
        const hn::Rebind<std::int32_t, D> words;
        const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(x) * lines_.lanes + lane;
        hn::StoreU(hn::DemoteTo(samples, hn::DemoteTo(words, mean)), samples, means_ + at);
    }

    double* moment(int which, int lane) { return moments_.data() + which * lines_.lanes + lane; }

    // A sample that lies on the right from the start.
    template <class D>
    HWY_INLINE void meet(D d, int lane, int x) {
        const auto v = sample(d, x, lane), k = hn::Set(d, static_cast<double>(reach_ - x));
        double *m0 = moment(3, lane), *m1 = moment(4, lane), *m2 = moment(5, lane);
        hn::StoreU(hn::Add(hn::LoadU(d, m0), v), d, m0);
        hn::StoreU(hn::Add(hn::LoadU(d, m1), hn::Mul(k, v)), d, m1);
        hn::StoreU(hn::Add(hn::LoadU(d, m2), hn::Mul(hn::Mul(k, k), v)), d, m2);
    }

    // The mean at x, and the step of both sides to x + 1.
    template <bool kInside, class D>
    HWY_INLINE void step(D d, int lane, int x) {
        const auto nearest = hn::Set(d, reach_ - 1.0), nearestSquare = hn::Set(d, (reach_ - 1.0) * (reach_ - 1.0));
        const auto v = sample(d, x, lane);
        auto left0 = hn::LoadU(d, moment(0, lane)), left1 = hn::LoadU(d, moment(1, lane)),
             left2 = hn::LoadU(d, moment(2, lane)), right0 = hn::LoadU(d, moment(3, lane)),
             right1 = hn::LoadU(d, moment(4, lane)), right2 = hn::LoadU(d, moment(5, lane));

        const auto centre = hn::Mul(hn::Set(d, static_cast<double>(reach_) * reach_), v);
        const auto sum = hn::Add(hn::Add(hn::Add(left0, left2), hn::Add(right0, right2)), centre);
        write(d, x, lane, hn::Div(sum, hn::Set(d, static_cast<double>(weights_[static_cast<std::size_t>(x)]))));

        // The farthest on the left has come to k = 0 and leaves, the others move away, and the centre follows them.
        if (kInside || x >= reach_) left0 = hn::Sub(left0, sample(d, x - reach_, lane));
        left2 = hn::Add(hn::Sub(left2, hn::Add(left1, left1)), left0);
        left1 = hn::Add(hn::Sub(left1, left0), hn::Mul(nearest, v));
        left2 = hn::Add(left2, hn::Mul(nearestSquare, v));
        left0 = hn::Add(left0, v);
        // On the right the nearest becomes the centre, the others move nearer, and one enters at k = 0.
        if (kInside || x + 1 < lines_.count) {
            const auto next = sample(d, x + 1, lane);
            right0 = hn::Sub(right0, next);
            right1 = hn::Sub(right1, hn::Mul(nearest, next));
            right2 = hn::Sub(right2, hn::Mul(nearestSquare, next));
        }
        right2 = hn::Add(right2, hn::Add(hn::Add(right1, right1), right0));
        right1 = hn::Add(right1, right0);
        if (kInside || std::int64_t{x} + 1 + reach_ < lines_.count)
            right0 = hn::Add(right0, sample(d, x + 1 + reach_, lane));

        hn::StoreU(left0, d, moment(0, lane));
        hn::StoreU(left1, d, moment(1, lane));
        hn::StoreU(left2, d, moment(2, lane));
        hn::StoreU(right0, d, moment(3, lane));
        hn::StoreU(right1, d, moment(4, lane));
        hn::StoreU(right2, d, moment(5, lane));
    }

    const SampleLines<Sample>& lines_;
    int reach_;
    const std::vector<std::uint64_t>& weights_;
    Sample* means_;
    std::vector<double> moments_;
};

void slideBytes(const SampleLines<std::uint8_t>& lines, int reach, const std::vector<std::uint64_t>& weights,
                std::uint8_t* means) {
    SlidingLanes<std::uint8_t>(lines, reach, weights, means).run();
}

void slideShorts(const SampleLines<std::uint16_t>& lines, int reach, const std::vector<std::uint64_t>& weights,
                 std::uint16_t* means) {
    SlidingLanes<std::uint16_t>(lines, reach, weights, means).run();
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(slideBytes);
HWY_EXPORT(slideShorts);

namespace {

// Whether doubles hold every sum, and no quotient of two of them rounds up to a whole number.
template <class Sample>
bool areSumsExact(const std::vector<std::uint64_t>& weights) {
    constexpr std::uint64_t kLargest = std::uint64_t{1} << 51;
    return *std::max_element(weights.begin(), weights.end()) <= kLargest / std::numeric_limits<Sample>::max();
}

// A window of many thousand samples.
template <class Sample>
void slideWide(const SampleLines<Sample>& lines, int reach, const std::vector<std::uint64_t>& weights,
               Sample* means) {
    QuadraticWindow<Sample>().run(lines, reach, weights, [&](int x, int lane, Sample mean) {
        means[static_cast<std::ptrdiff_t>(x) * lines.lanes + lane] = mean;
    });
}

}  // namespace

void windowMeans(const SampleLines<std::uint8_t>& lines, int reach, const std::vector<std::uint64_t>& weights,
                 std::uint8_t* means) {
    if (!areSumsExact<std::uint8_t>(weights)) return slideWide(lines, reach, weights, means);
    HWY_DYNAMIC_DISPATCH(slideBytes)(lines, reach, weights, means);
}

void windowMeans(const SampleLines<std::uint16_t>& lines, int reach, const std::vector<std::uint64_t>& weights,
                 std::uint16_t* means) {
    if (!areSumsExact<std::uint16_t>(weights)) return slideWide(lines, reach, weights, means);
    HWY_DYNAMIC_DISPATCH(slideShorts)(lines, reach, weights, means);
}

}  // namespace tavrin
#endif
