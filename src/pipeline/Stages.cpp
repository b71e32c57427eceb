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
constexpr Stage kPreviewKey[] = {
    {"hair", always, findHair},
    {"screen colour", needsScreenColour, measureScreen},
    {"picture of the silhouette", always, readSilhouette},
    {"key", always, combine},
    {"stars", hasStars, drawStars},
    {"reflection", hasReflection, reflect},
};
constexpr Stage kPreviewFinish[] = {
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

constexpr Stage kFullKey[] = {
    {"picture of the silhouette", always, readSilhouette},
    {"key", always, combine},
    {"reflection", hasReflection, reflect},
    {"edges", blendsEdges, blendEdges},
    {"stars", hasStars, drawStars},
};
constexpr Stage kFullFinish[] = {
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
    {"picture of the silhouette", always, readSilhouette},
    {"key", always, combine},
    {"text Foreground", always, textForeground},
    {"foreground overlay", hasForegroundOverlay, overlayForeground},
    {"text Foreground Layer", always, textForegroundLayer},
    {"frame overlay picture", hasFrameOverlayPicture, overlayFrame},
    {"final blur", blursResult, blurResult},
    {"text Frame Layer", always, textFrameLayer},
};

/// A stage that gets no memory gives up, and with it this picture.
void runStage(const Stage& stage, SystemInfo& info, int res) {
    if (!stage.when(info)) return;
    try {
        stage.run(info, res);
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
std::span<const Stage> fastStages() {
    return kFast;
}

RunContext whileCurrent(const SystemInfo& info, int res) {
    return res == kFullRes ? info.rowsWhileCurrent() : RunContext();
}

void failForMemory(SystemInfo& info, const std::string& what) {
    logError("Memory not allocated!");
    info.pictures.fail("there is not enough memory for the " + what);
}

void runStages(std::span<const Stage> stages, SystemInfo& info, int res) {
    for (const Stage& stage : stages)
        runStage(stage, info, res);
}

void runStagesWhileCurrent(std::span<const Stage> stages, SystemInfo& info, int res) {
    for (const Stage& stage : stages) {
        if (info.isStale()) return;
        runStage(stage, info, res);
    }
}

}  // namespace tavrin
