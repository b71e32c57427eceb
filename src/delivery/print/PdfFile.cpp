#include "delivery/print/PdfFile.h"

#include <cstdio>
#include <zlib.h>

#include "core/raster/Rows.h"

namespace tavrin {

namespace {

/// As for PNG files: fast deflate over the difference to the row above.
constexpr int kLevel = 1;
constexpr char kUp = 2;

/// Rows without alpha, each the difference to the one above it.
std::string filtered(const QImage& picture, int first, int last) {
    const int width = picture.width();
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(last - first) * (3 * static_cast<std::size_t>(width) + 1));
    const std::vector<std::uint8_t> nothing(static_cast<std::size_t>(picture.bytesPerLine()));
    for (int y = first; y < last; ++y) {
        const std::uint8_t* row = picture.constScanLine(y);
        const std::uint8_t* above = y > 0 ? picture.constScanLine(y - 1) : nothing.data();
        bytes += kUp;
        for (int x = 0; x < 4 * width; x += 4) {
            for (int c = x; c < x + 3; ++c)
                bytes += static_cast<char>(row[c] - above[c]);
        }
    }
    return bytes;
}

struct Piece {
    std::string packed;
    uLong sum = 0;
    std::size_t length = 0;
};

/// Part of a stream of deflate that others go before and behind.
Piece packedPiece(const std::string& bytes, bool isLast) {
    Piece piece;
    piece.length = bytes.size();
    piece.sum = adler32_z(adler32_z(0, nullptr, 0), reinterpret_cast<const Bytef*>(bytes.data()), bytes.size());
    z_stream stream{};
    constexpr int kWindow = -15, kMemory = 9;  // without head and sum, which the whole stream has
    if (deflateInit2(&stream, kLevel, Z_DEFLATED, kWindow, kMemory, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    constexpr std::size_t kMarks = 64;  // the mark between two pieces
    piece.packed.resize(deflateBound(&stream, static_cast<uLong>(bytes.size())) + kMarks);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(piece.packed.data());
    stream.avail_out = static_cast<uInt>(piece.packed.size());
    deflate(&stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
    piece.packed.resize(stream.total_out);
    deflateEnd(&stream);
    return piece;
}

/// Pieces of a size that does not depend on the machine, so that the file is the same everywhere.
std::string packed(const QImage& picture) {
    constexpr int kRows = 128;
    const int count = (picture.height() + kRows - 1) / kRows;
    std::vector<Piece> pieces(static_cast<std::size_t>(count));
    runRows({}, count, 1, [&](int i) {
        const int last = std::min((i + 1) * kRows, picture.height());
        pieces[static_cast<std::size_t>(i)] = packedPiece(filtered(picture, i * kRows, last), i + 1 == count);
    });
    std::string stream = "\x78\x01";
    uLong sum = adler32_z(0, nullptr, 0);
    for (Piece& piece : pieces) {
        stream += piece.packed;
        piece.packed = std::string();
        sum = adler32_combine(sum, piece.sum, static_cast<z_off_t>(piece.length));
    }
    for (int shift = 24; shift >= 0; shift -= 8)
        stream += static_cast<char>(sum >> shift & 255U);
    return stream;
}

std::string pictureDictionary(QSize size) {
    return "/Type /XObject /Subtype /Image /Width " + std::to_string(size.width()) + " /Height " +
           std::to_string(size.height()) + " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Interpolate true ";
}

}  // namespace

PdfFile::PdfFile(const std::string& path) : file_(path) {
    write("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
}

void PdfFile::write(const std::string& bytes) {
    file_.write(bytes.data(), bytes.size());
    length_ += bytes.size();
}

int PdfFile::reserve() {
    offsets_.push_back(0);
    return static_cast<int>(offsets_.size());
}

void PdfFile::put(int number, const std::string& body) {
    offsets_[static_cast<std::size_t>(number) - 1] = length_;
    write(std::to_string(number) + " 0 obj\n" + body + "\nendobj\n");
}

int PdfFile::add(const std::string& body) {
    const int number = reserve();
    put(number, body);
    return number;
}

int PdfFile::addStream(const std::string& dictionary, const std::string& bytes) {
    const int number = reserve();
    offsets_.back() = length_;
    write(std::to_string(number) + " 0 obj\n<< " + dictionary + "/Length " + std::to_string(bytes.size()) +
          " >>\nstream\n");
    write(bytes);
    write("\nendstream\nendobj\n");
    return number;
}

int PdfFile::addPicture(const QImage& picture) {
    return addStream(pictureDictionary(picture.size()) +
                         "/Filter /FlateDecode /DecodeParms << /Predictor 15 /Colors 3 /Columns " +
                         std::to_string(picture.width()) + " >> ",
                     packed(picture));
}

int PdfFile::addJpeg(const std::string& jpeg, QSize size) {
    return addStream(pictureDictionary(size) + "/Filter /DCTDecode ", jpeg);
}

std::string PdfFile::commit(int catalog) {
    const std::uint64_t start = length_;
    std::string table = "xref\n0 " + std::to_string(offsets_.size() + 1) + "\n0000000000 65535 f \n";
    for (const std::uint64_t offset : offsets_) {
        char line[32];
        std::snprintf(line, sizeof line, "%010llu 00000 n \n", static_cast<unsigned long long>(offset));
        table += line;
    }
    write(table + "trailer\n<< /Size " + std::to_string(offsets_.size() + 1) + " /Root " + std::to_string(catalog) +
          " 0 R >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n");
    return file_.commit() ? std::string() : file_.error();
}

}  // namespace tavrin
