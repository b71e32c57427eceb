#include "pipeline/WholePicture.h"

#include "key/BaseGreen.h"
#include "pipeline/Layers.h"
#include "pipeline/Stages.h"

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

bool loadAndCombineFiles(SystemInfo& info) {
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    BitmapInfo& background = *info.pBackgroundBitmapInfo;
    info.iCurrentThreadCount = 1;
    info.iNewThreadCount = 1;

    ReadSources read = readSources(info, true, true);
    bool loaded = ChangeOrgBitmap(info, foreground, std::move(read.foreground));
    ChangeBitmapScale(info, foreground);
    loaded = ChangeOrgBitmap(info, background, std::move(read.background)) && loaded;
    ChangeBitmapScale(info, background);
    runStages(backgroundStages(), info, kLowRes);
    ComputeBaseGreen(info, 1, 0);
    runStages(backgroundStages(), info, kFullRes);
    runStages(fastStages(), info, kFullRes);
    return loaded;
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
