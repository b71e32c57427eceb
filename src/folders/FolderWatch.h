#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace tavrin {

/// What happened in watched folders.
struct FolderNews {
    std::vector<std::string> closed;  ///< paths that were closed after writing, or moved to where they are
    bool lost = false;                ///< some news did not get through: look for yourself
};

/// Tells when files arrive in folders, as far as the system can. It may miss what happens on another machine, so
/// whoever uses it also looks for himself now and then.
class FolderWatch {
  public:
    virtual ~FolderWatch() = default;

    /// Watches these folders from now on, and no others. Missing ones are passed over.
    virtual void watch(const std::vector<std::string>& folders) = 0;
    /// Waits for news, at most so long.
    virtual FolderNews wait(std::chrono::milliseconds limit) = 0;
};

/// The best that this system has.
std::unique_ptr<FolderWatch> makeFolderWatch();
/// Never has any news: for whoever only looks for himself.
std::unique_ptr<FolderWatch> makePollingWatch();

}  // namespace tavrin
