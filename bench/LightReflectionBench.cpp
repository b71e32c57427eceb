// The light of each shape, its map alone and the key with it beside the plain key, and the reflection.
#include <benchmark/benchmark.h>

#include "BenchPortrait.h"
#include "effects/Reflection.h"
#include "key/Combine.h"
#include "key/light/Lighting.h"

namespace tavrin {
namespace {

// Arguments: width, height, threads.
void sizes(benchmark::internal::Benchmark* bench) {
    for (const int threads : {2, 1}) {  // the most first: the library's workers are counted at the first run
        bench->Args({460, 575, threads})->Args({2400, 3000, threads});
    }
    bench->ArgNames({"w", "h", "threads"})->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
}

struct Run {
    explicit Run(const benchmark::State& state)
        : limit(static_cast<int>(state.range(2))),
          info(std::make_unique<SystemInfo>()),
          width(static_cast<int>(state.range(0))),
          height(static_cast<int>(state.range(1))) {
        bench::prepare(*info, width, height);
        info->iOutputImageDPI = width / 8;
        // A light that covers the whole picture.
        info->iLightingSliderXLoc = info->iLightingSliderYLoc = 200;
        info->iLightingSliderAngle = 37;
        info->iLightingSliderStartLight = 60;
        info->iLightingSliderEndLight = 40;
    }

    ThreadLimit limit;
    std::unique_ptr<SystemInfo> info;
    int width, height;
};

template <int kMode>
void lightMap(benchmark::State& state) {
    Run run(state);
    run.info->iLightingMode = kMode;
    run.info->iLightingSliderSize = kMode == 4 ? 20 : 200;
    std::vector<std::int32_t> map(static_cast<std::size_t>(run.width) * static_cast<std::size_t>(run.height));
    for (auto _ : state)
        EffectsLighting(*run.info, map.data(), run.width, run.height, 1);
}
BENCHMARK(lightMap<1>)->Apply(sizes);
BENCHMARK(lightMap<2>)->Apply(sizes);
BENCHMARK(lightMap<3>)->Apply(sizes);
BENCHMARK(lightMap<4>)->Apply(sizes);

// Mode 0 is the plain key.
template <int kMode>
void combineWithLight(benchmark::State& state) {
    Run run(state);
    run.info->iLightingMode = kMode;
    run.info->iLightingSliderSize = 20;
    for (auto _ : state)
        Combine(*run.info, 1, 1);
}
BENCHMARK(combineWithLight<0>)->Apply(sizes);
BENCHMARK(combineWithLight<1>)->Apply(sizes);
BENCHMARK(combineWithLight<2>)->Apply(sizes);
BENCHMARK(combineWithLight<3>)->Apply(sizes);
BENCHMARK(combineWithLight<4>)->Apply(sizes);

// With the defaults the mirror takes the lower 30 percent of the picture.
void reflection(benchmark::State& state, const char* texture, int base) {
    Run run(state);
    Combine(*run.info, 1, 1);
    run.info->iSliderReflectionSkewBase = base;
    run.info->oReflectionTexture->bHaveTexture = *texture != 0;
    run.info->oReflectionTexture->sTextureFileName = std::string(TAVRIN_SOURCE_DIR) + texture;
    const auto pixels = [](const auto& record) { return record->pBitmapData; };
    for (auto _ : state)
        AddReflection(*run.info, 1, *run.info->pCombinedBitmapInfo, pixels(run.info->pForegroundBitmapInfo),
                      pixels(run.info->pBackgroundBitmapInfo), pixels(run.info->pCombinedBitmapInfo));
}
BENCHMARK_CAPTURE(reflection, defaults, "", 30)->Apply(sizes);
BENCHMARK_CAPTURE(reflection, half_the_picture, "", 50)->Apply(sizes);
BENCHMARK_CAPTURE(reflection, textured, "/data/Pictures/Texture/Canvas.jpg", 30)->Apply(sizes);

}  // namespace
}  // namespace tavrin
