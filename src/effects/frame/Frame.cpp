#include "effects/frame/Frame.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <vector>

#include "core/raster/ColorMath.h"
#include "core/raster/CopyPixels.h"
#include "core/raster/Pixels.h"
#include "core/raster/QuadraticWindow.h"
#include "core/raster/WindowBlur.h"
#include "core/state/NamedPictures.h"
#include "effects/BlurBitmap.h"
#include "effects/Texture.h"
#include "effects/frame/FrameShapes.h"
#include "key/spill/SpillKey.h"

namespace tavrin {

namespace {

constexpr int kColor = 1, kBlurredPicture = 2, kAdjustedBackground = 3, kFramePicture = 4;
constexpr const char* kLeftOut = "the frame is left out";
constexpr int kEveryPixel = 1000;  // blur threshold that lets every pixel pass

// What a row of the frame reads, fixed for a run.
struct FrameParams {
    int width = 0, height = 0;
    const std::uint8_t* cover = nullptr;  // the mask's third byte, one a pixel
    std::array<double, 256> weight{};     // of the frame, by its cover
    int filling = 0;                      // one of the modes above; 0: the pixels stay
    Rgb color{};
    const std::uint8_t* blurred = nullptr;
    const SpillKey* background = nullptr;
    const std::uint8_t* picture = nullptr;
    std::size_t pictureRowBytes = 0;
    int pictureWidth = 0, pictureHeight = 0;
    double toPicture = 1.0;  // from output to picture coordinates
    const TextureParams* texture = nullptr;
};

Rgb colorOf(const std::uint8_t* pixel) {
    return {static_cast<double>(pixel[0]), static_cast<double>(pixel[1]), static_cast<double>(pixel[2])};
}

Rgb fillingAt(const FrameParams& params, int x, int y) {
    if (params.filling == kColor) return params.color;
    if (params.filling == kBlurredPicture) return colorOf(params.blurred + pixelOffset(params.width, x, y));
    if (params.filling == kAdjustedBackground) {
        const QLXPixel pixel = params.background->adjustedBackground(x, y);
        return {static_cast<double>(pixel.red), static_cast<double>(pixel.green), static_cast<double>(pixel.blue)};
    }
    const int fromX = std::min(static_cast<int>(x * params.toPicture), params.pictureWidth - 1);
    const int fromY = std::min(static_cast<int>(y * params.toPicture), params.pictureHeight - 1);
    return colorOf(params.picture + static_cast<std::size_t>(fromY) * params.pictureRowBytes +
                   pixelOffset(0, fromX, 0));
}

void blend(std::uint8_t* pixel, const Rgb& over, const Rgb& under, double weight) {
    pixel[0] = toByte(over.r * weight + under.r * (1.0 - weight));
    pixel[1] = toByte(over.g * weight + under.g * (1.0 - weight));
    pixel[2] = toByte(over.b * weight + under.b * (1.0 - weight));
}

void frameRow(const FrameParams& params, std::uint8_t* buffer, int y, RandomSource random) {
    std::uint8_t* pixel = buffer + pixelOffset(params.width, 0, y);
    const std::uint8_t* cover = params.cover + pixelOffset(params.width, 0, y) / kPixelBytes;
    for (int x = 0; x < params.width; ++x, pixel += kPixelBytes) {
        const double weight = params.weight[cover[x]];
        if (weight == 0.0) continue;
        if (params.filling != 0) blend(pixel, fillingAt(params, x, y), colorOf(pixel), weight);
        if (!params.texture) continue;
        // The weight counts twice, so that the texture fades with the frame.
        const Rgb framed = colorOf(pixel);
        SetTextureAtPoint(*params.texture, buffer, buffer, x, y, random);
        blend(pixel, colorOf(pixel), framed, weight);
    }
}

// A copy of the picture, blurred.
PixelBuffer blurredCopy(SystemInfo& info, const PassGeometry& size, const std::uint8_t* buffer, double radius) {
    PixelBuffer copy(size.width, size.height);
    if (!copy.data()) throw std::bad_alloc();
    const RunContext run = info.rowsWhileWanted();
    if (copyPixels(run, buffer, copy.data(), size.width, size.height) && radius > 0.0005)
        BlurBitmap(info, copy.data(), size.width, size.height, size.dpi, kEveryPixel, radius, run);
    return copy;
}

// What the mask covers, softened; empty when the run is superseded. Only the third byte counts, and
// a blur that every pixel passes leaves it independent of the others.
std::vector<std::uint8_t> coverOf(const RunContext& run, const std::uint8_t* mask, const PassGeometry& size,
                                  int feather) {
    std::vector<std::uint8_t> cover(pixelBytes(size.width, size.height) / kPixelBytes);
    const bool finished = runRows(run, size.height, 32, [&](int y) {
        const std::size_t first = pixelOffset(size.width, 0, y) / kPixelBytes;
        for (std::size_t i = first; i < first + static_cast<std::size_t>(size.width); ++i)
            cover[i] = mask[i * kPixelBytes + 2];
    });
    if (!finished) return {};
    const int reach = windowReach(size.dpi, feather / 500.0);
    if (feather >= 2 && !blurWithWindow(run, {cover.data(), size.width, size.height}, reach)) return {};
    return cover;
}

void setPicture(FrameParams& params, const QImage& picture) {
    params.filling = kFramePicture;
    params.picture = picture.constBits();
    params.pictureRowBytes = static_cast<std::size_t>(picture.bytesPerLine());
    params.pictureWidth = picture.width();
    params.pictureHeight = picture.height();
    params.toPicture = std::min(static_cast<double>(picture.height()) / params.height,
                                static_cast<double>(picture.width()) / params.width);
}

FrameParams makeParams(const ImageFrame& frame, const PassGeometry& size) {
    FrameParams params;
    params.width = size.width;
    params.height = size.height;
    for (std::size_t i = 0; i < params.weight.size(); ++i)
        params.weight[i] = (1.0 - frame.iFrameTransparency / 100.0) * static_cast<double>(i) / 255.0;
    params.color = {static_cast<double>(frame.iFrameColorRed), static_cast<double>(frame.iFrameColorGreen),
                    static_cast<double>(frame.iFrameColorBlue)};
    return params;
}

void drawShape(SystemInfo& info, const ImageFrame& frame, std::uint8_t* mask, const PassGeometry& size) {
    switch (frame.iFrameType) {
        case 1:
            return DrawRectFrame(info, frame, mask, size.width, size.height);
        case 2:
            return DrawOvalFrame(info, frame, mask, size.width, size.height, info.rowsWhileWanted());
        case 3:
            return DrawHeartFrame(info, frame, mask, size.width, size.height);
        case 4:
            return DrawJaggedFrame(info, frame, mask, size.width, size.height, size.dpi);
        default:
            return;
    }
}

}  // namespace

void CombineFrame(SystemInfo& info, const ImageFrame& frame, const QImage& picture, const std::uint8_t* mask,
                  std::uint8_t* buffer, Resolution resolution) {
    const PassGeometry size = info.geometry(resolution);
    FrameParams params = makeParams(frame, size);
    PixelBuffer blurred;
    std::optional<SpillKey> background;
    switch (frame.iFrameMode) {
        case kColor:
            params.filling = kColor;
            break;
        case kBlurredPicture:
            blurred = blurredCopy(info, size, buffer, frame.iFrameBlur / 500.0);
            params.filling = kBlurredPicture;
            params.blurred = blurred.data();
            break;
        case kAdjustedBackground:
            background.emplace(info, SpillLayers::of(info, resolution));
            if (!background->isReady()) return;
            params.filling = kAdjustedBackground;
            params.background = &*background;
            break;
        case kFramePicture:
            if (!picture.isNull()) setPicture(params, picture);
            break;
        default:
            break;
    }
    if (frame.iFrameFeather >= 2 && info.isStale()) return;  // a stale blur leaves nothing of the mask
    const RunContext run = info.rowsWhileWanted();
    const std::vector<std::uint8_t> cover = coverOf(run, mask, size, frame.iFrameFeather);
    if (cover.empty()) return;
    params.cover = cover.data();
    std::optional<LoadedTexture> texture;
    if (frame.oTexture.bHaveTexture) {
        texture = loadTexture(info, frame.oTexture, size, kLeftOut);
        if (!texture) return;
        params.texture = &texture->params;
    }

    // A displacing texture sees pixels that are already framed, so its rows have an order.
    const int grain = params.texture && params.texture->displaces ? size.height : 16;
    const std::uint64_t seed = params.texture ? info.randomSeeds.next() : 0;
    runRows(run, size.height, grain,
            [&](int y) { frameRow(params, buffer, y, RandomSource(seed, static_cast<std::uint64_t>(y))); });
}

void AddFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* buffer, int res) {
    const Resolution resolution = fullIf(res == 1);
    const PassGeometry size = info.geometry(resolution);
    if (!buffer || size.width < 1 || size.height < 1) return;
    QImage picture;
    if (const std::string path = frame.sFrameImagePath; frame.iFrameMode == kFramePicture && !path.empty()) {
        picture = readNamedPicture(info, path, kLeftOut);
        if (picture.isNull()) return;
    }
    const PixelBuffer mask = PixelBuffer::cleared(size.width, size.height);
    if (!mask.data()) throw std::bad_alloc();
    drawShape(info, frame, mask.data(), size);
    CombineFrame(info, frame, picture, mask.data(), buffer, resolution);
}

}  // namespace tavrin
