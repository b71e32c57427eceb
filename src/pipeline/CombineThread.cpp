#include "pipeline/CombineThread.h"

#include <chrono>
#include <new>
#include <utility>

#include "core/raster/ColorMath.h"
#include "core/state/NamedPictures.h"
#include "key/RefinedRun.h"
#include "pipeline/OutputSize.h"
#include "pipeline/Stages.h"
#include "pipeline/SubjectPlace.h"

namespace tavrin {

namespace {

// The flags that a change of a layer raises for what comes after it.
void cascade(BitmapInfo& record) {
    record.bAdjChange = true;
    record.bCombineChange = true;
    record.bEditChange = false;
}

/// While a layer is dragged the preview is a plain mix: the layer in hand shows strongly, the other faintly.
void drawGhost(SystemInfo& info, bool foregroundInHand) {
    const double share = foregroundInHand ? 0.75 : 0.25;
    const int width = info.iOutputPixelLowResWidth;
    const std::uint8_t* fg = info.pForegroundBitmapInfo->pBitmapDataLowRes;
    const std::uint8_t* bg = info.pBackgroundBitmapInfo->pBitmapDataLowRes;
    std::uint8_t* out = info.pCombinedBitmapInfo->pBitmapDataLowRes;
    if (!fg || !bg || !out) return;
    runRows({}, info.iOutputPixelLowResHeight, 32, [&](int y) {
        const std::size_t last = pixelOffset(width, 0, y + 1);
        for (std::size_t i = pixelOffset(width, 0, y); i < last; i += kPixelBytes) {
            for (std::size_t c = i; c < i + 3; ++c)
                out[c] = toByte(share * fg[c] + (1.0 - share) * bg[c]);
        }
    });
}

}  // namespace

CombineThread::~CombineThread() {
    if (thread_.joinable()) {
        thread_.request_stop();
        info_.StartUpdate();
        thread_.join();
    }
    forgetRefinedPreview();
}

void CombineThread::StartMainThread() {
    thread_ = std::jthread([this](std::stop_token token) {
        cancelled_ = std::move(token);
        combineThread();
    });
}

void CombineThread::combineThread() {
    while (!cancelled_.stop_requested()) {
        if (iterate() == Turn::idle) info_.waitForUpdate(std::chrono::milliseconds(100));
    }
    runEdits();
}

void CombineThread::runUntilIdle() {
    while (iterate() != Turn::idle) {
    }
}

/// Nothing that a failed pass left is taken up by the next. The controls come back: a smaller size may help.
void CombineThread::tellFailure() {
    const std::string failure = info_.pictures.failure();
    if (failure.empty()) return;
    forgetKeyed();
    forgetRefinedPreview();
    info_.pForegroundBitmapInfo->bScaleChange = info_.pBackgroundBitmapInfo->bScaleChange = true;
    info_.pCombinedBitmapInfo->bHaveBaseGreen = false;
    if (info_.isStale()) return;
    if (failure != toldFailure_) info_.alert("The picture cannot be made.", failure);
    toldFailure_ = failure;
    if (info_.pInterface) info_.pInterface->enableControls(true, info_.bLightroomActive);
}

CombineThread::Turn CombineThread::iterate() {
    // Looked at before the edits are taken, so that none of them comes after a request that was made later.
    const bool isDue = !info_.isStale();
    runEdits();
    if (!isDue && !info_.isStale()) return Turn::worked;  // asked for just now
    if (isDue && !info_.isStale()) runForOthers([this] { runPosted(); });
    if (isDue && !info_.isStale() && runPass() == Turn::dragging) return Turn::dragging;
    if (info_.iCurrentThreadCount > info_.iNewThreadCount) {
        stepIdleJob();
        return Turn::idle;
    }
    info_.iCurrentThreadCount = info_.iCurrentThreadCount + 1;
    return Turn::worked;
}

CombineThread::Turn CombineThread::runPass() {
    info_.pictures.begin();
    forgetUnnamedPictures(info_);
    Turn turn = Turn::worked;
    try {
        turn = makePictures();
    } catch (const std::bad_alloc&) {
        failForMemory(info_, "picture");
    }
    tellFailure();
    return turn;
}

CombineThread::Turn CombineThread::makePictures() {
    Interface* view = info_.pInterface;
    if (view) {
        if (view->editorIsOpen()) {
            forgetKeyed();  // the editor paints into the buffers
            view->exitEditorMode();
        }
        view->enableControls(false, info_.bLightroomActive);
    }
    if (!updateLayers()) return Turn::worked;
    if (view && view->mouseDown()) {
        const int mode = view->eventMouseMode();
        if (info_.iOutputPixelLowResHeight >= 1) drawGhost(info_, mode == 1 || mode == 2);
        info_.bShowLowRes = true;
        info_.publishLowRes();
        return info_.bStop ? Turn::worked : Turn::dragging;
    }
    if (info_.isStale()) return Turn::worked;

    makePreview();
    if (!info_.pictures.failure().empty()) return Turn::worked;
    if (!info_.isStale() && drawDueLayers() && !info_.bSkipHiRes) makeFullPicture();
    return Turn::worked;
}

/// Brings both layers up to date: size, sources, placement, and what lies on the background.
/// @return false when a newer request came in between, or the pass failed
bool CombineThread::updateLayers() {
    BitmapInfo& foreground = *info_.pForegroundBitmapInfo;
    BitmapInfo& background = *info_.pBackgroundBitmapInfo;
    if (info_.bChangeImageSize.exchange(false)) {
        keyedPreview_.release();
        keyedFull_.release();
        if (const std::string problem = ChangeImageSize(info_); !problem.empty()) {
            info_.bChangeImageSize = true;  // until there is a size that can be used
            info_.pictures.fail(problem);
            return false;
        }
        placeForNewSize(info_);
        foreground.bOrgFileChange = true;
        background.bOrgFileChange = true;
        foreground.bHaveBitmap = false;
        info_.pCombinedBitmapInfo->bHaveBaseGreen = false;
    }
    if (!updateSources()) return false;
    if (!foreground.bOrgFileChange) placeForeground(info_);  // else a newer portrait is meant
    if (foreground.bScaleChange.exchange(false)) updateForegroundScale();
    if (info_.isStale()) return false;
    if (!info_.bBackgroundFrozen && background.bScaleChange.exchange(false)) {
        updateBackground();
        if (info_.isStale()) {
            background.bScaleChange = true;  // the interrupted background is redone
            return false;
        }
    }
    return true;
}

bool CombineThread::updateSources() {
    BitmapInfo& foreground = *info_.pForegroundBitmapInfo;
    BitmapInfo& background = *info_.pBackgroundBitmapInfo;
    const bool newForeground = foreground.bOrgFileChange.exchange(false);
    const bool newBackground = background.bOrgFileChange.exchange(false);
    ReadSources read = readSources(info_, newForeground, newBackground);
    if (newForeground) updateSource(foreground, std::move(read.foreground));
    if (info_.isStale()) {
        if (newBackground) background.bOrgFileChange = true;
        return false;
    }
    if (info_.bNewOutputSize.exchange(false) && info_.pInterface) {
        info_.pInterface->sizeWindow(info_.iOutputPixelWidth, info_.iOutputPixelHeight);
    }
    if (newBackground) updateSource(background, std::move(read.background));
    return !info_.isStale();
}

void CombineThread::updateSource(BitmapInfo& record, ReadPicture picture) {
    record.bScaleChange = true;
    cascade(record);
    info_.pCombinedBitmapInfo->bHaveBaseGreen = false;
    ChangeOrgBitmap(info_, record, std::move(picture));
}

void CombineThread::updateForegroundScale() {
    BitmapInfo& foreground = *info_.pForegroundBitmapInfo;
    forgetKeyed();
    forgetRefinedPreview();
    cascade(foreground);
    info_.pCombinedBitmapInfo->bHaveBaseGreen = false;
    // The shadow lives in the background's buffers.
    if (info_.iHaveShadow != 1) info_.pBackgroundBitmapInfo->bScaleChange = true;
    foregroundDue_ = scaleLayer(foreground);
    runStages(foregroundStages(), info_, Resolution::preview);
}

void CombineThread::updateBackground() {
    BitmapInfo& background = *info_.pBackgroundBitmapInfo;
    forgetKeyed();
    background.bHiResScaleChange = true;
    cascade(background);
    backgroundDue_ = scaleLayer(background);
    runStages(backgroundStages(), info_, Resolution::preview);
}

/// Draws the preview of a layer. Its full buffer waits until the preview is shown, which so follows the hand that
/// scales a layer.
/// @return set when `drawDueLayers` has to draw the full buffer
std::optional<LayerFill> CombineThread::scaleLayer(BitmapInfo& record) {
    const LayerFill fill = drawPreviewLayer(info_, record);
    if (!info_.pInterface || !info_.pInterface->mouseDown()) return fill;
    emptyFullLayer(record, fill);
    return std::nullopt;
}

/// Draws the full buffers that still wait, before somebody looks at them.
/// @return false when a newer request came in between; then what was not finished waits on
bool CombineThread::drawDueLayers() {
    const RunContext run = info_.rowsWhileCurrent();
    if (foregroundDue_) {
        if (!drawFullLayer(info_, *info_.pForegroundBitmapInfo, *foregroundDue_, run)) return false;
        runStages(foregroundStages(), info_, Resolution::full);
        if (info_.isStale()) return false;
        foregroundDue_.reset();
    }
    if (backgroundDue_) {
        if (!drawFullLayer(info_, *info_.pBackgroundBitmapInfo, *backgroundDue_, run)) return false;
        backgroundDue_.reset();
    }
    return true;
}

void CombineThread::forgetKeyed() {
    keyedPreview_.forget();
    keyedFull_.forget();
}

void CombineThread::makePreview() {
    if (!keyedPreview_.restore(info_)) {
        keyedFull_.forget();  // the full picture's key uses what is found here
        keyedPreview_.make(previewStages().key, info_);
    }
    runStages(previewStages().finish, info_, Resolution::preview);
    if (!info_.pictures.failure().empty()) return;
    info_.bShowLowRes = true;
    info_.publishLowRes();
    if (!info_.isStale()) info_.pictures.finish(Resolution::preview);
}

void CombineThread::makeFullPicture() {
    BitmapInfo& combined = *info_.pCombinedBitmapInfo;
    auto& newBackground = info_.pBackgroundBitmapInfo->bHiResScaleChange;
    if (newBackground) keyedFull_.forget();
    const bool isKeyed = keyedFull_.restore(info_);
    // Until the full picture is done the enlarged preview stands in for it, but not with nobody to look.
    if (!isKeyed && combined.oBitmapRep && info_.pInterface && info_.pInterface->wantsPixels()) {
        BitmapContext& full = *combined.oBitmapRep;
        const QRectF whole(0, 0, full.width(), full.height());
        const QImage preview = combined.oBitmapRepLowRes->snapshot();
        if (!full.drawImage(preview, whole, 1.0, info_.rowsWhileCurrent())) return;
    }
    if (newBackground.exchange(false)) {
        runStages(backgroundStages(), info_, Resolution::full);
        // Not raised again: a background interrupted here stays as far as it got until it is scaled anew.
        if (info_.isStale()) return;
    }
    if (!isKeyed) keyedFull_.make(fullStages().key, info_);
    runStagesWhileCurrent(fullStages().finish, info_, Resolution::full);
    if (info_.isStale() || !info_.pictures.failure().empty()) return;
    info_.pictures.finish(Resolution::full);
    toldFailure_.clear();
    info_.bShowLowRes = false;
    if (info_.pInterface) info_.pInterface->enableControls(true, info_.bLightroomActive);
    info_.publishFull(0, info_.iOutputPixelHeight);
}

}  // namespace tavrin
