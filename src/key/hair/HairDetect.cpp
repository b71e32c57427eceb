#include "key/hair/HairDetect.h"

#include <new>

#include "core/raster/ColorMath.h"
#include "key/hair/HairDetail.h"
#include "key/hair/HairScan.h"
#include "key/skin/SkinMask.h"

namespace tavrin {

namespace {

constexpr int kAutomaticHair = 6;

void writeMask(const std::int32_t* mask, std::uint8_t* rgba, int width, int height) {
    runRows({}, height, 16, [&](int y) {
        const std::size_t first = pixelOffset(width, 0, y);
        const std::int32_t* row = mask + first / kPixelBytes;
        std::uint8_t* out = rgba + first;
        for (int x = 0; x < width; ++x, out += kPixelBytes)
            out[0] = out[1] = out[2] = toByte(row[x]);
    });
}

// The face colour is measured whatever `bComputeSkinColor` says; the mask then follows the setting.
bool findSkin(SystemInfo& info, const std::uint8_t* foreground, std::uint8_t* combined, int width, int height) {
    measureSkin(info, true, foreground, width, height);
    const auto mask =
        blurredSkinMask(info, SkinMask(info, info.bComputeSkinColor, SkinMaskLimits()), foreground, width, height);
    if (mask.data()) writeMask(mask.numbers(), combined, width, height);
    return mask.data() != nullptr;
}

std::uint8_t* detailMap(SystemInfo& info, int width, int height) {
    if (!info.pHairDetectBitmap) {
        info.hairDetectPixels = PixelBuffer(width, height);
        info.pHairDetectBitmap = info.hairDetectPixels.data();
        if (!info.pHairDetectBitmap) throw std::bad_alloc();
    }
    return info.pHairDetectBitmap;
}

}  // namespace

// A blur of the combined buffer that once stood first, and the constants of a tooth's colour, are left out: nothing
// reads them.
void ComputeHairColor(SystemInfo& info) {
    const int width = info.iOutputPixelLowResWidth, height = info.iOutputPixelLowResHeight;
    const std::uint8_t* foreground = info.pForegroundBitmapInfo->pBitmapDataLowRes;
    std::uint8_t* combined = info.pCombinedBitmapInfo->pBitmapDataLowRes;
    if (!foreground || !combined || width < 1 || height < 1 || info.isSuperseded()) return;

    const RunContext context = info.rowsWhileWanted();
    if (!findSkin(info, foreground, combined, width, height)) return;
    const Rgb base = {info.baseRed, info.baseGreen, info.baseBlue};
    const bool blueLogic = info.bUseBlueLogic;
    if (info.iMacroHairColor == kAutomaticHair) {
        HairScan scan(foreground, combined, width, height);
        if (!scan.run(context, base, blueLogic)) return;
        scan.pick(info);
    }
    writeHairDetail(context, {foreground, width, height, base.g, blueLogic}, detailMap(info, width, height));
}

}  // namespace tavrin
