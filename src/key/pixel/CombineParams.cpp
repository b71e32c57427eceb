#include "key/pixel/CombineParams.h"

namespace tavrin {

namespace {

// Sliders are 32-bit numbers of any value; their arithmetic is done in doubles.
double number(const Field<std::int32_t>& field) {
    return field.load();
}

double removeGain(double slider) {
    const double gain = (slider - 100.0) / 50.0 + 1.0;
    return gain < 1.0 ? (slider + 1.0) / 100.0 : gain;
}

ClipMargins makeClip(const SystemInfo& info, RunSize size) {
    const auto margin = [](std::int64_t percent, std::int64_t length) { return percent * length / 100; };
    return {margin(info.iSliderClipLeft, size.width), margin(info.iSliderClipRight, size.width),
            margin(info.iSliderClipTop, size.height), margin(info.iSliderClipBottom, size.height)};
}

void makeScreen(const SystemInfo& info, bool local, KeyConstants& key) {
    ScreenField& screen = key.screen;
    screen.scale = number(info.pCombinedBitmapInfo->sliderAdjustBaseGreen) / 100.0;
    screen.local = local;
    screen.global = {info.baseRed, info.baseGreen, info.baseBlue};
    for (std::size_t i = 0; i < screen.cells.size(); ++i) {
        screen.cells[i] = {info.iBaseRedArray[i], info.iBaseGreenArray[i], info.iBaseBlueArray[i]};
    }
    layOutColumns(screen, key.width);
}

std::vector<double> curveOfLevels(const ToneConstants& tone) {
    std::vector<double> levels;
    if (!tone.active) return levels;
    for (int level = 0; level < 256; ++level)
        levels.push_back(toneCurve(tone, level));
    return levels;
}

SilhouetteFill makeSilhouette(const SystemInfo& info, RunSize size) {
    SilhouetteFill fill;
    fill.on = info.bOutputSilhouette || info.iForegroundOutputMode == kModeSilhouette;
    fill.color = {number(info.iSilhouetteRed), number(info.iSilhouetteGreen), number(info.iSilhouetteBlue)};
    const QImage& picture = info.silhouettePicture;
    if (picture.isNull() || !info.bOutputSilhouette) return fill;
    // A slider moves the picture by its own size from one end to the other.
    const auto shift = [](std::int64_t length, std::int64_t slider) { return length * (slider - 50) / 50; };
    fill.pixels = picture.constBits();
    fill.width = picture.width();
    fill.height = picture.height();
    fill.scale =
        std::min(static_cast<double>(fill.height) / size.height, static_cast<double>(fill.width) / size.width);
    fill.rowShift = shift(fill.height, info.iSliderlSilhouetteY);
    fill.columnShift = shift(fill.width, info.iSliderlSilhouetteX);
    return fill;
}

FinishConstants makeFinish(const SystemInfo& info, const CombineParams& params) {
    const BitmapInfo &foreground = *info.pForegroundBitmapInfo, &background = *info.pBackgroundBitmapInfo;
    const auto [width, height] = params.size;
    const std::int32_t lightingMode = info.iLightingMode, applyTo = info.iLightingApplyTo;

    FinishConstants finish;
    finish.blueLogic = info.bUseBlueLogic;
    finish.foregroundTone = makeTone(foreground, ToneLayer::kForeground, {params.foreground, width, height});
    finish.backgroundTone = makeTone(background, ToneLayer::kBackground, {params.background, width, height});
    finish.white = makeWhiteAdjust(info);
    finish.foregroundMode = info.iForegroundOutputMode;
    finish.backgroundMode = info.iBackgroundOutputMode;
    finish.silhouette = makeSilhouette(info, params.size);
    finish.foregroundDelta = {number(foreground.iRedDelta), number(foreground.iGreenDelta),
                              number(foreground.iBlueDelta)};
    finish.backgroundDelta = {number(background.iRedDelta), number(background.iGreenDelta),
                              number(background.iBlueDelta)};
    finish.light.onBackground = lightingMode == 4 || applyTo == 2;
    finish.light.byAlpha = applyTo == 1;
    // A background that may take the light goes through its chain even when all its settings are neutral.
    finish.backgroundTone.active = finish.backgroundTone.active || finish.light.onBackground;
    finish.backgroundLevels = curveOfLevels(finish.backgroundTone);
    const Rgb& delta = finish.backgroundDelta;
    const bool coloured = finish.backgroundMode != kModeGrey && finish.backgroundMode != kModeSepia;
    finish.plainBackground = !finish.backgroundTone.active && lightingMode == 0 && coloured && delta.r == 0.0 &&
                             delta.g == 0.0 && delta.b == 0.0;
    finish.transparent = info.bOutputTransparency || finish.foregroundMode == kModeSilhouette;
    finish.showOrgImage = info.bShowOrgImage;
    return finish;
}

}  // namespace

bool refinesKey(const SystemInfo& info) {
    return info.bRefineKey && !info.bShowOrgImage && !info.pCombinedBitmapInfo->bShowSelectedAreas &&
           !(info.iGreenProtectMode != 0 && info.bShowGreenProtection);
}

KeyConstants makeKeyConstants(const SystemInfo& info, RunSize size, bool localScreen) {
    const BitmapInfo& sliders = *info.pCombinedBitmapInfo;
    const double tint = number(sliders.sliderGreenTintAreas);
    const double balance = number(sliders.sliderWhiteBalance) - 100.0;
    const double darkAreas = number(sliders.sliderRestoredDarkAreas);

    KeyConstants key;
    key.width = size.width;
    key.height = size.height;
    key.blueLogic = info.bUseBlueLogic;
    key.showOrgImage = info.bShowOrgImage;
    key.showBright = info.bShowBright;
    key.showSelectedAreas = sliders.bShowSelectedAreas;
    key.whiteBalanceU = balance * -0.5;
    key.whiteBalanceV = balance;
    key.k = 2.0 - info.baseGreen / 255.0;
    key.darkChroma = darkAreas * 0.15;
    key.darkLimit = darkAreas * 2.0;
    key.transShift = (number(sliders.sliderTransparentcyAdjustment) - 100.0) / 100.0;
    key.removeGain = removeGain(number(sliders.sliderRemoveGreenAreas));
    key.colorOfClear = info.bAdvancedHairDetectionON && info.bFoundHair;
    key.search = {tint - 100.0, 200.0 - tint, !key.blueLogic};
    key.clip = makeClip(info, size);
    makeScreen(info, localScreen, key);
    return key;
}

WhiteAdjust makeWhiteAdjust(const SystemInfo& info) {
    const double wide = number(info.pCombinedBitmapInfo->sliderWhiteAdjust) * 10.0;
    return {!info.bShowOrgImage, number(info.pCombinedBitmapInfo->sliderWhiteAdjust), wide, wide / 2000.0,
            2000.0 - wide};
}

CombineParams makeCombineParams(const SystemInfo& info, Resolution resolution) {
    const PassGeometry size = info.geometry(resolution);
    CombineParams params;
    params.size = {size.width, size.height};
    params.foreground = info.pForegroundBitmapInfo->bytes(resolution);
    params.background = info.pBackgroundBitmapInfo->bytes(resolution);
    params.combined = info.pCombinedBitmapInfo->bytes(resolution);
    params.key = makeKeyConstants(info, params.size, info.bUseAdaptiveBackgroundGreen);
    params.finish = makeFinish(info, params);
    return params;
}

}  // namespace tavrin
