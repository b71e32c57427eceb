// Sketch, stars and global smoothing on the sample portrait, as preview and at 2400 x 3000, on one thread and on two,
// beside the key of the same picture.
#include <benchmark/benchmark.h>
#include <memory>

#include "effects/Presets.h"
#include "effects/sketch/Sketch.h"
#include "effects/smoothing/GlobalSmoothing.h"
#include "effects/star/StarFilter.h"
#include "key/Combine.h"
#include "pipeline/CombineThread.h"
#include "session/OutputSizes.h"

namespace tavrin {
namespace {

// Arguments: resolution (1 is 2400 x 3000) and threads.
void sizes(benchmark::internal::Benchmark* bench) {
    for (const int threads : {2, 1}) {
        for (const int res : {0, 1})
            bench->Args({res, threads});
    }
    bench->ArgNames({"full", "threads"})->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
}

// The finished sample; a stage works on a copy of it each time.
struct Run {
    explicit Run(const benchmark::State& state)
        : res(static_cast<int>(state.range(0))), limit(static_cast<int>(state.range(1))) {
        info->pForegroundBitmapInfo->sSourceImageFullPath = TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg";
        info->pBackgroundBitmapInfo->sSourceImageFullPath = TAVRIN_SOURCE_DIR "/data/sample/background.jpg";
        chooseOwnSize(*info, "bench", 8.0, 10.0, 300);
        useChosenSize(*info);
        CombineThread(*info).runUntilIdle();
        info->iCurrentThreadCount = info->iNewThreadCount.load();
        geometry = info->geometry(fullIf(res == 1));
        const BitmapInfo& combined = *info->pCombinedBitmapInfo;
        const std::uint8_t* bytes = res == 1 ? combined.pBitmapData : combined.pBitmapDataLowRes;
        finished.assign(bytes, bytes + pixelBytes(geometry.width, geometry.height));
    }

    void choose(const char* group, const char* name) { applyPreset(*info, *findPresetGroup(group), name); }

    template <class Stage>
    void time(benchmark::State& state, Stage stage) {
        for (auto _ : state) {
            state.PauseTiming();
            std::vector<std::uint8_t> picture = finished;
            state.ResumeTiming();
            stage(picture.data());
        }
    }

    int res;
    ThreadLimit limit;
    std::unique_ptr<SystemInfo> info = std::make_unique<SystemInfo>();
    PassGeometry geometry;
    std::vector<std::uint8_t> finished;
};

void filtersCombine(benchmark::State& state) {
    Run run(state);
    for (auto _ : state)
        Combine(*run.info, 1, run.res);
}
BENCHMARK(filtersCombine)->Apply(sizes);

void globalSmoothing(benchmark::State& state) {
    Run run(state);
    run.choose("smooth", "result");
    run.time(state, [&](std::uint8_t* picture) { FastGlobalImageSmoothing(*run.info, 0, picture, run.res); });
}
BENCHMARK(globalSmoothing)->Apply(sizes);

void sketch(benchmark::State& state, const char* name) {
    Run run(state);
    run.choose("cartoon", name);
    for (LoadedPicture* texture : {&run.info->PencilCross, &run.info->PencilCross2, &run.info->LightParchment}) {
        texture->Image = QImage(1400, 1400, QImage::Format_RGBA8888);
        texture->Image.fill(QColor(200, 190, 160));
        texture->rawData = texture->Image.constBits();
        texture->iWidth = texture->iHeight = 1400;
        texture->stride = 1400 * kPixelBytes;
    }
    run.time(state, [&](std::uint8_t* picture) {
        Sketch(*run.info, 0, picture, run.geometry.width, run.geometry.height, run.geometry.dpi);
    });
}
BENCHMARK_CAPTURE(sketch, cartoon, "cartoon")->Apply(sizes);
BENCHMARK_CAPTURE(sketch, grey, "grey")->Apply(sizes);
BENCHMARK_CAPTURE(sketch, parchment, "parchment")->Apply(sizes);

// With some lights painted on, each a hundredth of the width.
void stars(benchmark::State& state, int lights) {
    Run run(state);
    run.choose("star", "on");
    const int w = run.geometry.width, h = run.geometry.height, side = w / 100;
    for (int i = 0; i < lights; ++i) {
        const int left = static_cast<int>(i * 7919L % (w - side)), top = static_cast<int>(i * 104729L % (h - side));
        for (int y = top; y < top + side; ++y)
            std::fill_n(&run.finished[pixelOffset(w, left, y)], pixelBytes(side, 1), std::uint8_t{255});
    }
    run.time(state, [&](std::uint8_t* picture) { StarFilter(*run.info, 0, picture, run.res); });
}
BENCHMARK_CAPTURE(stars, none, 0)->Apply(sizes);
BENCHMARK_CAPTURE(stars, lights_20, 20)->Apply(sizes);
BENCHMARK_CAPTURE(stars, lights_500, 500)->Apply(sizes);

}  // namespace
}  // namespace tavrin
