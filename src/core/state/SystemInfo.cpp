#include "core/state/SystemInfo.h"

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
    publish(Resolution::full, firstRow, lastRow);
}

void SystemInfo::publishLowRes() {
    publish(Resolution::preview, 0, iOutputPixelLowResHeight);
}

void SystemInfo::publish(Resolution resolution, int firstRow, int lastRow) {
    const PixelView picture = pixels(*pCombinedBitmapInfo, resolution);
    if (!pInterface || !picture.bytes || lastRow <= firstRow) return;

    PublishedRows rows;
    const int count = lastRow - firstRow;
    if (pInterface->wantsPixels()) {
        rows.pixels = newPicture(picture.width, count, QImage::Format_RGBA8888);
        if (rows.pixels.isNull()) return;
        const RunContext run = resolution == Resolution::full ? rowsWhileCurrent() : RunContext();
        if (!copyPixels(run, picture.at(0, firstRow), rows.pixels.bits(), picture.width, count)) return;
    }
    rows.firstRow = firstRow;
    rows.rowCount = count;
    rows.height = picture.height;
    rows.lowRes = resolution == Resolution::preview;
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
