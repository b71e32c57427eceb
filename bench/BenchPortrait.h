#pragma once

#include <cmath>
#include <random>

#include "core/raster/ColorMath.h"
#include "key/screen/BaseGreen.h"

// The picture that the benchmarks of the key and of what rests on it work on.
namespace tavrin::bench {

struct Subject {
    double coverage;
    Rgb color;
};

// A head and shoulders in units of the picture's size: skin, dark hair with a soft edge, a grey shirt.
inline Subject subjectAt(double u, double v) {
    const double head = std::hypot((u - 0.5) / 0.16, (v - 0.35) / 0.17);
    const double hair =
        std::hypot((u - 0.5) / 0.21, (v - 0.33) / 0.22) + 0.03 * std::sin(60.0 * std::atan2(v - 0.33, u - 0.5));
    const double body = std::hypot((u - 0.5) / 0.38, (v - 1.05) / 0.45);
    const auto soft = [](double distance, double width) { return clampTo((1.0 - distance) / width + 0.5, 0.0, 1.0); };
    const double skin = soft(head, 0.05), strands = soft(hair, 0.15), shirt = soft(body, 0.02);
    if (skin > 0.5) return {1.0, {205.0, 155.0, 130.0}};
    if (shirt > strands) return {shirt, {120.0, 118.0, 125.0}};
    return {strands, {70.0, 50.0, 40.0}};
}

// A portrait before an unevenly lit screen with sensor noise, over a gradient.
inline void paint(SystemInfo& info, int width, int height, bool lowRes) {
    std::mt19937 random(7);
    BitmapInfo &front = *info.pForegroundBitmapInfo, &back = *info.pBackgroundBitmapInfo;
    std::uint8_t* foreground = lowRes ? front.pBitmapDataLowRes : front.pBitmapData;
    std::uint8_t* background = lowRes ? back.pBitmapDataLowRes : back.pBitmapData;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = static_cast<double>(x) / width, v = static_cast<double>(y) / height;
            const double lit = 1.0 - 0.3 * std::hypot(u - 0.4, v - 0.3);
            const Subject s = subjectAt(u, v);
            const double shade = 0.8 + 0.2 * std::sin(9.0 * u + 5.0 * v), rest = 1.0 - s.coverage;
            const auto noise = [&] { return static_cast<double>(random() % 9) - 4.0; };
            std::uint8_t* f = foreground + pixelOffset(width, x, y);
            f[0] = toByte(s.color.r * shade * s.coverage + 52.0 * lit * rest + noise());
            f[1] = toByte(s.color.g * shade * s.coverage + 148.0 * lit * rest + noise());
            f[2] = toByte(s.color.b * shade * s.coverage + 74.0 * lit * rest + noise());
            f[3] = 255;
            std::uint8_t* b = background + pixelOffset(width, x, y);
            b[0] = toByte(200.0 * u + 20.0);
            b[1] = toByte(220.0 * v);
            b[2] = toByte(240.0 - 100.0 * u);
            b[3] = 255;
        }
    }
}

// The state for pictures of one size; the preview buffers are filled where `lowRes`.
inline void prepare(SystemInfo& info, int width, int height) {
    const int lowWidth = 460, lowHeight = 644;
    info.iOutputPixelWidth = width;
    info.iOutputPixelHeight = height;
    info.iOutputPixelLowResWidth = lowWidth;
    info.iOutputPixelLowResHeight = lowHeight;
    for (BitmapInfo* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        record->allocateBuffers(width, height, lowWidth, lowHeight);
    }
    paint(info, width, height, false);
    paint(info, lowWidth, lowHeight, true);
    info.iNewThreadCount = info.iCurrentThreadCount.load();
    ComputeBaseGreen(info, 1, 0);
}

}  // namespace tavrin::bench
