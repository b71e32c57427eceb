#include "core/state/SystemInfo.h"

#include <algorithm>
#include <utility>

#include "core/Log.h"
#include "core/raster/CopyPixels.h"

namespace tavrin {

SystemInfo::SystemInfo()
    : pForegroundBitmapInfo(std::make_unique<BitmapInfo>(BitmapInfo::kForeground)),
      pBackgroundBitmapInfo(std::make_unique<BitmapInfo>(BitmapInfo::kBackground)),
      pCombinedBitmapInfo(std::make_unique<BitmapInfo>(BitmapInfo::kCombined)),
      oQLXInfo(std::make_unique<QLXInfo>()),
      oImageTexture(std::make_unique<ImageTexture>()),
      oReflectionTexture(std::make_unique<ImageTexture>()),
      oFrame(std::make_unique<ImageFrame>()),
      oFrameOverlay(std::make_unique<ImageFrame>()) {
    pForegroundBitmapInfo->bOrgFileChange = true;
    pBackgroundBitmapInfo->bOrgFileChange = true;
    pBackgroundBitmapInfo->bHaveBitmap = true;
    pCombinedBitmapInfo->bHaveBaseGreen = false;

    FontObject& title = oFontLabelObject[0];
    title.bDropShadow = true;
    FontObject& note = oFontLabelObject[1];
    note.sLabelSize = "Small";
    note.sLocation = "Bottom Right";
    note.sFontColor = "Black";
    note.dFontFillRed = note.dFontFillGreen = note.dFontFillBlue = 0.0;
}

PassGeometry SystemInfo::geometry(Resolution resolution) const {
    if (resolution == Resolution::full) return {iOutputPixelWidth, iOutputPixelHeight, iOutputImageDPI};
    return {iOutputPixelLowResWidth, iOutputPixelLowResHeight, iOutputImageLowResDPI};
}

PixelView SystemInfo::pixels(const BitmapInfo& record, Resolution resolution) const {
    const PassGeometry size = geometry(resolution);
    return {record.bytes(resolution), size.width, size.height};
}

void SystemInfo::StartUpdate() {
    {
        std::lock_guard lock(wakeMutex_);
        iNewThreadCount = iNewThreadCount + 1;
        woken_ = true;
    }
    wake_.notify_one();
}

void SystemInfo::wakeLoop() {
    {
        std::lock_guard lock(wakeMutex_);
        woken_ = true;
    }
    wake_.notify_one();
}

void SystemInfo::waitForUpdate(std::chrono::milliseconds limit) {
    std::unique_lock lock(wakeMutex_);
    wake_.wait_for(lock, limit, [this] { return woken_; });
    woken_ = false;
}

RunContext SystemInfo::rowsWhileCurrent() const {
    RunContext context;
    context.superseded = [this] { return isStale(); };
    return context;
}

RunContext SystemInfo::rowsWhileWanted() const {
    RunContext context;
    context.superseded = [this] { return isSuperseded(); };
    return context;
}

void SystemInfo::publishFull(int firstRow, int lastRow) {
    PublishedRows rows;
    rows.firstRow = firstRow;
    rows.rowCount = lastRow - firstRow;
    publish(std::move(rows), rowsWhileCurrent());
}

void SystemInfo::publishLowRes() {
    PublishedRows rows;
    rows.rowCount = iOutputPixelLowResHeight;
    rows.resolution = Resolution::preview;
    publish(std::move(rows), {});
}

void SystemInfo::publishEdited(Resolution resolution, int firstRow, int lastRow) {
    PublishedRows rows;
    rows.firstRow = std::max(firstRow, 0);
    rows.rowCount = std::min(lastRow, geometry(resolution).height) - rows.firstRow;
    rows.resolution = resolution;
    rows.edited = true;
    publish(std::move(rows), {});
}

/// Fills in the rows' pixels, where they are wanted, and hands them over.
void SystemInfo::publish(PublishedRows rows, const RunContext& run) {
    const PixelView picture = pixels(*pCombinedBitmapInfo, rows.resolution);
    if (!pInterface || !picture.bytes || rows.rowCount < 1) return;
    if (pInterface->wantsPixels()) {
        rows.pixels = newPicture(picture.width, rows.rowCount, QImage::Format_RGBA8888);
        if (rows.pixels.isNull()) return;
        if (!copyPixels(run, picture.at(0, rows.firstRow), rows.pixels.bits(), picture.width, rows.rowCount)) return;
    }
    rows.height = picture.height;
    pInterface->repaint(rows);
}

std::string SystemInfo::whyNotFinished(Resolution resolution) const {
    for (const BitmapInfo* record : {pForegroundBitmapInfo.get(), pBackgroundBitmapInfo.get()}) {
        if (!record->sSourceProblem.empty()) return record->sSourceProblem;
    }
    return pictures.whyNot(resolution);
}

void SystemInfo::alert(const std::string& message, const std::string& reason) {
    if (pInterface) {
        pInterface->showAlert(message, reason);
    } else {
        logError(message + " (" + reason + ")");
    }
}

}  // namespace tavrin
