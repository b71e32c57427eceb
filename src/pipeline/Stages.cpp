#include "pipeline/Stages.h"

#include "core/raster/BlurBitmap.h"
#include "core/text/TextLayers.h"
#include "effects/Frame.h"
#include "effects/GlobalSmoothing.h"
#include "effects/Reflection.h"
#include "effects/Shadow.h"
#include "effects/Sketch.h"
#include "effects/StarFilter.h"
#include "effects/Texture.h"
#include "key/BaseGreen.h"
#include "key/Combine.h"
#include "key/HairDetect.h"
#include "key/Skin.h"
#include "key/SmoothEdges.h"
#include "pipeline/StartUp.h"

namespace tavrin {

namespace {

constexpr int kEveryPixel = 10'000;  // blur threshold that lets every pixel pass

std::uint8_t* pixelsOf(const BitmapInfo& record, int res) {
    return res == kFullRes ? record.pBitmapData : record.pBitmapDataLowRes;
}

void findHair(SystemInfo& info, int) {
    info.bFoundHair = false;
    if (info.bAdvancedHairDetectionON) ComputeHairColor(info);
    applyHairPreset(info);
}

void measureScreen(SystemInfo& info, int) {
    info.pCombinedBitmapInfo->bHaveBaseGreen = true;
    ComputeBaseGreen(info, 1, 0);
}

void combine(SystemInfo& info, int res) {
    Combine(info, 1, res);
}

void blendEdges(SystemInfo& info, int) {
    SmoothHiResEdges(info);
}

void smoothSkin(SystemInfo& info, int) {
    const BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    SoftenMac(info, 1, foreground.pBitmapData, foreground.pBitmapDataLowRes, info.pCombinedBitmapInfo->pBitmapData,
              1);
}

void blurBackground(SystemInfo& info, int res) {
    const PassGeometry g = info.geometry(res);
    BlurBitmap(info, pixelsOf(*info.pBackgroundBitmapInfo, res), g.width, g.height, g.dpi, kEveryPixel,
               info.dSliderBlur);
}

void blurResult(SystemInfo& info, int res) {
    const PassGeometry g = info.geometry(res);
    BlurBitmap(info, pixelsOf(*info.pCombinedBitmapInfo, res), g.width, g.height, g.dpi,
               info.iSliderForegroundThreshold, info.dSliderForegroundBlur);
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
    // While a layer is dragged its full buffer holds the fill colour alone, which smoothing would not change.
    if (res == kFullRes && info.pInterface && info.pInterface->mouseDown()) return;
    FastGlobalImageSmoothing(info, 0, pixelsOf(*info.pForegroundBitmapInfo, res), res);
}

void drawSketch(SystemInfo& info, int res) {
    if (info.iCartoonEffectType >= 3) loadSketchPictures(info);
    const PassGeometry g = info.geometry(res);
    Sketch(info, 0, pixelsOf(*info.pCombinedBitmapInfo, res), g.width, g.height, g.dpi);
}

void reflect(SystemInfo& info, int res) {
    AddReflection(info, res, *info.pCombinedBitmapInfo, pixelsOf(*info.pForegroundBitmapInfo, res),
                  pixelsOf(*info.pBackgroundBitmapInfo, res), pixelsOf(*info.pCombinedBitmapInfo, res));
}

BitmapContext* contextOf(const BitmapInfo& record, int res) {
    return res == kFullRes ? record.oBitmapRep.get() : record.oBitmapRepLowRes.get();
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
    DrawTextAtLevel(info, contextOf(*info.pCombinedBitmapInfo, res), "Foreground", res);
}

void overlayForeground(SystemInfo& info, int res) {
    DrawOverlayImage(info, contextOf(*info.pCombinedBitmapInfo, res), info.sForegroundOverlay, res);
}

void textForegroundLayer(SystemInfo& info, int res) {
    DrawTextAtLevel(info, contextOf(*info.pCombinedBitmapInfo, res), "Foreground Layer", res);
}

void overlayFrame(SystemInfo& info, int res) {
    DrawOverlayImage(info, contextOf(*info.pCombinedBitmapInfo, res), info.sFrameOverlay, res);
}

void textFrameLayer(SystemInfo& info, int res) {
    DrawTextAtLevel(info, contextOf(*info.pCombinedBitmapInfo, res), "Frame Layer", res);
}

bool always(const SystemInfo&) {
    return true;
}
bool hasShadow(const SystemInfo& i) {
    return i.iHaveShadow != 1;
}
bool blursBackground(const SystemInfo& i) {
    return i.dSliderBlur > 0.0;
}
bool hasBackgroundOverlay(const SystemInfo& i) {
    return i.bHaveBackgroundOverlay;
}
bool needsScreenColour(const SystemInfo& i) {
    return !i.pCombinedBitmapInfo->bHaveBaseGreen;
}
bool hasStars(const SystemInfo& i) {
    return i.bStarFilerTurnOn;
}
bool hasReflection(const SystemInfo& i) {
    return i.bHaveReflection;
}
bool hasTexture(const SystemInfo& i) {
    return i.oImageTexture->bHaveTexture;
}
bool blursResult(const SystemInfo& i) {
    return i.dSliderForegroundBlur > 0.0;
}
bool hasForegroundOverlay(const SystemInfo& i) {
    return i.bHaveForegroundOverlay;
}
bool hasFrameOverlayPicture(const SystemInfo& i) {
    return i.bHaveFrameOverlay;
}
bool hasFrame(const SystemInfo& i) {
    return i.oFrame->iFrameType != 0;
}
bool hasSecondFrame(const SystemInfo& i) {
    return i.oFrameOverlay->iFrameType != 0;
}
bool smoothsResult(const SystemInfo& i) {
    return i.iGlobalSmoothingMode == 2;
}
bool smoothsForeground(const SystemInfo& i) {
    return i.iGlobalSmoothingMode == 1;
}
bool blendsEdges(const SystemInfo& i) {
    return i.iBlendEdges != 0;
}
bool smoothsSkin(const SystemInfo& i) {
    return i.iSmoothMode != 0;
}
bool isCartoon(const SystemInfo& i) {
    return i.iCartoonEffectType >= 1;
}

constexpr Stage kForeground[] = {
    {"smoothing of the foreground", smoothsForeground, smoothForeground},
};

constexpr Stage kBackground[] = {
    {"shadow", hasShadow, addShadow},  // before the blur and whatever is drawn on top
    {"background blur", blursBackground, blurBackground},
    {"text Background", always, textBackground},
    {"background overlay", hasBackgroundOverlay, overlayBackground},
    {"text Background Layer", always, textBackgroundLayer},
};

// The two orders. What the preview leaves out (edges, skin, sketch) shows at full size only; texture, final blur and
// smoothing of the result stand at different places, and moving them changes every picture that was ever saved.
constexpr Stage kPreview[] = {
    {"hair", always, findHair},
    {"screen colour", needsScreenColour, measureScreen},
    {"combine", always, combine},
    {"stars", hasStars, drawStars},
    {"reflection", hasReflection, reflect},
    {"texture", hasTexture, addTexture},
    {"final blur", blursResult, blurResult},
    {"text Foreground", always, textForeground},
    {"foreground overlay", hasForegroundOverlay, overlayForeground},
    {"text Foreground Layer", always, textForegroundLayer},
    {"frame overlay picture", hasFrameOverlayPicture, overlayFrame},
    {"text Frame Layer", always, textFrameLayer},
    {"frame", hasFrame, addFrame},
    {"second frame", hasSecondFrame, addSecondFrame},
    {"smoothing of the result", smoothsResult, smoothResult},
};

constexpr Stage kFull[] = {
    {"combine", always, combine},
    {"reflection", hasReflection, reflect},
    {"edges", blendsEdges, blendEdges},
    {"stars", hasStars, drawStars},
    {"text Foreground", always, textForeground},
    {"foreground overlay", hasForegroundOverlay, overlayForeground},
    {"text Foreground Layer", always, textForegroundLayer},
    {"frame overlay picture", hasFrameOverlayPicture, overlayFrame},
    {"skin", smoothsSkin, smoothSkin},
    {"smoothing of the result", smoothsResult, smoothResult},
    {"texture", hasTexture, addTexture},
    {"sketch", isCartoon, drawSketch},
    {"final blur", blursResult, blurResult},
    {"text Frame Layer", always, textFrameLayer},
    {"frame", hasFrame, addFrame},
    {"second frame", hasSecondFrame, addSecondFrame},
};

// A plain keyed picture with text and overlays; everything else is left out for speed.
constexpr Stage kFast[] = {
    {"combine", always, combine},
    {"text Foreground", always, textForeground},
    {"foreground overlay", hasForegroundOverlay, overlayForeground},
    {"text Foreground Layer", always, textForegroundLayer},
    {"frame overlay picture", hasFrameOverlayPicture, overlayFrame},
    {"final blur", blursResult, blurResult},
    {"text Frame Layer", always, textFrameLayer},
};

struct HairPreset {
    int red, green, blue;
};

constexpr HairPreset kHairPresets[] = {
    {150, 100, 60}, {30, 30, 30}, {190, 170, 110}, {100, 65, 10}, {245, 245, 245},
};

}  // namespace

std::span<const Stage> foregroundStages() {
    return kForeground;
}
std::span<const Stage> backgroundStages() {
    return kBackground;
}
std::span<const Stage> previewStages() {
    return kPreview;
}
std::span<const Stage> fullStages() {
    return kFull;
}
std::span<const Stage> fastStages() {
    return kFast;
}

void runStages(std::span<const Stage> stages, SystemInfo& info, int res) {
    for (const Stage& stage : stages) {
        if (stage.run && stage.when(info)) stage.run(info, res);
    }
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
