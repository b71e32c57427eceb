// The tone of both layers for the pixels of a run. Included once for each vector target.

#if defined(TAVRIN_KEY_LAYER_TONE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_KEY_LAYER_TONE_INL_H
#undef TAVRIN_KEY_LAYER_TONE_INL_H
#else
#define TAVRIN_KEY_LAYER_TONE_INL_H
#endif

#include "key/pixel/FinishConstants.h"
#include "key/pixel/KeyedRun.h"
#include "key/pixel/ToneLanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

// Colours of a run's pixels, each channel in an array of its own.
struct LayerColors {
    alignas(64) double r[KeyedRun::kMaxPixels], g[KeyedRun::kMaxPixels], b[KeyedRun::kMaxPixels];
};

// In real channels; black outside the picture.
inline Rgb silhouetteAt(const SilhouetteFill& fill, int x, int y) {
    const std::int64_t row = static_cast<std::int64_t>(y * fill.scale) + fill.rowShift;
    const std::int64_t column = static_cast<std::int64_t>(x * fill.scale) + fill.columnShift;
    if (row < 0 || row >= fill.height || column < 0 || column >= fill.width) return {0.0, 0.0, 0.0};
    const std::uint8_t* p = fill.pixels + pixelOffset(fill.width, static_cast<int>(column), static_cast<int>(row));
    return {static_cast<double>(p[0]), static_cast<double>(p[1]), static_cast<double>(p[2])};
}

inline void fillSilhouette(const FinishConstants& finish, KeyedRun& run) {
    for (int i = 0; i < run.count; ++i) {
        if (!(run.alpha[i] > 0.0) && !finish.transparent) continue;
        const Rgb c = silhouetteAt(finish.silhouette, run.x + i, run.y);
        run.r[i] = c.r;
        run.g[i] = finish.blueLogic ? c.b : c.g;
        run.b[i] = finish.blueLogic ? c.g : c.b;
    }
}

// Gives the subject's colours in `run` their tone, or those of the silhouette's picture. Pixels without a share in
// the result may be left out.
template <class D>
void adjustForeground(D d, const FinishConstants& finish, KeyedRun& run) {
    if (finish.silhouette.on && finish.silhouette.pixels) return fillSilhouette(finish, run);
    if (!finish.foregroundTone.active) return;
    RunTone<D> tone(d, finish.foregroundTone, {run.x, run.y, run.count});
    for (int i = 0; i < run.count; i += static_cast<int>(hn::Lanes(d))) {
        const auto shows = hn::Gt(hn::Load(d, run.alpha + i), hn::Zero(d));
        if (!finish.transparent && hn::AllFalse(d, shows)) continue;
        const auto c = tone.adjusted(loadLanes(d, run.r + i, run.g + i, run.b + i), i, hn::Set(d, 1.0));
        hn::Store(c.r, d, run.r + i);
        hn::Store(c.g, d, run.g + i);
        hn::Store(c.b, d, run.b + i);
    }
}

// Gives the background's colours, in real channels, their tone where the subject does not cover them. `gain` is the
// light map's value of each pixel of the run, read only where there is a map.
template <class D>
void adjustBackground(D d, const FinishConstants& finish, const KeyedRun& run, const std::int32_t* gain,
                      LayerColors& colors) {
    const bool lit = finish.light.values && finish.light.onBackground;
    const auto one = hn::Set(d, 1.0);
    RunTone<D> tone(d, finish.backgroundTone, {run.x, run.y, run.count}, finish.backgroundLevels.data());
    for (int i = 0; i < run.count; i += static_cast<int>(hn::Lanes(d))) {
        if (hn::AllFalse(d, hn::Lt(hn::Load(d, run.alpha + i), one))) continue;
        auto light = one;
        if (lit) {
            const auto thousandths = hn::PromoteTo(d, hn::Load(WordTag<D>(), gain + i));
            light = hn::Add(one, hn::Div(thousandths, hn::Set(d, 1000.0)));
        }
        const auto c = tone.adjusted(loadLanes(d, colors.r + i, colors.g + i, colors.b + i), i, light);
        hn::Store(c.r, d, colors.r + i);
        hn::Store(c.g, d, colors.g + i);
        hn::Store(c.b, d, colors.b + i);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif
