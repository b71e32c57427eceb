#include "key/Combine.h"

#include <algorithm>

#include "key/KeyJoins.h"
#include "key/Lighting.h"
#include "key/SilhouettePicture.h"

namespace tavrin {

namespace {

constexpr int kGrainRows = 4;

// One pixel after the key: the rest of its way to the buffers.
void finishPixel(const CombineParams& params, const KeyJoins& joins, const KeyedPixel& pixel, int x, int y) {
    const FinishConstants& finish = params.finish;
    const std::size_t index =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(params.size.width) + static_cast<std::size_t>(x);
    const std::int32_t gain = finish.light.values ? finish.light.values[index] : 0;
    std::uint8_t* background = params.background + index * kPixelBytes;
    std::uint8_t* out = params.combined + index * kPixelBytes;

    // Nothing but background, and that as it is: most of a picture.
    if (!(pixel.alpha > 0.0) && finish.plainBackground && !finish.transparent && !joins.showsGuard()) {
        std::copy_n(background, 3, out);
        out[3] = 255;
        background[3] = 0;
        return;
    }
    // A layer with no share in the result is not worked out; it would be multiplied by 0.
    const bool seen = pixel.alpha > 0.0 || finish.transparent;
    const Rgb foreground = seen ? finishForeground(finish, pixel.color, x, y) : Rgb{0.0, 0.0, 0.0};
    Rgb shown = foreground;
    double alpha = pixel.alpha;
    if (joins.showsGuard()) joins.showGuard(shown, alpha, x, y);
    if (pixel.inClipMargin) alpha = 0.0;

    out[3] = 255;
    if (finish.transparent) {
        writeTransparent(finish, foreground, alpha, out);
    } else {
        const Rgb behind = alpha < 1.0 ? finishBackground(finish, background, x, y, gain) : Rgb{0.0, 0.0, 0.0};
        writeColor(finish.blueLogic, blendPixel(finish, shown, behind, alpha, gain), out);
    }
    background[3] = toByte(alpha * 255.0);
}

void combineRow(const CombineParams& params, const KeyJoins& joins, int y) {
    const GridStep row = gridStep(y, params.size.height);
    const std::uint8_t* foreground = params.foreground + pixelOffset(params.size.width, 0, y);
    for (int x = 0; x < params.size.width; ++x, foreground += kPixelBytes) {
        KeyedPixel pixel = decidePixel(params.key, foreground, x, y, row);
        joins.overrule(pixel, x, y);
        finishPixel(params, joins, pixel, x, y);
    }
}

// The one thing that pixels hand on to those after them, found beforehand so that rows can run in any order.
bool searchBrightGrey(const RunContext& context, CombineParams& params) {
    if (!params.key.showOrgImage || !params.key.showBright) return true;
    const std::int64_t width = params.size.width;
    std::atomic<std::int64_t> first = params.key.firstBrightGrey;
    const bool finished = runRows(context, params.size.height, kGrainRows, [&](int y) {
        if (y * width > first.load()) return;
        const int x = findBrightGrey(params.key, params.foreground + pixelOffset(params.size.width, 0, y));
        if (x == width) return;
        std::int64_t known = first.load();
        while (y * width + x < known && !first.compare_exchange_weak(known, y * width + x)) {
        }
    });
    params.key.firstBrightGrey = first;
    return finished;
}

// What a full-resolution run listens to and tells on its way.
RunContext fullRun(SystemInfo& info, int height) {
    RunContext context = info.rowsWhileCurrent();
    context.progressRows = std::max(height / 10, 1);
    context.progress = [&info](int first, int last) {
        info.bShowLowRes = false;
        info.publishFull(first, last);
    };
    return context;
}

}  // namespace

void Combine(SystemInfo& info, int /*ignored*/, int hiRes) {
    const RunSize size = runSize(info, hiRes);
    if (size.width < 1 || size.height < 1) return;
    CombineParams params = makeCombineParams(info, hiRes);
    if (!params.foreground || !params.background || !params.combined) return;

    const KeyJoins joins(info, params, hiRes != 0);
    if (joins.isSuperseded()) return;
    QImage silhouette;
    if (!loadSilhouette(info, params, silhouette)) return;
    const LightingRun light(info, size.width, size.height, hiRes);
    params.finish.light.values = info.oLightingMap.empty() ? nullptr : info.oLightingMap.data();

    const RunContext context = hiRes == 0 ? RunContext{} : fullRun(info, size.height);
    RunContext quiet = context;
    quiet.progress = nullptr;
    if (!searchBrightGrey(quiet, params)) return;
    runRows(context, size.height, kGrainRows, [&](int y) { combineRow(params, joins, y); });
}

}  // namespace tavrin
