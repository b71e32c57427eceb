#include "key/skin/SoftenMac.h"

#include <array>
#include <new>

#include "core/RandomSource.h"
#include "core/raster/BoxBlur.h"
#include "core/raster/ColorMath.h"
#include "core/raster/CopyPixels.h"
#include "key/skin/Skin.h"
#include "key/skin/SkinMask.h"

namespace tavrin {

namespace {

constexpr int kCaptionRows = 100;  // rows that show the measured colour when the skin mask is shown

struct SoftenParams {
    double samples, makeup;
    bool noise, showSelection;
    std::uint64_t seed;
    SkinColor skin;
};

SoftenParams softenParams(SystemInfo& info) {
    SoftenParams params;
    params.samples = info.iNumberOfSamples;
    params.makeup = info.iMakeup;
    params.noise = info.iSmoothNoise != 0;
    params.showSelection = info.bShowSkinSelection != 0;
    params.seed = info.randomSeeds.next();
    params.skin = info;
    return params;
}

void showMask(const SoftenParams& params, const std::int32_t* mask, std::uint8_t* picture, int width, int y) {
    for (int x = 0; x < width; ++x, picture += kPixelBytes) {
        const bool caption = y < kCaptionRows;
        picture[0] = toByte(caption ? params.skin.dFaceRed : mask[x]);
        picture[1] = toByte(caption ? params.skin.dFaceGreen : mask[x]);
        picture[2] = toByte(caption ? params.skin.dFaceBlue : mask[x]);
    }
}

// `soft` is the blurred picture, `m` the skin mask here, `strength` the percentage that the smoothing reaches.
void softenPixel(const SoftenParams& params, const std::uint8_t* soft, double m, double strength,
                 std::uint8_t* pixel) {
    const double amount = clampTo(strength * (params.samples / 80.0 * m / 254.0) / 100.0, 0.0, 1.0);
    const double shade =
        pixel[0] > 100 ? clampTo((255.0 - (pixel[0] - params.skin.dFaceRed + 128.0)) / 100.0, 0.0, 1.0) : 0.5;
    const double makeup = clampTo(m / 254.0 * params.makeup / 100.0, 0.0, 1.0);
    const std::array<double, 3> skin = {params.skin.dFaceRed, params.skin.dFaceGreen * 0.9,
                                        params.skin.dFaceBlue * 0.9};
    std::array<double, 3> c;
    for (std::size_t i = 0; i < 3; ++i) {
        const double smooth = soft[i] * amount + pixel[i] * (1.0 - amount);
        c[i] = smooth * (1.0 - makeup) + (skin[i] * shade + skin[i]) * 0.5 * makeup;
    }
    limitChannel(c[0], c[1], c[2]);
    limitChannel(c[2], c[0], c[1]);
    limitChannel(c[1], c[0], c[2]);
    for (std::size_t i = 0; i < 3; ++i)
        pixel[i] = toByte(c[i]);
}

void softenRow(const SoftenParams& params, const std::uint8_t* soft, const std::int32_t* mask, std::uint8_t* picture,
               int width, int y) {
    if (params.showSelection) return showMask(params, mask, picture, width, y);
    RandomSource random(params.seed, static_cast<std::uint64_t>(y));
    for (int x = 0; x < width; ++x, soft += kPixelBytes, picture += kPixelBytes) {
        if (mask[x] == 0) continue;  // no skin: nothing changes
        const double strength = params.noise ? random.below(50) + 50.0 : 99.0;
        softenPixel(params, soft, mask[x], strength, picture);
    }
}

// The picture blurred for the smoothing.
PixelBuffer blurred(const RunContext& run, const std::uint8_t* picture, int width, int height, int radius) {
    PixelBuffer copy(width, height), soft(width, height);
    if (!copy.data() || !soft.data()) throw std::bad_alloc();
    if (copyPixels(run, picture, copy.data(), width, height))
        gaussBlur_4(run, copy.data(), soft.data(), width, height, radius);
    return soft;
}

/// Tells the window how far the smoothing is, and that it ended, however that came.
class Progress {
  public:
    explicit Progress(Interface* view) : view_(view) {
        if (view_) view_->startSmoothProgress();
    }
    ~Progress() {
        if (view_) view_->endSmoothProgress();
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    void isAt(double percent) const {
        if (view_) view_->updateSmoothProgress(percent);
    }

  private:
    Interface* const view_;
};

}  // namespace

void SoftenMac(SystemInfo& info, int, const std::uint8_t* foreground, const std::uint8_t* foregroundLowRes,
               std::uint8_t* picture, int hiRes, const RunContext& run) {
    const PassGeometry size = info.geometry(fullIf(hiRes == 1));
    const int width = size.width, height = size.height, dpi = size.dpi < 20 ? 300 : size.dpi;
    if (!foreground || !picture || width < 1 || height < 1) return;
    const Progress progress(info.pInterface);
    const double wanted = static_cast<double>(dpi) * info.iColorDelta / 100.0 * 0.125;
    const int radius = static_cast<int>(clampTo(wanted, 0.0, std::max(width, height)));

    PixelBuffer soft;
    if (radius >= 2) soft = blurred(run, picture, width, height, radius);
    if (run.isSuperseded()) return;
    progress.isAt(40.0);
    const bool measured = info.bComputeSkinColor;
    measureSkin(info, measured, foregroundLowRes, info.iOutputPixelLowResWidth, info.iOutputPixelLowResHeight);
    const double tolerance = info.iRedRequired;
    const SkinMaskLimits limits = {tolerance * 4.0, tolerance * 0.8, tolerance * 1.4, 40.0};
    const auto mask = blurredSkinMask(info, SkinMask(info, measured, limits), foreground, width, height);
    if (!mask.data()) return;

    progress.isAt(80.0);
    const SoftenParams params = softenParams(info);
    runRows(run, height, 8, [&](int y) {
        const std::size_t offset = pixelOffset(width, 0, y);
        // Without a blur the smooth colour is the picture's own; a pixel reads it before it writes.
        const std::uint8_t* from = soft.data() ? soft.data() + offset : picture + offset;
        softenRow(params, from, mask.numbers() + offset / kPixelBytes, picture + offset, width, y);
    });
}

}  // namespace tavrin
