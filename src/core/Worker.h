#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace tavrin {

/// One thread that polls: it takes one step after the other, with a pause whenever a step finds nothing more to do.
/// `start`, `stop` and the destructor belong to one thread; everything else may be called from any.
class Worker {
  public:
    enum class Next {
        atOnce,  ///< there is more to do
        pause    ///< look again after the pause, or when somebody wakes the worker
    };
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kPause{500};

    /// @param step one step, on the worker's thread; it throws nothing
    /// @param ended is called on that thread as the last thing, each time it ends; may be empty
    explicit Worker(std::function<Next()> step, std::chrono::milliseconds pause = kPause,
                    std::function<void()> ended = {});
    /// Stops, and waits until the step in hand is done.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// Starts the thread.
    /// @return false when it still runs
    bool start();
    /// The step in hand is the last one. Returns at once.
    void stop();
    /// Waits until the thread has ended.
    void join();
    /// Cuts a pause short; one that comes during a step counts for the pause after it.
    void wake();

    /// From `start` until the last step is done.
    bool isRunning() const { return running_; }
    /// For steps of several parts, which end early then.
    bool isStopping() const { return stopping_; }
    /// What a long step says now and then; every step begins and ends with it.
    void giveSign() { sign_ = Clock::now().time_since_epoch().count(); }
    /// When the worker gave its last sign of life.
    Clock::time_point lastSign() const { return Clock::time_point(Clock::duration(sign_.load())); }

  private:
    void work();
    void pauseNow();

    const std::function<Next()> step_;
    const std::chrono::milliseconds pause_;
    const std::function<void()> ended_;
    std::atomic<bool> running_ = false, stopping_ = false;
    std::atomic<Clock::rep> sign_ = 0;
    std::mutex mutex_;
    std::condition_variable news_;
    bool woken_ = false;
    std::thread thread_;
};

}  // namespace tavrin
