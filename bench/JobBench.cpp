// The whole job, from file to file: a 12 megapixel portrait and the sample background become an 8 x 10 inch JPEG at
// 300 dpi. Beside it what no program can leave out: decoding both, scaling both, encoding one.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <string>

#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "pipeline/CombineThread.h"
#include "pipeline/OutputSize.h"
#include "pipeline/SaveImage.h"
#include "pipeline/WholePicture.h"

namespace tavrin {
namespace {

constexpr int kWidth = 2400, kHeight = 3000;

std::string tempFile(const char* name) {
    return (std::filesystem::temp_directory_path() / (std::string("tavrin-bench-") + name)).string();
}

// The sample portrait at 3100 x 3875.
const std::string& foregroundPath() {
    static const std::string path = [] {
        const QImage sample(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg");
        const std::string file = tempFile("portrait.jpg");
        sample.scaled(3100, 3875, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(file.c_str(), "JPEG", 92);
        return file;
    }();
    return path;
}

std::string backgroundPath() {
    return TAVRIN_SOURCE_DIR "/data/sample/background.jpg";
}

std::unique_ptr<SystemInfo> newJob() {
    auto info = std::make_unique<SystemInfo>();
    info->pForegroundBitmapInfo->sSourceImageFullPath = foregroundPath();
    info->pBackgroundBitmapInfo->sSourceImageFullPath = backgroundPath();
    selectOwnSize(*info, "8x10", 8.0, 10.0, 300);
    return info;
}

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
        ChangeImageSize(*info);
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

// A pass after a slider move: both layers are in place.
void pass(benchmark::State& state, SystemInfo& info) {
    const ThreadLimit limit(static_cast<int>(state.range(0)));
    ChangeImageSize(info);
    CombineThread loop(info);
    loop.runUntilIdle();
    for (auto _ : state) {
        info.StartUpdate();
        loop.runUntilIdle();
    }
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

}  // namespace
}  // namespace tavrin
