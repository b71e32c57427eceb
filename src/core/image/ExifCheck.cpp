#include "core/image/ExifCheck.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tavrin {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kMaxDirectories = 16;
constexpr std::size_t kMaxEntries = 6000;  // more than fit into the block of a JPEG file

std::size_t number(Bytes tiff, std::size_t at, std::size_t count) {
    if (at > tiff.size() || tiff.size() - at < count) return 0;
    const bool big = tiff[0] == 'M';
    std::size_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value = value << 8 | tiff[at + (big ? i : count - 1 - i)];
    return value;
}

bool isReference(std::size_t tag) {
    constexpr std::size_t kExif = 0x8769, kGps = 0x8825, kInteroperability = 0xA005;
    return tag == kExif || tag == kGps || tag == kInteroperability;
}

bool isTiffHeader(Bytes bytes) {
    using namespace std::string_view_literals;
    const auto starts = [bytes](std::string_view mark) {
        return bytes.size() > mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
    };
    return starts("II\x2A\0"sv) || starts("MM\0\x2A"sv);
}

}  // namespace

bool exifIsBounded(Bytes tiff) {
    if (!isTiffHeader(tiff)) return true;
    constexpr std::size_t kEntryBytes = 12;
    std::vector<std::size_t> directories = {number(tiff, 4, 4)};
    std::size_t entries = 0;
    for (std::size_t next = 0; next < directories.size(); ++next) {
        const std::size_t count = number(tiff, directories[next], 2), first = directories[next] + 2;
        for (std::size_t at = first; at < first + count * kEntryBytes && at + kEntryBytes <= tiff.size();
             at += kEntryBytes) {
            if (++entries > kMaxEntries) return false;
            if (!isReference(number(tiff, at, 2))) continue;
            const std::size_t to = number(tiff, at + 8, 4);
            const bool again = std::find(directories.begin(), directories.end(), to) != directories.end();
            if (again || directories.size() == kMaxDirectories) return false;
            directories.push_back(to);
        }
    }
    return true;
}

bool exifInsideIsBounded(Bytes bytes) {
    for (std::size_t at = 0; at + 8 <= bytes.size(); ++at) {
        if ((bytes[at] == 'I' || bytes[at] == 'M') && !exifIsBounded(bytes.subspan(at))) return false;
    }
    return true;
}

}  // namespace tavrin
