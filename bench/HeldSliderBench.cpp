// A slider held and moved for ten seconds while the loop runs on its own thread: the longest time from a move to the
// preview that shows it.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>
#include <mutex>
#include <random>
#include <thread>
#include <vector>

#include "BenchJob.h"
#include "effects/Presets.h"
#include "pipeline/CombineThread.h"

namespace tavrin {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// Times the road from each request to the first preview that includes it.
class WaitingView : public Interface {
  public:
    explicit WaitingView(const SystemInfo& info) : info_(info) {}

    /// Call just before `StartUpdate`; the request's number is the next one.
    void asked(std::int32_t number) {
        std::lock_guard lock(mutex_);
        waiting_.push_back({number, Clock::now(), previewUnderWork_});
    }
    void enableControls(bool enabled, bool) override {
        if (enabled) return;
        std::lock_guard lock(mutex_);
        passBegan_ = Clock::now();
        previewUnderWork_ = true;
    }
    void repaint(const PublishedRows& rows) override {
        if (!rows.isPreview()) return;
        const auto now = Clock::now();
        ++previews;
        longestPass = std::max(longestPass, Milliseconds(now - passBegan_));
        std::lock_guard lock(mutex_);
        previewUnderWork_ = false;
        const auto isShown = [&](const Request& r) { return r.number <= info_.iCurrentThreadCount; };
        for (const Request& request : waiting_) {
            if (!isShown(request)) continue;
            longestWait = std::max(longestWait, Milliseconds(now - request.time));
            Milliseconds& behind = request.behindPreview ? longestBehindPreview : longestBehindFull;
            behind = std::max(behind, Milliseconds(passBegan_ - request.time));
        }
        std::erase_if(waiting_, isShown);
    }
    bool isServed() {
        std::lock_guard lock(mutex_);
        return waiting_.empty();
    }

    int previews = 0;
    Milliseconds longestWait{0}, longestPass{0};
    /// Until a request's own pass began, by what was under work before it.
    Milliseconds longestBehindPreview{0}, longestBehindFull{0};

  private:
    struct Request {
        std::int32_t number;
        Clock::time_point time;
        bool behindPreview;
    };

    const SystemInfo& info_;
    std::mutex mutex_;
    Clock::time_point passBegan_ = Clock::now();
    bool previewUnderWork_ = false;
    std::vector<Request> waiting_;
};

void waitUntilServed(WaitingView& view) {
    while (!view.isServed())
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

enum Slider { kKey, kKeyWithHair, kText, kScale };

void move(SystemInfo& info, int slider, int step) {
    if (slider == kText) {
        info.oFontLabelObject[0].dFontFillRed = step % 100 / 100.0;
    } else if (slider == kScale) {
        info.pForegroundBitmapInfo->fScale = 1.0 + step % 100 / 500.0;
        info.pForegroundBitmapInfo->bScaleChange = true;
    } else {
        info.pCombinedBitmapInfo->sliderWhiteAdjust = step % 100;
    }
}

struct Hand {
    std::chrono::seconds time;
    int slider;
    std::function<int(int step)> rest;  // ms after each move
};

/// Moves the slider of a job that has been set up.
void hold(benchmark::State& state, SystemInfo& info, const Hand& hand) {
    keepPixelMemory(std::size_t{1} << 28);  // as in the window
    WaitingView view(info);
    info.pInterface = &view;
    useChosenSize(info);
    CombineThread loop(info);
    loop.runUntilIdle();
    loop.StartMainThread();
    for (auto _ : state) {
        view.previews = 0;
        view.longestWait = view.longestPass = Milliseconds(0);
        view.longestBehindPreview = view.longestBehindFull = Milliseconds(0);
        int step = 0;
        const auto end = Clock::now() + hand.time;
        for (; Clock::now() < end; ++step) {
            move(info, hand.slider, step);
            view.asked(info.iNewThreadCount + 1);
            info.StartUpdate();
            std::this_thread::sleep_for(std::chrono::milliseconds(hand.rest(step)));
        }
        waitUntilServed(view);
        state.counters["moves"] = step;
        state.counters["previews"] = view.previews;
        state.counters["longestWaitMs"] = view.longestWait.count();
        state.counters["longestBehindPreviewMs"] = view.longestBehindPreview.count();
        state.counters["longestBehindFullMs"] = view.longestBehindFull.count();
        state.counters["longestPassMs"] = view.longestPass.count();
    }
    keepPixelMemory(0);
}

// The arguments are the threads and the slider; with one thread a core stays free for the hand. Moves come every 10
// ms, but now and then the hand rests long enough for the full picture to begin.
void heldSlider(benchmark::State& state) {
    const ThreadLimit limit(static_cast<int>(state.range(0)));
    const auto info = bench::newJob();
    const int slider = static_cast<int>(state.range(1));
    info->bAdvancedHairDetectionON = slider == kKeyWithHair;
    info->iMacroHairColor = 6;
    info->oFontLabelObject[0].sText = "Title";
    hold(state, *info,
         {std::chrono::seconds(10), slider, [](int step) { return step % 50 == 0 ? 30 + step % 7 * 5 : 10; }});
}

BENCHMARK(heldSlider)
    ->ArgsProduct({{1, 2}, {kKey, kKeyWithHair, kText, kScale}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// A slider of the key, with each look of each effect: moves come at any moment of the full picture.
void heldSliderWith(benchmark::State& state, const PresetGroup& group, const Preset& look) {
    const auto info = bench::newJob();
    if (std::string(group.name) == "frame-fill") info->oFrame->iFrameType = 1;
    if (!applyPreset(*info, group, look.name).empty()) return state.SkipWithError("no such look here");
    std::minstd_rand random(1);
    hold(state, *info, {std::chrono::seconds(4), kKey, [&](int) { return 8 + static_cast<int>(random() % 200); }});
}

const bool kRegistered = [] {
    for (const PresetGroup& group : presetGroups()) {
        for (const Preset& look : group.presets) {
            if (std::string(look.name) == "none") continue;
            const std::string name = std::string("heldSliderWith/") + group.name + "/" + look.name;
            benchmark::RegisterBenchmark(name.c_str(), heldSliderWith, std::cref(group), std::cref(look))
                ->Iterations(1)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        }
    }
    return true;
}();

}  // namespace
}  // namespace tavrin
