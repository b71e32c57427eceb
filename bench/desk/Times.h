#pragma once

#include <chrono>
#include <ctime>

namespace tavrin::bench {

using Clock = std::chrono::steady_clock;

/// Milliseconds on the wall.
inline double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// What this thread alone used, in ms: with every core busy the clock on the wall tells of the others' work.
inline double threadMs() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

}  // namespace tavrin::bench
