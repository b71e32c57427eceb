#include "key/Combine.h"

#include <algorithm>

#include "key/CombineRow.h"
#include "key/RefinedRun.h"
#include "key/light/Lighting.h"
#include "key/pixel/PixelSteps.h"

namespace tavrin {

namespace {

constexpr int kGrainRows = 4;

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

/// @param subject null: nothing is known, and nothing is kept
bool refineOrTake(const RunContext& context, const SystemInfo& info, const KeyOverrides& overrides,
                  Resolution resolution, CombineParams& params, RefinedSubject* subject) {
    if (subject && !subject->pixels.empty()) {
        takeRefined(info, subject->pixels, params);
        return true;
    }
    if (!refineRun(context, info, overrides, resolution, params)) return false;
    if (subject && params.refined) {
        const std::size_t bytes = pixelBytes(params.size.width, params.size.height);
        subject->pixels.assign(params.combined, params.combined + bytes);
    }
    return true;
}

void run(SystemInfo& info, Resolution resolution, bool refines, RefinedSubject* subject = nullptr) {
    const PassGeometry size = info.geometry(resolution);
    if (size.width < 1 || size.height < 1) return;
    CombineParams params = makeCombineParams(info, resolution);
    if (!params.foreground || !params.background || !params.combined) return;

    const KeyOverrides overrides(info, params, resolution);
    if (overrides.isSuperseded()) return;
    const RunContext context = resolution == Resolution::full ? fullRun(info, size.height) : RunContext();
    RunContext quiet = context;
    quiet.progress = nullptr;
    if (refines && !refineOrTake(quiet, info, overrides, resolution, params, subject)) return;
    const LightingRun light(info, resolution);
    params.finish.light.values = info.oLightingMap.empty() ? nullptr : info.oLightingMap.data();

    if (!searchBrightGrey(quiet, params)) return;
    runRows(context, size.height, kGrainRows, [&](int y) { combineRow(params, overrides, y); });
}

}  // namespace

void Combine(SystemInfo& info, int /*ignored*/, int hiRes) {
    run(info, fullIf(hiRes != 0), refinesKey(info));
}

void combinePreviewPlainly(SystemInfo& info) {
    run(info, Resolution::preview, false);
}

void combinePreviewOver(SystemInfo& info, RefinedSubject& subject) {
    run(info, Resolution::preview, refinesKey(info), &subject);
}

}  // namespace tavrin
