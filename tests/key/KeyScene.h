#pragma once

#include <array>
#include <random>
#include <vector>

#include "key/Combine.h"
#include "key/pixel/PixelSteps.h"
#include "key/screen/BaseGreen.h"

namespace tavrin::test {

using Pixel = std::array<std::uint8_t, 4>;

/// A state with three pictures of one size, as full and as preview buffers over the same bytes, a known screen
/// colour and no stale counters.
struct KeyScene {
    KeyScene(int width, int height, Pixel front = {40, 200, 60, 255}, Pixel back = {90, 110, 70, 255})
        : width(width), height(height) {
        const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        foreground.assign(count, front);
        background.assign(count, back);
        combined.assign(count, {1, 2, 3, 4});
        attach(*info.pForegroundBitmapInfo, foreground);
        attach(*info.pBackgroundBitmapInfo, background);
        attach(*info.pCombinedBitmapInfo, combined);
        info.iOutputPixelWidth = info.iOutputPixelLowResWidth = width;
        info.iOutputPixelHeight = info.iOutputPixelLowResHeight = height;
        info.iNewThreadCount = info.iCurrentThreadCount.load();
        info.bUseAdaptiveBackgroundGreen = false;
        info.baseRed = 40.0;
        info.baseGreen = 200.0;
        info.baseBlue = 60.0;
    }

    Pixel& at(std::vector<Pixel>& pixels, int x, int y) {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    int alpha(int x, int y) { return at(background, x, y)[3]; }
    LayerSettings& sliders() { return *info.pCombinedBitmapInfo; }

    /// The key's answer for pixel (x, y).
    KeyedPixel keyed(int x = 0, int y = 0) {
        const CombineParams params = makeCombineParams(info, Resolution::full);
        return decidePixel(params.key, at(foreground, x, y).data(), x, y);
    }

    SystemInfo info;
    int width, height;
    std::vector<Pixel> foreground, background, combined;

  private:
    static void attach(BitmapInfo& record, std::vector<Pixel>& pixels) {
        record.pBitmapData = record.pBitmapDataLowRes = pixels.front().data();
    }
};

/// Noise, half of it near the scene's screen colour.
inline void fillWithNoise(std::vector<Pixel>& pixels, unsigned seed) {
    std::mt19937 random(seed);
    const auto byte = [&](unsigned low, unsigned range) { return static_cast<std::uint8_t>(low + random() % range); };
    for (Pixel& p : pixels) {
        const bool screen = random() % 2 == 0;
        p = screen ? Pixel{byte(25, 60), byte(120, 110), byte(40, 60), byte(0, 256)}
                   : Pixel{byte(0, 256), byte(0, 256), byte(0, 256), byte(0, 256)};
    }
}

}  // namespace tavrin::test
