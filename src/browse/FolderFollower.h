#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tavrin {

/// The pictures that lie in a folder.
struct FolderPictures {
    std::string folder;
    std::vector<std::string> paths;  ///< in the order of people; hidden files are left out
    std::string problem;             ///< one plain line when the folder could not be read to its end
};

/// Lists the pictures of a folder on a thread of its own, and again whenever something changes in it, so that nobody
/// waits for a large folder or a slow share.
class FolderFollower {
  public:
    /// @param told takes every list, on the follower's thread
    using Told = std::function<void(FolderPictures pictures)>;
    explicit FolderFollower(Told told);
    ~FolderFollower();
    FolderFollower(const FolderFollower&) = delete;
    FolderFollower& operator=(const FolderFollower&) = delete;

    /// Follows this folder from now on, and no other; "" for none. What was being listed is not read to its end.
    void follow(const std::string& folder);

  private:
    void work(const std::stop_token& ended);

    const Told told_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::string folder_;
    bool isNew_ = false;
    std::atomic<bool> isUnwanted_ = false;  ///< what is being listed
    std::jthread thread_;
};

}  // namespace tavrin
