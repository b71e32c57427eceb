#include "pipeline/PreviewMaker.h"

#include <new>
#include <utility>

#include "pipeline/Layers.h"
#include "pipeline/OutputSize.h"
#include "pipeline/StageSteps.h"
#include "pipeline/Stages.h"
#include "pipeline/SubjectPlace.h"

namespace tavrin {

namespace {

constexpr Resolution kPreview = Resolution::preview;

ReadPicture readSource(const SystemInfo& info, const BitmapInfo& record) {
    const std::string path = record.sSourceImageFullPath;
    return info.readSource ? info.readSource(path) : readPicture(path);
}

}  // namespace

PreviewMaker::PreviewMaker(std::unique_ptr<SystemInfo> state) : info_(std::move(state)) {
    info_->pInterface = &nobody_;
}

/// What cannot be read is told to nobody but the caller.
bool PreviewMaker::load(BitmapInfo& record) {
    ReadPicture read = readSource(*info_, record);
    problem_ = read.error;
    return problem_.empty() && ChangeOrgBitmap(*info_, record, std::move(read));
}

/// What no background changes: its size, source, place and layer.
bool PreviewMaker::preparePortrait() {
    SystemInfo& info = *info_;
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    problem_ = ChangeImageSize(info);
    if (!problem_.empty()) return false;
    if (!load(foreground)) return false;
    placeForeground(info);
    drawPreviewLayer(info, foreground);
    runStages(foregroundStages(), info, kPreview);
    screen_ = info;
    hasPortrait_ = true;
    return true;
}

/// The screen's colour is that of the source again: layer and key begin with it, whatever was made before.
bool PreviewMaker::prepareBackground(const std::string& path) {
    SystemInfo& info = *info_;
    BitmapInfo& background = *info.pBackgroundBitmapInfo;
    if (!path.empty()) background.setSourceImageFullPath(path);
    static_cast<ScreenColor&>(info) = screen_;
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    if (!load(background)) return false;
    drawPreviewLayer(info, background);
    runStages(backgroundStages(), info, kPreview);
    return true;
}

/// The stages of the key, but that a subject which is known already is taken as it is.
void PreviewMaker::key() {
    for (const Stage& stage : previewStages().key) {
        if (stage.run == combine) {
            combinePreviewOver(*info_, subject_);
        } else {
            runStages({&stage, 1}, *info_, kPreview);
        }
    }
}

QImage PreviewMaker::over(const std::string& background) {
    SystemInfo& info = *info_;
    problem_.clear();
    info.iCurrentThreadCount = info.iNewThreadCount = 1;  // so that no stage is given up
    info.pictures.begin();
    try {
        if ((!hasPortrait_ && !preparePortrait()) || !prepareBackground(background)) return {};
        key();
        runStages(previewStages().finish, info, kPreview);
    } catch (const std::bad_alloc&) {
        failForMemory(info, "picture");
    }
    problem_ = info.pictures.failure();
    if (!problem_.empty()) return {};
    const PassGeometry size = info.geometry(kPreview);
    return QImage(info.pCombinedBitmapInfo->bytes(kPreview), size.width, size.height, size.width * 4,
                  QImage::Format_RGBA8888)
        .copy();
}

}  // namespace tavrin
