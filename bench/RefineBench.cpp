#include <benchmark/benchmark.h>

#include <QImage>

#include "core/raster/Rows.h"
#include "core/state/Interface.h"
#include "key/Combine.h"
#include "key/screen/BaseGreen.h"

// The refined key beside the plain one, on the sample portrait.

namespace tavrin {
namespace {

void fillLayer(BitmapInfo& record, const char* path, int width, int height) {
    const QImage image = QImage(path)
                             .scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* const row = image.constScanLine(y);
        std::copy_n(row, std::ptrdiff_t{width} * kPixelBytes, record.pBitmapData + pixelOffset(width, 0, y));
        std::copy_n(row, std::ptrdiff_t{width} * kPixelBytes, record.pBitmapDataLowRes + pixelOffset(width, 0, y));
    }
}

// Changes a setting before each run, as a slider that is dragged does; null leaves all as they are.
using Move = void (*)(SystemInfo& info, int step);

// Arguments: width, height, threads.
void refineSample(benchmark::State& state, bool refined, Resolution resolution = Resolution::full,
                  Move move = nullptr) {
    const int width = static_cast<int>(state.range(0)), height = static_cast<int>(state.range(1));
    SystemInfo info;
    Interface view;  // previews are kept for a view
    info.pInterface = &view;
    info.iOutputPixelWidth = info.iOutputPixelLowResWidth = width;
    info.iOutputPixelHeight = info.iOutputPixelLowResHeight = height;
    for (BitmapInfo* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        record->allocateBuffers(width, height, width, height);
    }
    BitmapInfo& front = *info.pForegroundBitmapInfo;
    fillLayer(front, TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg", width, height);
    fillLayer(*info.pBackgroundBitmapInfo, TAVRIN_SOURCE_DIR "/data/sample/background.jpg", width, height);
    front.iOrgWidth = width;
    front.iOrgHeight = height;
    front.orgBitmapData = front.pBitmapData;
    info.iNewThreadCount = info.iCurrentThreadCount.load();
    ComputeBaseColor(info, 2);
    ComputeBaseGreen(info, 1, 2);
    info.bRefineKey = refined;
    const ThreadLimit limit(static_cast<int>(state.range(2)));
    int step = 0;
    for (auto _ : state) {
        if (move) move(info, step++ % 20);
        Combine(info, 1, resolution == Resolution::full ? 1 : 0);
    }
    state.counters["per_pixel"] =
        benchmark::Counter(static_cast<double>(width) * height,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void plainKey(benchmark::State& state) {
    refineSample(state, false);
}
void refinedKey(benchmark::State& state) {
    refineSample(state, true);
}
// A preview whose key is that of the last one, as under a slider of the light.
void refinedAgain(benchmark::State& state) {
    refineSample(state, true, Resolution::preview);
}

// Previews while a slider moves by one step each: of the key, and of the refinement alone.
void refinedDarkMoved(benchmark::State& state) {
    refineSample(state, true, Resolution::preview,
                 [](SystemInfo& info, int step) { info.pCombinedBitmapInfo->sliderRestoredDarkAreas = 60 + step; });
}
void refinedTransparencyMoved(benchmark::State& state) {
    refineSample(state, true, Resolution::preview, [](SystemInfo& info, int step) {
        info.pCombinedBitmapInfo->sliderTransparentcyAdjustment = 90 + step;
    });
}
void refinedSoftnessMoved(benchmark::State& state) {
    refineSample(state, true, Resolution::preview,
                 [](SystemInfo& info, int step) { info.iSliderRefineSoftness = step; });
}

void previewSizes(benchmark::internal::Benchmark* bench) {
    for (const int threads : {1, 2})
        bench->Args({460, 575, threads});
    bench->UseRealTime()->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
}
void sampleSizes(benchmark::internal::Benchmark* bench) {
    for (const int threads : {1, 2})
        bench->Args({460, 575, threads})->Args({2400, 3000, threads})->Args({4000, 6000, threads});
    bench->UseRealTime()->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK(plainKey)->Apply(sampleSizes);
BENCHMARK(refinedKey)->Apply(sampleSizes);
BENCHMARK(refinedAgain)->Apply(previewSizes);
BENCHMARK(refinedDarkMoved)->Apply(previewSizes);
BENCHMARK(refinedTransparencyMoved)->Apply(previewSizes);
BENCHMARK(refinedSoftnessMoved)->Apply(previewSizes);

}  // namespace
}  // namespace tavrin
