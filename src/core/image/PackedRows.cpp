#include "core/image/PackedRows.h"

#include <algorithm>
#include <new>
#include <vector>
#include <zlib.h>

#include "core/raster/Rows.h"

namespace tavrin {

namespace {

/// Fast deflate over the difference to the row above: higher levels and a filter picked for each row take several
/// times as long for a few percent of size.
constexpr int kLevel = 1;
constexpr char kUp = 2;
constexpr int kRows = 128;     // of a part; the file is the same everywhere
constexpr int kTogether = 16;  // parts that are held in memory at a time

std::string filtered(const RowsToPack& rows, int first, int last) {
    const auto channels = static_cast<std::size_t>(rows.channels), width = static_cast<std::size_t>(rows.width);
    std::string bytes(static_cast<std::size_t>(last - first) * (channels * width + 1), kUp);
    const std::vector<std::uint8_t> nothing(4 * width);
    char* out = bytes.data();
    for (int y = first; y < last; ++y) {
        const std::uint8_t* row = rows.pixels + rows.stride * static_cast<std::size_t>(y);
        const std::uint8_t* above = y > 0 ? row - rows.stride : nothing.data();
        ++out;  // the mark stands there
        for (std::size_t x = 0; x < 4 * width; x += 4) {
            for (std::size_t c = x; c < x + channels; ++c)
                *out++ = static_cast<char>(row[c] - above[c]);
        }
    }
    return bytes;
}

struct Part {
    std::string packed;
    uLong sum = 0;
    std::size_t length = 0;
};

/// Of a stream of deflate that others go before and behind.
Part packedPart(const std::string& bytes, bool isLast) {
    Part part;
    part.length = bytes.size();
    part.sum = adler32_z(adler32_z(0, nullptr, 0), reinterpret_cast<const Bytef*>(bytes.data()), bytes.size());
    z_stream stream{};
    constexpr int kWindow = -15, kMemory = 9;  // without head and sum, which the whole stream has
    if (deflateInit2(&stream, kLevel, Z_DEFLATED, kWindow, kMemory, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    constexpr std::size_t kMarks = 64;  // the mark between two parts
    part.packed.resize(deflateBound(&stream, static_cast<uLong>(bytes.size())) + kMarks);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(part.packed.data());
    stream.avail_out = static_cast<uInt>(part.packed.size());
    deflate(&stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
    part.packed.resize(stream.total_out);
    deflateEnd(&stream);
    return part;
}

std::string bytesOf(uLong sum) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(sum >> shift & 255U);
    return bytes;
}

}  // namespace

bool packRows(const RowsToPack& rows, const std::function<bool(const std::string& bytes)>& take) {
    const int count = (rows.height + kRows - 1) / kRows;
    uLong sum = adler32_z(0, nullptr, 0);
    std::string stream = "\x78\x01";
    for (int begin = 0; begin < count; begin += kTogether) {
        const int end = std::min(begin + kTogether, count);
        std::vector<Part> parts(static_cast<std::size_t>(end - begin));
        runRows({}, end - begin, 1, [&](int i) {
            const int first = (begin + i) * kRows, last = std::min(first + kRows, rows.height);
            parts[static_cast<std::size_t>(i)] = packedPart(filtered(rows, first, last), begin + i + 1 == count);
        });
        for (const Part& part : parts) {
            stream += part.packed;
            sum = adler32_combine(sum, part.sum, static_cast<z_off_t>(part.length));
        }
        if (end == count) stream += bytesOf(sum);
        if (!take(stream)) return false;
        stream.clear();
    }
    return true;
}

}  // namespace tavrin
