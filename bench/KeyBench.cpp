#include <benchmark/benchmark.h>

#include "BenchPortrait.h"
#include "key/Combine.h"

namespace tavrin {
namespace {

void reportPixel(benchmark::State& state, double pixels) {
    state.counters["per_pixel"] =
        benchmark::Counter(pixels, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Arguments: width, height, threads.
void combine(benchmark::State& state, const std::function<void(SystemInfo&)>& change) {
    const int width = static_cast<int>(state.range(0)), height = static_cast<int>(state.range(1));
    SystemInfo info;
    bench::prepare(info, width, height);
    change(info);
    const ThreadLimit limit(static_cast<int>(state.range(2)));
    for (auto _ : state)
        Combine(info, 1, 1);
    reportPixel(state, static_cast<double>(width) * height);
}

void sizes(benchmark::internal::Benchmark* bench) {
    for (const int threads : {1, 2}) {
        bench->Args({460, 644, threads})->Args({2400, 3000, threads})->Args({4000, 6000, threads});
    }
    bench->UseRealTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(combine, defaults, [](SystemInfo&) {})->Apply(sizes);
BENCHMARK_CAPTURE(combine, global_screen, [](SystemInfo& info) { info.bUseAdaptiveBackgroundGreen = false; })
    ->Args({2400, 3000, 1})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    combine, tone_of_both,
    [](SystemInfo& info) {
        for (BitmapInfo* record : {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get()}) {
            record->iEnhanseShadows = 40;
            record->iBrightnessSharpen = 20;
            record->iWarming = 30;
        }
    })
    ->Args({2400, 3000, 1})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void measureSource(benchmark::State& state, const std::function<void(SystemInfo&)>& measure) {
    const int width = static_cast<int>(state.range(0)), height = static_cast<int>(state.range(1));
    SystemInfo info;
    bench::prepare(info, width, height);
    BitmapInfo& front = *info.pForegroundBitmapInfo;
    front.iOrgWidth = width;
    front.iOrgHeight = height;
    front.orgBitmapData = front.pBitmapData;
    const ThreadLimit limit(static_cast<int>(state.range(2)));
    for (auto _ : state)
        measure(info);
    reportPixel(state, static_cast<double>(width) * height);
}

void baseGreen(benchmark::State& state) {
    measureSource(state, [](SystemInfo& info) { ComputeBaseGreen(info, 1, 2); });
}
// The colour alone, of the source of a portrait of 12 megapixels.
void baseColor(benchmark::State& state) {
    measureSource(state, [](SystemInfo& info) { ComputeBaseColor(info, 2); });
}
BENCHMARK(baseGreen)->Apply(sizes);
BENCHMARK(baseColor)
    ->Args({3024, 4032, 1})
    ->Args({3024, 4032, 2})
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrin
