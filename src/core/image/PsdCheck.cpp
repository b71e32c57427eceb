#include "core/image/PsdCheck.h"

#include <cstddef>

namespace tavrin {

namespace {

/// Reads the big-endian numbers of the file one after the other; 0 beyond its end.
struct Cursor {
    const std::vector<std::uint8_t>& file;
    std::uint64_t at = 0;

    std::uint64_t number(std::size_t count) {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < count; ++i, ++at)
            value = value << 8 | (at < file.size() ? file[at] : 0);
        return value;
    }
    void skipSection(std::size_t lengthBytes) {
        const std::uint64_t length = number(lengthBytes);
        at = length > file.size() ? file.size() : at + length;
    }
    std::uint64_t left() const { return at < file.size() ? file.size() - at : 0; }
};

}  // namespace

bool psdIsWhole(const std::vector<std::uint8_t>& file) {
    constexpr std::uint64_t kRaw = 0, kRunLength = 1, kLargeFile = 2;
    Cursor cursor{file, 4};
    const bool large = cursor.number(2) == kLargeFile;
    cursor.at = 12;
    const std::uint64_t channels = cursor.number(2), height = cursor.number(4), width = cursor.number(4);
    const std::uint64_t bits = cursor.number(2);
    cursor.at = 26;
    cursor.skipSection(4);              // colour mode
    cursor.skipSection(4);              // resources
    cursor.skipSection(large ? 8 : 4);  // layers
    if (cursor.left() < 2) return false;
    const std::uint64_t compression = cursor.number(2);
    if (compression == kRaw) return cursor.left() >= channels * height * ((width * bits + 7) / 8);
    if (compression != kRunLength) return true;  // the length is known only when it is unpacked
    const std::uint64_t rows = channels * height, countBytes = large ? 4 : 2;
    if (cursor.left() < rows * countBytes) return false;
    std::uint64_t packed = 0;
    for (std::uint64_t row = 0; row < rows; ++row)
        packed += cursor.number(countBytes);
    return cursor.left() >= packed;
}

}  // namespace tavrin
