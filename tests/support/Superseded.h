#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

#include "core/state/SystemInfo.h"

namespace tavrin::test {

/// Raises the counter at about a third of the stage's whole time and measures how long the stage still runs. A loaded
/// machine may delay one attempt, so the best of several counts.
inline void expectStopsEarly(SystemInfo& info, const std::function<void()>& stage) {
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::duration<double, std::milli>;
    const auto timed = [&] {
        const auto start = Clock::now();
        stage();
        return Milliseconds(Clock::now() - start).count();
    };
    info.iNewThreadCount = info.iCurrentThreadCount.load();
    timed();
    const double whole = timed();
    double left = whole;
    for (int attempt = 0; attempt < 8 && left > whole / 4; ++attempt) {
        info.iNewThreadCount = info.iCurrentThreadCount.load();
        Clock::time_point raised;
        std::thread other([&] {
            std::this_thread::sleep_for(Milliseconds(whole / 3));
            raised = Clock::now();
            info.StartUpdate();
        });
        stage();
        const auto returned = Clock::now();
        other.join();
        if (returned > raised) left = std::min(left, Milliseconds(returned - raised).count());
    }
    EXPECT_LT(left, whole / 4) << "of " << whole << " ms";
}

}  // namespace tavrin::test
