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

// A list as the library wants it: its length first where it asks for one, and the element type of its tables.
void setList(TIFF* tiff, const TIFFField* field, const ExifValue& value) {
    const std::uint32_t tag = TIFFFieldTag(field);
    const int fixed = TIFFFieldWriteCount(field), size = TIFFFieldSetGetSize(field);
    const bool counted = TIFFFieldPassCount(field);
    if (!counted && fixed != static_cast<int>(std::max(value.numbers.size(), value.bytes.size()))) return;
    const auto set = [&](const auto& list) {
        counted ? TIFFSetField(tiff, tag, static_cast<int>(list.size()), list.data())
                : TIFFSetField(tiff, tag, list.data());
    };
    const bool real = TIFFFieldDataType(field) == TIFF_RATIONAL || TIFFFieldDataType(field) == TIFF_SRATIONAL;
    if (!value.bytes.empty()) {
        if (size == 1) set(value.bytes);
    } else if (real) {
        size == 8 ? set(value.numbers) : set(std::vector<float>(value.numbers.begin(), value.numbers.end()));
    } else if (TIFFFieldDataType(field) == TIFF_SHORT) {
        set(std::vector<std::uint16_t>(value.numbers.begin(), value.numbers.end()));
    }
}

// Sets a tag in the library's present directory; one that it does not know is left out.
void setValue(TIFF* tiff, const ExifValue& value) {
    const std::uint32_t tag = static_cast<std::uint32_t>(value.tag);
    const TIFFField* field = TIFFFindField(tiff, tag, TIFF_ANY);
    if (!field) return;
    const TIFFDataType type = TIFFFieldDataType(field);
    if (type == TIFF_ASCII) {
        if (!value.text.empty()) TIFFSetField(tiff, tag, value.text.c_str());
    } else if (TIFFFieldPassCount(field) || TIFFFieldWriteCount(field) != 1) {
        setList(tiff, field, value);
    } else if (value.numbers.size() == 1) {
        if (type == TIFF_RATIONAL || type == TIFF_SRATIONAL) {
            TIFFSetField(tiff, tag, value.numbers[0]);
        } else if (type == TIFF_SHORT || type == TIFF_LONG || type == TIFF_BYTE) {
            TIFFSetField(tiff, tag, static_cast<std::uint32_t>(value.numbers[0]));
        }
    } else if (value.bytes.size() == 1 && TIFFFieldSetGetSize(field) == 1) {
        TIFFSetField(tiff, tag, static_cast<int>(value.bytes[0]));
    }
}

// Maker, model and the other texts stand beside the layout of the picture, whose tags are this file's own.
void setCameraTexts(TIFF* tiff, const std::vector<ExifValue>& values) {
    for (const ExifValue& value : values)
        if (!value.aboutShot && !value.text.empty()) setValue(tiff, value);
}

// Exposure, lens and dates have a directory of their own, which must be written before the main one can point to it.
bool writeShotDirectory(TIFF* tiff, const std::vector<ExifValue>& values) {
    const auto isShot = [](const ExifValue& value) { return value.aboutShot; };
    if (std::none_of(values.begin(), values.end(), isShot)) return true;
    std::uint64_t place = 0;
    if (!TIFFWriteDirectory(tiff) || TIFFCreateEXIFDirectory(tiff) != 0) return false;
    for (const ExifValue& value : values)
        if (isShot(value)) setValue(tiff, value);
    return TIFFWriteCustomDirectory(tiff, &place) && TIFFSetDirectory(tiff, 0) &&
           TIFFSetField(tiff, TIFFTAG_EXIFIFD, place) && TIFFRewriteDirectory(tiff);
}

}  // namespace

std::string writeTiff(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile) {
    TiffRef tiff = openTiff(file, request);
    if (!tiff) return "it cannot be encoded (" + takeVipsError() + ")";
    setLayout(tiff.get(), request, profile);
    const std::vector<ExifValue> values = exifValues(request.exif);
    setCameraTexts(tiff.get(), values);
    bool done = writeStrips(tiff.get(), request) && writeShotDirectory(tiff.get(), values);
    done = done && TIFFFlush(tiff.get());
    tiff.reset();
    return done ? std::string() : "it cannot be encoded (" + takeVipsError() + ")";
}

}  // namespace tavrin
