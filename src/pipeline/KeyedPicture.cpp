#include "pipeline/KeyedPicture.h"

#include <algorithm>

#include "core/raster/CopyPixels.h"
#include "pipeline/KeyInputs.h"

namespace tavrin {

namespace {

bool isWanted(const SystemInfo& info) {
    return info.pInterface && info.pInterface->wantsPixels();
}

bool readsFile(std::span<const Stage> stages, const SystemInfo& info) {
    return std::ranges::any_of(
        stages, [&](const Stage& stage) { return stage.readsFile && stage.when(info) && stage.readsFile(info); });
}

std::uint8_t* combinedPixels(const SystemInfo& info, int res) {
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    return res == kFullRes ? combined.pBitmapData : combined.pBitmapDataLowRes;
}

void runAll(std::span<const Stage> stages, SystemInfo& info, int res) {
    res == kFullRes ? runStagesWhileCurrent(stages, info, res) : runStages(stages, info, res);
}

}  // namespace

bool KeyedPicture::restore(SystemInfo& info) {
    std::uint8_t* combined = combinedPixels(info, res_);
    if (!kept_ || !combined || !isWanted(info) || !info.pCombinedBitmapInfo->bHaveBaseGreen) return false;
    if (keyInputs(info) != inputs_ || keyFindings(info) != findings_) return false;
    copyPixels(whileCurrent(info, res_), pixels_.data(), combined, width_, height_);
    // Skin smoothing has since measured the skin in a way of its own.
    if (res_ == kLowRes && info.bAdvancedHairDetectionON) static_cast<SkinColor&>(info) = skin_;
    return true;
}

void KeyedPicture::make(std::span<const Stage> stages, SystemInfo& info) {
    if (!isWanted(info)) {
        release();
        return runAll(stages, info, res_);
    }
    kept_ = false;
    const std::string before = inputs_, found = keyFindings(info);
    inputs_ = keyInputs(info);
    const std::uint64_t seed = info.randomSeeds.upcoming();
    runAll(stages, info, res_);
    // A setting that changed meanwhile is in a part of the rows only, even if it has changed back.
    if (info.isStale() || keyInputs(info) != inputs_) return forget();
    findings_ = keyFindings(info);

    // Another run has to give the same picture again. Each has random numbers of its own; the search for hair starts
    // from the screen's colour that it finds; and the reflection's red line stays on the background of the preview.
    const bool repeats = info.randomSeeds.upcoming() == seed && !readsFile(stages, info) &&
                         (!info.bAdvancedHairDetectionON || findings_ == found) &&
                         (res_ == kFullRes || !info.bHaveReflection || inputs_ == before);
    kept_ = repeats && keep(info);
}

bool KeyedPicture::keep(SystemInfo& info) {
    const PassGeometry size = info.geometry(res_);
    const std::uint8_t* combined = combinedPixels(info, res_);
    if (!combined || size.width < 1 || size.height < 1) return false;
    if (!pixels_.data() || size.width != width_ || size.height != height_) {
        pixels_ = PixelBuffer();
        pixels_ = PixelBuffer(size.width, size.height);
        width_ = size.width;
        height_ = size.height;
    }
    if (!pixels_.data()) return false;  // no memory: each pass keys
    skin_ = info;
    return copyPixels(whileCurrent(info, res_), combined, pixels_.data(), width_, height_) && !info.isStale();
}

void KeyedPicture::forget() {
    kept_ = false;
    inputs_.clear();
}

void KeyedPicture::release() {
    forget();
    pixels_ = PixelBuffer();
}

}  // namespace tavrin
