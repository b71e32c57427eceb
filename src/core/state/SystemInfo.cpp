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

PassGeometry SystemInfo::geometry(int res) const {
    if (res == 1) return {iOutputPixelWidth, iOutputPixelHeight, iOutputImageDPI};
    return {iOutputPixelLowResWidth, iOutputPixelLowResHeight, iOutputImageLowResDPI};
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
    publish(*pCombinedBitmapInfo, false, firstRow, lastRow);
}

void SystemInfo::publishLowRes() {
    publish(*pCombinedBitmapInfo, true, 0, iOutputPixelLowResHeight);
}

void SystemInfo::publish(BitmapInfo& record, bool lowRes, int firstRow, int lastRow) {
    const std::uint8_t* bytes = lowRes ? record.pBitmapDataLowRes : record.pBitmapData;
    const int width = lowRes ? iOutputPixelLowResWidth : iOutputPixelWidth;
    const int height = lowRes ? iOutputPixelLowResHeight : iOutputPixelHeight;
    if (!pInterface || !bytes || lastRow <= firstRow) return;

    PublishedRows rows;
    const int count = lastRow - firstRow;
    if (pInterface->wantsPixels()) {
        rows.pixels = newPicture(width, count, QImage::Format_RGBA8888);
        if (rows.pixels.isNull()) return;
        const RunContext run = lowRes ? RunContext() : rowsWhileCurrent();
        if (!copyPixels(run, bytes + pixelOffset(width, 0, firstRow), rows.pixels.bits(), width, count)) return;
    }
    rows.firstRow = firstRow;
    rows.rowCount = count;
    rows.height = height;
    rows.lowRes = lowRes;
    pInterface->repaint(rows);
}

std::string SystemInfo::whyNotFinished(int res) const {
    for (const BitmapInfo* record : {pForegroundBitmapInfo.get(), pBackgroundBitmapInfo.get()}) {
        if (!record->sSourceProblem.empty()) return record->sSourceProblem;
    }
    return pictures.whyNot(res);
}

void SystemInfo::alert(const std::string& message, const std::string& reason) {
    if (pInterface) {
        pInterface->showAlert(message, reason);
    } else {
        logError(message + " (" + reason + ")");
    }
}

}  // namespace tavrin
