#include "core/image/Location.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <span>
#include <string_view>
#include <zlib.h>

#include <QFile>
#include <QtEndian>

#include "core/files/AtomicFile.h"
#include "core/files/NameText.h"

namespace tavrin {

namespace {

using Bytes = std::span<std::uint8_t>;

std::atomic<bool> leftOut = false;

constexpr std::string_view kExifHead{"Exif\0\0", 6};
/// What every name of a coordinate begins with, in texts about a picture.
constexpr std::string_view kCoordinate = "GPSL";

/// The tables of a TIFF file, or of camera data, which have the same form. What points out of the bytes is not there.
class Tables {
  public:
    explicit Tables(Bytes bytes) : bytes_(bytes) {
        constexpr std::size_t kHeadSize = 8;
        if (bytes.size() < kHeadSize) return;
        little_ = bytes[0] == 'I';
        const bool marked = (bytes[0] == 'I' || bytes[0] == 'M') && bytes[1] == bytes[0];
        if (marked && short_(2) == 42) first_ = long_(4);
    }

    /// Empties the table of the place on earth, and what its entries hold elsewhere.
    void eraseLocation() {
        constexpr std::uint16_t kLocationTable = 0x8825;
        if (first_ == 0) return;
        for (std::size_t i = 0; i < entriesAt(first_); ++i)
            if (const std::size_t entry = entryAt(first_, i);
                short_(entry) == kLocationTable && long_(entry + 4) == 1)
                erase(long_(entry + 8));
    }

  private:
    static constexpr std::size_t kEntrySize = 12;

    std::size_t entryAt(std::size_t table, std::size_t i) const { return table + 2 + i * kEntrySize; }
    std::size_t entriesAt(std::size_t table) const {
        if (table + 2 > bytes_.size()) return 0;
        return std::min<std::size_t>(short_(table), (bytes_.size() - table - 2) / kEntrySize);
    }
    std::uint16_t short_(std::size_t at) const {
        return little_ ? qFromLittleEndian<std::uint16_t>(&bytes_[at]) : qFromBigEndian<std::uint16_t>(&bytes_[at]);
    }
    std::uint32_t long_(std::size_t at) const {
        return little_ ? qFromLittleEndian<std::uint32_t>(&bytes_[at]) : qFromBigEndian<std::uint32_t>(&bytes_[at]);
    }
    void clear(std::size_t from, std::size_t size) {
        if (from >= bytes_.size()) return;
        std::ranges::fill(bytes_.subspan(from, std::min(size, bytes_.size() - from)), std::uint8_t{0});
    }
    void erase(std::size_t table) {
        constexpr std::array<std::size_t, 13> kSizes = {0, 1, 1, 2, 4, 8, 1,
                                                        1, 2, 4, 8, 4, 8};  // of a value, by type
        const std::size_t entries = entriesAt(table);
        for (std::size_t i = 0; i < entries; ++i) {
            const std::size_t entry = entryAt(table, i), type = short_(entry + 2);
            const std::size_t size = std::size_t{long_(entry + 4)} * (type < kSizes.size() ? kSizes[type] : 0);
            if (size > 4) clear(long_(entry + 8), size);
        }
        if (entries > 0) clear(table, 2 + entries * kEntrySize);
    }

    Bytes bytes_;
    bool little_ = false;
    std::size_t first_ = 0;
};

Bytes bytesOf(QByteArray& file, qsizetype from, qsizetype size) {
    return {reinterpret_cast<std::uint8_t*>(file.data()) + from, static_cast<std::size_t>(size)};
}

bool hasCoordinates(const QByteArray& file, qsizetype from, qsizetype size) {
    return std::string_view(file.constData() + from, static_cast<std::size_t>(size)).find(kCoordinate) !=
           std::string_view::npos;
}

/// Segments up to the pixels: a mark of two bytes, and a size that counts itself.
QByteArray jpegWithoutLocation(QByteArray file) {
    constexpr std::uint8_t kCameraData = 0xE1, kPixels = 0xDA;
    const auto byteAt = [&file](qsizetype at) { return static_cast<std::uint8_t>(file[at]); };
    qsizetype at = 2;
    while (at + 4 <= file.size() && byteAt(at) == 0xFF && byteAt(at + 1) != kPixels) {
        const qsizetype size = byteAt(at + 2) * 256 + byteAt(at + 3), body = at + 4;
        if (size < 2 || at + 2 + size > file.size()) break;
        const bool isExif = byteAt(at + 1) == kCameraData && size - 2 > static_cast<qsizetype>(kExifHead.size()) &&
                            std::string_view(file.constData() + body, kExifHead.size()) == kExifHead;
        if (isExif) {
            constexpr qsizetype kHead = kExifHead.size();
            Tables(bytesOf(file, body + kHead, size - 2 - kHead)).eraseLocation();
        } else if (hasCoordinates(file, body, size - 2)) {
            file.remove(at, 2 + size);
            continue;
        }
        at += 2 + size;
    }
    return file;
}

/// Chunks: the size of the body, a name of four letters, the body, and a checksum of the last two.
QByteArray pngWithoutLocation(QByteArray file) {
    constexpr qsizetype kAround = 12;
    qsizetype at = 8;
    while (at + kAround <= file.size()) {
        const qsizetype size = qFromBigEndian<std::uint32_t>(file.constData() + at), body = at + 8;
        if (size > file.size() - at - kAround) break;
        const QByteArray name = file.mid(at + 4, 4);
        if (name == "eXIf") {
            Tables(bytesOf(file, body, size)).eraseLocation();
            const Bytes checked = bytesOf(file, at + 4, 4 + size);
            const auto sum = crc32(0, checked.data(), static_cast<uInt>(checked.size()));
            qToBigEndian(static_cast<std::uint32_t>(sum), file.data() + body + size);
        } else if (name.endsWith("Xt") && hasCoordinates(file, body, size)) {
            file.remove(at, kAround + size);
            continue;
        }
        at += kAround + size;
    }
    return file;
}

/// Files of boxes in boxes (WebP, HEIF): the camera data lies somewhere in them, and what is erased in its place
/// moves nothing.
QByteArray boxesWithoutLocation(QByteArray file) {
    constexpr int kMost = 1000;  // no file that a camera makes has more than a few
    for (const QByteArray& head : {QByteArray("II*\0", 4), QByteArray("MM\0*", 4)}) {
        qsizetype at = file.indexOf(head);
        for (int i = 0; at >= 0 && i < kMost; ++i, at = file.indexOf(head, at + 1))
            Tables(bytesOf(file, at, file.size() - at)).eraseLocation();
    }
    return file;
}

}  // namespace

void leaveLocationsOut() {
    leftOut = true;
}

bool areLocationsLeftOut() {
    return leftOut;
}

QByteArray fileWithoutLocation(QByteArray file) {
    if (file.startsWith("\xFF\xD8\xFF")) return jpegWithoutLocation(std::move(file));
    if (file.startsWith("\x89PNG\r\n")) return pngWithoutLocation(std::move(file));
    if (file.startsWith("II") || file.startsWith("MM")) Tables(bytesOf(file, 0, file.size())).eraseLocation();
    if (file.startsWith("RIFF") || file.mid(4, 4) == "ftyp") return boxesWithoutLocation(std::move(file));
    return file;
}

std::string takeLocationOut(const std::string& path) {
    QFile file(textOfName(path));
    if (!file.open(QFile::ReadOnly)) return path + ": " + file.errorString().toStdString() + ".";
    const QByteArray bytes = fileWithoutLocation(file.readAll());
    AtomicFile written(path);
    written.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return written.commit() ? "" : path + ": " + written.error() + ".";
}

}  // namespace tavrin
