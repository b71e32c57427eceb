// The whole job, from file to file: a 12 megapixel portrait and the sample background become an 8 x 10 inch JPEG at
// 300 dpi. Beside it what no program can leave out: decoding both, scaling both, encoding one.
#include <benchmark/benchmark.h>

#include "BenchJob.h"
#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "pipeline/CombineThread.h"
#include "pipeline/PictureCheck.h"
#include "pipeline/SaveImage.h"
#include "pipeline/WholePicture.h"

namespace tavrin {
namespace {

using namespace bench;

void decodeScaleEncode(benchmark::State& state) {
    const ThreadLimit limit(static_cast<int>(state.range(0)));
    foregroundPath();
    for (auto _ : state) {
        QImage scaled;
        for (const std::string& path : {backgroundPath(), foregroundPath()}) {
            scaled =
                readPicture(path).pixels.scaled(kWidth, kHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        writePicture(tempFile("floor.jpg"), {scaled.constBits(), kWidth, kHeight, kJpegFile, 300, {}});
    }
}

template <class Compute>
void wholeJob(benchmark::State& state, Compute compute) {
    const ThreadLimit limit(static_cast<int>(state.range(0)));
    foregroundPath();
    for (auto _ : state) {
        const auto info = newJob();
        useChosenSize(*info);
        compute(*info);
        if (!saveImageToDisk(*info, tempFile("job.jpg"), kJpegFile, 1)) state.SkipWithError("not saved");
    }
}

void jobByLoop(benchmark::State& state) {
    wholeJob(state, [](SystemInfo& info) { CombineThread(info).runUntilIdle(); });
}

void jobByShortPath(benchmark::State& state) {
    wholeJob(state, [](SystemInfo& info) { loadAndCombineFiles(info); });
}

// A pass after a change: both layers are in place.
template <class Change>
void passAfter(benchmark::State& state, SystemInfo& info, Change change) {
    const ThreadLimit limit(static_cast<int>(state.range(0)));
    useChosenSize(info);
    CombineThread loop(info);
    loop.runUntilIdle();
    for (auto _ : state) {
        change();
        info.StartUpdate();
        loop.runUntilIdle();
    }
}

// After a slider move, with nobody to look.
void pass(benchmark::State& state, SystemInfo& info) {
    passAfter(state, info, [] {});
}

void findHair(SystemInfo& info, bool on) {
    info.bAdvancedHairDetectionON = on;
    info.iMacroHairColor = 6;
}

// From `StartUpdate` to the published preview; the second argument turns hair detection on.
void previewPass(benchmark::State& state) {
    const auto info = newJob();
    info->bSkipHiRes = true;
    findHair(*info, state.range(1) != 0);
    pass(state, *info);
}

// Preview and full picture, with edges; the second argument adds hair detection and guard mode 1.
void fullPass(benchmark::State& state) {
    const auto info = newJob();
    findHair(*info, state.range(1) != 0);
    info->iGreenProtectMode = state.range(1) != 0 ? 1 : 0;
    info->bShowGreenProtection = false;
    pass(state, *info);
}

// With a view that takes the pictures; the second argument adds the full picture.
template <class Change>
void passInView(benchmark::State& state, Change change) {
    Interface view;
    const auto info = newJob();
    info->pInterface = &view;
    info->bSkipHiRes = state.range(1) == 0;
    info->oFontLabelObject[0].sText = "Title";
    int count = 0;
    passAfter(state, *info, [&] { change(*info, ++count); });
}

// A slider of the key moves.
void keySliderInView(benchmark::State& state) {
    passInView(state,
               [](SystemInfo& info, int count) { info.pCombinedBitmapInfo->sliderWhiteAdjust = 40 + count % 2; });
}

// A letter is typed: nothing is keyed.
void textEditInView(benchmark::State& state) {
    passInView(state, [](SystemInfo& info, int count) {
        info.oFontLabelObject[0].sText = count % 2 == 0 ? "Title" : "Titles";
    });
}

// What is said of a finished picture, screen and warnings included.
void judgePicture(benchmark::State& state) {
    const auto info = newJob();
    useChosenSize(*info);
    CombineThread(*info).runUntilIdle();
    const QImage portrait = readPicture(foregroundPath()).pixels;
    for (auto _ : state) {
        PictureCheck check(true);
        check.lookAtPortrait(*info, portrait);
        benchmark::DoNotOptimize(check.warnings(*info, check.judge(*info, Resolution::full)));
    }
}

BENCHMARK(judgePicture)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeScaleEncode)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK(jobByShortPath)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK(jobByLoop)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK(previewPass)
    ->ArgsProduct({{1, 2}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();
BENCHMARK(fullPass)
    ->ArgsProduct({{1, 2}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();
BENCHMARK(keySliderInView)
    ->ArgsProduct({{1, 2}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();
BENCHMARK(textEditInView)
    ->ArgsProduct({{1, 2}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

}  // namespace
}  // namespace tavrin
