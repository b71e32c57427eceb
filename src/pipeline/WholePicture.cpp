#include "pipeline/WholePicture.h"

#include <new>

#include "core/state/NamedPictures.h"
#include "key/screen/BaseGreen.h"
#include "pipeline/Layers.h"
#include "pipeline/Stages.h"
#include "pipeline/SubjectPlace.h"

namespace tavrin {

namespace {

constexpr std::uint8_t kEmptyForeground[3] = {35, 135, 80};

void freeze(const std::uint8_t* combined, std::uint8_t* foreground, std::uint8_t* background, int width, int height) {
    if (!combined || !foreground || !background) return;
    runRows({}, height, 32, [&](int y) {
        const std::size_t last = pixelOffset(width, 0, y + 1);
        for (std::size_t i = pixelOffset(width, 0, y); i < last; i += kPixelBytes) {
            for (std::size_t c = 0; c < 3; ++c) {
                background[i + c] = combined[i + c];
                foreground[i + c] = kEmptyForeground[c];
            }
        }
    });
}

}  // namespace

namespace {

void loadAndCombine(SystemInfo& info) {
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    BitmapInfo& background = *info.pBackgroundBitmapInfo;
    ReadSources read = readSources(info, true, true);
    ChangeOrgBitmap(info, foreground, std::move(read.foreground));
    placeForeground(info);
    ChangeBitmapScale(info, foreground);
    ChangeOrgBitmap(info, background, std::move(read.background));
    ChangeBitmapScale(info, background);
    runStages(backgroundStages(), info, kLowRes);
    ComputeBaseGreen(info, 1, 0);
    runStages(backgroundStages(), info, kFullRes);
    runStages(fastStages(), info, kFullRes);
}

}  // namespace

bool loadAndCombineFiles(SystemInfo& info) {
    info.iCurrentThreadCount = 1;
    info.iNewThreadCount = 1;
    info.pictures.begin();
    forgetUnnamedPictures(info);
    try {
        loadAndCombine(info);
    } catch (const std::bad_alloc&) {
        failForMemory(info, "picture");
    }
    info.pictures.finish(kFullRes);
    const std::string failure = info.pictures.failure();
    if (!failure.empty()) info.alert("The picture cannot be made.", failure);
    return info.whyNotFinished(kFullRes).empty();
}

void FreezeToBackground(SystemInfo& info) {
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    const BitmapInfo& fg = *info.pForegroundBitmapInfo;
    const BitmapInfo& bg = *info.pBackgroundBitmapInfo;
    freeze(combined.pBitmapDataLowRes, fg.pBitmapDataLowRes, bg.pBitmapDataLowRes, info.iOutputPixelLowResWidth,
           info.iOutputPixelLowResHeight);
    freeze(combined.pBitmapData, fg.pBitmapData, bg.pBitmapData, info.iOutputPixelWidth, info.iOutputPixelHeight);
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    info.bBackgroundFrozen = true;
}

}  // namespace tavrin
