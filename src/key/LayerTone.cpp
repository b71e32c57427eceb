#include "key/LayerTone.h"

namespace tavrin {

namespace {

// In real channels; black outside the picture.
Rgb silhouetteAt(const SilhouetteFill& fill, int x, int y) {
    const std::int64_t row = static_cast<std::int64_t>(y * fill.scale) + fill.rowShift;
    const std::int64_t column = static_cast<std::int64_t>(x * fill.scale) + fill.columnShift;
    if (row < 0 || row >= fill.height || column < 0 || column >= fill.width) return {0.0, 0.0, 0.0};
    const std::uint8_t* p = fill.pixels + pixelOffset(fill.width, static_cast<int>(column), static_cast<int>(row));
    return {static_cast<double>(p[0]), static_cast<double>(p[1]), static_cast<double>(p[2])};
}

void set(KeyedRun& run, int i, const Rgb& c) {
    run.r[i] = c.r;
    run.g[i] = c.g;
    run.b[i] = c.b;
}

}  // namespace

void adjustForeground(const FinishConstants& finish, KeyedRun& run) {
    const SilhouetteFill& fill = finish.silhouette;
    const bool drawsPicture = fill.on && fill.pixels;
    if (!drawsPicture && !finish.foregroundTone.active) return;
    for (int i = 0; i < run.count; ++i) {
        if (!(run.alpha[i] > 0.0) && !finish.transparent) continue;
        if (drawsPicture) {
            const Rgb c = silhouetteAt(fill, run.x + i, run.y);
            set(run, i, finish.blueLogic ? Rgb{c.r, c.b, c.g} : c);
            continue;
        }
        Rgb c{run.r[i], run.g[i], run.b[i]};
        adjustTone(finish.foregroundTone, c, run.x + i, run.y, 1.0);
        set(run, i, c);
    }
}

void adjustBackground(const FinishConstants& finish, const KeyedRun& run, const std::int32_t* gain,
                      LayerColors& colors) {
    const bool lit = finish.light.values && finish.light.onBackground;
    for (int i = 0; i < run.count; ++i) {
        if (run.alpha[i] >= 1.0) continue;
        Rgb c{colors.r[i], colors.g[i], colors.b[i]};
        adjustTone(finish.backgroundTone, c, run.x + i, run.y, lit ? 1.0 + gain[i] / 1000.0 : 1.0);
        colors.r[i] = c.r;
        colors.g[i] = c.g;
        colors.b[i] = c.b;
    }
}

}  // namespace tavrin
