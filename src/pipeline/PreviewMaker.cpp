#include "pipeline/PreviewMaker.h"

#include <new>
#include <utility>

#include "core/BackgroundThread.h"
#include "core/raster/CopyPixels.h"
#include "core/state/NamedPictures.h"
#include "pipeline/KeyInputs.h"
#include "pipeline/LayerFit.h"
#include "pipeline/Layers.h"
#include "pipeline/OutputSize.h"
#include "pipeline/StageSteps.h"
#include "pipeline/SubjectPlace.h"

namespace tavrin {

namespace {

constexpr Resolution kPreview = Resolution::preview;

ReadPicture readSource(const SystemInfo& info, const BitmapInfo& record) {
    const std::string path = record.sSourceImageFullPath;
    return info.readSource ? info.readSource(path) : readPicture(path);
}

/// Copies between a buffer of the preview and one that keeps it, which gets its memory with the first copy.
void keep(const PassGeometry& size, const std::uint8_t* pixels, PixelBuffer& kept) {
    if (!kept.data()) kept = PixelBuffer(size.width, size.height);
    if (!kept.data()) throw std::bad_alloc();
    copyPixels({}, pixels, kept.data(), size.width, size.height);
}

void bringBack(const PassGeometry& size, const PixelBuffer& kept, std::uint8_t* pixels) {
    copyPixels({}, kept.data(), pixels, size.width, size.height);
}

}  // namespace

PreviewMaker::PreviewMaker(std::unique_ptr<SystemInfo> state, std::function<bool()> goesOn)
    : info_(std::move(state)),
      goesOn_(std::move(goesOn)),
      ownBackground_(info_->pBackgroundBitmapInfo->sSourceImageFullPath) {
    info_->pInterface = &nobody_;
}

bool PreviewMaker::goesOn() {
    if (goesOn_ && !goesOn_()) givenUp_ = true;
    return !givenUp_;
}

bool PreviewMaker::run(std::span<const Stage> stages) {
    for (const Stage& stage : stages) {
        if (!goesOn()) return false;
        const GivingWay within(goesOn_);
        runStages({&stage, 1}, *info_, kPreview);
    }
    return true;
}

void PreviewMaker::change(const std::function<void(SystemInfo&)>& write, bool leavesSubject) {
    write(*info_);
    if (!leavesSubject) subject_ = {};
    const BitmapInfo& foreground = *info_->pForegroundBitmapInfo;
    if (foreground.bOrgFileChange || foreground.bScaleChange || info_->bChangeImageSize) hasPortrait_ = false;
}

/// What cannot be read is told to nobody but the caller.
bool PreviewMaker::load(BitmapInfo& record) {
    ReadPicture read = readSource(*info_, record);
    problem_ = read.error;
    return problem_.empty() && ChangeOrgBitmap(*info_, record, std::move(read));
}

void PreviewMaker::drawLayer(BitmapInfo& record) {
    const GivingWay within(goesOn_);
    drawPreviewLayer(*info_, record);
}

/// What no background changes: its size, source, place and layer.
bool PreviewMaker::preparePortrait() {
    SystemInfo& info = *info_;
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    subject_ = {};
    background_ = {};
    keyed_ = {};
    info.bChangeImageSize = false;
    problem_ = ChangeImageSize(info);
    if (!problem_.empty()) return false;
    if (!load(foreground) || !goesOn()) return false;
    placeForeground(info);  // whole: what it finds about the place goes into the state
    drawLayer(foreground);
    if (!run(foregroundStages())) return false;
    foreground.bOrgFileChange = foreground.bScaleChange = false;
    findings_ = {info, info, info};
    hasPortrait_ = true;
    return true;
}

bool PreviewMaker::drawBackground() {
    BitmapInfo& background = *info_->pBackgroundBitmapInfo;
    if (!load(background) || !goesOn()) return false;
    drawLayer(background);
    keep(info_->geometry(kPreview), background.bytes(kPreview), background_.pixels);
    background_.place = placeOf(background);
    background_.isThere = true;
    background.bOrgFileChange = false;
    return true;
}

/// The screen's colour is that of the source again: layer and key begin with it, whatever was made before.
bool PreviewMaker::prepareBackground() {
    SystemInfo& info = *info_;
    BitmapInfo& background = *info.pBackgroundBitmapInfo;
    static_cast<ScreenColor&>(info) = findings_.screen;
    static_cast<HairColors&>(info) = findings_.hair;
    static_cast<SkinColor&>(info) = findings_.skin;
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    if (background_.isThere && !background.bOrgFileChange && placeOf(background) == background_.place) {
        bringBack(info.geometry(kPreview), background_.pixels, background.bytes(kPreview));
    } else if (!drawBackground()) {
        return false;
    }
    background.bScaleChange = false;
    return run(backgroundStages());
}

/// The stages of the key, but that a subject which is known already is taken as it is.
bool PreviewMaker::keyAnew() {
    for (const Stage& stage : previewStages().key) {
        if (stage.run != combine) {
            if (!run({&stage, 1})) return false;
        } else {
            if (!goesOn()) return false;
            const GivingWay within(goesOn_);
            combinePreviewOver(*info_, subject_);
        }
    }
    return true;
}

/// What is laid over the key alone does not key again.
bool PreviewMaker::key() {
    SystemInfo& info = *info_;
    const BitmapInfo& background = *info.pBackgroundBitmapInfo;
    std::uint8_t* combined = info.pCombinedBitmapInfo->bytes(kPreview);
    const PassGeometry size = info.geometry(kPreview);
    const std::string inputs = keyInputs(info);
    if (inputs == keyed_.inputs && !background.bOrgFileChange && !background.bScaleChange) {
        bringBack(size, keyed_.pixels, combined);
        info.randomSeeds.startAt(keyed_.seed);
        return true;
    }
    keyed_.inputs.clear();
    info.randomSeeds.startAt(RandomSeeds().upcoming());
    if (!prepareBackground() || !keyAnew()) return false;
    if (!combined || !info.pictures.failure().empty()) return true;  // the failure is told below
    keep(size, combined, keyed_.pixels);
    keyed_.inputs = inputs;
    keyed_.seed = info.randomSeeds.upcoming();
    return true;
}

bool PreviewMaker::make() {
    SystemInfo& info = *info_;
    return (hasPortrait_ || preparePortrait()) && key() &&
           run(info.iCartoonEffectType >= 1 ? drawnPreviewStages() : previewStages().finish);
}

QImage PreviewMaker::over(const std::string& background) {
    SystemInfo& info = *info_;
    problem_.clear();
    nobody_.alert.clear();
    givenUp_ = false;
    const std::string& path = background.empty() ? ownBackground_ : background;
    if (BitmapInfo& record = *info.pBackgroundBitmapInfo; record.sSourceImageFullPath.load() != path) {
        record.setSourceImageFullPath(path);
        record.bOrgFileChange = true;
    }
    info.iCurrentThreadCount = info.iNewThreadCount = 1;  // so that no stage is given up
    info.pictures.begin();
    forgetUnnamedPictures(info);
    try {
        if (!make()) return {};
    } catch (const GivenUp&) {
        givenUp_ = true;
        return {};
    } catch (const std::bad_alloc&) {
        failForMemory(info, "picture");
    }
    problem_ = info.pictures.failure();
    if (!problem_.empty()) {
        hasPortrait_ = false;
        return {};
    }
    const PassGeometry size = info.geometry(kPreview);
    return QImage(info.pCombinedBitmapInfo->bytes(kPreview), size.width, size.height, size.width * 4,
                  QImage::Format_RGBA8888)
        .copy();
}

}  // namespace tavrin
