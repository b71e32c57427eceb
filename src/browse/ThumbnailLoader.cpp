#include "browse/ThumbnailLoader.h"

#include <algorithm>

#include "core/BackgroundThread.h"

namespace tavrin {

ThumbnailLoader::ThumbnailLoader(Done done) : done_(std::move(done)) {
    for (const Duty duty : {Duty::seen, Duty::seen, Duty::all})
        threads_.emplace_back([this, duty](const std::stop_token& ended) { work(ended, duty); });
}

ThumbnailLoader::~ThumbnailLoader() {
    for (std::jthread& thread : threads_)
        thread.request_stop();
    threads_.clear();
}

void ThumbnailLoader::want(std::vector<std::string> paths, std::size_t seen, ThumbnailSize size) {
    std::lock_guard lock(mutex_);
    size_ = size;
    wanted_.clear();
    seen_ = 0;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (std::ranges::find(underWork_, paths[i]) != underWork_.end()) continue;
        if (i < seen) ++seen_;
        wanted_.push_back(std::move(paths[i]));
    }
    std::ranges::reverse(wanted_);
    changed_.notify_all();
}

void ThumbnailLoader::work(const std::stop_token& ended, Duty duty) {
    if (duty == Duty::all) becomeBackgroundThread();
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, ended, [&] { return duty == Duty::seen ? seen_ > 0 : !wanted_.empty(); })) {
        const std::string path = std::move(wanted_.back());
        wanted_.pop_back();
        if (seen_ > 0) --seen_;
        underWork_.push_back(path);
        const ThumbnailSize size = size_;
        lock.unlock();
        done_(path, thumbnailOf(path, size));
        lock.lock();
        std::erase(underWork_, path);
    }
}

}  // namespace tavrin
