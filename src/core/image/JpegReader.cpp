#include "core/image/JpegReader.h"

#include <algorithm>
#include <memory>

#include "core/image/JpegErrors.h"
#include "core/image/UprightPixels.h"
#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

struct Decoder {
    jpeg_decompress_struct codec = {};
    JpegErrors errors;

    Decoder() { codec.err = &errors.manager; }
    ~Decoder() { jpeg_destroy_decompress(&codec); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    bool isClean() const { return errors.manager.num_warnings == 0; }
};

// The library leaves a failed read by a long jump to here, so nothing in these functions may need a destructor.
bool readHeader(Decoder& decoder, std::FILE* file, int width, int height) {
    if (setjmp(decoder.errors.giveUp)) return false;
    jpeg_decompress_struct& codec = decoder.codec;
    jpeg_create_decompress(&codec);
    jpeg_stdio_src(&codec, file);
    jpeg_read_header(&codec, TRUE);
    const bool colours = codec.jpeg_color_space == JCS_YCbCr || codec.jpeg_color_space == JCS_RGB;
    return colours && !jpeg_has_multiple_scans(&codec) && codec.image_width == static_cast<JDIMENSION>(width) &&
           codec.image_height == static_cast<JDIMENSION>(height);
}

void readMarkers(Decoder& decoder, std::FILE* file) {
    constexpr int kCameraData = JPEG_APP0 + 1;
    if (setjmp(decoder.errors.giveUp)) return;
    jpeg_create_decompress(&decoder.codec);
    jpeg_stdio_src(&decoder.codec, file);
    jpeg_save_markers(&decoder.codec, kCameraData, 0xFFFF);
    jpeg_read_header(&decoder.codec, TRUE);
}

bool readRows(Decoder& decoder, const UprightPixels& pixels) {
    constexpr JDIMENSION kStrip = 16;  // rows that are laid on their side together
    if (setjmp(decoder.errors.giveUp)) return false;
    jpeg_decompress_struct& codec = decoder.codec;
    codec.out_color_space = JCS_EXT_RGBA;
    jpeg_start_decompress(&codec);
    const int width = static_cast<int>(codec.output_width);
    const JDIMENSION line = codec.output_width * kPixelBytes;
    const JSAMPARRAY strip =
        (*codec.mem->alloc_sarray)(reinterpret_cast<j_common_ptr>(&codec), JPOOL_IMAGE, line, kStrip);
    while (codec.output_scanline < codec.output_height && decoder.isClean()) {
        const JDIMENSION top = codec.output_scanline, rows = std::min(kStrip, codec.output_height - top);
        for (JDIMENSION y = 0; y < rows;) {
            std::uint8_t* inPlace = pixels.rowInPlace(static_cast<int>(top + y));
            y += jpeg_read_scanlines(&codec, inPlace ? &inPlace : strip + y, 1);
        }
        if (pixels.rowInPlace(0)) continue;
        // The rows of a strip lie one after the other, as far apart as the library likes.
        const std::ptrdiff_t step = rows > 1 ? strip[1] - strip[0] : line;
        pixels.place<4>({strip[0], kPixelBytes, step},
                        QRect(0, static_cast<int>(top), width, static_cast<int>(rows)));
    }
    jpeg_finish_decompress(&codec);
    return decoder.isClean();
}

}  // namespace

std::vector<std::vector<std::uint8_t>> jpegCameraBlocks(const std::string& path) {
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
    Decoder decoder;
    std::vector<std::vector<std::uint8_t>> blocks;
    if (!file) return blocks;
    readMarkers(decoder, file.get());
    for (const jpeg_marker_struct* marker = decoder.codec.marker_list; marker; marker = marker->next)
        blocks.emplace_back(marker->data, marker->data + marker->data_length);
    return blocks;
}

QImage decodeOrdinaryJpeg(const std::string& path, int orientation, int width, int height, bool* damaged) {
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
    Decoder decoder;
    if (!file || !readHeader(decoder, file.get(), width, height) || !decoder.isClean()) return {};
    const bool turned = orientation >= 5;
    QImage result = newPicture(turned ? height : width, turned ? width : height, QImage::Format_RGBX8888);
    if (result.isNull()) return {};
    if (readRows(decoder, UprightPixels(result, orientation, width, height))) return result;
    if (damaged) *damaged = true;
    return {};
}

}  // namespace tavrin
