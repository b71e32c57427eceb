#pragma once

#include <cmath>
#include <gtest/gtest.h>

#include "support/Portrait.h"

namespace tavrin::test {

/// A state with nothing superseded whose two resolutions are w by h, for stages that take their buffer.
inline std::unique_ptr<SystemInfo> bareState(int w, int h, int dpi = 300) {
    auto info = std::make_unique<SystemInfo>();
    info->iCurrentThreadCount = info->iNewThreadCount = 1;
    info->iOutputPixelWidth = info->iOutputPixelLowResWidth = w;
    info->iOutputPixelHeight = info->iOutputPixelLowResHeight = h;
    info->iOutputImageDPI = info->iOutputImageLowResDPI = dpi;
    return info;
}

/// Soft waves of brightness with some noise; alpha differs from pixel to pixel.
inline Bytes waves(int w, int h, unsigned seed = 3) {
    std::mt19937 random(seed);
    Bytes bytes(pixelBytes(w, h));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t pixel = i / 4, x = pixel % static_cast<std::size_t>(w),
                          y = pixel / static_cast<std::size_t>(w);
        const double light =
            128.0 + 100.0 * std::sin(static_cast<double>(x) * 0.3) * std::cos(static_cast<double>(y) * 0.2);
        const double noise = static_cast<double>(random() % 24);
        bytes[i] = static_cast<std::uint8_t>(i % 4 == 3 ? random() % 256 : static_cast<unsigned>(light + noise));
    }
    return bytes;
}

inline Bytes plain(int w, int h, Color color) {
    return Canvas(w, h, color).bytes;
}

/// Runs `stage` on copies of `input` with one thread and with all; the results have to be the same, alpha as it was.
template <class Stage>
Bytes sameOnAllThreads(const Bytes& input, Stage stage) {
    Bytes results[2] = {input, input};
    withOneAndManyThreads([&](int i) { stage(results[i].data()); });
    EXPECT_EQ(results[0], results[1]);
    for (std::size_t i = 3; i < input.size(); i += 4)
        EXPECT_EQ(results[0][i], input[i]) << "alpha at byte " << i;
    return results[0];
}

}  // namespace tavrin::test
