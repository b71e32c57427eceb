#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/Interruption.h"

class QTemporaryDir;

namespace tavrin {

/// A new folder of this process, for its owner only. It goes with all that is in it when the object does, or the
/// program is ended by a signal; after a kill the next program that looks removes it.
class PrivateFolder {
  public:
    /// Makes it in `place`.
    explicit PrivateFolder(const std::string& place);
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    /// "" when none could be made.
    std::string path() const;

    /// Removes those of processes that are gone. What another machine made, or this one before it was started anew,
    /// is left to whoever tends the place.
    static void removeAbandoned(const std::string& place);

  private:
    std::unique_ptr<QTemporaryDir> folder_;
    std::optional<Leftover> leftover_;
    int handle_ = -1;
};

}  // namespace tavrin
