// The tone adjustments of a layer, several pixels at a time. Included once for each vector target.

#if defined(TAVRIN_KEY_TONE_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_KEY_TONE_LANES_INL_H
#undef TAVRIN_KEY_TONE_LANES_INL_H
#else
#define TAVRIN_KEY_TONE_LANES_INL_H
#endif

#include <cmath>

#include "core/raster/Lanes-inl.h"
#include "key/pixel/NeighbourSums.h"
#include "key/pixel/ToneChain.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

template <class D>
class ToneLanes {
    using V = Doubles<D>;
    using M = Choice<D>;
    using Colors = RgbLanes<D>;

  public:
    // `levels` has what the curve makes of each whole level, or is null.
    ToneLanes(D d, const ToneConstants& tone, const double* levels = nullptr) : d_(d), tone_(tone), levels_(levels) {}

    // The photo filters.
    HWY_INLINE Colors filtered(Colors c) const {
        if (!tone_.cools && !tone_.warms) return c;
        const V ends = sumOfEnds(c);
        if (tone_.cools) c = cooled(c, ends);
        if (tone_.warms) c = warmed(c, ends);
        return c;
    }

    // Sharpens the pixels from the i-th of the surroundings on. Very dark results, and green that would stop being
    // green, are left alone.
    HWY_INLINE Colors sharpened(const Colors& c, const NeighbourSums& around, int i) const {
        const V pixels = loadInts(around.pixels + i);
        const Colors sharp{sharpenedChannel(c.r, hn::Div(loadInts(around.r + i), pixels)),
                           sharpenedChannel(c.g, hn::Div(loadInts(around.g + i), pixels)),
                           sharpenedChannel(c.b, hn::Div(loadInts(around.b + i), pixels))};
        const M bright = hn::Gt(hn::Add(hn::Add(sharp.r, sharp.g), sharp.b), hn::Set(d_, 80.0));
        const M spoilt = hn::AndNot(isGreenLed(sharp), isGreenLed(c));
        return chooseLanes(d_, hn::AndNot(spoilt, bright), sharp, c);
    }

    // Shadow lift, contrast, highlights, and the floor of the dark parts. Black takes the curve's level in all
    // channels; `black` tells where.
    HWY_INLINE Colors curved(const Colors& c, M& black) const {
        const V m = largestLanes<D>(c), level = levelOf(m);
        const M coloured = hn::Gt(m, hn::Zero(d_));
        black = hn::Not(coloured);
        return chooseLanes(d_, coloured, withLevel(c, m, level), {level, level, level});
    }

    // Holds the hue of colours that are too bright, in the order red, green, blue.
    HWY_INLINE void limit(Colors& c) const {
        limitChannelLanes(d_, c.r, c.g, c.b);
        limitChannelLanes(d_, c.g, c.r, c.b);
        limitChannelLanes(d_, c.b, c.r, c.g);
    }

    // Largest and smallest channel added up.
    HWY_INLINE V sumOfEnds(const Colors& c) const {
        return hn::Add(largestLanes<D>(c), minLanes(minLanes(c.r, c.g), c.b));
    }

    // Scales colours so that their ends add up to `ends`; black stays.
    HWY_INLINE Colors withEnds(const Colors& c, V ends) const {
        const V scale = hn::Div(ends, sumOfEnds(c));
        return {brightened(c.r, scale), brightened(c.g, scale), brightened(c.b, scale)};
    }

    // The level to which the largest channel `m` moves, 0 to 300.
    HWY_INLINE V toneCurve(V m) const {
        const V middle = hn::Set(d_, 128.0);
        const M dark = hn::Lt(m, middle);
        const V rise = hn::Sub(hn::Set(d_, 1.0), exponential(hn::Mul(hn::Set(d_, tone_.shadowRate), m), dark));
        const V lifted = hn::IfThenElse(dark, hn::Div(hn::Mul(rise, middle), hn::Set(d_, tone_.shadowNorm)), m);
        const V around = hn::Sub(hn::Add(lifted, hn::Set(d_, tone_.brightness)), middle);
        V level = hn::Add(hn::Div(hn::Mul(hn::Set(d_, tone_.gain), around), hn::Set(d_, 50.0)), middle);
        level = bent(level, 160.0);
        level = bent(level, 192.0);
        return clampLanes(d_, level, 0.0, 300.0);
    }

  private:
    // The same, looked up where all levels are whole, as an untouched background's are.
    HWY_INLINE V levelOf(V m) const {
        if (!levels_) return toneCurve(m);
        const auto whole = hn::DemoteTo(WordTag<D>(), clampLanes(d_, m, 0.0, 255.0));
        if (!hn::AllTrue(d_, hn::Eq(hn::PromoteTo(d_, whole), m))) return toneCurve(m);
        return hn::GatherIndex(d_, levels_, hn::PromoteTo(hn::RebindToSigned<D>(), whole));
    }

    HWY_INLINE V loadInts(const std::int32_t* from) const { return hn::PromoteTo(d_, hn::Load(WordTag<D>(), from)); }

    // Scales a channel; black over black is no number and stays black.
    HWY_INLINE V brightened(V channel, V scale) const {
        const V product = hn::Mul(channel, scale);
        return hn::IfThenElseZero(hn::Eq(product, product), product);
    }

    HWY_INLINE V throughFilter(V channel, double strength, double filter) const {
        const V share = hn::Mul(hn::Set(d_, strength), hn::Mul(channel, hn::Set(d_, filter)));
        return hn::Add(hn::Mul(channel, hn::Set(d_, 1.0 - strength)), hn::Div(share, hn::Set(d_, 255.0)));
    }

    // `ends` is the sum of the largest and the smallest channel that the result is brought back to. The background's
    // red stays as the filter left it.
    HWY_INLINE Colors cooled(const Colors& c, V ends) const {
        const Colors through{minLanes(throughFilter(c.r, tone_.cooling, 0.0), hn::Set(d_, 255.0)),
                             throughFilter(c.g, tone_.cooling, 181.0), throughFilter(c.b, tone_.cooling, 255.0)};
        Colors result = withEnds(through, ends);
        if (tone_.layer == ToneLayer::kBackground) result.r = through.r;
        return result;
    }

    HWY_INLINE Colors warmed(const Colors& c, V ends) const {
        return withEnds({minLanes(throughFilter(c.r, tone_.warming, 255.0), hn::Set(d_, 255.0)),
                         throughFilter(c.g, tone_.warming, 181.0), throughFilter(c.b, tone_.warming, 0.0)},
                        ends);
    }

    HWY_INLINE V sharpenedChannel(V channel, V mean) const {
        const V away = hn::Mul(hn::Sub(channel, mean), hn::Set(d_, tone_.sharpen));
        return clampLanes(d_, hn::Add(channel, hn::Div(away, hn::Set(d_, 50.0))), 0.0, 255.0);
    }

    HWY_INLINE M isGreenLed(const Colors& c) const { return hn::And(hn::Gt(c.g, c.r), hn::Gt(c.g, c.b)); }

    // The library's exponential of the lanes chosen, value by value: its last bits are its own.
    HWY_INLINE V exponential(V value, M chosen) const {
        if (hn::AllFalse(d_, chosen)) return value;
        alignas(64) double values[8];
        hn::Store(hn::IfThenElseZero(chosen, value), d_, values);
        for (std::size_t i = 0; i < hn::Lanes(d_); ++i)
            values[i] = std::exp(values[i]);
        return hn::Load(d_, values);
    }

    HWY_INLINE V bent(V level, double knee) const {
        const V from = hn::Set(d_, knee);
        const V above = hn::Add(hn::Mul(hn::Sub(level, from), hn::Set(d_, tone_.highlights)), from);
        return hn::IfThenElse(hn::Gt(level, from), above, level);
    }

    // Moves colours so that their largest channel `m` lies at `level`.
    HWY_INLINE Colors withLevel(const Colors& c, V m, V level) const {
        V floor = hn::Set(d_, tone_.floor);
        const V raised = hn::Add(floor, hn::Mul(hn::Sub(level, m), hn::Set(d_, 0.6)));
        floor = hn::IfThenElse(hn::Gt(level, m), raised, floor);
        floor = hn::IfThenElse(hn::Lt(hn::Sub(level, floor), hn::Zero(d_)), level, floor);
        const V range = hn::Sub(level, floor);
        return {hn::Add(floor, hn::Div(hn::Mul(c.r, range), m)), hn::Add(floor, hn::Div(hn::Mul(c.g, range), m)),
                hn::Add(floor, hn::Div(hn::Mul(c.b, range), m))};
    }

    D d_;
    const ToneConstants& tone_;
    const double* levels_;
};

// Pixels side by side in a row.
struct PixelRun {
    int x, y, count;
};

// The tone of one layer for the pixels of a run.
template <class D>
class RunTone {
    using V = Doubles<D>;
    using Colors = RgbLanes<D>;

  public:
    RunTone(D d, const ToneConstants& tone, const PixelRun& run, const double* levels = nullptr)
        : d_(d), tone_(tone), run_(run), lanes_(d, tone, levels) {}

    // The colours of the pixels from the i-th on. `light` falls on a background only, and not on black.
    HWY_INLINE Colors adjusted(Colors c, int i, V light) {
        c = lanes_.filtered(c);
        if (tone_.sharpen >= 1.0) c = lanes_.sharpened(c, neighbours(), i);
        Choice<D> black;
        c = lanes_.curved(c, black);
        if (tone_.layer == ToneLayer::kBackground) {
            c = chooseLanes(d_, black, c, scaledLanes(d_, c, light));
            lanes_.limit(c);
        }
        return c;
    }

  private:
    const NeighbourSums& neighbours() {
        if (!summed_) sumNeighbours(tone_.picture, run_.x, run_.y, run_.count, around_);
        summed_ = true;
        return around_;
    }

    D d_;
    const ToneConstants& tone_;
    PixelRun run_;
    ToneLanes<D> lanes_;
    NeighbourSums around_;
    bool summed_ = false;
};

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif
