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

void freeze(const SystemInfo& info, Resolution resolution) {
    const ConstPixelView picture = info.pixels(*info.pCombinedBitmapInfo, resolution);
    const std::uint8_t* combined = picture.bytes;
    std::uint8_t* foreground = info.pForegroundBitmapInfo->bytes(resolution);
    std::uint8_t* background = info.pBackgroundBitmapInfo->bytes(resolution);
    if (!combined || !foreground || !background) return;
    runRows({}, picture.height, 32, [&](int y) {
        const std::size_t last = pixelOffset(picture.width, 0, y + 1);
        for (std::size_t i = pixelOffset(picture.width, 0, y); i < last; i += kPixelBytes) {
            for (std::size_t c = 0; c < 3; ++c) {
                background[i + c] = combined[i + c];
                foreground[i + c] = kEmptyForeground[c];
            }
        }
    });
}

void loadAndCombine(SystemInfo& info) {
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    BitmapInfo& background = *info.pBackgroundBitmapInfo;
    ReadSources read = readSources(info, true, true);
    ChangeOrgBitmap(info, foreground, std::move(read.foreground));
    placeForeground(info);
    ChangeBitmapScale(info, foreground);
    ChangeOrgBitmap(info, background, std::move(read.background));
    ChangeBitmapScale(info, background);
    runStages(backgroundStages(), info, Resolution::preview);
    ComputeBaseGreen(info, 1, 0);
    runStages(backgroundStages(), info, Resolution::full);
    runStages(fastStages(), info, Resolution::full);
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
    info.pictures.finish(Resolution::full);
    const std::string failure = info.pictures.failure();
    if (!failure.empty()) info.alert("The picture cannot be made.", failure);
    return info.whyNotFinished(Resolution::full).empty();
}

void FreezeToBackground(SystemInfo& info) {
    freeze(info, Resolution::preview);
    freeze(info, Resolution::full);
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    info.bBackgroundFrozen = true;
}

}  // namespace tavrin
