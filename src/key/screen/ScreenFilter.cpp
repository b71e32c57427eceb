#include "key/screen/ScreenFilter.h"

#include <cstring>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/screen/ScreenFilter.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using IntLanes = HWY_CAPPED(std::int32_t, 16);
using Ints = hn::Vec<IntLanes>;

class FilterLanes {
  public:
    explicit FilterLanes(const ScreenFilter& filter) : filter_(filter) {}

    // Puts the pixels that pass from so many words on to `kept`, and returns how many.
    std::size_t keep(Ints words, std::size_t count, std::uint32_t* kept) const {
        const Ints r = channel(words), second = channel(hn::ShiftRight<8>(words));
        const Ints third = channel(hn::ShiftRight<16>(words));
        const Ints g = filter_.blue ? third : second, b = filter_.blue ? second : third;
        const auto passes = hn::And(isScreenLike(r, g, b), hn::FirstN(d_, count));
        const Ints roles = hn::Or(r, hn::Or(hn::ShiftLeft<8>(g), hn::ShiftLeft<16>(b)));
        return hn::CompressStore(roles, passes, d_, reinterpret_cast<std::int32_t*>(kept));
    }

  private:
    Ints times(Ints value, int factor) const { return hn::Mul(value, hn::Set(d_, factor)); }
    Ints channel(Ints words) const { return hn::Max(hn::And(words, hn::Set(d_, 255)), hn::Set(d_, filter_.floor)); }

    hn::Mask<IntLanes> isScreenLike(Ints r, Ints g, Ints b) const {
        const Ints largest = hn::Max(hn::Max(r, g), b);
        const Ints span = hn::Sub(largest, hn::Min(hn::Min(r, g), b));
        const auto red = hn::Eq(largest, r), green = hn::Eq(largest, g);
        const Ints ahead = hn::IfThenElse(red, hn::Sub(g, b), hn::IfThenElse(green, hn::Sub(b, r), hn::Sub(r, g)));
        const Ints third = hn::IfThenElse(red, hn::Zero(d_), hn::IfThenElse(green, span, hn::Add(span, span)));
        const Ints turn = hn::Add(times(third, 120), times(ahead, 60));  // the hue times the span
        const auto otherHue =
            hn::Or(hn::Lt(turn, times(span, filter_.firstHue)),
                   hn::Gt(hn::Add(turn, hn::Set(d_, filter_.endToo ? 0 : 1)), times(span, filter_.endHue)));
        const auto level = hn::And(
            hn::Gt(times(span, filter_.ratio), largest),
            hn::And(hn::Gt(span, hn::Set(d_, filter_.leastSpan - 1)), hn::Gt(g, hn::Set(d_, filter_.leastGreen))));
        return hn::AndNot(otherHue, level);
    }

    IntLanes d_;
    const ScreenFilter& filter_;
};

std::size_t keepPixels(const ScreenFilter& filter, const std::uint8_t* pixels, std::size_t count,
                       std::uint32_t* kept) {
    const IntLanes d;
    const std::size_t lanes = hn::Lanes(d);
    const FilterLanes test(filter);
    std::uint32_t* const first = kept;
    for (; count >= lanes; count -= lanes, pixels += lanes * kPixelBytes)
        kept += test.keep(hn::LoadU(d, reinterpret_cast<const std::int32_t*>(pixels)), lanes, kept);
    alignas(64) std::int32_t last[16] = {};
    std::memcpy(last, pixels, count * kPixelBytes);
    kept += test.keep(hn::Load(d, last), count, kept);
    return static_cast<std::size_t>(kept - first);
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(keepPixels);

std::size_t keepScreenLike(const ScreenFilter& filter, const std::uint8_t* pixels, std::size_t count,
                           std::uint32_t* kept) {
    return HWY_DYNAMIC_DISPATCH(keepPixels)(filter, pixels, count, kept);
}

}  // namespace tavrin
#endif
