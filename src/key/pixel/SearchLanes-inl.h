// The search for the alpha of mixed pixels, several pixels at a time. Included once for each vector target.

#if defined(TAVRIN_KEY_SEARCH_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_KEY_SEARCH_LANES_INL_H
#undef TAVRIN_KEY_SEARCH_LANES_INL_H
#else
#define TAVRIN_KEY_SEARCH_LANES_INL_H
#endif

#include "core/raster/Lanes-inl.h"
#include "key/pixel/SearchConstants.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

// Takes a pixel as a mix of an unknown subject colour and the screen, and finds the largest alpha at which the
// unmixed colour is no longer greenish: down from 1 in tenths, then again in hundredths from the tenth before.
template <class D>
class AlphaSearch {
    using V = Doubles<D>;
    using M = Choice<D>;
    using Colors = RgbLanes<D>;
    static constexpr double kTenth = 0.1, kHundredth = 0.01;

  public:
    // Both colours in roles, each channel at least 1.
    AlphaSearch(D d, const Colors& color, const Colors& screen, const SearchConstants& constants)
        : d_(d),
          color_(color),
          screen_(screen),
          constants_(constants),
          warm_(hn::Ge(color.r, color.b)),
          grey_(hn::Lt(hn::Zero(d), hn::Zero(d))) {}

    // The alpha of the lanes in `wanted`, 0 to 1; 0 where the colour is greenish at every alpha. Who does not care by
    // how much an alpha lies below `floor` gets any value from 0 to `floor` for it, and saves steps.
    HWY_INLINE V find(M wanted, double floor = 0.0) {
        const V one = hn::Set(d_, 1.0);
        // At 1 the pixel is all subject, and unmixing leaves it as it is. Most end here.
        const M mixed = hn::AndNot(stopsAt(color_, wanted), wanted);
        if (hn::AllFalse(d_, mixed)) return one;
        const double tenthBelow = std::max(floor - 2.0 * kTenth, 0.0);
        V alpha = walkDown(hn::Sub(one, hn::Set(d_, kTenth)), kTenth, tenthBelow, mixed);
        alpha = walkDown(hn::Add(alpha, hn::Set(d_, kTenth)), kHundredth, floor, mixed);
        return hn::IfThenElse(mixed, atLeastLanes(d_, alpha, 0.0), one);
    }

  private:
    // Walks alpha down from `start` and returns where it stopped, or the first value that is not above `floor`. The
    // steps add up their rounding on purpose: the tenth step of 0.1 stays a little above 0 and is still tested.
    HWY_INLINE V walkDown(V start, double step, double floor, M wanted) {
        const V lowest = hn::Set(d_, floor);
        V alpha = start;
        for (M walking = hn::And(wanted, hn::Gt(alpha, lowest)); !hn::AllFalse(d_, walking);
             walking = hn::And(walking, hn::Gt(alpha, lowest))) {
            walking = hn::AndNot(stopsAt(unmix(alpha), walking), walking);
            alpha = hn::IfThenElse(walking, hn::Sub(alpha, hn::Set(d_, step)), alpha);
        }
        return alpha;
    }

    // The subject's colour if the pixel holds `alpha` of it.
    HWY_INLINE Colors unmix(V alpha) const {
        const V rest = hn::Sub(hn::Set(d_, 1.0), alpha);
        const auto channel = [&](V c, V screen) HWY_ATTR {
            return clampLanes(d_, hn::Div(hn::Sub(c, hn::Mul(rest, screen)), alpha), 0.0, 255.0);
        };
        return {channel(color_.r, screen_.r), channel(color_.g, screen_.g), channel(color_.b, screen_.b)};
    }

    HWY_INLINE M isNearGrey(const Colors& f) const {
        const V fromRed = hn::Trunc(hn::Abs(hn::Sub(f.g, f.r))), fromBlue = hn::Trunc(hn::Abs(hn::Sub(f.g, f.b)));
        return hn::Lt(hn::Add(fromRed, fromBlue), hn::Set(d_, 30.0));
    }

    // Whether the unmixed colour, of the lanes still `walking`, has stopped being greenish. A warm pixel has at least
    // as much red as blue. The two kinds differ in their limits, and in which tests a blue screen turns off; that is
    // how they are meant to be.
    HWY_INLINE M stopsAt(const Colors& f, M walking) {
        if (constants_.greenScreen) grey_ = hn::Or(grey_, hn::And(walking, isNearGrey(f)));
        const V ten = hn::Set(d_, 10.0), five = hn::Set(d_, 5.0), tint = hn::Set(d_, constants_.tint);
        const V lead = hn::IfThenElse(warm_, f.r, f.b), trail = hn::IfThenElse(warm_, f.b, f.r);

        const M warmed = hn::And(hn::Gt(f.r, hn::Add(f.g, ten)), hn::Gt(f.r, hn::Add(f.b, ten)));
        const M black = hn::And(hn::Lt(f.g, five), hn::Lt(lead, five));
        const M belowMean = hn::Lt(f.g, hn::Add(hn::Div(hn::Add(f.r, f.b), hn::Set(d_, 2.0)), tint));
        M belowRed = hn::And(hn::Lt(f.g, hn::Add(hn::Sub(f.r, hn::Set(d_, 40.0)), tint)),
                             hn::Lt(f.b, hn::Add(f.r, hn::Set(d_, 20.0))));
        if (!constants_.greenScreen) belowRed = hn::AndNot(warm_, belowRed);
        const V nearBlue = hn::IfThenElse(warm_, hn::Add(f.b, hn::Set(d_, 20.0)), f.b);
        const M belowBlue = hn::Lt(f.g, hn::Add(nearBlue, tint));
        M stops = hn::Or(hn::Or(hn::And(grey_, warmed), black), hn::Or(hn::Or(belowMean, belowRed), belowBlue));
        if (constants_.greenScreen) {
            const V span =
                hn::Div(hn::Mul(hn::Sub(lead, trail), hn::Set(d_, 50.0)), hn::Set(d_, constants_.tintSpan));
            stops = hn::Or(stops, hn::And(hn::Gt(lead, trail), hn::Le(f.g, hn::Add(trail, span))));
        }
        return stops;
    }

    D d_;
    Colors color_, screen_;
    SearchConstants constants_;
    M warm_, grey_;
};

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif
