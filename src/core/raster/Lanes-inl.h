// Several pixels side by side: what the lane forms of the key and the finish share. Included once for each vector
// target, through foreach_target.h; the including file brings the tag of its lanes.
//
// Every helper does what its namesake for one value in ColorMath.h does, with the same treatment of what is no
// number and of zeros with a sign, since results must be equal to the last bit on every target.

#if defined(TAVRIN_KEY_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_KEY_LANES_INL_H
#undef TAVRIN_KEY_LANES_INL_H
#else
#define TAVRIN_KEY_LANES_INL_H
#endif

#include <hwy/highway.h>

#include "core/raster/ColorMath.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Lanes of doubles: as many as the machine has, and one alone for the plain form.
using WideLanes = HWY_CAPPED(double, 8);
using OneLane = HWY_CAPPED(double, 1);

template <class D>
using Doubles = hn::Vec<D>;
template <class D>
using Choice = hn::Mask<D>;

// The colours of one vector of pixels.
template <class D>
struct RgbLanes {
    Doubles<D> r, g, b;
};

template <class D, class V = Doubles<D>>
HWY_INLINE V clampLanes(D d, V value, double low, double high) {
    const V lowest = hn::Set(d, low), highest = hn::Set(d, high);
    return hn::IfThenElse(hn::Ge(value, lowest), hn::IfThenElse(hn::Gt(value, highest), highest, value), lowest);
}

template <class D, class V = Doubles<D>>
HWY_INLINE V atLeastLanes(D d, V value, double low) {
    const V lowest = hn::Set(d, low);
    return hn::IfThenElse(hn::Ge(value, lowest), value, lowest);
}

// std::max and std::min of two: the first where they are equal or one is no number.
template <class V>
HWY_INLINE V maxLanes(V a, V b) {
    return hn::IfThenElse(hn::Lt(a, b), b, a);
}
template <class V>
HWY_INLINE V minLanes(V a, V b) {
    return hn::IfThenElse(hn::Lt(b, a), b, a);
}
template <class D>
HWY_INLINE Doubles<D> largestLanes(const RgbLanes<D>& c) {
    return maxLanes(maxLanes(c.r, c.g), c.b);
}

template <class D>
HWY_INLINE RgbLanes<D> setLanes(D d, const Rgb& c) {
    return {hn::Set(d, c.r), hn::Set(d, c.g), hn::Set(d, c.b)};
}

template <class D, class V = Doubles<D>>
HWY_INLINE RgbLanes<D> scaledLanes(D, const RgbLanes<D>& c, V factor) {
    return {hn::Mul(c.r, factor), hn::Mul(c.g, factor), hn::Mul(c.b, factor)};
}

template <class D>
HWY_INLINE RgbLanes<D> chooseLanes(D, Choice<D> which, const RgbLanes<D>& yes, const RgbLanes<D>& no) {
    return {hn::IfThenElse(which, yes.r, no.r), hn::IfThenElse(which, yes.g, no.g),
            hn::IfThenElse(which, yes.b, no.b)};
}

template <class D>
HWY_INLINE RgbLanes<D> keepLanes(D, Choice<D> which, const RgbLanes<D>& c) {
    return {hn::IfThenElseZero(which, c.r), hn::IfThenElseZero(which, c.g), hn::IfThenElseZero(which, c.b)};
}

template <class D>
HWY_INLINE RgbLanes<D> loadLanes(D d, const double* r, const double* g, const double* b) {
    return {hn::Load(d, r), hn::Load(d, g), hn::Load(d, b)};
}

// One step of the hue-keeping limiter; see `limitChannel`.
template <class D, class V = Doubles<D>>
HWY_INLINE void limitChannelLanes(D d, V& c, V& other1, V& other2) {
    const V top = hn::Set(d, 255.0);
    const auto above = hn::Gt(c, top);
    if (hn::AllFalse(d, above)) return;
    const V scale = hn::Div(top, c);
    other1 = hn::IfThenElse(above, hn::Mul(other1, scale), other1);
    other2 = hn::IfThenElse(above, hn::Mul(other2, scale), other2);
    c = hn::IfThenElse(above, top, c);
}

// RGBA pixels as one word each, red in the lowest byte, with what turns them into doubles and back.
template <class D>
using WordTag = hn::Rebind<std::int32_t, D>;

template <int kByte, class D>
HWY_INLINE Doubles<D> channelOf(D d, hn::Vec<WordTag<D>> words) {
    return hn::PromoteTo(d, hn::And(hn::ShiftRight<8 * kByte>(words), hn::Set(WordTag<D>(), 255)));
}

template <class D>
HWY_INLINE hn::Vec<WordTag<D>> toBytes(D d, Doubles<D> value) {
    const auto top = hn::Set(d, 255.0);
    const auto held = hn::IfThenElse(hn::Ge(value, top), top, hn::IfThenElseZero(hn::Gt(value, hn::Zero(d)), value));
    return hn::DemoteTo(WordTag<D>(), held);
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif
