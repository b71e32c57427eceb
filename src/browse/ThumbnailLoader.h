#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "browse/Thumbnail.h"

namespace tavrin {

/// Fetches small pictures on three threads, so that a slow disk is not asked for everything at once. What can be seen
/// has two of them to itself; the third one, of low priority, goes on with what lies beside it.
class ThumbnailLoader {
  public:
    /// @param done takes each small picture, on one of the loader's threads
    using Done = std::function<void(const std::string& path, Thumbnail thumbnail)>;
    explicit ThumbnailLoader(Done done);
    ~ThumbnailLoader();
    ThumbnailLoader(const ThumbnailLoader&) = delete;
    ThumbnailLoader& operator=(const ThumbnailLoader&) = delete;

    /// Wants these, the first one first, and no longer what was wanted before and is not begun.
    /// @param seen how many of them, from the first on, can be seen
    void want(std::vector<std::string> paths, std::size_t seen, ThumbnailSize size);

  private:
    enum class Duty { seen, all };
    void work(const std::stop_token& ended, Duty duty);

    const Done done_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<std::string> wanted_;  // the last one comes first
    std::size_t seen_ = 0;             // of them, at their end
    std::vector<std::string> underWork_;
    ThumbnailSize size_ = ThumbnailSize::normal;
    std::vector<std::jthread> threads_;
};

}  // namespace tavrin
