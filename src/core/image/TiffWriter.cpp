#include "core/image/TiffWriter.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <tiffio.h>

#include "core/image/Exif.h"
#include "core/image/Vips.h"

namespace tavrin {

namespace {

struct TiffClose {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffRef = std::unique_ptr<TIFF, TiffClose>;

AtomicFile& fileOf(thandle_t handle) {
    return *static_cast<AtomicFile*>(handle);
}

tmsize_t readBytes(thandle_t handle, void* bytes, tmsize_t size) {
    return fileOf(handle).read(bytes, static_cast<std::size_t>(size));
}
tmsize_t writeBytes(thandle_t handle, void* bytes, tmsize_t size) {
    return fileOf(handle).write(bytes, static_cast<std::size_t>(size)) ? size : -1;
}
toff_t seekBytes(thandle_t handle, toff_t offset, int origin) {
    return static_cast<toff_t>(fileOf(handle).seek(static_cast<long long>(offset), origin));
}
int closeNothing(thandle_t) {
    return 0;
}
toff_t sizeOf(thandle_t handle) {
    return static_cast<toff_t>(fileOf(handle).size());
}

// Offsets of 32 bits reach 4 GB; deflate may enlarge noise a little.
TiffRef openTiff(AtomicFile& file, const WriteRequest& request) {
    constexpr double kSafe32BitBytes = 4.0e9;
    const bool large = 4.0 * request.width * request.height > kSafe32BitBytes;
    return TiffRef(TIFFClientOpen("picture", large ? "w8" : "w", &file, readBytes, writeBytes, seekBytes,
                                  closeNothing, sizeOf, nullptr, nullptr));
}

constexpr int kStripRows = 64;

void setLayout(TIFF* tiff, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    const std::uint16_t straightAlpha = EXTRASAMPLE_UNASSALPHA;
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, request.width);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, request.height);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 4);
    TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &straightAlpha);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_ADOBE_DEFLATE);
    TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff, TIFFTAG_ZIPQUALITY, 1);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, kStripRows);
    TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(tiff, TIFFTAG_XRESOLUTION, static_cast<double>(request.dpi));
    TIFFSetField(tiff, TIFFTAG_YRESOLUTION, static_cast<double>(request.dpi));
    if (!profile.empty())
        TIFFSetField(tiff, TIFFTAG_ICCPROFILE, static_cast<std::uint32_t>(profile.size()), profile.data());
}

// The library's predictor works in the bytes it is given, so every strip goes through a copy.
bool writeStrips(TIFF* tiff, const WriteRequest& request) {
    const std::size_t row = std::size_t{4} * request.width;
    std::vector<std::uint8_t> strip(row * kStripRows);
    for (int y = 0, number = 0; y < request.height; y += kStripRows, ++number) {
        const std::size_t size = row * std::min(kStripRows, request.height - y);
        std::memcpy(strip.data(), request.pixels + row * y, size);
        if (TIFFWriteEncodedStrip(tiff, static_cast<std::uint32_t>(number), strip.data(),
                                  static_cast<tmsize_t>(size)) < 0)
            return false;
    }
    return true;
}

}  // namespace

std::string writeTiff(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    TiffRef tiff = openTiff(file, request);
    if (!tiff) return "the picture cannot be encoded (" + takeVipsError() + ")";
    setLayout(tiff.get(), request, profile);
    bool done = writeStrips(tiff.get(), request);
    done = done && TIFFFlush(tiff.get());
    tiff.reset();
    return done ? std::string() : "the picture cannot be encoded (" + takeVipsError() + ")";
}

}  // namespace tavrin
