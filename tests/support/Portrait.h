#pragma once

#include <climits>
#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "core/raster/Rows.h"
#include "core/state/SystemInfo.h"

namespace tavrin::test {

using Bytes = std::vector<std::uint8_t>;

struct Color {
    int r, g, b;
};
inline constexpr Color kScreenGreen = {40, 160, 50}, kSkinTone = {205, 150, 120}, kBrownHair = {110, 75, 50};

/// A small RGBA picture to paint on.
struct Canvas {
    Canvas(int w, int h, Color color) : width(w), height(h), bytes(static_cast<std::size_t>(4 * w * h), 255) {
        fill(0, 0, w, h, color);
    }
    void set(int x, int y, Color c) {
        std::uint8_t* p = &bytes[static_cast<std::size_t>(4 * (y * width + x))];
        p[0] = static_cast<std::uint8_t>(c.r);
        p[1] = static_cast<std::uint8_t>(c.g);
        p[2] = static_cast<std::uint8_t>(c.b);
    }
    void fill(int x0, int y0, int x1, int y1, Color c) {
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x)
                set(x, y, c);
    }
    /// Adds up to `amplitude` to each channel, the same for the same size.
    void addNoise(int amplitude) {
        std::mt19937 random(11);
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const int value = bytes[i] + static_cast<int>(random() % static_cast<unsigned>(amplitude + 1));
            if (i % 4 != 3) bytes[i] = static_cast<std::uint8_t>(value > 255 ? 255 : value);
        }
    }

    int width, height;
    Bytes bytes;
};

/// A person in front of the screen: brown hair over a face, green sleeves, an arm that encloses some screen, and
/// single strands beside the head.
inline Canvas person(int w, int h) {
    Canvas canvas(w, h, kScreenGreen);
    canvas.fill(w / 4, h / 6, 3 * w / 4, h, kBrownHair);
    canvas.fill(w / 3, h / 3, 2 * w / 3, 3 * h / 5, kSkinTone);
    canvas.fill(w / 4, 3 * h / 4, w / 2, 7 * h / 8, {60, 140, 40});
    canvas.fill(w / 2, 3 * h / 4, w / 2 + w / 8, 7 * h / 8, kScreenGreen);
    for (int x = w / 6; x < w / 4; x += 3)
        canvas.fill(x, h / 5, x + 1, h / 2, kBrownHair);
    canvas.addNoise(6);
    return canvas;
}

/// A state whose two resolutions are both w by h, with `foreground` in the foreground's and a background and a
/// combined picture in the other buffers, screen colour set, and nothing superseded.
inline std::unique_ptr<SystemInfo> makeState(const Canvas& foreground) {
    auto info = std::make_unique<SystemInfo>();
    const int w = foreground.width, h = foreground.height;
    info->iCurrentThreadCount = info->iNewThreadCount = 1;
    info->iOutputPixelWidth = info->iOutputPixelLowResWidth = w;
    info->iOutputPixelHeight = info->iOutputPixelLowResHeight = h;
    info->iOutputImageDPI = 300;
    info->iOutputImageLowResDPI = 92;
    info->baseRed = kScreenGreen.r;
    info->baseGreen = kScreenGreen.g;
    info->baseBlue = kScreenGreen.b;
    for (BitmapInfo* record :
         {info->pForegroundBitmapInfo.get(), info->pBackgroundBitmapInfo.get(), info->pCombinedBitmapInfo.get()}) {
        record->allocateBuffers(w, h, w, h);
        std::copy(foreground.bytes.begin(), foreground.bytes.end(), record->pBitmapData);
        std::copy(foreground.bytes.begin(), foreground.bytes.end(), record->pBitmapDataLowRes);
    }
    info->hairDetectPixels = PixelBuffer(w, h);
    info->pHairDetectBitmap = info->hairDetectPixels.data();
    std::fill_n(info->pHairDetectBitmap, pixelBytes(w, h), std::uint8_t{0});
    return info;
}

/// What `run` leaves with one thread and with all of them.
template <class Run>
void withOneAndManyThreads(Run run) {
    {
        ThreadLimit limit(1);
        run(0);
    }
    run(1);
}

inline constexpr int kExtremes[] = {INT_MIN, -1, 0, 1, 255, 1000, INT_MAX};

}  // namespace tavrin::test
