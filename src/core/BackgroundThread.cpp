#include "core/BackgroundThread.h"

#ifdef __linux__
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace tavrin {

namespace {

thread_local bool isInBackground = false;
thread_local const std::function<bool()>* asked = nullptr;

}  // namespace

void becomeBackgroundThread() {
    isInBackground = true;
#ifdef __linux__
    constexpr int kNice = 10;
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), kNice);
#endif
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
