// A look on three hundred portraits, and what a change of a setting costs the main thread to keep.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>

#include <QTemporaryDir>

#include "core/files/Places.h"
#include "session/Looks.h"
#include "session/RecipeStore.h"

namespace tavrin {
namespace {

constexpr int kPortraits = 300;

/// @param worked whether the portraits have recipes of their own, with a history
void pasteOnPortraits(benchmark::State& state, bool worked) {
    QTemporaryDir folder;
    const std::string place = folder.path().toStdString() + '/';
    Places::current().setSharedFolder(place);
    SystemInfo info;
    SettingEditor editor(info);
    for (int i = 0; i < 50; ++i)
        editor.set("foreground.iBrightness", std::to_string(i));
    std::vector<std::string> portraits;
    for (int i = 0; i < kPortraits; ++i) {
        portraits.push_back(place + std::to_string(i) + ".jpg");
        std::ofstream(portraits.back()) << i;
        if (worked) static_cast<void>(saveRecipe(portraits.back(), presentRecipe(editor)));
    }
    for (auto _ : state) {
        PortraitPaste paste(portraits, "Paste a look", lookOf(info));
        paste.paste();
        state.PauseTiming();
        if (paste.changed() != kPortraits) state.SkipWithError("not every portrait took the look");
        paste.takeBack();
        state.ResumeTiming();
    }
}

void keepPresentRecipe(benchmark::State& state) {
    SystemInfo info;
    SettingEditor editor(info);
    for (int i = 0; i < 200; ++i)
        editor.set("foreground.iBrightness", std::to_string(i));
    for (auto _ : state)
        benchmark::DoNotOptimize(presentRecipe(editor));
}

BENCHMARK_CAPTURE(pasteOnPortraits, fresh, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(pasteOnPortraits, worked_on, true)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(keepPresentRecipe)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavrin
