#include "core/image/JpegWriter.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "core/Log.h"
#include "core/image/JpegErrors.h"
#include "core/raster/Pixels.h"
#include "core/raster/Rows.h"

namespace tavrin {

namespace {

constexpr int kBlock = 8;  // rows and columns of a block, the smallest piece that is coded

/// Rows of blocks in a strip: some, but not more blocks than may stand between two markers.
int blockRows(int width) {
    constexpr int kMost = 16, kMostBlocks = 65535;
    return std::min(kMost, kMostBlocks / ((width + kBlock - 1) / kBlock));
}

/// One run of the encoder, into memory of its own. Where that is not enough the library puts more in its place.
class Encoder {
  public:
    explicit Encoder(std::size_t room)
        : own_(std::make_unique_for_overwrite<std::uint8_t[]>(room)), bytes_(own_.get()), size_(room) {
        codec.err = &errors.manager;
    }
    ~Encoder() {
        jpeg_destroy_compress(&codec);
        if (bytes_ != own_.get()) std::free(bytes_);
    }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    /// Sets up a picture of so many rows of the request. To be called where `errors.giveUp` is set.
    void start(const WriteRequest& request, int rows) {
        constexpr int kQuality = 100;
        jpeg_create_compress(&codec);
        jpeg_mem_dest(&codec, &bytes_, &size_);
        codec.image_width = static_cast<JDIMENSION>(request.width);
        codec.image_height = static_cast<JDIMENSION>(rows);
        codec.input_components = kPixelBytes;
        codec.in_color_space = JCS_EXT_RGBX;
        jpeg_set_defaults(&codec);
        jpeg_set_quality(&codec, kQuality, TRUE);
        codec.comp_info[0].h_samp_factor = codec.comp_info[0].v_samp_factor = 1;
        if (request.dpi < 1) return;
        codec.density_unit = 1;  // dots an inch
        codec.X_density = codec.Y_density = static_cast<UINT16>(std::min(request.dpi, 65535));
    }
    /// Bytes until now, while the memory is still its own.
    std::size_t written() const { return static_cast<std::size_t>(codec.dest->next_output_byte - own_.get()); }

    /// All bytes, once the library has finished.
    std::uint8_t* bytes() const { return bytes_; }
    std::size_t size() const { return size_; }

    jpeg_compress_struct codec = {};
    JpegErrors errors;

  private:
    std::unique_ptr<std::uint8_t[]> own_;
    unsigned char* bytes_;
    unsigned long size_;
};

JSAMPROW rowOf(const WriteRequest& request, int y) {
    return const_cast<JSAMPROW>(request.pixels + pixelOffset(request.width, 0, y));
}

// The library leaves a failed call by a long jump to these functions, so nothing in them may need a destructor.

/// The file up to the first coded pixel: the library has written it when it was given a first row.
bool encodeHead(Encoder& encoder, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    if (setjmp(encoder.errors.giveUp)) return false;
    encoder.start(request, request.height);
    encoder.codec.restart_in_rows = blockRows(request.width);
    jpeg_start_compress(&encoder.codec, TRUE);
    if (!request.exif.empty()) {
        jpeg_write_marker(&encoder.codec, JPEG_APP0 + 1, request.exif.data(),
                          static_cast<unsigned>(request.exif.size()));
    }
    if (!profile.empty())
        jpeg_write_icc_profile(&encoder.codec, profile.data(), static_cast<unsigned>(profile.size()));
    JSAMPROW row = rowOf(request, 0);
    jpeg_write_scanlines(&encoder.codec, &row, 1);
    return true;
}

/// Codes the rows of a strip as a picture of its own, whose coded pixels begin at `head`.
bool encodeRows(Encoder& encoder, const WriteRequest& request, int first, int last, std::size_t& head) {
    if (setjmp(encoder.errors.giveUp)) return false;
    encoder.start(request, last - first);
    jpeg_start_compress(&encoder.codec, TRUE);
    for (int y = first; y < last; ++y) {
        JSAMPROW row = rowOf(request, y);
        jpeg_write_scanlines(&encoder.codec, &row, 1);
        if (y == first) head = encoder.written();
    }
    jpeg_finish_compress(&encoder.codec);
    return true;
}

struct Strip {
    std::unique_ptr<Encoder> encoder;
    std::size_t head = 0;
    bool done = false;
};

/// The coded pixels of a strip are whole: no colour refers to a strip before. The marker after them is that of the
/// next strip, or the end of the file.
Strip encodeStrip(const WriteRequest& request, int rows, int index) {
    constexpr std::size_t kHeadRoom = 4096;
    const int first = index * rows, last = std::min(first + rows, request.height);
    Strip strip{std::make_unique<Encoder>(kHeadRoom + pixelBytes(request.width, last - first))};
    strip.done = encodeRows(*strip.encoder, request, first, last, strip.head);
    if (strip.done && last < request.height)
        strip.encoder->bytes()[strip.encoder->size() - 1] = static_cast<std::uint8_t>(JPEG_RST0 + index % 8);
    return strip;
}

std::string problemOf(const Encoder& encoder) {
    return std::string("it cannot be encoded (") + encoder.errors.message + ")";
}

}  // namespace

std::string writeJpeg(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    constexpr std::size_t kMarkerRoom = 65533;
    if (request.exif.size() > kMarkerRoom) {
        logTrace("The camera data are too long for a JPEG file and are left out.");
        WriteRequest shorter = request;
        shorter.exif.clear();
        return writeJpeg(file, shorter, profile);
    }
    Encoder head(2 * (kMarkerRoom + profile.size()));
    if (!encodeHead(head, request, profile)) return problemOf(head);

    const int rows = kBlock * blockRows(request.width);
    std::vector<Strip> strips(static_cast<std::size_t>((request.height - 1) / rows + 1));
    runRows({}, static_cast<int>(strips.size()), 1, [&](int i) {
        if (!request.stop || !*request.stop) strips[static_cast<std::size_t>(i)] = encodeStrip(request, rows, i);
    });
    bool written = file.write(head.bytes(), head.written());
    for (const Strip& strip : strips) {
        if (!written) break;
        const Encoder& encoder = *strip.encoder;
        if (!strip.done) return problemOf(encoder);
        written = file.write(encoder.bytes() + strip.head, encoder.size() - strip.head);
    }
    return written ? std::string() : file.error();
}

}  // namespace tavrin
