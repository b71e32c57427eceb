#include "pipeline/Stages.h"

#include <new>

#include "core/Log.h"
#include "pipeline/StageSteps.h"

namespace tavrin {

namespace {

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

bool fillsSilhouette(const SystemInfo& i) {
    return i.bOutputSilhouette && !i.sSilhouetteFileName.empty();
}
bool reflectsTexture(const SystemInfo& i) {
    return i.oReflectionTexture->bHaveTexture;
}

constexpr std::string_view kTextReads = "text. label.";

// Every stage, once. What a stage of the layers reads is not told: whoever changes it raises the flag of the layer.
constexpr Stage kSmoothForeground = {"smoothing of the foreground", smoothsForeground, smoothForeground};
constexpr Stage kShadow = {"shadow", hasShadow, addShadow};
constexpr Stage kBlurBackground = {"background blur", blursBackground, blurBackground};
constexpr Stage kTextBackground = {"text Background", always, textBackground};
constexpr Stage kOverlayBackground = {"background overlay", hasBackgroundOverlay, overlayBackground};
constexpr Stage kTextBackgroundLayer = {"text Background Layer", always, textBackgroundLayer};

constexpr Stage kHair = {"hair", always, findHair, "bComputeSkinColor"};
constexpr Stage kScreenColour = {"screen colour", needsScreenColour, measureScreen};
constexpr Stage kSilhouette = {"picture of the silhouette", always, readSilhouette, {}, fillsSilhouette};
constexpr Stage kKey = {"key", always, combine};
constexpr Stage kStars = {"stars", hasStars, drawStars};
constexpr Stage kReflection = {"reflection", hasReflection, reflect, {}, reflectsTexture};
constexpr Stage kEdges = {"edges", blendsEdges, blendEdges};

constexpr Stage kTextForeground = {"text Foreground", always, textForeground, kTextReads};
constexpr Stage kOverlayForeground = {"foreground overlay", hasForegroundOverlay, overlayForeground,
                                      "bHaveForegroundOverlay sForegroundOverlay"};
constexpr Stage kTextForegroundLayer = {"text Foreground Layer", always, textForegroundLayer, kTextReads};
constexpr Stage kOverlayFrame = {"frame overlay picture", hasFrameOverlayPicture, overlayFrame,
                                 "bHaveFrameOverlay sFrameOverlay"};
constexpr Stage kSkin = {"skin", smoothsSkin, smoothSkin,
                         "iSmoothMode iColorDelta iNumberOfSamples iRedRequired iSmoothNoise iMakeup "
                         "bShowSkinSelection bComputeSkinColor bSmoothBlendOrg"};
constexpr Stage kSmoothResult = {"smoothing of the result", smoothsResult, smoothResult,
                                 "iGlobalSmoothingLambda iGlobalSmoothingMode"};
constexpr Stage kTexture = {"texture", hasTexture, addTexture, "texture."};
constexpr Stage kSketch = {"sketch", isCartoon, drawSketch,
                           "iCartoonEffectType iSliderCartoonEffectWidth iSliderCartoonEffectSmoothing"};
constexpr Stage kBlurResult = {"final blur", blursResult, blurResult,
                               "dSliderForegroundBlur iSliderForegroundThreshold"};
constexpr Stage kTextFrameLayer = {"text Frame Layer", always, textFrameLayer, kTextReads};
constexpr Stage kFrame = {"frame", hasFrame, addFrame, "frame. frame.texture."};
constexpr Stage kSecondFrame = {"second frame", hasSecondFrame, addSecondFrame,
                                "frameOverlay. frameOverlay.texture."};

constexpr Stage kForeground[] = {kSmoothForeground};
// The shadow comes before the blur and whatever is drawn on top.
constexpr Stage kBackground[] = {kShadow, kBlurBackground, kTextBackground, kOverlayBackground, kTextBackgroundLayer};

// The two orders. What the preview leaves out (edges, skin, sketch) shows at full size only; texture, final blur and
// smoothing of the result stand at different places, and moving them changes every picture that was ever saved.
// clang-format off
constexpr Stage kPreviewKey[] = {kHair, kScreenColour, kSilhouette, kKey, kStars, kReflection};
constexpr Stage kPreviewFinish[] = {
    kTexture, kBlurResult,
    kTextForeground, kOverlayForeground, kTextForegroundLayer, kOverlayFrame,
    kTextFrameLayer, kFrame, kSecondFrame,
    kSmoothResult,
};

constexpr Stage kFullKey[] = {kSilhouette, kKey, kReflection, kEdges, kStars};
constexpr Stage kFullFinish[] = {
    kTextForeground, kOverlayForeground, kTextForegroundLayer, kOverlayFrame,
    kSkin, kSmoothResult, kTexture, kSketch, kBlurResult,
    kTextFrameLayer, kFrame, kSecondFrame,
};

constexpr Stage kDrawnPreview[] = {
    kTextForeground, kOverlayForeground, kTextForegroundLayer, kOverlayFrame,
    kSmoothResult, kTexture, kSketch, kBlurResult,
    kTextFrameLayer, kFrame, kSecondFrame,
};

// A plain keyed picture with text and overlays; everything else is left out for speed.
constexpr Stage kFast[] = {
    kSilhouette, kKey,
    kTextForeground, kOverlayForeground, kTextForegroundLayer, kOverlayFrame,
    kBlurResult,
    kTextFrameLayer,
};
// clang-format on

/// A stage that gets no memory gives up, and with it this picture.
void runStage(const Stage& stage, SystemInfo& info, Resolution resolution) {
    if (!stage.when(info)) return;
    try {
        stage.run(info, resolution);
    } catch (const std::bad_alloc&) {
        failForMemory(info, stage.name);
    }
}

}  // namespace

std::span<const Stage> foregroundStages() {
    return kForeground;
}
std::span<const Stage> backgroundStages() {
    return kBackground;
}
StageOrder previewStages() {
    return {kPreviewKey, kPreviewFinish};
}
StageOrder fullStages() {
    return {kFullKey, kFullFinish};
}
std::span<const Stage> drawnPreviewStages() {
    return kDrawnPreview;
}
std::span<const Stage> fastStages() {
    return kFast;
}

RunContext whileCurrent(const SystemInfo& info, Resolution resolution) {
    return resolution == Resolution::full ? info.rowsWhileCurrent() : RunContext();
}

void failForMemory(SystemInfo& info, const std::string& what) {
    logError("Memory not allocated!");
    info.pictures.fail("there is not enough memory for the " + what);
}

void runStages(std::span<const Stage> stages, SystemInfo& info, Resolution resolution) {
    for (const Stage& stage : stages)
        runStage(stage, info, resolution);
}

void runStagesWhileCurrent(std::span<const Stage> stages, SystemInfo& info, Resolution resolution) {
    for (const Stage& stage : stages) {
        if (info.isStale()) return;
        runStage(stage, info, resolution);
    }
}

}  // namespace tavrin
