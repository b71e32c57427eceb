#include "session/Freeze.h"

#include "core/state/ChangeFlags.h"
#include "pipeline/WholePicture.h"

namespace tavrin {

namespace {

constexpr int kShadowLeftByFreeze = 0, kNoShadow = 1;

/// No flags follow: the layers hold what was drawn with these settings.
void turnOffWhatIsBakedIn(SystemInfo& info) {
    info.iSmoothMode = 0;
    info.oImageTexture->bHaveTexture = false;
    for (ImageFrame* frame : {info.oFrame.get(), info.oFrameOverlay.get()})
        frame->iFrameType = 0;
    info.iLightingMode = 0;
    info.bOutputSilhouette = false;
    info.iHaveShadow = kShadowLeftByFreeze;
    BitmapInfo& background = *info.pBackgroundBitmapInfo;
    background.iContrast = 50;
    background.iBrightness = background.iBrightnessSat = 0;
    background.iEnhanseShadows = background.iReduceHighlights = 0;
}

}  // namespace

std::string freezeBackground(SystemInfo& info) {
    std::string problem = info.whyNotFinished(Resolution::preview);
    if (problem.empty()) problem = info.whyNotFinished(Resolution::full);
    if (!problem.empty()) return problem;
    turnOffWhatIsBakedIn(info);
    FreezeToBackground(info);
    return "";
}

void clearFreeze(SystemInfo& info) {
    info.bBackgroundFrozen = false;
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    // What freezing left counts as a shadow as soon as the background is drawn again.
    if (info.iHaveShadow == kShadowLeftByFreeze) info.iHaveShadow = kNoShadow;
    // The previews, too, and with them the full layers.
    raiseFlags(info, kRedoForegroundLayer | kRedoBackgroundLayer);
}

}  // namespace tavrin
