#include "ui/review/PageMaker.h"

namespace tavrin {

PageMaker::~PageMaker() {
    stop();
    worker_.clear();
    worker_.waitForDone();
}

void PageMaker::stop() {
    if (stop_) *stop_ = true;
}

// On one thread, so that an older wish has ended before the next one writes into the same files.
void PageMaker::make(std::function<void(const std::atomic<bool>& stop, const Tell& tell)> job) {
    stop();
    worker_.clear();
    worker_.setMaxThreadCount(1);
    stop_ = std::make_shared<std::atomic<bool>>(false);
    worker_.start([this, stop = stop_, job = std::move(job)] {
        job(*stop, [this, stop](std::function<void()> what) {
            const auto unlessStopped = [stop, what = std::move(what)] {
                if (!*stop) what();
            };
            QMetaObject::invokeMethod(this, unlessStopped, Qt::QueuedConnection);
        });
    });
}

}  // namespace tavrin
