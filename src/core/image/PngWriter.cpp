#include "core/image/PngWriter.h"

#include <cmath>
#include <csetjmp>
#include <png.h>

#include "core/image/PackedRows.h"

namespace tavrin {

namespace {

struct PngWriter {
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::string error;

    PngWriter() {
        png = png_create_write_struct(PNG_LIBPNG_VER_STRING, this, fail, ignore);
        info = png ? png_create_info_struct(png) : nullptr;
    }
    ~PngWriter() { png_destroy_write_struct(&png, &info); }
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;

    [[noreturn]] static void fail(png_structp png, png_const_charp message) {
        static_cast<PngWriter*>(png_get_error_ptr(png))->error = message;
        png_longjmp(png, 1);
    }
    static void ignore(png_structp, png_const_charp) {}
};

void writeBytes(png_structp png, png_bytep bytes, std::size_t size) {
    if (!static_cast<AtomicFile*>(png_get_io_ptr(png))->write(bytes, size)) png_error(png, "write error");
}

void setHeader(const PngWriter& writer, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    constexpr double kInchesInMetre = 1 / 0.0254;
    constexpr std::size_t kExifHead = 6;  // this format leaves out the word before the tags
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(request.width),
                 static_cast<png_uint_32>(request.height), 8, PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (request.dpi > 0) {
        const auto density = static_cast<png_uint_32>(std::lround(request.dpi * kInchesInMetre));
        png_set_pHYs(writer.png, writer.info, density, density, PNG_RESOLUTION_METER);
    }
    if (!profile.empty())
        png_set_iCCP(writer.png, writer.info, "sRGB", PNG_COMPRESSION_TYPE_BASE, profile.data(),
                     static_cast<png_uint_32>(profile.size()));
    if (request.exif.size() > kExifHead)
        png_set_eXIf_1(writer.png, writer.info, static_cast<png_uint_32>(request.exif.size() - kExifHead),
                       const_cast<png_bytep>(request.exif.data()) + kExifHead);
}

// The library leaves a failed write by a long jump to these two, so nothing in them may need a destructor.

bool writeHead(PngWriter& writer, AtomicFile& file, const WriteRequest& request,
               const std::vector<std::uint8_t>& profile) {
    if (setjmp(png_jmpbuf(writer.png))) return false;
    png_set_write_fn(writer.png, &file, writeBytes, nullptr);
    setHeader(writer, request, profile);
    png_write_info(writer.png, writer.info);
    return true;
}

bool writeChunk(PngWriter& writer, const char* name, const char* bytes, std::size_t size) {
    if (setjmp(png_jmpbuf(writer.png))) return false;
    png_write_chunk(writer.png, reinterpret_cast<png_const_bytep>(name), reinterpret_cast<png_const_bytep>(bytes),
                    size);
    return true;
}

/// The rows are packed on all cores, which the library does on one.
bool run(PngWriter& writer, AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    const RowsToPack rows{request.pixels, request.width, request.height, std::size_t{4} * request.width, 4};
    return writeHead(writer, file, request, profile) &&
           packRows(rows,
                    [&writer](const std::string& bytes) {
                        return writeChunk(writer, "IDAT", bytes.data(), bytes.size());
                    }) &&
           writeChunk(writer, "IEND", nullptr, 0);
}

}  // namespace

std::string writePng(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    PngWriter writer;
    if (!writer.info) return "there is not enough memory";
    return run(writer, file, request, profile) ? std::string() : "it cannot be encoded (" + writer.error + ")";
}

}  // namespace tavrin
