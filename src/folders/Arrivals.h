#pragma once

#include <chrono>
#include <string>
#include <unordered_map>

#include "folders/FileFacts.h"

namespace tavrin {

/// Tells of files that arrive in a folder which are complete: a file that was closed or moved into place is, as it
/// stood then; any other is when it has not changed for a while. What cannot be read to its end although it looked
/// complete gets more time, and a fresh start whenever it changes.
class Arrivals {
  public:
    using Time = std::chrono::steady_clock::time_point;

    /// How long a file has to rest that nobody was seen closing.
    static constexpr std::chrono::milliseconds kRest{2000};
    /// How long a broken one has to rest before it counts as broken.
    static constexpr std::chrono::milliseconds kPatience{10000};

    /// A new look at the folders begins. What the look before did not come upon is forgotten: it went away, or is
    /// none of the files that are waited for.
    void beginLook();
    /// News of the system: the file was closed after writing, or moved here.
    void closed(const std::string& path);
    /// Looks at a file, which has to be done again and again.
    /// @return whether it can be taken now
    bool isComplete(const std::string& path, Time now = std::chrono::steady_clock::now());
    /// It could not be read.
    /// @return whether that is final, unless the file changes; else `isComplete` says later when to try again
    bool isBroken(const std::string& path, Time now = std::chrono::steady_clock::now());
    /// The earliest moment at which a file of the last look may become complete; `limit` when there is none before.
    Time nextMoment(Time limit) const;

  private:
    struct File {
        FileFacts facts;
        Time since{};  ///< of the last change that was seen
        bool closed = false;
        Time notBefore{};  ///< a broken one waits
        bool waiting = false;
        unsigned look = 0;  ///< the last one that came upon it
    };
    std::unordered_map<std::string, File> files_;
    unsigned look_ = 0;
};

}  // namespace tavrin
