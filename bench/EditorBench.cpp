// The airbrush at full resolution: a stamp of each tool, a ten-second scribble, selecting by colour and undo.
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "BenchPortrait.h"
#include "core/raster/Rows.h"
#include "editor/Editor.h"
#include "key/Combine.h"

namespace tavrin {
namespace {

constexpr int kWidth = 2400, kHeight = 3000;

/// The keyed picture, which takes a second to make: once for all.
struct Keyed {
    Keyed() : info(std::make_unique<SystemInfo>()) {
        bench::prepare(*info, kWidth, kHeight);
        Combine(*info, 1, 1);
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i].assign(buffers()[i], buffers()[i] + pixelBytes(kWidth, kHeight));
    }
    std::array<std::uint8_t*, 2> buffers() {
        return {info->pCombinedBitmapInfo->pBitmapData, info->pBackgroundBitmapInfo->pBitmapData};
    }
    /// What the strokes of the last one did goes.
    void makeFresh() {
        for (std::size_t i = 0; i < bytes.size(); ++i)
            std::ranges::copy(bytes[i], buffers()[i]);
    }
    static Keyed& get() {
        static Keyed keyed;
        return keyed;
    }

    std::unique_ptr<SystemInfo> info;
    std::array<std::vector<std::uint8_t>, 2> bytes;
};

struct Desk {
    Desk() {
        Keyed::get().makeFresh();
        folder = std::filesystem::temp_directory_path() / "tavrin_editor_bench";
        editor = std::make_unique<Editor>(*Keyed::get().info, folder);
        editor->EnterEditorMode();
    }
    ~Desk() {
        editor->ExitEditorMode();
        std::filesystem::remove(folder);
    }
    void play(const EditItem& item) { editor->apply(item, EditOrigin::replay); }

    std::filesystem::path folder;
    std::unique_ptr<Editor> editor;
};

// A press in the hair at the edge of the head, with a radius of 50 pixels and the tool's slider at its end.
void BM_Stamp(benchmark::State& state, char key, bool checked) {
    const ThreadLimit limit(static_cast<int>(state.range(0)));
    Desk desk;
    desk.play({kBrushChosen, key});
    desk.play({kBrushSliders, 100, 25, 50, 100});
    desk.play({kCheckBox, checked});
    desk.play({kKeyPressed, 1000, 1000, 'a'});
    int slider = 100;
    for (auto _ : state) {
        desk.play({kBrushSliders, slider, 25, 50, 100});  // another slider: what the last press has made is of no use
        slider = 199 - slider;
        desk.play({kMouseDown, 750, 1900});  // every press makes its pixels anew
    }
}

void threads(benchmark::internal::Benchmark* bench) {
    bench->Arg(2)->Arg(1)->ArgName("threads")->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
}

#define TAVRIN_STAMP(name, key, checked) BENCHMARK_CAPTURE(BM_Stamp, name, key, checked)->Apply(threads)
TAVRIN_STAMP(blend_foreground, 'b', false);
TAVRIN_STAMP(paint, 'p', true);
TAVRIN_STAMP(erase, 'e', true);
TAVRIN_STAMP(restore, 'r', false);
TAVRIN_STAMP(brightness, '6', false);
TAVRIN_STAMP(contrast, '7', false);
TAVRIN_STAMP(spill, 's', false);
TAVRIN_STAMP(restore_black, '3', false);
TAVRIN_STAMP(make_whiter, 'w', false);
TAVRIN_STAMP(blend_edge, '2', false);
TAVRIN_STAMP(filter_color, 'f', false);
TAVRIN_STAMP(blur, '4', false);
TAVRIN_STAMP(smooth, '5', false);
TAVRIN_STAMP(copy, 'c', false);
TAVRIN_STAMP(restore_hair, 'h', false);

// Ten seconds of drags to and fro, 60 a second, 30 to 40 pixels each, which is the width of the picture in a second:
// how long the longest keeps the main thread.
void BM_Scribble(benchmark::State& state, char key) {
    Desk desk;
    desk.play({kBrushChosen, key});
    double longest = 0.0;
    for (auto _ : state) {
        desk.play({kMouseDown, 600, 1500});
        for (int i = 0; i < 600; ++i) {
            const auto start = std::chrono::steady_clock::now();
            const int across = i * 36 % 2400, down = i * 13 % 1800;
            desk.play({kMouseDragged, 600 + std::min(across, 2400 - across), 1500 + std::min(down, 1800 - down)});
            const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
            longest = std::max(longest, taken.count());
        }
        desk.play({kMouseUp});
    }
    state.counters["longest_ms"] = longest;
}
BENCHMARK_CAPTURE(BM_Scribble, paint, 'p')
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(BM_Scribble, erase, 'e')
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(BM_Scribble, restore_hair, 'h')
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Iterations(1);

void BM_Select(benchmark::State& state) {
    Desk desk;
    desk.play({kBrushChosen, '8'});
    desk.play({kSelectColorPicked, 120, 110, 100});
    for (auto _ : state)
        desk.play({kSelectionChanged, 25, 25, state.range(0), desk.editor->selection.bSelected});
}
BENCHMARK(BM_Select)
    ->Arg(2)
    ->Arg(0)
    ->ArgName("source")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

// A stroke of a stamp, and one over all rows: taken back and done again.
void BM_UndoRedo(benchmark::State& state) {
    Desk desk;
    desk.play({kBrushChosen, 'p'});
    desk.play({kMouseDown, 1200, 1500});
    if (state.range(0) == 1) {
        desk.play({kMouseDragged, 1210, 1});
        desk.play({kMouseDragged, 1220, 2999});
    }
    desk.play({kMouseUp});
    for (auto _ : state) {
        desk.play({kUndo});
        desk.play({kRedo});
    }
    state.SetLabel("undo and redo together");
}
BENCHMARK(BM_UndoRedo)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("all_rows")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

// A full recording: short strokes with a small brush, played as one.
void BM_Replay(benchmark::State& state, bool replayed) {
    std::vector<EditItem> items{{kBrushChosen, 'p'}, {kBrushSliders, 50, 10, 50, 100}};
    for (int i = 0; items.size() + 3 <= kMostEditItems; ++i) {
        const int x = 100 + i * 37 % 2200, y = 100 + i * 53 % 2800;
        items.push_back({kMouseDown, x, y});
        items.push_back({kMouseDragged, x + 30, y + 12});
        items.push_back({kMouseUp});
    }
    for (auto _ : state) {
        state.PauseTiming();
        Desk desk;
        desk.editor->undoFiles.keepFiles(false);
        desk.editor->recording.setSaved(items, desk.editor->oBrushInfo, kEraseForeground);
        state.ResumeTiming();
        EditedRows rows;
        if (replayed) {
            desk.editor->startReplay();
            while (desk.editor->OnReplayTimer(rows)) {
            }
        } else {
            for (const EditItem& item : items)
                desk.editor->apply(item, EditOrigin::live);
        }
    }
    state.SetLabel(std::to_string(items.size()) + " items");
}
BENCHMARK_CAPTURE(BM_Replay, replayed, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(BM_Replay, live, false)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Iterations(1);

}  // namespace
}  // namespace tavrin
