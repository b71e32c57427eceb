#include "browse/ThumbnailLoader.h"

#include <algorithm>

#ifdef __linux__
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace tavrin {

namespace {

constexpr int kThreads = 2;

/// What starts from such a thread inherits its priority for good, so it calls nothing that starts another one.
void lowerPriorityOfThread() {
#ifdef __linux__
    constexpr int kNice = 10;
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), kNice);
#endif
}

}  // namespace

ThumbnailLoader::ThumbnailLoader(Done done) : done_(std::move(done)) {
    for (int i = 0; i < kThreads; ++i)
        threads_.emplace_back([this](const std::stop_token& ended) { work(ended); });
}

ThumbnailLoader::~ThumbnailLoader() {
    for (std::jthread& thread : threads_)
        thread.request_stop();
    threads_.clear();
}

void ThumbnailLoader::want(std::vector<std::string> paths, ThumbnailSize size) {
    std::lock_guard lock(mutex_);
    size_ = size;
    wanted_ = std::move(paths);
    std::ranges::reverse(wanted_);
    std::erase_if(
        wanted_, [this](const std::string& path) { return std::ranges::find(underWork_, path) != underWork_.end(); });
    changed_.notify_all();
}

void ThumbnailLoader::work(const std::stop_token& ended) {
    lowerPriorityOfThread();
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, ended, [this] { return !wanted_.empty(); })) {
        const std::string path = std::move(wanted_.back());
        wanted_.pop_back();
        underWork_.push_back(path);
        const ThumbnailSize size = size_;
        lock.unlock();
        done_(path, thumbnailOf(path, size));
        lock.lock();
        std::erase(underWork_, path);
    }
}

}  // namespace tavrin
