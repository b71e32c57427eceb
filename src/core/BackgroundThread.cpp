#include "core/BackgroundThread.h"

#ifdef __linux__
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace tavrin {

namespace {

thread_local bool isInBackground = false;

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

}  // namespace tavrin
