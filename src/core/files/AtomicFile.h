#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "core/Interruption.h"

namespace tavrin {

/// The `error` when there is no room: the one that may go away by itself.
inline constexpr const char* kDiskFull = "the disk is full";

/// The `error` of a file that nobody wants any longer.
inline constexpr const char* kWritingStopped = "it was stopped";

/// Why something could not be written, for an error number of the system, as a few plain words.
/// @param folder the folder that it was to be written into
std::string writeProblem(int code, const std::string& folder);

/// A file that appears under its name only when it is complete. It is written under a hidden name of its own in the
/// same folder, brought to the disk, and moved over the target by `commit`; without that the hidden file goes away
/// with the object, or with the program when a signal ends it. Neither a full disk nor a kill leaves half a file
/// under the name or harms the old one. Every operation after a failed one does nothing.
class AtomicFile {
  public:
    /// Creates the hidden file beside `target` (beside the file it leads to, where it is a link). A target that is
    /// there and may not be written to is refused.
    explicit AtomicFile(const std::string& target);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    /// From when this is set on every write, and the `commit`, fails.
    /// @param stop lives as long as the file
    void stopWhen(const std::atomic<bool>* stop) { stop_ = stop; }

    bool write(const void* bytes, std::size_t size);
    /// Bytes read, fewer at the end of the file; -1 on failure.
    std::ptrdiff_t read(void* bytes, std::size_t size);
    /// As the system's lseek; -1 on failure.
    long long seek(long long offset, int origin);
    long long size();

    /// Flushes to the disk and moves the file over the target.
    bool commit();
    /// As `commit` without the flush, for what is made anew anyway: a power cut may leave an empty file.
    bool commitUnflushed();

    /// What went wrong first, as one plain line; empty while all is well.
    const std::string& error() const { return error_; }

    /// Removes hidden files that killed programs left in a folder. Those of this machine go at once; of those made on
    /// another one, or before this one was started, nobody may hold the lock, and the age must have been reached.
    static void removeAbandonedParts(const std::string& folder);
    static constexpr std::chrono::hours kPartAge{1};  ///< since the last byte

  private:
    bool create(const std::filesystem::path& folder);
    bool fail(int code);
    bool isStopped();
    void close();

    std::string target_, folder_, hidden_, error_;
    int file_ = -1;
    const std::atomic<bool>* stop_ = nullptr;
    std::optional<Leftover> leftover_;
};

}  // namespace tavrin
