#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "core/image/ImageReader.h"

namespace tavrin {

/// How a file stands on the disk.
struct FileFacts {
    std::uint64_t size = 0;
    std::int64_t time = 0;  ///< of the last change, nanoseconds; 0 point as the system has it
    bool operator==(const FileFacts&) const = default;
};

/// Whether the last change lies longer back than that.
bool isOlderThan(const FileFacts& facts, std::chrono::nanoseconds age);

/// @return nothing when there is no such file, or it is a folder
std::optional<FileFacts> factsOf(const std::string& path);

/// Digest of a file's bytes (BLAKE2b, 160 bits, hexadecimal); "" when it cannot be read.
std::string digestOfFile(const std::string& path);
/// Digest of a text.
std::string digestOfText(const std::string& text);

/// A picture together with what its file was when it was read.
struct ReadFile {
    ReadPicture picture;
    FileFacts facts;
    std::string digest;
    bool missing = false;   ///< there is no such file, or none any more
    bool changing = false;  ///< it is being written
};

/// Reads a picture from a file that others may be writing, replacing or removing: what comes back belongs to one
/// state of the file. One that keeps changing is refused and has no digest.
ReadFile readSettledFile(const std::string& path);

}  // namespace tavrin
