#include "key/spill/SpillKey.h"

#include <algorithm>
#include <cmath>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr double kRemoveGreenAreas = 40.0;  // fixed, where the key of whole pictures has a slider
constexpr double kShownAsIs = 255.0;        // amount of a pixel that is not keyed

// How far a colour is from grey, seen from green.
double chromaOf(const Rgb& f) {
    return std::sqrt((f.r - f.g) * (f.r - f.g) + (f.g - f.b) * (f.g - f.b));
}

Rgb colorOf(const std::uint8_t* p) {
    return {static_cast<double>(p[0]), static_cast<double>(p[1]), static_cast<double>(p[2])};
}

QLXPixel toPixel(const Rgb& c) {
    return {toByte(c.r), toByte(c.g), toByte(c.b), 255, 0};
}

Rgb shifted(const Rgb& c, const Rgb& by) {
    return {clampTo(c.r + by.r, 0.0, 255.0), clampTo(c.g + by.g, 0.0, 255.0), clampTo(c.b + by.b, 0.0, 255.0)};
}

Rgb deltaOf(const BitmapInfo& record) {
    return {static_cast<double>(record.iRedDelta), static_cast<double>(record.iGreenDelta),
            static_cast<double>(record.iBlueDelta)};
}

// With the key's selection shown, a view of the test that has decided.
Rgb markOther(const Rgb& f, const Rgb& screen) {
    const bool greener = screen.g + f.g > screen.r + f.r;
    if (f.r >= f.b) return {f.r > f.g ? 255.0 : 100.0, 0.0, greener ? 255.0 : 0.0};
    return {100.0, greener ? 255.0 : 0.0, f.b > f.g ? 255.0 : 0.0};
}

// The same for a warm pixel that the search has decided on; its blue stays.
Rgb markSearched(const Rgb& f, double amount) {
    const double level = amount > 0.98 ? 255.0 : 200.0 * amount;
    return {level, level, f.b};
}

}  // namespace

SpillLayers SpillLayers::of(const SystemInfo& info, Resolution resolution) {
    const PassGeometry size = info.geometry(resolution);
    return {info.pForegroundBitmapInfo->bytes(resolution), info.pBackgroundBitmapInfo->bytes(resolution), size.width,
            size.height};
}

SpillKey::SpillKey(const SystemInfo& info, const SpillLayers& layers)
    : pFOrg(layers.foreground),
      pBOrg(layers.background),
      iWidth(std::max(layers.width, 0)),
      iHeight(std::max(layers.height, 0)),
      key_(makeKeyConstants(info, {iWidth, iHeight}, true)),
      hair_{pFOrg, iWidth, iHeight, static_cast<double>(info.pCombinedBitmapInfo->sliderRestoredDarkAreas),
            static_cast<double>(info.pCombinedBitmapInfo->sliderRemoveGreenAreas)},
      bShowColors_(info.pCombinedBitmapInfo->bShowSelectedAreas),
      foreground_(makeColorAdjust(info, ToneLayer::kForeground, {pFOrg, iWidth, iHeight})),
      background_(makeColorAdjust(info, ToneLayer::kBackground, {pFOrg, iWidth, iHeight})),
      keyedTone_(makeTone(*info.pForegroundBitmapInfo, ToneLayer::kForeground, {pFOrg, iWidth, iHeight})),
      white_(makeWhiteAdjust(info)),
      backgroundDelta_(deltaOf(*info.pBackgroundBitmapInfo)),
      foregroundDelta_(deltaOf(*info.pForegroundBitmapInfo)),
      iForegroundOutputMode_(info.iForegroundOutputMode),
      iBackgroundOutputMode_(info.iBackgroundOutputMode),
      silhouette_(info.bOutputSilhouette || iForegroundOutputMode_ == kModeSilhouette),
      silhouetteColor_{static_cast<double>(info.iSilhouetteRed), static_cast<double>(info.iSilhouetteGreen),
                       static_cast<double>(info.iSilhouetteBlue)} {
    if (!pFOrg || !pBOrg || iWidth < 1 || iHeight < 1) return;
    ready_ = true;
    if (info.silhouettePicture.isNull() || !info.bOutputSilhouette) return;
    texture_ = info.silhouettePicture;
    const auto shift = [](double slider, double length) { return (slider - 50.0) * length / 100.0; };
    dLightingScale_ =
        std::max(static_cast<double>(texture_.height()) / iHeight, static_cast<double>(texture_.width()) / iWidth);
    textureX_ = shift(info.iSliderlSilhouetteX, texture_.width());
    textureY_ = shift(info.iSliderlSilhouetteY, texture_.height());
}

QLXPixel SpillKey::adjustedForeground(int x, int y) const {
    return toPixel(adjustLayerColor(foreground_, colorOf(pFOrg + pixelOffset(iWidth, x, y)), x, y));
}

QLXPixel SpillKey::adjustedBackground(int x, int y) const {
    const Rgb c = shifted(colorOf(pBOrg + pixelOffset(iWidth, x, y)), backgroundDelta_);
    return toPixel(colorMode(iBackgroundOutputMode_, key_.blueLogic, adjustLayerColor(background_, c, x, y)));
}

SpilledPixel SpillKey::Spill(int x, int y, double r, double g, double b) {
    const SpillCall call = dUMult_ == key_.whiteBalanceU ? SpillCall::kLater : SpillCall::kFirst;
    dUMult_ = key_.whiteBalanceU;
    return spillAt(x, y, {r, g, b}, call);
}

// The colour is finished before the amount: here the green cast is taken out after the adjustments.
SpilledPixel SpillKey::spillAt(int x, int y, const Rgb& color, SpillCall call) const {
    const Rgb screen = screenAt(key_, x, y);
    Decision d = decide(x, y, color, screen, call);
    unmixBrightGrey(key_, d);  // the mix alone: the amount stays
    Rgb c = recoverColor(key_, d, screen, color);
    if (keyedTone_.active) {
        adjustKeyedColor(keyedTone_, c, x, y);
        c = limitBlend(c);
    }
    if (white_.on) c = adjustWhite(white_, c, d.source.r - 5.0 < d.source.g && d.source.b - 5.0 < d.source.g);
    if (d.alpha < 0.8 && !key_.showOrgImage) c = removeGreenCast(key_, c);
    return {outputColor(x, y, c), finalAmount(x, y, d.alpha)};
}

double SpillKey::amountAt(int x, int y, const Rgb& color, SpillCall call) const {
    return finalAmount(x, y, decide(x, y, color, screenAt(key_, x, y), call).alpha);
}

// As the key of whole pictures, but for the limits, for the tests of bright background (chroma alone) and of other
// colours (on a blue screen too), and for one amount that serves as alpha and as mix.
Decision SpillKey::decide(int x, int y, const Rgb& color, const Rgb& screen, SpillCall call) const {
    const Rgb f = balanceForeground(key_, color, call == SpillCall::kFirst ? 0.0 : key_.whiteBalanceU);
    const auto solid = [&](double amount, const Rgb& c) { return Decision{amount, amount, c, f}; };
    if (key_.showOrgImage) return solid(inMargin(key_, x, y) ? 0.0 : kShownAsIs, f);

    const double chroma = chromaOf(f);
    const double sliderRestoredDarkAreas = hair_.darkAreas(x, y, color.g, chroma);
    if (chroma < sliderRestoredDarkAreas * 0.15 && largestOf(f) < screen.g - screen.r) {
        return solid(1.0, {f.r, std::min(f.g, std::max(f.r, f.b)), f.b});
    }
    if (chroma > sliderRestoredDarkAreas * 2.0 && offScreenLine(key_, f, screen) < kRemoveGreenAreas * 2.0) {
        return solid(0.0, {255.0, 255.0, 255.0});
    }
    if (inMargin(key_, x, y) || distance(f, screen) < 8.0) return solid(0.0, f);
    if (isPlainlyOther(key_, f)) {
        const Rgb shown = bShowColors_ ? markOther(f, screen) : f;
        return {1.0, 1.0, shown, shown};
    }
    const double amount = mixedAlpha(key_, f, screen);
    const Rgb shown = bShowColors_ && f.r >= f.b ? markSearched(f, amount) : f;
    return {amount, amount, shown, liftedSource(key_, shown, screen, amount)};
}

double SpillKey::finalAmount(int x, int y, double amount) const {
    if (inMargin(key_, x, y)) return 0.0;
    return key_.showOrgImage ? amount : clampTo(edgeAlpha(key_, amount), 0.0, 1.0);
}

// Grey and sepia are taken again after the deltas, from a silhouette too.
Rgb SpillKey::outputColor(int x, int y, const Rgb& color) const {
    const Rgb c = silhouette_ ? silhouetteAt(x, y) : colorMode(iForegroundOutputMode_, key_.blueLogic, color);
    return colorMode(iForegroundOutputMode_, key_.blueLogic, shifted(c, foregroundDelta_));
}

// The whole picture fits into the output, black around it, where `Combine` lets it cover the output.
Rgb SpillKey::silhouetteAt(int x, int y) const {
    if (texture_.isNull()) return silhouetteColor_;
    const double column = x * dLightingScale_ + textureX_, row = y * dLightingScale_ + textureY_;
    const bool inside = column > -1.0 && column < texture_.width() && row > -1.0 && row < texture_.height();
    if (!inside) return {0.0, 0.0, 0.0};
    return colorOf(texture_.constBits() +
                   pixelOffset(texture_.width(), static_cast<int>(column), static_cast<int>(row)));
}

}  // namespace tavrin
