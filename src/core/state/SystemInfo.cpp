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
    rows.lowRes = true;
    publish(std::move(rows), {});
}

void SystemInfo::publishEdited(int res, int firstRow, int lastRow) {
    PublishedRows rows;
    rows.firstRow = std::max(firstRow, 0);
    rows.rowCount = std::min(lastRow, geometry(res).height) - rows.firstRow;
    rows.lowRes = res != 1;
    rows.edited = true;
    publish(std::move(rows), {});
}

/// Fills in the rows' pixels, where they are wanted, and hands them over.
void SystemInfo::publish(PublishedRows rows, const RunContext& run) {
    const BitmapInfo& record = *pCombinedBitmapInfo;
    const std::uint8_t* bytes = rows.lowRes ? record.pBitmapDataLowRes : record.pBitmapData;
    const PassGeometry size = geometry(rows.lowRes ? 0 : 1);
    if (!pInterface || !bytes || rows.rowCount < 1) return;
    if (pInterface->wantsPixels()) {
        rows.pixels = newPicture(size.width, rows.rowCount, QImage::Format_RGBA8888);
        if (rows.pixels.isNull()) return;
        const std::uint8_t* from = bytes + pixelOffset(size.width, 0, rows.firstRow);
        if (!copyPixels(run, from, rows.pixels.bits(), size.width, rows.rowCount)) return;
    }
    rows.height = size.height;
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
