// What is laid on a picture: shadow, texture, frames; at preview size and at 2400 x 3000, on one thread and on two,
// beside the key of the same picture.
#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>

#include "core/raster/ColorMath.h"
#include "effects/Shadow.h"
#include "effects/ShadowPresets.h"
#include "effects/Texture.h"
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

template <void (*preset)(SystemInfo&)>
void shadow(benchmark::State& state) {
    Run run(state);
    preset(*run.info);
    for (auto _ : state)
        AddShadow(*run.info, 1, 1);
}
BENCHMARK(shadow<setWallShadow>)->Name("shadow/wall")->Apply(sizes);
BENCHMARK(shadow<setFloorShadow>)->Name("shadow/floor")->Apply(sizes);
BENCHMARK(shadow<setFloorAndWallShadow>)->Name("shadow/floorAndWall")->Apply(sizes);

}  // namespace
}  // namespace tavrin
