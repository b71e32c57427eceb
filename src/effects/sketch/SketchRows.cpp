#include "effects/sketch/SketchRows.h"

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effects/sketch/SketchRows.cpp"
#include <hwy/foreach_target.h>

#include "core/raster/Lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

template <class D>
class SketchLanes {
    using V = Doubles<D>;
    using Words = hn::Vec<WordTag<D>>;

  public:
    explicit SketchLanes(D d) : d_(d) {}

    HWY_INLINE Words pixels(const void* from) const {
        return hn::LoadU(words_, static_cast<const std::int32_t*>(from));
    }
    HWY_INLINE Words bytes(const std::uint8_t* from) const {
        return hn::PromoteTo(words_, hn::LoadU(hn::Rebind<std::uint8_t, D>(), from));
    }
    HWY_INLINE Words shorts(const std::uint16_t* from) const {
        return hn::PromoteTo(words_, hn::LoadU(hn::Rebind<std::uint16_t, D>(), from));
    }
    HWY_INLINE void store(Words values, std::uint8_t* to) const {
        const hn::Rebind<std::uint8_t, D> bytes;
        hn::StoreU(hn::DemoteTo(bytes, values), bytes, to);
    }

    // A contrast curve over the weighted sum of the channels; see `sketchGrey`.
    HWY_INLINE Words greyOf(Words pixels, int effectType) const {
        const bool even = effectType < 2;
        const V top = set(255.0), one = set(1.0);
        const V weighted = hn::Add(hn::Add(hn::Mul(set(even ? 0.33 : 0.1), channelOf<0>(d_, pixels)),
                                           hn::Mul(set(even ? 0.33 : 0.3), channelOf<1>(d_, pixels))),
                                   hn::Mul(set(even ? 0.33 : 0.6), channelOf<2>(d_, pixels)));
        const V y = minLanes(weighted, top), t = hn::Div(y, top), u = hn::Sub(one, t);
        const V low = clampLanes(d_, hn::Mul(y, set(1.5)), 0.0, 255.0);
        const V high = clampLanes(d_, hn::Add(hn::Mul(hn::Sub(y, top), set(1.5)), top), 0.0, 255.0);
        const V uu = hn::Mul(u, u), tt = hn::Mul(t, t);
        const V rest = hn::Add(hn::Mul(tt, high), hn::Mul(hn::Sub(one, tt), y));
        return toBytes(d_, hn::Add(hn::Mul(uu, low), hn::Mul(hn::Sub(one, uu), rest)));
    }

    // The flattened grey dodged against the blurred negative. Darks stay short of black.
    HWY_INLINE Words dodge(Words grey, Words flat, Words negative) const {
        const V one = set(1.0);
        const V n = hn::Div(hn::PromoteTo(d_, negative), set(65025.0));
        const V p = hn::Div(hn::PromoteTo(d_, flat), set(255.0));
        const V left = hn::Sub(one, n);
        const V dodged = minLanes(hn::Div(clampLanes(d_, hn::Sub(hn::Add(p, p), left), 0.0, 1.0), left), one);
        const V lit = hn::IfThenElse(hn::Eq(n, one), one, dodged);
        const V result = hn::IfThenElse(hn::Ge(hn::PromoteTo(d_, grey), set(30.0)), lit, set(0.2));
        return toBytes(d_, hn::Mul(result, set(255.0)));
    }

    // Black lines on the picture's own colours, which are brought to full strength.
    HWY_INLINE Words colourCartoon(Words value, Words grey, Words colour) const {
        const Words byte = hn::Set(words_, 255), zero = hn::Zero(words_);
        const auto dark = hn::Lt(grey, hn::Set(words_, 50));  // three times it below 150
        const Words line = hn::IfThenElse(dark, grey, hn::IfThenElseZero(hn::Gt(value, hn::Set(words_, 240)), byte));
        const Words r = hn::And(colour, byte), g = hn::And(hn::ShiftRight<8>(colour), byte),
                    b = hn::And(hn::ShiftRight<16>(colour), byte);
        const Words strongest = hn::Max(r, hn::Max(g, b));
        const auto black = hn::Eq(strongest, zero);
        // The truncated quotients of such numbers are those of whole ones.
        const auto whole = number(hn::IfThenElse(black, byte, strongest));
        const auto share = [&](Words channel) HWY_ATTR {
            const auto quotient = hn::Div(number(hn::Mul(line, channel)), whole);
            return hn::IfThenElse(black, line, hn::ConvertTo(words_, quotient));
        };
        return together(share(r), share(g), share(b));
    }

    HWY_INLINE Words drawWithPencils(Words grey, const SketchRow& row, int x, int effectType) const {
        const V top = set(255.0), one = set(1.0);
        V v = hn::PromoteTo(d_, grey);
        if (effectType == kPencilSketch || effectType == kParchmentSketch) {
            const auto dark = hn::Lt(v, set(127.0)), middle = hn::AndNot(dark, hn::Lt(v, set(250.0)));
            const V a = hn::Div(channelOf<0>(d_, pixels(row.pencil + x)), top);
            const V mixed = hn::Sub(hn::Add(hn::Mul(top, a), hn::Mul(hn::Sub(one, a), v)), top);
            const V drawn = clampLanes(d_, hn::Add(hn::Mul(mixed, set(4.0)), top), 0.0, 255.0);
            v = hn::IfThenElse(middle, drawn, v);
            v = hn::IfThenElse(dark, channelOf<0>(d_, pixels(row.crossedPencil + x)), v);
        }
        if (effectType == kParchmentSketch) {
            const V light = hn::IfThenElseZero(hn::Ge(v, set(128.0)), hn::Sub(hn::Mul(set(2.0), v), top));
            const Words paper = pixels(row.parchment + x);
            const auto on = [&](V channel) HWY_ATTR { return toBytes(d_, hn::Div(hn::Mul(light, channel), top)); };
            return together(on(channelOf<0>(d_, paper)), on(channelOf<1>(d_, paper)), on(channelOf<2>(d_, paper)));
        }
        if (effectType == kGreySketch || effectType == kPencilSketch)
            grey = toBytes(d_, atLeastLanes(d_, hn::Add(hn::Mul(hn::Sub(v, top), set(1.5)), top), 0.0));
        return together(grey, grey, grey);
    }

    HWY_INLINE void draw(const SketchRow& row, int x, int effectType, std::uint8_t* rgba) const {
        auto* const to = reinterpret_cast<std::int32_t*>(rgba) + x;
        const Words colour = hn::LoadU(words_, to), grey = bytes(row.grey + x);
        const Words dodged = dodge(grey, bytes(row.flat + x), shorts(row.negative + x));
        const Words drawn = effectType <= kCartoon ? colourCartoon(dodged, grey, colour)
                                                   : drawWithPencils(dodged, row, x, effectType);
        const Words alpha = hn::And(colour, hn::Set(words_, static_cast<std::int32_t>(0xFF000000u)));
        hn::StoreU(hn::Or(drawn, alpha), words_, to);
    }

  private:
    HWY_INLINE V set(double value) const { return hn::Set(d_, value); }
    HWY_INLINE auto number(Words whole) const { return hn::ConvertTo(hn::Rebind<float, D>(), whole); }
    HWY_INLINE Words together(Words r, Words g, Words b) const {
        return hn::Or(r, hn::Or(hn::ShiftLeft<8>(g), hn::ShiftLeft<16>(b)));
    }

    D d_;
    WordTag<D> words_;
};

// Calls `work` for every vector of a row; pixels that fill none go one by one.
template <class Work>
HWY_INLINE void overRow(int width, const Work& work) {
    const SketchLanes<WideLanes> wide{WideLanes()};
    const SketchLanes<OneLane> one{OneLane()};
    const int lanes = static_cast<int>(hn::Lanes(WideLanes()));
    int x = 0;
    for (; x + lanes <= width; x += lanes)
        work(wide, x);
    for (; x < width; ++x)
        work(one, x);
}

void sketchGreyRowWide(const std::uint8_t* rgba, int width, int effectType, std::uint8_t* grey) {
    overRow(width, [&](const auto& lanes, int x)
                       HWY_ATTR { lanes.store(lanes.greyOf(lanes.pixels(rgba + 4 * x), effectType), grey + x); });
}

void drawSketchRowWide(const SketchRow& row, int width, int effectType, std::uint8_t* rgba) {
    overRow(width, [&](const auto& lanes, int x) HWY_ATTR { lanes.draw(row, x, effectType, rgba); });
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(sketchGreyRowWide);
HWY_EXPORT(drawSketchRowWide);

void sketchGreyRow(const std::uint8_t* rgba, int width, int effectType, std::uint8_t* grey) {
    HWY_DYNAMIC_DISPATCH(sketchGreyRowWide)(rgba, width, effectType, grey);
}

void drawSketchRow(const SketchRow& row, int width, int effectType, std::uint8_t* rgba) {
    HWY_DYNAMIC_DISPATCH(drawSketchRowWide)(row, width, effectType, rgba);
}

}  // namespace tavrin
#endif
