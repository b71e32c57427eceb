// What a batch does beside making pictures: the status step, which looks at whole folders each time.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "batch/BatchEngine.h"
#include "folders/HistoryFile.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

// A folder of empty files with the names that cameras give, half of them in the history.
class LargeFolder {
  public:
    explicit LargeFolder(int files) : path_(fs::temp_directory_path() / "tavrin-bench-folder") {
        fs::remove_all(path_);
        fs::create_directories(path_);
        std::vector<std::string> keys;
        for (int i = 0; i < files; ++i) {
            const std::string name = "IMG_" + std::to_string(100'000 + i) + ".JPG";
            std::ofstream(path_ / name);
            if (i % 2 == 0) keys.push_back(name + "UseCurrentUseCurrent");
        }
        writeHistory((path_ / "ForegroundHistory.dat").string(), keys);
    }
    ~LargeFolder() { fs::remove_all(path_); }

    std::string path() const { return path_.string(); }

  private:
    fs::path path_;
};

std::unique_ptr<SystemInfo> stateOver(const LargeFolder& folder) {
    auto info = std::make_unique<SystemInfo>();
    info->oQLXInfo->sLastBatchForeground = folder.path();
    info->oQLXInfo->sLastBatchOutput = folder.path();
    return info;
}

// The step that every idle moment of a run takes.
void batchStatus(benchmark::State& state) {
    const LargeFolder folder(static_cast<int>(state.range(0)));
    const auto info = stateOver(folder);
    BatchEngine engine(*info);
    for (auto _ : state)
        engine.ShowBatchStatus();
}

// The first one, which has to sort the names.
void batchFirstStatus(benchmark::State& state) {
    const LargeFolder folder(static_cast<int>(state.range(0)));
    const auto info = stateOver(folder);
    for (auto _ : state) {
        BatchEngine engine(*info);
        engine.ShowBatchStatus();
    }
}

BENCHMARK(batchStatus)->Arg(2'000)->Arg(20'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(batchFirstStatus)->Arg(20'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tavrin
