// What is laid on a picture: shadow, texture, frames; at preview size and at 2400 x 3000, on one thread and on two,
// beside the key of the same picture.
#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>

#include "core/raster/ColorMath.h"
#include "effects/Texture.h"
#include "effects/frame/Frame.h"
#include "effects/shadow/Shadow.h"
#include "key/Combine.h"

namespace tavrin {
namespace {

// A person as head and body before a green screen, over a background of soft stripes.
void paint(std::uint8_t* foreground, std::uint8_t* background, int w, int h) {
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x, foreground += 4, background += 4) {
            const double u = (x + 0.5) / w - 0.5, v = (y + 0.5) / h;
            const bool person =
                std::hypot(u / 0.15, (v - 0.3) / 0.15) < 1.0 || (v > 0.48 + u * u && std::abs(u) < 0.3);
            const Rgb skin{205.0, 152.0 + 20.0 * u, 125.0}, screen{43.0, 140.0 + 20.0 * u, 50.0};
            const Rgb& c = person ? skin : screen;
            for (int i = 0; i < 4; ++i)
                foreground[i] = i == 0 ? toByte(c.r) : i == 1 ? toByte(c.g) : i == 2 ? toByte(c.b) : 255;
            for (int i = 0; i < 4; ++i)
                background[i] = i == 3 ? 255 : toByte(128.0 + 60.0 * std::sin(20.0 * u + 9.0 * v + i));
        }
    }
}

// Arguments: width, height, threads.
void sizes(benchmark::internal::Benchmark* bench) {
    for (const int threads : {2, 1}) {  // the most first: the library's workers are counted at the first run
        bench->Args({460, 575, threads});
        bench->Args({2400, 3000, threads});
    }
    bench->ArgNames({"w", "h", "threads"})->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
}

struct Run {
    explicit Run(const benchmark::State& state)
        : limit(static_cast<int>(state.range(2))), info(std::make_unique<SystemInfo>()) {
        const int w = static_cast<int>(state.range(0)), h = static_cast<int>(state.range(1));
        info->iCurrentThreadCount = info->iNewThreadCount = 1;
        info->iOutputPixelWidth = w;
        info->iOutputPixelHeight = h;
        info->iOutputImageDPI = w / 8;
        info->baseRed = 43.0;
        info->baseGreen = 140.0;
        info->baseBlue = 50.0;
        for (BitmapInfo* record :
             {info->pForegroundBitmapInfo.get(), info->pBackgroundBitmapInfo.get(), info->pCombinedBitmapInfo.get()})
            record->allocateBuffers(w, h, 1, 1);
        paint(info->pForegroundBitmapInfo->pBitmapData, info->pBackgroundBitmapInfo->pBitmapData, w, h);
        combined = info->pCombinedBitmapInfo->pBitmapData;
        Combine(*info, 1, 1);
    }

    ThreadLimit limit;
    std::unique_ptr<SystemInfo> info;
    std::uint8_t* combined;
};

void plainCombine(benchmark::State& state) {
    Run run(state);
    for (auto _ : state)
        Combine(*run.info, 1, 1);
}
BENCHMARK(plainCombine)->Apply(sizes);

void texture(benchmark::State& state) {
    Run run(state);
    run.info->oImageTexture->sTextureFileName = TAVRIN_SOURCE_DIR "/data/Pictures/Texture/Canvas.jpg";
    for (auto _ : state)
        AddTexture(*run.info, run.combined, 1);
}
BENCHMARK(texture)->Apply(sizes);

// Sliders that throw a shadow on the wall, on the floor, or on both.
void setShadow(SystemInfo& info, int floorHeight, int scale, bool behind) {
    info.iSliderShadowRightLeft = 550;
    info.iSliderShadowUpDown = 500;
    info.iSliderShadowScale = scale;
    info.iSliderShadowTransparency = 500;
    info.iSliderShadowBlur = 250;
    info.iSliderShadowBlack = 20;
    info.iSliderFloorSkew = 525;
    info.iSliderFloorBaseAngle = 500;
    info.iSliderShadowBase = 520;
    info.iSliderVRoomLeft = info.iSliderVRoomRight = floorHeight;
    info.iCheckShadowBehind = behind;
}

void shadow(benchmark::State& state, int floorHeight, int scale) {
    Run run(state);
    setShadow(*run.info, floorHeight, scale, true);
    for (auto _ : state)
        AddShadow(*run.info, 1, 1);
}
BENCHMARK_CAPTURE(shadow, wall, 0, 520)->Apply(sizes);
BENCHMARK_CAPTURE(shadow, floor, 1000, 300)->Apply(sizes);
BENCHMARK_CAPTURE(shadow, floorAndWall, 300, 500)->Apply(sizes);

// Arguments after the size and the threads: shape and filling.
void frame(benchmark::State& state) {
    Run run(state);
    ImageFrame& settings = *run.info->oFrame;
    settings.iFrameType = static_cast<int>(state.range(3));
    settings.iFrameMode = static_cast<int>(state.range(4));
    settings.sFrameImagePath = TAVRIN_SOURCE_DIR "/data/sample/background.jpg";
    for (auto _ : state)
        AddFrame(*run.info, settings, run.combined, 1);
}

void frames(benchmark::internal::Benchmark* bench) {
    for (const int threads : {2, 1}) {
        for (const auto& [w, h] : {std::pair{460, 575}, std::pair{2400, 3000}}) {
            for (int shape = 1; shape <= 4; ++shape)
                bench->Args({w, h, threads, shape, 1});
            for (int filling = 2; filling <= 4; ++filling)
                bench->Args({w, h, threads, 1, filling});
        }
    }
    bench->ArgNames({"w", "h", "threads", "shape", "filling"})
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->MeasureProcessCPUTime();
}
BENCHMARK(frame)->Apply(frames);

}  // namespace
}  // namespace tavrin
