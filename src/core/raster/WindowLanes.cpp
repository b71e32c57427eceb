#include "core/raster/WindowLanes.h"

#include <algorithm>
#include <limits>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/raster/WindowLanes.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "core/raster/OverLanes-inl.h"

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
        const int count = lines_.count;
        for (int x = 1; x <= std::min(reach_, count - 1); ++x)
            meet(x);
        for (int x = 0; x < count; ++x) {
            // Most of a line has samples all around.
            if (x >= reach_ && x + 1 + reach_ < count) {
                step<true>(x);
            } else {
                step<false>(x);
            }
        }
    }

  private:
    // Null beyond the ends of the lines.
    const Sample* samplesAt(std::int64_t x) const {
        return x >= 0 && x < lines_.count ? lines_.first + x * lines_.step : nullptr;
    }

    template <class D>
    HWY_INLINE static hn::Vec<D> load(D d, const Sample* from) {
        return hn::PromoteTo(d,
                             hn::PromoteTo(hn::Rebind<std::int32_t, D>(), hn::LoadU(hn::Rebind<Sample, D>(), from)));
    }

    template <class D>
    HWY_INLINE static void write(D, hn::Vec<D> mean, Sample* to) {
        const hn::Rebind<Sample, D> samples;
        hn::StoreU(hn::DemoteTo(samples, hn::DemoteTo(hn::Rebind<std::int32_t, D>(), mean)), samples, to);
    }

    // A sample that lies on the right from the start.
    void meet(int x) {
        const Sample* const samples = samplesAt(x);
        const int lanes = lines_.lanes;
        const double distance = reach_ - x;
        double* const right = moments_.data() + 3 * lanes;
        overLanes<double, 8>(lanes, [=](auto d, int lane) HWY_ATTR {
            const auto v = load(d, samples + lane), k = hn::Set(d, distance);
            double *m0 = right + lane, *m1 = m0 + lanes, *m2 = m1 + lanes;
            hn::StoreU(hn::Add(hn::LoadU(d, m0), v), d, m0);
            hn::StoreU(hn::Add(hn::LoadU(d, m1), hn::Mul(k, v)), d, m1);
            hn::StoreU(hn::Add(hn::LoadU(d, m2), hn::Mul(hn::Mul(k, k), v)), d, m2);
        });
    }

    // The mean at x, and the step of both sides to x + 1.
    template <bool kInside>
    void step(int x) {
        const int lanes = lines_.lanes;
        const Sample *const own = samplesAt(x), *const leaving = samplesAt(x - reach_),
                            *const next = samplesAt(x + 1), *const entering = samplesAt(std::int64_t{x} + 1 + reach_);
        double* const moments = moments_.data();
        Sample* const means = means_ + static_cast<std::ptrdiff_t>(x) * lanes;
        const double reach = reach_, weight = static_cast<double>(weights_[static_cast<std::size_t>(x)]);
        overLanes<double, 8>(lanes, [=](auto d, int lane) HWY_ATTR {
            const auto nearest = hn::Set(d, reach - 1.0), nearestSquare = hn::Set(d, (reach - 1.0) * (reach - 1.0));
            double *const m0 = moments + lane, *const m1 = m0 + lanes, *const m2 = m1 + lanes;
            double *const n0 = m2 + lanes, *const n1 = n0 + lanes, *const n2 = n1 + lanes;
            auto left0 = hn::LoadU(d, m0), left1 = hn::LoadU(d, m1), left2 = hn::LoadU(d, m2);
            auto right0 = hn::LoadU(d, n0), right1 = hn::LoadU(d, n1), right2 = hn::LoadU(d, n2);

            const auto v = load(d, own + lane), centre = hn::Mul(hn::Set(d, reach * reach), v);
            const auto sum = hn::Add(hn::Add(hn::Add(left0, left2), hn::Add(right0, right2)), centre);
            write(d, hn::Div(sum, hn::Set(d, weight)), means + lane);

            // The farthest on the left has come to k = 0 and leaves, the others move away, and the centre follows.
            if (kInside || leaving) left0 = hn::Sub(left0, load(d, leaving + lane));
            left2 = hn::Add(hn::Sub(left2, hn::Add(left1, left1)), left0);
            left1 = hn::Add(hn::Sub(left1, left0), hn::Mul(nearest, v));
            left2 = hn::Add(left2, hn::Mul(nearestSquare, v));
            left0 = hn::Add(left0, v);
            // On the right the nearest becomes the centre, the others move nearer, and one enters at k = 0.
            if (kInside || next) {
                const auto gone = load(d, next + lane);
                right0 = hn::Sub(right0, gone);
                right1 = hn::Sub(right1, hn::Mul(nearest, gone));
                right2 = hn::Sub(right2, hn::Mul(nearestSquare, gone));
            }
            right2 = hn::Add(right2, hn::Add(hn::Add(right1, right1), right0));
            right1 = hn::Add(right1, right0);
            if (kInside || entering) right0 = hn::Add(right0, load(d, entering + lane));

            hn::StoreU(left0, d, m0);
            hn::StoreU(left1, d, m1);
            hn::StoreU(left2, d, m2);
            hn::StoreU(right0, d, n0);
            hn::StoreU(right1, d, n1);
            hn::StoreU(right2, d, n2);
        });
    }

    const SampleLines<Sample>& lines_;
    int reach_;
    const std::vector<std::uint64_t>& weights_;
    Sample* means_;
    std::vector<double> moments_;  // of the left and of the right side, each for all lanes
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
