#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>
#include <random>

#include "core/raster/BoxBlur.h"
#include "key/SmoothEdges.h"
#include "key/guard/GreenGuard.h"
#include "key/hair/HairCorrection.h"
#include "key/hair/HairDetail.h"
#include "key/hair/HairDetect.h"
#include "key/skin/SoftenMac.h"

// The stages of the key around its pixel loop, at preview size and at 2400 x 3000, on one thread and on two.
namespace {

using namespace tavrin;

std::uint8_t clampByte(double value) {
    return static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
}

// A head and shoulders with a ragged rim of hair in front of an unevenly lit screen, with sensor noise.
void paintPortrait(std::uint8_t* rgba, std::uint8_t* key, int w, int h) {
    std::mt19937 random(1);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const double u = (x + 0.5) / w - 0.5, v = (y + 0.5) / h;
            const double head =
                std::hypot(u / 0.24, (v - 0.36) / 0.24) + 0.06 * std::sin(60.0 * std::atan2(u, v - 0.36));
            const double face = std::hypot(u / 0.15, (v - 0.40) / 0.17);
            const bool body = v > 0.62 + u * u;
            const double light = 150.0 + 30.0 * u - 20.0 * v;
            double c[3] = {light * 0.3, light, light * 0.35};
            double cover = 0.0;
            if (head < 1.1) cover = head < 0.95 ? 1.0 : (1.1 - head) / 0.15;
            const double hair[3] = {95, 65, 45}, skin[3] = {205, 152, 125}, shirt[3] = {70, 120, 75};
            for (int i = 0; i < 3; ++i) {
                c[i] = hair[i] * cover + c[i] * (1.0 - cover);
                if (body) c[i] = shirt[i];
                if (face < 1.0) c[i] = skin[i];
                rgba[i] = clampByte(c[i] + static_cast<double>(random() % 9) - 4.0);
            }
            rgba[3] = 255;
            if (key) key[3] = clampByte(255.0 * (body || face < 1.0 ? 1.0 : cover));
            if (key) key += 4;
            rgba += 4;
        }
    }
}

std::unique_ptr<SystemInfo> makeState(int w, int h) {
    auto info = std::make_unique<SystemInfo>();
    info->iCurrentThreadCount = info->iNewThreadCount = 1;
    info->iOutputPixelWidth = w;
    info->iOutputPixelHeight = h;
    const double scale = std::min(1.0, std::sqrt(300'000.0 / (static_cast<double>(w) * h)));
    info->iOutputPixelLowResWidth = static_cast<int>(w * scale);
    info->iOutputPixelLowResHeight = static_cast<int>(h * scale);
    info->iOutputImageDPI = 300;
    info->iOutputImageLowResDPI = 92;
    info->baseRed = 43.0;
    info->baseGreen = 143.0;
    info->baseBlue = 50.0;
    info->iMacroHairColor = 6;
    info->bAdvancedHairDetectionON = true;
    for (BitmapInfo* record :
         {info->pForegroundBitmapInfo.get(), info->pBackgroundBitmapInfo.get(), info->pCombinedBitmapInfo.get()})
        record->allocateBuffers(w, h, info->iOutputPixelLowResWidth, info->iOutputPixelLowResHeight);
    paintPortrait(info->pForegroundBitmapInfo->pBitmapData, info->pBackgroundBitmapInfo->pBitmapData, w, h);
    paintPortrait(info->pForegroundBitmapInfo->pBitmapDataLowRes, nullptr, info->iOutputPixelLowResWidth,
                  info->iOutputPixelLowResHeight);
    std::copy_n(info->pForegroundBitmapInfo->pBitmapData, pixelBytes(w, h), info->pCombinedBitmapInfo->pBitmapData);
    return info;
}

// Arguments: width, height, threads.
void sizes(benchmark::internal::Benchmark* bench) {
    for (int threads : {1, 2}) {
        bench->Args({460, 644, threads});
        bench->Args({2400, 3000, threads});
    }
    bench->ArgNames({"w", "h", "threads"})->Unit(benchmark::kMillisecond)->UseRealTime();
}

struct Run {
    explicit Run(const benchmark::State& state)
        : w(static_cast<int>(state.range(0))),
          h(static_cast<int>(state.range(1))),
          limit(static_cast<int>(state.range(2))),
          info(makeState(w, h)),
          foreground(info->pForegroundBitmapInfo->pBitmapData) {}

    int w, h;
    ThreadLimit limit;
    std::unique_ptr<SystemInfo> info;
    const std::uint8_t* foreground;
};

void BM_GaussBlur4(benchmark::State& state) {
    Run run(state);
    PixelBuffer out(run.w, run.h);
    for (auto _ : state)
        gaussBlur_4({}, run.info->pCombinedBitmapInfo->pBitmapData, out.data(), run.w, run.h, 12);
}
BENCHMARK(BM_GaussBlur4)->Apply(sizes);

void BM_GaussBlurInt(benchmark::State& state) {
    Run run(state);
    std::vector<std::int32_t> src(static_cast<std::size_t>(run.w * run.h), 128), out(src);
    for (auto _ : state)
        gaussBlur_Int({}, src.data(), out.data(), run.w, run.h, 5);
}
BENCHMARK(BM_GaussBlurInt)->Apply(sizes);

void BM_SoftenMac(benchmark::State& state) {
    Run run(state);
    run.info->bComputeSkinColor = true;
    run.info->iRedRequired = 60;
    run.info->iColorDelta = 20;
    run.info->iNumberOfSamples = 60;
    run.info->iMakeup = 20;
    for (auto _ : state)
        SoftenMac(*run.info, 1, run.foreground, run.info->pForegroundBitmapInfo->pBitmapDataLowRes,
                  run.info->pCombinedBitmapInfo->pBitmapData, 1);
}
BENCHMARK(BM_SoftenMac)->Apply(sizes);

// Always at preview size, whatever the full one.
void BM_ComputeHairColor(benchmark::State& state) {
    Run run(state);
    for (auto _ : state)
        ComputeHairColor(*run.info);
    state.counters["colours"] = run.info->iHairColorCount.load();
}
BENCHMARK(BM_ComputeHairColor)->Apply(sizes);

void BM_HairDetail(benchmark::State& state) {
    Run run(state);
    PixelBuffer map(run.w, run.h);
    for (auto _ : state)
        writeHairDetail({}, {run.foreground, run.w, run.h, 143.0, false}, map.data());
}
BENCHMARK(BM_HairDetail)->Apply(sizes);

// Every pixel of the picture, as if none were hard background.
void BM_CorrectHair(benchmark::State& state) {
    Run run(state);
    ComputeHairColor(*run.info);
    for (auto _ : state) {
        const HairParams params(*run.info, {run.w, run.h, 1.0, 0.0, 9.0});
        runRows({}, run.h, 8, [&](int y) {
            const std::uint8_t* p = run.foreground + pixelOffset(run.w, 0, y);
            double sum = 0.0;
            for (int x = 0; x < run.w; ++x, p += 4) {
                HairPixel pixel = {x,  y, p[0], p[1], p[2], 200.0, 100.0, {double(p[0]), double(p[1]), double(p[2])},
                                   0.5};
                correctHair(params, pixel);
                sum += pixel.alpha;
            }
            benchmark::DoNotOptimize(sum);
        });
    }
}
BENCHMARK(BM_CorrectHair)->Apply(sizes);

template <int mode>
void BM_GreenGuard(benchmark::State& state) {
    Run run(state);
    run.info->iGreenProtectMode = mode;
    GreenGuard guard;
    for (auto _ : state)
        benchmark::DoNotOptimize(guard.build(*run.info, {run.foreground, run.w, run.h}, Resolution::full));
}
BENCHMARK(BM_GreenGuard<1>)->Apply(sizes);
BENCHMARK(BM_GreenGuard<2>)->Apply(sizes);

void BM_SmoothHiResEdges(benchmark::State& state) {
    Run run(state);
    run.info->iBlendEdges = 30;
    for (auto _ : state)
        SmoothHiResEdges(*run.info);
}
BENCHMARK(BM_SmoothHiResEdges)->Apply(sizes);

}  // namespace
