#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "browse/Thumbnail.h"

namespace tavrin {

/// Fetches small pictures on two threads of low priority, so that the picture under work comes first and a slow disk
/// is not asked for everything at once.
class ThumbnailLoader {
  public:
    /// @param done takes each small picture, on one of the loader's threads
    using Done = std::function<void(const std::string& path, Thumbnail thumbnail)>;
    explicit ThumbnailLoader(Done done);
    ~ThumbnailLoader();
    ThumbnailLoader(const ThumbnailLoader&) = delete;
    ThumbnailLoader& operator=(const ThumbnailLoader&) = delete;

    /// Wants these, the first one first, and no longer what was wanted before and is not begun.
    void want(std::vector<std::string> paths, ThumbnailSize size);

  private:
    void work(const std::stop_token& ended);

    const Done done_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<std::string> wanted_;  // the last one comes first
    std::vector<std::string> underWork_;
    ThumbnailSize size_ = ThumbnailSize::normal;
    std::vector<std::jthread> threads_;
};

}  // namespace tavrin
