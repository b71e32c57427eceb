// State files at their largest: 200 text items. A person waits for them, so both ways should stay under 20 ms.

#include <benchmark/benchmark.h>
#include <filesystem>

#include "formats/ImageState.h"

namespace tavrin {
namespace {

std::string benchFile() {
    return (std::filesystem::temp_directory_path() / "tavrin-bench.qlx").string();
}

void fill(SystemInfo& info) {
    info.oFontObject.resize(TextState::kMaxFontObjects);
    for (FontObject& item : info.oFontObject)
        item.sText = "Class of 2026, first row:\nAnna, \"Ben\" & Çelik";
}

// With the wait for the disk, which depends on the disk.
void BM_SaveStateOf200Items(benchmark::State& state) {
    SystemInfo info;
    fill(info);
    for (auto _ : state) {
        if (!saveImageStateToXML(info, benchFile()).empty()) state.SkipWithError("not saved");
    }
}

void BM_LoadStateOf200Items(benchmark::State& state) {
    SystemInfo info;
    fill(info);
    if (!saveImageStateToXML(info, benchFile()).empty()) state.SkipWithError("not saved");
    for (auto _ : state) {
        if (!LoadImageStateFromXML(info, benchFile(), kLoadAll).empty()) state.SkipWithError("not loaded");
    }
    std::filesystem::remove(benchFile());
}

BENCHMARK(BM_SaveStateOf200Items)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_LoadStateOf200Items)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tavrin
