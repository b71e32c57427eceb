#include "core/image/FileKind.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Bytes read ahead; the first directory of a raw file lies within them.
constexpr std::size_t kHeadBytes = 65536;

bool has(const Bytes& head, std::size_t offset, std::string_view text) {
    return head.size() >= offset + text.size() && std::memcmp(head.data() + offset, text.data(), text.size()) == 0;
}

// An unsigned number of `count` bytes; 0 where the file ends before it.
std::uint32_t number(const Bytes& head, std::size_t offset, std::size_t count, bool bigEndian) {
    if (offset + count > head.size()) return 0;
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value = value << 8 | head[offset + (bigEndian ? i : count - 1 - i)];
    return value;
}

bool hasRawExtension(const std::string& path) {
    std::string extension = fs::path(path).extension().string();
    for (char& c : extension)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    const std::vector<std::string>& raw = rawExtensions();
    return !extension.empty() && std::find(raw.begin(), raw.end(), extension.substr(1)) != raw.end();
}

// A digital negative says so in its first directory (tag DNGVersion).
bool hasDngVersion(const Bytes& head) {
    constexpr std::uint32_t kDngVersion = 0xC612;
    const bool big = head[0] == 'M';
    const std::size_t directory = number(head, 4, 4, big);
    const std::uint32_t entries = number(head, directory, 2, big);
    for (std::size_t i = 0; i < entries; ++i) {
        const std::size_t entry = directory + 2 + i * 12;
        if (entry + 12 > head.size()) break;
        if (number(head, entry, 2, big) == kDngVersion) return true;
    }
    return false;
}

FileKind tiffOrRaw(const Bytes& head, const std::string& path) {
    return has(head, 8, "CR") || hasRawExtension(path) || hasDngVersion(head) ? FileKind::raw : FileKind::tiff;
}

bool isHeif(const Bytes& head) {
    static constexpr std::array<std::string_view, 8> brands = {"heic", "heix", "heim", "heis",
                                                               "mif1", "msf1", "avif", "hevc"};
    return has(head, 4, "ftyp") && std::any_of(brands.begin(), brands.end(), [&](auto b) { return has(head, 8, b); });
}

FileKind kindOf(const Bytes& head, const std::string& path) {
    using namespace std::string_view_literals;
    if (has(head, 0, "\xFF\xD8\xFF"sv)) return FileKind::jpeg;
    if (has(head, 0, "\x89PNG\r\n\x1A\n"sv)) return FileKind::png;
    if (has(head, 0, "GIF87a"sv) || has(head, 0, "GIF89a"sv)) return FileKind::gif;
    if (has(head, 0, "RIFF"sv) && has(head, 8, "WEBP"sv)) return FileKind::webp;
    if (has(head, 0, "8BPS"sv)) return FileKind::psd;
    if (has(head, 0, "BM"sv) && head.size() >= 26) return FileKind::bmp;
    if (isHeif(head)) return FileKind::heif;
    if (has(head, 0, "II\x2A\0"sv) || has(head, 0, "MM\0\x2A"sv)) return tiffOrRaw(head, path);
    if (has(head, 0, "II\x2B\0"sv) || has(head, 0, "MM\0\x2B"sv)) return FileKind::tiff;  // with 64-bit offsets
    for (const auto raw : {"FUJIFILMCCD-RAW"sv, "IIRO"sv, "IIRS"sv, "MMOR"sv, "IIU\0"sv, "FOVb"sv, "\0MRM"sv})
        if (has(head, 0, raw)) return FileKind::raw;
    if (has(head, 4, "ftypcrx "sv)) return FileKind::raw;
    return FileKind::unknown;
}

void readPsdSize(const Bytes& head, FileProbe& probe) {
    const std::uint32_t version = number(head, 4, 2, true);
    const std::uint32_t height = number(head, 14, 4, true), width = number(head, 18, 4, true);
    if ((version != 1 && version != 2) || head.size() < 26 || width > 300000 || height > 300000) return;
    probe.width = static_cast<int>(width);
    probe.height = static_cast<int>(height);
}

void readBmpSize(const Bytes& head, FileProbe& probe) {
    const std::uint32_t headerSize = number(head, 14, 4, false);
    if (headerSize != 12 && (headerSize < 40 || headerSize > 256)) return;
    const bool old = headerSize == 12;
    const double width = static_cast<std::int32_t>(number(head, 18, old ? 2 : 4, false));
    const double height = static_cast<std::int32_t>(number(head, old ? 20 : 22, old ? 2 : 4, false));
    if (width > 1e6 || std::abs(height) > 1e6) return;
    probe.width = static_cast<int>(width);
    probe.height = static_cast<int>(std::abs(height));  // a negative height counts rows from the top
}

std::string statusError(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) return "there is no such file";
    if (error) return error.message();
    if (fs::is_directory(status)) return "it is a folder, not a file";
    if (!fs::is_regular_file(status)) return "it is not a plain file";
    if (fs::file_size(path, error) == 0 && !error) return "the file is empty";
    return {};
}

}  // namespace

const std::vector<std::string>& rawExtensions() {
    static const std::vector<std::string> known = {"3FR", "ARW", "CR2", "CR3", "DCR", "DNG", "ERF", "FFF",
                                                   "IIQ", "K25", "KDC", "MEF", "MOS", "NEF", "NRW", "ORF",
                                                   "PEF", "RAF", "RAW", "RW2", "RWL", "SR2", "SRF", "SRW"};
    return known;
}

FileProbe probeFile(const std::string& path) {
    FileProbe probe;
    probe.error = statusError(path);
    if (!probe.error.empty()) return probe;
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        probe.error = errno == EACCES ? "no permission to read it" : "it cannot be opened";
        return probe;
    }
    Bytes head(kHeadBytes);
    file.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    probe.kind = kindOf(head, path);
    if (probe.kind == FileKind::unknown) probe.error = "it is not a picture of a known kind";
    if (probe.kind == FileKind::psd || probe.kind == FileKind::bmp) {
        probe.kind == FileKind::psd ? readPsdSize(head, probe) : readBmpSize(head, probe);
        probe.error = sizeError(probe.width, probe.height);
    }
    return probe;
}

std::string sizeError(double width, double height) {
    if (width < 1 || height < 1) return "its header makes no sense";
    if (width * height <= kMaxPicturePixels) return {};
    return "it is too large: " + std::to_string(static_cast<long long>(width)) + " x " +
           std::to_string(static_cast<long long>(height)) + " pixels, at most " +
           std::to_string(static_cast<int>(kMaxPicturePixels / 1e6)) + " megapixels are read";
}

const char* kindName(FileKind kind) {
    static constexpr const char* names[] = {"unknown", "JPEG", "PNG", "TIFF", "GIF",
                                            "WebP",    "HEIF", "BMP", "PSD",  "camera raw"};
    return names[static_cast<int>(kind)];
}

}  // namespace tavrin
