#include "key/RefinedRun.h"

#include <algorithm>
#include <memory>

#include "core/state/Interface.h"
#include "key/CombineRow.h"
#include "key/refine/KeptResult.h"

namespace tavrin {

namespace {

float share(std::int32_t slider) {
    return static_cast<float>(std::clamp(slider, -100, 100)) / 100.0f;
}

// The sliders of transparency and tint act on the refined alpha; the others of the key on what is sure.
refine::RefineTaste tasteOf(const SystemInfo& info, const CombineParams& params) {
    refine::RefineTaste taste;
    taste.softness = share(info.iSliderRefineSoftness);
    taste.detail = 1.0f + share(info.iSliderRefineDetail);
    taste.ownGreen = 1.0f + share(info.iSliderRefineOwnGreen);
    taste.shift = static_cast<float>(std::clamp(params.key.transShift, -1.0, 1.0));
    taste.tint = share(std::clamp<std::int32_t>(info.pCombinedBitmapInfo->sliderGreenTintAreas, 0, 200) - 100);
    return taste;
}

// The shape of a glow, which is made before the rows are written: `alpha` of the first pixel, and each `step` bytes.
void keepAlpha(const CombineParams& params, const std::uint8_t* alpha, std::size_t step) {
    const auto [width, height] = params.size;
    const ClipMargins& clip = params.key.clip;
    std::uint8_t* to = params.background + 3;
    for (int y = 0; y < height; ++y) {
        const bool outside = y < clip.top || height - y < clip.bottom;
        for (int x = 0; x < width; ++x, to += kPixelBytes, alpha += step)
            *to = outside || x < clip.left || width - x < clip.right ? std::uint8_t{0} : *alpha;
    }
}

}  // namespace

bool refineRun(const RunContext& context, const SystemInfo& info, const KeyOverrides& overrides,
               Resolution resolution, CombineParams& params) {
    const auto [width, height] = params.size;
    // What the margins cut away is screen and subject all the same.
    CombineParams whole = params;
    whole.key.clip = {};
    const auto alpha = std::make_unique_for_overwrite<std::uint8_t[]>(static_cast<std::size_t>(width) *
                                                                      static_cast<std::size_t>(height));
    const bool keyed = runRows(context, height, 4, [&](int y) {
        keyAlphaRow(whole, overrides, y, alpha.get() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width));
    });
    if (!keyed) return false;
    const refine::Shot shot{width, height, params.foreground, alpha.get(), params.key.blueLogic};
    // Where nobody looks, no control is moved a second time.
    const bool keeps = resolution == Resolution::preview && info.pInterface && info.pInterface->wantsPixels();
    const auto look = keeps ? &refine::refinePreview : &refine::refineKey;
    const refine::Refined result = look(context, shot, tasteOf(info, params), params.combined);
    params.refined = result == refine::Refined::done;
    if (info.iLightingMode == 4) {
        params.refined ? keepAlpha(params, params.combined + 3, kPixelBytes) : keepAlpha(params, alpha.get(), 1);
    }
    return result != refine::Refined::superseded;
}

void forgetRefinedPreview() {
    refine::forgetPreview();
}

void takeRefined(const SystemInfo& info, const std::vector<std::uint8_t>& subject, CombineParams& params) {
    std::copy(subject.begin(), subject.end(), params.combined);
    params.refined = true;
    if (info.iLightingMode == 4) keepAlpha(params, params.combined + 3, kPixelBytes);
}

}  // namespace tavrin
