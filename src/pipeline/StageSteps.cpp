#include "pipeline/StageSteps.h"

#include <new>

#include "core/state/NamedPictures.h"
#include "core/text/TextLayers.h"
#include "effects/BlurBitmap.h"
#include "effects/Reflection.h"
#include "effects/Texture.h"
#include "effects/frame/Frame.h"
#include "effects/shadow/Shadow.h"
#include "effects/sketch/Sketch.h"
#include "effects/smoothing/GlobalSmoothing.h"
#include "effects/star/StarFilter.h"
#include "key/Combine.h"
#include "key/SmoothEdges.h"
#include "key/hair/HairDetect.h"
#include "key/screen/BaseGreen.h"
#include "key/skin/Skin.h"
#include "pipeline/Stages.h"
#include "pipeline/StartUp.h"
#include "pipeline/SubjectBounds.h"

namespace tavrin {

namespace {

constexpr int kEveryPixel = 10'000;  // blur threshold that lets every pixel pass

std::uint8_t* pixelsOf(const BitmapInfo& record, int res) {
    return res == kFullRes ? record.pBitmapData : record.pBitmapDataLowRes;
}

BitmapContext* contextOf(const BitmapInfo& record, int res) {
    return res == kFullRes ? record.oBitmapRep.get() : record.oBitmapRepLowRes.get();
}

// What is left half done of a background stays so until the layer is scaled anew. So nothing of it is given up but
// where that is about to happen.
RunContext whileBackgroundStands(const SystemInfo& info) {
    RunContext context;
    context.superseded = [&info] {
        const BitmapInfo& background = *info.pBackgroundBitmapInfo;
        const bool movesShadow = info.iHaveShadow != 1 && info.pForegroundBitmapInfo->bScaleChange;
        return info.isStale() && (background.bScaleChange || background.bOrgFileChange || movesShadow);
    };
    return context;
}

struct HairPreset {
    int red, green, blue;
};

constexpr HairPreset kHairPresets[] = {
    {150, 100, 60}, {30, 30, 30}, {190, 170, 110}, {100, 65, 10}, {245, 245, 245},
};

}  // namespace

void findHair(SystemInfo& info, int) {
    info.bFoundHair = false;
    if (info.bAdvancedHairDetectionON) ComputeHairColor(info);
    applyHairPreset(info);
}

void measureScreen(SystemInfo& info, int) {
    info.pCombinedBitmapInfo->bHaveBaseGreen = true;
    ComputeBaseGreen(info, 1, 0);
}

void readSilhouette(SystemInfo& info, int) {
    const std::string path = info.sSilhouetteFileName;
    info.silhouettePicture = QImage();
    if (!info.bOutputSilhouette || path.empty()) return;
    const QImage picture = readNamedPicture(info, path, "the silhouette has its plain colour");
    info.silhouettePicture = picture.convertToFormat(QImage::Format_RGBA8888);
    if (info.silhouettePicture.isNull() && !picture.isNull()) throw std::bad_alloc();
}

void combine(SystemInfo& info, int res) {
    for (const BitmapInfo* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        if (!pixelsOf(*record, res)) throw std::bad_alloc();  // as at the change of the size
    }
    Combine(info, 1, res);
}

void blendEdges(SystemInfo& info, int) {
    SmoothHiResEdges(info, info.rowsWhileCurrent());
}

void smoothSkin(SystemInfo& info, int) {
    const BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    SoftenMac(info, 1, foreground.pBitmapData, foreground.pBitmapDataLowRes, info.pCombinedBitmapInfo->pBitmapData, 1,
              info.rowsWhileCurrent());
}

void blurBackground(SystemInfo& info, int res) {
    const PassGeometry g = info.geometry(res);
    BlurBitmap(info, pixelsOf(*info.pBackgroundBitmapInfo, res), g.width, g.height, g.dpi, kEveryPixel,
               info.dSliderBlur, res == kFullRes ? whileBackgroundStands(info) : RunContext());
}

void blurResult(SystemInfo& info, int res) {
    const PassGeometry g = info.geometry(res);
    BlurBitmap(info, pixelsOf(*info.pCombinedBitmapInfo, res), g.width, g.height, g.dpi,
               info.iSliderForegroundThreshold, info.dSliderForegroundBlur, whileCurrent(info, res));
}

void addShadow(SystemInfo& info, int res) {
    AddShadow(info, 1, res);
}

void addTexture(SystemInfo& info, int res) {
    AddTexture(info, pixelsOf(*info.pCombinedBitmapInfo, res), res);
}

void addFrame(SystemInfo& info, int res) {
    AddFrame(info, *info.oFrame, pixelsOf(*info.pCombinedBitmapInfo, res), res);
}

void addSecondFrame(SystemInfo& info, int res) {
    AddFrame(info, *info.oFrameOverlay, pixelsOf(*info.pCombinedBitmapInfo, res), res);
}

void drawStars(SystemInfo& info, int res) {
    StarFilter(info, 0, pixelsOf(*info.pCombinedBitmapInfo, res), res);
}

void smoothResult(SystemInfo& info, int res) {
    FastGlobalImageSmoothing(info, 0, pixelsOf(*info.pCombinedBitmapInfo, res), res);
}

void smoothForeground(SystemInfo& info, int res) {
    FastGlobalImageSmoothing(info, 0, pixelsOf(*info.pForegroundBitmapInfo, res), res);
}

void drawSketch(SystemInfo& info, int res) {
    if (info.iCartoonEffectType >= 3) loadSketchPictures(info);
    const PassGeometry g = info.geometry(res);
    Sketch(info, 0, pixelsOf(*info.pCombinedBitmapInfo, res), g.width, g.height, g.dpi);
}

void reflect(SystemInfo& info, int res) {
    if (info.iSliderReflectionSkewBase == kReflectAtSubject) {
        const PassGeometry g = info.geometry(res);
        info.iSliderReflectionSkewBase =
            percentBelowSubject(pixelsOf(*info.pBackgroundBitmapInfo, res), g.width, g.height);
    }
    AddReflection(info, res, *info.pCombinedBitmapInfo, pixelsOf(*info.pForegroundBitmapInfo, res),
                  pixelsOf(*info.pBackgroundBitmapInfo, res), pixelsOf(*info.pCombinedBitmapInfo, res));
}

void textBackground(SystemInfo& info, int res) {
    DrawTextAtLevel(info, contextOf(*info.pBackgroundBitmapInfo, res), "Background", res);
}

void overlayBackground(SystemInfo& info, int res) {
    DrawOverlayImage(info, contextOf(*info.pBackgroundBitmapInfo, res), info.sBackgroundOverlay, res);
}

void textBackgroundLayer(SystemInfo& info, int res) {
    DrawTextAtLevel(info, contextOf(*info.pBackgroundBitmapInfo, res), "Background Layer", res);
}

void textForeground(SystemInfo& info, int res) {
    DrawTextAtLevel(info, contextOf(*info.pCombinedBitmapInfo, res), "Foreground", res, whileCurrent(info, res));
}

void overlayForeground(SystemInfo& info, int res) {
    DrawOverlayImage(info, contextOf(*info.pCombinedBitmapInfo, res), info.sForegroundOverlay, res,
                     whileCurrent(info, res));
}

void textForegroundLayer(SystemInfo& info, int res) {
    DrawTextAtLevel(info, contextOf(*info.pCombinedBitmapInfo, res), "Foreground Layer", res,
                    whileCurrent(info, res));
}

void overlayFrame(SystemInfo& info, int res) {
    DrawOverlayImage(info, contextOf(*info.pCombinedBitmapInfo, res), info.sFrameOverlay, res,
                     whileCurrent(info, res));
}

void textFrameLayer(SystemInfo& info, int res) {
    chooseLabelColors(info, pixelsOf(*info.pCombinedBitmapInfo, res), res);
    DrawTextAtLevel(info, contextOf(*info.pCombinedBitmapInfo, res), "Frame Layer", res, whileCurrent(info, res));
}

void applyHairPreset(SystemInfo& info) {
    const int hair = info.iMacroHairColor;
    if (hair < 1 || hair > static_cast<int>(std::size(kHairPresets))) return;
    const HairPreset& preset = kHairPresets[hair - 1];
    info.iHairColorBinRed[0] = preset.red;
    info.iHairColorBinGreen[0] = preset.green;
    info.iHairColorBinBlue[0] = preset.blue;
    info.iHairColorCount = 1;
    info.bFoundHair = true;
}

}  // namespace tavrin
