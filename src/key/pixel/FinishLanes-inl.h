// What becomes of keyed pixels until they are written, several pixels at a time. Included once for each vector
// target.

#if defined(TAVRIN_KEY_FINISH_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_KEY_FINISH_LANES_INL_H
#undef TAVRIN_KEY_FINISH_LANES_INL_H
#else
#define TAVRIN_KEY_FINISH_LANES_INL_H
#endif

#include "core/raster/Lanes-inl.h"
#include "key/pixel/FinishConstants.h"
#include "key/pixel/KeyedRun.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

template <class D>
class FinishLanes {
    using V = Doubles<D>;
    using M = Choice<D>;
    using Colors = RgbLanes<D>;

  public:
    FinishLanes(D d, const FinishConstants& finish) : d_(d), finish_(finish) {}

    // The subject's colour (in roles, after its tone) after limits, white adjustment, colour mode or flat silhouette,
    // and deltas: each channel 0 to 255.
    HWY_INLINE Colors foreground(Colors c) const {
        limitChannelLanes(d_, c.r, c.g, c.b);
        limitChannelLanes(d_, c.g, c.r, c.b);
        limitChannelLanes(d_, c.b, c.r, c.g);
        c = limitBelow(c);
        if (finish_.silhouette.on) {
            // A silhouette's picture has been put in the colour's place already.
            if (!finish_.silhouette.pixels) c = swapRoles(setLanes(d_, finish_.silhouette.color));
        } else {
            if (finish_.white.on) adjustWhite(finish_.white, c, isGreenLevel(c));
            c = swapRoles(applyMode(finish_.foregroundMode, swapRoles(c)));
        }
        return shift(c, finish_.foregroundDelta);
    }

    // The background's bytes with the deltas, in real channels.
    HWY_INLINE Colors shiftedBackground(hn::Vec<WordTag<D>> words) const {
        return shift({channelOf<0>(d_, words), channelOf<1>(d_, words), channelOf<2>(d_, words)},
                     finish_.backgroundDelta);
    }

    // The background's colour after its tone: colour mode, then roles.
    HWY_INLINE Colors background(const Colors& c) const { return swapRoles(applyMode(finish_.backgroundMode, c)); }

    // Lays the subject over the background and applies light and edge lift. `gain` is the light map's value.
    HWY_INLINE Colors blend(const Colors& foreground, const Colors& background, V alpha, V gain) const {
        const V rest = hn::Sub(hn::Set(d_, 1.0), alpha);
        const auto over = [&](V front, V back)
                              HWY_ATTR { return hn::Add(hn::Mul(front, alpha), hn::Mul(back, rest)); };
        Colors c{over(foreground.r, background.r), over(foreground.g, background.g),
                 over(foreground.b, background.b)};
        const V factor = lightFactor(alpha, gain);
        if (finish_.light.values) applyLight(c, factor);
        const M edge = hn::And(hn::Lt(alpha, hn::Set(d_, 0.9)), hn::Gt(alpha, hn::Set(d_, 0.2)));
        if (!hn::AllFalse(d_, edge)) c = chooseLanes(d_, edge, liftedEdge(c, background, alpha), c);
        // The light falls twice: before the edge is lifted and again after it.
        if (finish_.light.values) applyLight(c, factor);
        return c;
    }

    // Red, green and blue of colours in roles as the low three bytes of words.
    HWY_INLINE hn::Vec<WordTag<D>> colorWords(const Colors& color) const {
        const Colors c = swapRoles(color);
        return hn::Or(toBytes(d_, c.r),
                      hn::Or(hn::ShiftLeft<8>(toBytes(d_, c.g)), hn::ShiftLeft<16>(toBytes(d_, c.b))));
    }

    // Pixels of transparent output, whole words.
    HWY_INLINE hn::Vec<WordTag<D>> transparentWords(const Colors& foreground, V alpha) const {
        const V one = hn::Set(d_, 1.0), nothing = hn::Set(d_, 155.0);
        const M faint = hn::Lt(hn::Mul(alpha, hn::Set(d_, 255.0)), hn::Set(d_, 15.0));
        const Colors shown{maxLanes(foreground.r, one), maxLanes(foreground.g, one), maxLanes(foreground.b, one)};
        const auto words = colorWords(chooseLanes(d_, faint, {nothing, nothing, nothing}, shown));
        const V opacity = finish_.showOrgImage ? hn::Set(d_, 255.0) : hn::Mul(alpha, hn::Set(d_, 255.0));
        return hn::Or(words, hn::ShiftLeft<24>(toBytes(d_, opacity)));
    }

    // Real channels to roles and back.
    HWY_INLINE Colors swapRoles(const Colors& c) const { return finish_.blueLogic ? Colors{c.r, c.b, c.g} : c; }

    HWY_INLINE Colors limitBelow(const Colors& c) const {
        return {atLeastLanes(d_, c.r, 0.0), atLeastLanes(d_, c.g, 0.0), atLeastLanes(d_, c.b, 0.0)};
    }

    HWY_INLINE Colors shift(const Colors& c, const Rgb& delta) const {
        return {clampLanes(d_, hn::Add(c.r, hn::Set(d_, delta.r)), 0.0, 255.0),
                clampLanes(d_, hn::Add(c.g, hn::Set(d_, delta.g)), 0.0, 255.0),
                clampLanes(d_, hn::Add(c.b, hn::Set(d_, delta.b)), 0.0, 255.0)};
    }

    HWY_INLINE M isGreenLevel(const Colors& c) const {
        const V five = hn::Set(d_, 5.0);
        return hn::And(hn::Gt(c.g, hn::Sub(c.b, five)), hn::Gt(c.g, hn::Sub(c.r, five)));
    }

    // Two rules on one measure: a wide, gentle one for colours whose green is level with the others, and a near one
    // that takes an almost neutral colour all the way to grey.
    HWY_INLINE void adjustWhite(const WhiteAdjust& white, Colors& c, M greenIsLevel) const {
        const V rb = hn::Sub(c.r, c.b), gb = hn::Sub(c.g, c.b), gr = hn::Sub(c.g, c.r);
        const V squares = hn::Add(hn::Add(hn::Mul(rb, rb), hn::Mul(gb, gb)), hn::Mul(gr, gr));
        const V distance = hn::Div(hn::Mul(hn::Sqrt(squares), hn::Set(d_, 255.0)), c.g);
        const M wide = hn::And(hn::Lt(distance, hn::Set(d_, white.wide)), greenIsLevel);
        if (!hn::AllFalse(d_, wide)) c = chooseLanes(d_, wide, whitenedWide(white, c, distance), c);
        const M near = hn::Lt(distance, hn::Set(d_, white.near));
        if (!hn::AllFalse(d_, near)) c = chooseLanes(d_, near, whitenedNear(white, c, distance), c);
    }

    HWY_INLINE Colors whitenedWide(const WhiteAdjust& white, const Colors& c, V distance) const {
        const V whole = hn::Set(d_, 2000.0);
        const V level = maxLanes(c.b, c.g), off = hn::Sub(hn::Set(d_, white.wide), distance);
        const V toLevel = hn::Mul(level, hn::Div(off, whole)), keep = hn::Sub(whole, off);
        const auto blend = [&](V v) HWY_ATTR { return hn::Add(toLevel, hn::Div(hn::Mul(v, keep), whole)); };
        const V fixedPart = hn::Mul(level, hn::Set(d_, white.mix)), fixedKeep = hn::Set(d_, white.keep);
        const auto blendFixed = [&](V v)
                                    HWY_ATTR { return hn::Add(fixedPart, hn::Div(hn::Mul(fixedKeep, v), whole)); };
        const V red = hn::IfThenElse(hn::Gt(c.r, level), blend(c.r), c.r);
        return {blendFixed(red), blendFixed(blend(c.g)), blendFixed(blend(c.b))};
    }

    HWY_INLINE Colors whitenedNear(const WhiteAdjust& white, const Colors& c, V distance) const {
        const V near = hn::Set(d_, white.near);
        const V grey = hn::Div(hn::Mul(hn::Sub(near, distance), largestLanes<D>(c)), near);
        const auto blend = [&](V v) HWY_ATTR { return hn::Add(hn::Div(hn::Mul(distance, v), near), grey); };
        return {blend(c.r), blend(c.g), blend(c.b)};
    }

    // Grey and sepia of a colour in real channels.
    HWY_INLINE Colors applyMode(int mode, const Colors& c) const {
        if (mode != kModeGrey && mode != kModeSepia) return c;
        const V v = hn::Add(hn::Add(hn::Mul(hn::Set(d_, 0.6), c.r), hn::Mul(hn::Set(d_, 0.3), c.g)),
                            hn::Mul(hn::Set(d_, 0.1), c.b));
        if (mode == kModeGrey) return {v, v, v};
        return {v, hn::Mul(v, hn::Set(d_, 0.82)), hn::Mul(v, hn::Set(d_, 0.64))};
    }

    HWY_INLINE V lightFactor(V alpha, V gain) const {
        const V one = hn::Set(d_, 1.0);
        if (finish_.light.onBackground) return one;
        const V m = hn::Div(gain, hn::Set(d_, 1000.0));
        return hn::Add(one, finish_.light.byAlpha ? hn::Mul(m, alpha) : m);
    }

    HWY_INLINE void applyLight(Colors& c, V factor) const { c = limitBlend(scaledLanes(d_, c, factor)); }

    // The hue-keeping limiter in its second order, green first.
    HWY_INLINE Colors limitBlend(Colors c) const {
        limitChannelLanes(d_, c.g, c.r, c.b);
        limitChannelLanes(d_, c.r, c.g, c.b);
        limitChannelLanes(d_, c.b, c.r, c.g);
        return limitBelow(c);
    }

    // A thin edge over a bright background is brightened; over a dark one it gets slightly darker.
    HWY_INLINE Colors liftedEdge(const Colors& c, const Colors& background, V alpha) const {
        const Colors real = swapRoles(background);
        const auto times = [&](double factor, V v) HWY_ATTR { return hn::Mul(hn::Set(d_, factor), v); };
        const V luma = hn::Add(hn::Add(times(0.299, real.r), times(0.587, real.g)), times(0.114, real.b));
        const V below = clampLanes(d_, hn::Trunc(hn::Sub(hn::Set(d_, 130.0), luma)), -130.0, 0.0);
        const V darkness = hn::Add(below, hn::Set(d_, 130.0));
        const V dimmed = hn::Add(hn::Mul(alpha, hn::Set(d_, 0.75)),
                                 hn::Div(hn::Mul(hn::Mul(alpha, hn::Set(d_, 0.25)), darkness), hn::Set(d_, 125.0)));
        const V one = hn::Set(d_, 1.0);
        const V edge = hn::Mul(hn::Sub(hn::Div(alpha, dimmed), one), hn::Set(d_, 100.0));
        const V lift = hn::Mul(edge, hn::Sub(one, alpha));
        return limitBlend({hn::Add(c.r, lift), hn::Add(c.g, lift), hn::Add(c.b, lift)});
    }

  private:
    D d_;
    const FinishConstants& finish_;
};

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif
