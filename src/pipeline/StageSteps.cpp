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
#include "key/skin/SoftenMac.h"
#include "pipeline/Stages.h"
#include "pipeline/StartUpPictures.h"
#include "pipeline/SubjectBounds.h"

namespace tavrin {

namespace {

constexpr int kEveryPixel = 10'000;  // blur threshold that lets every pixel pass

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

void findHair(SystemInfo& info, Resolution) {
    info.bFoundHair = false;
    if (info.bAdvancedHairDetectionON) ComputeHairColor(info);
    applyHairPreset(info);
}

void measureScreen(SystemInfo& info, Resolution) {
    info.pCombinedBitmapInfo->bHaveBaseGreen = true;
    ComputeBaseGreen(info, 1, 0);
}

void readSilhouette(SystemInfo& info, Resolution) {
    const std::string path = info.sSilhouetteFileName;
    info.silhouettePicture = QImage();
    if (!info.bOutputSilhouette || path.empty()) return;
    const QImage picture = readNamedPicture(info, path, "the silhouette has its plain colour");
    info.silhouettePicture = picture.convertToFormat(QImage::Format_RGBA8888);
    if (info.silhouettePicture.isNull() && !picture.isNull()) throw std::bad_alloc();
}

void combine(SystemInfo& info, Resolution resolution) {
    for (const BitmapInfo* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        if (!record->bytes(resolution)) throw std::bad_alloc();  // as at the change of the size
    }
    Combine(info, 1, numberOf(resolution));
}

void blendEdges(SystemInfo& info, Resolution) {
    SmoothHiResEdges(info, info.rowsWhileCurrent());
}

void smoothSkin(SystemInfo& info, Resolution) {
    const BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    SoftenMac(info, 1, foreground.pBitmapData, foreground.pBitmapDataLowRes, info.pCombinedBitmapInfo->pBitmapData, 1,
              info.rowsWhileCurrent());
}

void blurBackground(SystemInfo& info, Resolution resolution) {
    const PassGeometry g = info.geometry(resolution);
    BlurBitmap(info, info.pBackgroundBitmapInfo->bytes(resolution), g.width, g.height, g.dpi, kEveryPixel,
               info.dSliderBlur, resolution == Resolution::full ? whileBackgroundStands(info) : RunContext());
}

void blurResult(SystemInfo& info, Resolution resolution) {
    const PassGeometry g = info.geometry(resolution);
    BlurBitmap(info, info.pCombinedBitmapInfo->bytes(resolution), g.width, g.height, g.dpi,
               info.iSliderForegroundThreshold, info.dSliderForegroundBlur, whileCurrent(info, resolution));
}

void addShadow(SystemInfo& info, Resolution resolution) {
    AddShadow(info, 1, numberOf(resolution));
}

void addTexture(SystemInfo& info, Resolution resolution) {
    AddTexture(info, info.pCombinedBitmapInfo->bytes(resolution), numberOf(resolution));
}

void addFrame(SystemInfo& info, Resolution resolution) {
    AddFrame(info, *info.oFrame, info.pCombinedBitmapInfo->bytes(resolution), numberOf(resolution));
}

void addSecondFrame(SystemInfo& info, Resolution resolution) {
    AddFrame(info, *info.oFrameOverlay, info.pCombinedBitmapInfo->bytes(resolution), numberOf(resolution));
}

void drawStars(SystemInfo& info, Resolution resolution) {
    StarFilter(info, 0, info.pCombinedBitmapInfo->bytes(resolution), numberOf(resolution));
}

void smoothResult(SystemInfo& info, Resolution resolution) {
    FastGlobalImageSmoothing(info, 0, info.pCombinedBitmapInfo->bytes(resolution), numberOf(resolution));
}

void smoothForeground(SystemInfo& info, Resolution resolution) {
    FastGlobalImageSmoothing(info, 0, info.pForegroundBitmapInfo->bytes(resolution), numberOf(resolution));
}

void drawSketch(SystemInfo& info, Resolution resolution) {
    if (info.iCartoonEffectType >= 3) loadSketchPictures(info);
    const PassGeometry g = info.geometry(resolution);
    Sketch(info, 0, info.pCombinedBitmapInfo->bytes(resolution), g.width, g.height, g.dpi);
}

void reflect(SystemInfo& info, Resolution resolution) {
    if (info.bReflectAtSubject.exchange(false)) {
        const PassGeometry g = info.geometry(resolution);
        info.iSliderReflectionSkewBase =
            percentBelowSubject(info.pBackgroundBitmapInfo->bytes(resolution), g.width, g.height);
    }
    AddReflection(info, numberOf(resolution), *info.pCombinedBitmapInfo,
                  info.pForegroundBitmapInfo->bytes(resolution), info.pBackgroundBitmapInfo->bytes(resolution),
                  info.pCombinedBitmapInfo->bytes(resolution));
}

void textBackground(SystemInfo& info, Resolution resolution) {
    DrawTextAtLevel(info, info.pBackgroundBitmapInfo->context(resolution), "Background", numberOf(resolution));
}

void overlayBackground(SystemInfo& info, Resolution resolution) {
    DrawOverlayImage(info, info.pBackgroundBitmapInfo->context(resolution), info.sBackgroundOverlay,
                     numberOf(resolution));
}

void textBackgroundLayer(SystemInfo& info, Resolution resolution) {
    DrawTextAtLevel(info, info.pBackgroundBitmapInfo->context(resolution), "Background Layer", numberOf(resolution));
}

void textForeground(SystemInfo& info, Resolution resolution) {
    DrawTextAtLevel(info, info.pCombinedBitmapInfo->context(resolution), "Foreground", numberOf(resolution),
                    whileCurrent(info, resolution));
}

void overlayForeground(SystemInfo& info, Resolution resolution) {
    DrawOverlayImage(info, info.pCombinedBitmapInfo->context(resolution), info.sForegroundOverlay,
                     numberOf(resolution), whileCurrent(info, resolution));
}

void textForegroundLayer(SystemInfo& info, Resolution resolution) {
    DrawTextAtLevel(info, info.pCombinedBitmapInfo->context(resolution), "Foreground Layer", numberOf(resolution),
                    whileCurrent(info, resolution));
}

void overlayFrame(SystemInfo& info, Resolution resolution) {
    DrawOverlayImage(info, info.pCombinedBitmapInfo->context(resolution), info.sFrameOverlay, numberOf(resolution),
                     whileCurrent(info, resolution));
}

void textFrameLayer(SystemInfo& info, Resolution resolution) {
    chooseLabelColors(info, info.pCombinedBitmapInfo->bytes(resolution), resolution);
    DrawTextAtLevel(info, info.pCombinedBitmapInfo->context(resolution), "Frame Layer", numberOf(resolution),
                    whileCurrent(info, resolution));
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
