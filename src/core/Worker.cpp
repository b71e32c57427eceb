#include "core/Worker.h"

#include <utility>

namespace tavrin {

Worker::Worker(std::function<Next()> step, std::chrono::milliseconds pause, std::function<void()> ended)
    : step_(std::move(step)), pause_(pause), ended_(std::move(ended)) {}

Worker::~Worker() {
    stop();
    join();
}

bool Worker::start() {
    if (running_) return false;
    join();
    stopping_ = false;
    running_ = true;
    giveSign();
    thread_ = std::thread([this] { work(); });
    return true;
}

void Worker::stop() {
    stopping_ = true;
    wake();
}

void Worker::join() {
    if (thread_.joinable()) thread_.join();
}

void Worker::wake() {
    {
        std::lock_guard lock(mutex_);
        woken_ = true;
    }
    news_.notify_one();
}

void Worker::work() {
    while (!stopping_) {
        giveSign();
        const Next next = step_();
        giveSign();
        if (next == Next::pause) pauseNow();
    }
    running_ = false;
    if (ended_) ended_();
}

void Worker::pauseNow() {
    std::unique_lock lock(mutex_);
    news_.wait_for(lock, pause_, [this] { return woken_ || stopping_; });
    woken_ = false;
}

}  // namespace tavrin
