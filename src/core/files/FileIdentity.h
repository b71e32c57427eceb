#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

namespace tavrin {

/// What a file is on the disk, whatever names it has.
struct FileIdentity {
    std::uint64_t device = 0, inode = 0;
    bool operator==(const FileIdentity&) const = default;
};

/// Links are followed. Nothing when the name leads to no file.
std::optional<FileIdentity> identityOf(const std::string& path);

/// A file of bytes, links followed: no folder, no device, nothing that could keep a reader waiting.
bool isPlainFile(const std::string& path);

/// Whether two names are of one file, or will be once it is there. A link that leads nowhere is a name of its own,
/// since a new file takes its place.
bool isSameFile(const std::string& one, const std::string& other);

/// Files told apart by what they are on the disk. Each is looked at once.
class KnownFiles {
  public:
    /// Keeps the first name of a file; a name that leads to none is passed over.
    void add(const std::string& path);
    /// The name under which the file at `path` was added; null when it was not, or there is none.
    const std::string* find(const std::string& path) const;
    const std::string* find(const FileIdentity& file) const;

  private:
    struct Hash {
        std::size_t operator()(const FileIdentity& file) const {
            return std::hash<std::uint64_t>()(file.inode * 0x9E3779B97F4A7C15ull ^ file.device);
        }
    };
    std::unordered_map<FileIdentity, std::string, Hash> names_;
};

}  // namespace tavrin
