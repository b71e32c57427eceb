#include "core/image/MetadataCheck.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string_view>
#include <vector>

#include "core/image/ExifCheck.h"
#include "core/image/JpegReader.h"

namespace tavrin {

namespace {

constexpr const char* kCut = "it is damaged or cut short";
constexpr const char* kTooMuch = "it holds more data beside the picture than is read, at most 64 MB";
constexpr const char* kCamera = "its camera data are damaged";
constexpr std::uint64_t kMostBeside = std::uint64_t{64} << 20;

using Bytes = std::vector<std::uint8_t>;

/// A file that is read block by block, and what is left of it.
class BlockFile {
  public:
    explicit BlockFile(const std::string& path) : file_(path, std::ios::binary) {
        std::error_code error;
        size_ = std::filesystem::file_size(path, error);
        if (error) size_ = 0;
    }

    std::uint64_t left() const { return at_ < size_ ? size_ - at_ : 0; }
    void skip(std::uint64_t count) { at_ += std::min(count, left()); }
    /// The next bytes, fewer at the end of the file.
    Bytes read(std::uint64_t count) {
        Bytes bytes(static_cast<std::size_t>(std::min(count, left())));
        file_.seekg(static_cast<std::streamoff>(at_));
        file_.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        at_ += bytes.size();
        return bytes;
    }

  private:
    std::ifstream file_;
    std::uint64_t size_ = 0, at_ = 0;
};

bool startsWith(std::span<const std::uint8_t> bytes, std::string_view text) {
    return bytes.size() >= text.size() && std::equal(text.begin(), text.end(), bytes.begin());
}

// A block with or without the mark that a JPEG file puts before it.
bool isBoundedBlock(std::span<const std::uint8_t> block) {
    using namespace std::string_view_literals;
    constexpr auto kMark = "Exif\0\0"sv;
    return exifIsBounded(startsWith(block, kMark) ? block.subspan(kMark.size()) : block);
}

std::string checkJpeg(const std::string& path) {
    const std::vector<Bytes> blocks = jpegCameraBlocks(path);
    return std::all_of(blocks.begin(), blocks.end(), isBoundedBlock) ? "" : kCamera;
}

std::uint64_t numberOf(std::span<const std::uint8_t, 4> bytes, bool bigEndian) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | bytes[bigEndian ? i : 3 - i];
    return value;
}

// Blocks of a length, a kind, the data and a checksum. Those behind the pixels are not read by the decoder.
std::string checkPng(BlockFile file) {
    constexpr std::uint64_t kSignature = 8, kChecksum = 4;
    std::uint64_t beside = 0;
    for (file.skip(kSignature); file.left() >= 8;) {
        const Bytes head = file.read(8);
        const auto kind = std::span(head).subspan(4);
        const std::uint64_t length = numberOf(std::span(head).first<4>(), true);
        if (startsWith(kind, "IDAT")) break;
        if (length > file.left()) return kCut;
        beside += length;
        if (beside > kMostBeside) return kTooMuch;
        if (!startsWith(kind, "eXIf")) {
            file.skip(length);
        } else if (!isBoundedBlock(file.read(length))) {
            return kCamera;
        }
        file.skip(kChecksum);
    }
    return "";
}

// Blocks of a kind, a length and the data, padded to an even length.
std::string checkWebp(BlockFile file) {
    for (file.skip(12); file.left() >= 8;) {
        const Bytes head = file.read(8);
        const std::uint64_t length = numberOf(std::span(head).last<4>(), false);
        if (!startsWith(head, "EXIF")) {
            file.skip(length + length % 2);
        } else if (!isBoundedBlock(file.read(std::min(length, kMostBeside)))) {
            return kCamera;
        } else {
            file.skip(length % 2);
        }
    }
    return "";
}

// The camera data may lie anywhere in these files.
std::string checkAll(BlockFile file) {
    constexpr std::size_t kPiece = std::size_t{8} << 20, kLongestBlock = std::size_t{1} << 20;
    Bytes piece;
    while (file.left() > 0) {
        if (piece.size() > kLongestBlock) piece.erase(piece.begin(), piece.end() - kLongestBlock);
        const Bytes more = file.read(kPiece);
        piece.insert(piece.end(), more.begin(), more.end());
        if (!exifInsideIsBounded(piece)) return kCamera;
    }
    return "";
}

}  // namespace

std::string metadataProblem(const std::string& path, FileKind kind) {
    switch (kind) {
        case FileKind::jpeg:
            return checkJpeg(path);
        case FileKind::png:
            return checkPng(BlockFile(path));
        case FileKind::webp:
            return checkWebp(BlockFile(path));
        case FileKind::heif:
            return checkAll(BlockFile(path));
        default:
            return "";
    }
}

}  // namespace tavrin
