// A line of values, a vector at a time. Included once for each vector target.

#if defined(TAVRIN_RASTER_OVER_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_RASTER_OVER_LANES_INL_H
#undef TAVRIN_RASTER_OVER_LANES_INL_H
#else
#define TAVRIN_RASTER_OVER_LANES_INL_H
#endif

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

// Calls `work(tag, i)` for `count` values of a type from the i-th on, in vectors of up to `kMost`; those that fill no
// vector go one by one.
template <class T, std::size_t kMost, class Index, class Work>
HWY_INLINE void overLanes(Index count, const Work& work) {
    const HWY_CAPPED(T, kMost) wide;
    const HWY_CAPPED(T, 1) one;
    const auto width = static_cast<Index>(hwy::HWY_NAMESPACE::Lanes(wide));
    Index i = 0;
    for (; i + width <= count; i += width)
        work(wide, i);
    for (; i < count; ++i)
        work(one, i);
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif
