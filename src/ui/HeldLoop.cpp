#include "ui/HeldLoop.h"

namespace tavrin {

void HeldLoop::run(std::function<void()> work) {
    waiting_.push_back(std::move(work));
    loop_.edit([this]() -> std::vector<ChangedRows> {
        hold();
        return {};
    });
}

/// On the loop's thread.
void HeldLoop::hold() {
    std::unique_lock lock(mutex_);
    if (letGo_) return;
    const int before = done_;
    QMetaObject::invokeMethod(this, &HeldLoop::serve, Qt::QueuedConnection);
    served_.wait(lock, [&] { return letGo_ || done_ != before; });
}

/// The lock is held all the while, so that the work is over before the loop goes on even when it is let go.
void HeldLoop::serve() {
    const std::lock_guard lock(mutex_);
    if (letGo_ || waiting_.empty()) return;
    const std::function<void()> work = std::move(waiting_.front());
    waiting_.pop_front();
    work();
    ++done_;
    served_.notify_all();
}

void HeldLoop::letGo() {
    {
        const std::lock_guard lock(mutex_);
        letGo_ = true;
    }
    served_.notify_all();
}

void HeldLoop::finish() {
    while (!waiting_.empty()) {
        const std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        work();
    }
}

}  // namespace tavrin
