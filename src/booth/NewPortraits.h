#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace tavrin {

/// Watches a folder of portraits on a thread of its own: by the system's news where there are any, and by looking
/// twice a second besides, for folders of other machines. Tells when the portraits that are whole have changed.
class NewPortraits {
  public:
    /// @param changed on the watch's thread: a portrait has become whole, changed, or gone away
    NewPortraits(std::string folder, std::function<void()> changed);
    ~NewPortraits();
    NewPortraits(const NewPortraits&) = delete;
    NewPortraits& operator=(const NewPortraits&) = delete;

    /// Whether a file may be taken: it was closed or moved into place, or has rested for two seconds.
    bool isWhole(const std::string& path) const;

  private:
    struct Known;
    void watch(const std::stop_token& ended);

    const std::string folder_;
    const std::function<void()> changed_;
    std::unique_ptr<Known> known_;
    std::jthread thread_;
};

}  // namespace tavrin
