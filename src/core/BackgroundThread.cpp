#include "core/BackgroundThread.h"

#include <atomic>

#ifdef __linux__
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace tavrin {

namespace {

constexpr int kBackground = 10, kBehindMainThread = 5;

thread_local bool isInBackground = false;
thread_local bool isNoted = false;
thread_local const std::function<bool()>* asked = nullptr;
std::atomic<bool> mainThreadFirst = false;

void lowerPriority([[maybe_unused]] int nice) {
#ifdef __linux__
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), nice);
#endif
}

}  // namespace

void becomeBackgroundThread() {
    isInBackground = true;
    lowerPriority(kBackground);
}

void putMainThreadFirst() {
    isNoted = true;
    mainThreadFirst = true;
}

void noteRowWork() {
    if (isNoted || !mainThreadFirst.load(std::memory_order_relaxed)) return;
    isNoted = true;
    if (!isInBackground) lowerPriority(kBehindMainThread);
}

bool isBackgroundThread() {
    return isInBackground;
}

GivingWay::GivingWay(const std::function<bool()>& goesOn) : before_(asked) {
    asked = isInBackground && goesOn ? &goesOn : nullptr;
}

GivingWay::~GivingWay() {
    asked = before_;
}

void GivingWay::ask() {
    if (asked && !(*asked)()) throw GivenUp();
}

}  // namespace tavrin
