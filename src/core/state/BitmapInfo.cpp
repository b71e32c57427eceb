#include "core/state/BitmapInfo.h"

#include <utility>

#include "core/Log.h"

namespace tavrin {

void BitmapInfo::BitmapDisplayInfoReset() {
    LayerSettings defaults;
    defaults.sSourceImageFullPath = sSourceImageFullPath;
    defaults.bBlackAndWhite = bBlackAndWhite;
    static_cast<LayerSettings&>(*this) = defaults;
    bOrgFileChange = false;
    oBitmapRep.reset();
    oBitmapRepLowRes.reset();
    bHaveGrayMap = bTextChanged = bResetOnLoad = false;
    iCombinedPercent = iFunction = iMouseCapture = 0;
}

void BitmapInfo::setSourceImageFullPath(const std::string& path) {
    sSourceImageFullPath = path;
    logTrace("Path file inside " + path + ".");
}

void BitmapInfo::allocateBuffers(int fullWidth, int fullHeight, int lowWidth, int lowHeight) {
    oBitmapRep.reset();
    oBitmapRepLowRes.reset();
    fullPixels_ = PixelBuffer();
    fullPixels_ = PixelBuffer(fullWidth, fullHeight);
    lowPixels_ = PixelBuffer();
    lowPixels_ = PixelBuffer(lowWidth, lowHeight);
    pBitmapData = fullPixels_.data();
    pBitmapDataLowRes = lowPixels_.data();
    if (!pBitmapData || !pBitmapDataLowRes) {
        fullPixels_ = PixelBuffer();
        lowPixels_ = PixelBuffer();
        pBitmapData = pBitmapDataLowRes = nullptr;
        return;
    }
    oBitmapRep = std::make_unique<BitmapContext>(pBitmapData, fullWidth, fullHeight);
    oBitmapRepLowRes = std::make_unique<BitmapContext>(pBitmapDataLowRes, lowWidth, lowHeight);
}

PixelBuffer BitmapInfo::takeFullPixels() {
    oBitmapRep.reset();
    pBitmapData = nullptr;
    return std::exchange(fullPixels_, PixelBuffer());
}

void BitmapInfo::setSource(QImage source) {
    orgImage = std::move(source);
    orgBitmapData = orgImage.constBits();
    iOrgWidth = orgImage.width();
    iOrgHeight = orgImage.height();
}

}  // namespace tavrin
