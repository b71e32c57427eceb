#pragma once

#include <condition_variable>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "core/image/ImageReader.h"
#include "folders/FileFacts.h"

namespace tavrin {

/// Decodes on a thread of its own the pictures that are probably wanted next, so that the one who asks has them at
/// once, and remembers what was asked for: that shares its pixels with the layer that shows it, so it costs nothing
/// as long as it is shown. A picture is handed out only when its file stands as it did when it was read.
class ReadAhead {
  public:
    ReadAhead();
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// Wants these at hand, the first one first, and forgets every other one.
    void want(std::vector<std::string> paths);
    /// As `readPicture`, and at once where the file has been decoded; waits for one that is under work. Where memory
    /// is short, everything that was read ahead is dropped for it. Safe on any thread.
    ReadPicture read(const std::string& path);
    /// Whether a file is decoded and waits to be asked for.
    bool has(const std::string& path);

    /// Most bytes of pixels that are held; what is beyond is not read ahead.
    static constexpr std::size_t kMostBytes = std::size_t{400} << 20;

  private:
    struct Ready {
        std::string path;
        FileFacts facts;
        ReadPicture picture;
    };

    void work(const std::stop_token& ended);
    std::string nextWanted();
    void keep(Ready ready);
    std::optional<ReadPicture> take(const std::string& path, const std::optional<FileFacts>& facts);
    std::list<Ready>::iterator find(const std::string& path);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<std::string> wanted_;
    std::list<Ready> ready_;
    std::string underWork_;
    std::jthread thread_;
};

}  // namespace tavrin
