#include "core/image/VipsReader.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>

#include "core/BackgroundThread.h"
#include "core/HandOver.h"
#include "core/Log.h"
#include "core/image/ExifCheck.h"
#include "core/image/MetadataCheck.h"
#include "core/image/PsdCheck.h"
#include "core/image/SrgbConversion.h"
#include "core/image/UprightPixels.h"
#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

/// The loaders stop with an error where the data ends too early, and mend what they can otherwise.
constexpr VipsFailOn kFailOn = VIPS_FAIL_ON_TRUNCATED;

// 400 megapixels take 1.6 GB, and no PSD file may be longer than 2. Some decoders want a file whole, others look
// through all of it for its end.
constexpr std::uintmax_t kMostBytes = std::uintmax_t{2} << 30;

bool isReadWhole(FileKind kind) {
    return kind == FileKind::psd || kind == FileKind::bmp;
}

/// Why a file is refused before any decoder sees it.
std::string fileProblem(const std::string& path, FileKind kind) {
    std::error_code error;
    const bool mayBeLonger = kind == FileKind::tiff;  // it tells itself where its parts are
    if (!mayBeLonger && std::filesystem::file_size(path, error) > kMostBytes && !error)
        return "it is too large: at most 2 GB of such a file are read";
    return isReadWhole(kind) ? "" : metadataProblem(path, kind);
}

bool readWhole(const std::string& path, std::vector<std::uint8_t>& bytes) {
    std::ifstream file(path, std::ios::binary);
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!file || error || size > kMostBytes) return false;
    bytes.resize(size);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    return file.gcount() == static_cast<std::streamsize>(size);
}

// The general decoder goes by what it sees: it gets the bytes alone, which begin as a PSD or BMP file does, and no
// name from which it might conclude something else.
VipsRef loadFromMemory(const std::string& path, FileKind kind, std::vector<std::uint8_t>& bytes) {
    VipsImage* image = nullptr;
    if (!readWhole(path, bytes) || (kind == FileKind::psd && !psdIsWhole(bytes))) return nullptr;
    if (!exifInsideIsBounded(bytes)) return nullptr;
    return takeVips(vips_magickload_buffer(bytes.data(), bytes.size(), &image, "fail_on", kFailOn, nullptr), image);
}

using Loader = int (*)(const char*, VipsImage**, ...);

VipsRef loadFile(Loader loader, const std::string& path) {
    VipsImage* image = nullptr;
    const int status = loader(path.c_str(), &image, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", kFailOn, nullptr);
    return takeVips(status, image);
}

VipsRef load(const std::string& path, FileKind kind, std::vector<std::uint8_t>& bytes) {
    switch (kind) {
        case FileKind::jpeg:
            return loadFile(vips_jpegload, path);
        case FileKind::png:
            return loadFile(vips_pngload, path);
        case FileKind::tiff:
            return loadFile(vips_tiffload, path);
        case FileKind::gif:
            return loadFile(vips_gifload, path);
        case FileKind::webp:
            return loadFile(vips_webpload, path);
        case FileKind::heif:
            return loadFile(vips_heifload, path);
        case FileKind::bmp:
        case FileKind::psd:
            return loadFromMemory(path, kind, bytes);
        default:
            return nullptr;
    }
}

/// The same picture as the decoder makes it with less work: a JPEG file at a half, a quarter or an eighth, of a HEIF
/// file the small picture that comes with it. Null when there is nothing to gain.
VipsRef loadReduced(const std::string& path, FileKind kind, const VipsImage* whole, int side) {
    const int shorter = std::min(whole->Xsize, whole->Ysize);
    VipsImage* image = nullptr;
    if (kind == FileKind::jpeg) {
        int shrink = 8;
        while (shrink > 1 && shorter / shrink < side)
            shrink /= 2;
        if (shrink == 1) return nullptr;
        return takeVips(vips_jpegload(path.c_str(), &image, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", kFailOn,
                                      "shrink", shrink, nullptr),
                        image);
    }
    if (kind != FileKind::heif || shorter <= side) return nullptr;
    VipsRef small = takeVips(
        vips_heifload(path.c_str(), &image, "access", VIPS_ACCESS_SEQUENTIAL, "thumbnail", TRUE, nullptr), image);
    if (small && std::max(small->Xsize, small->Ysize) < side) small.reset();
    return small;
}

std::string decodeError() {
    const std::string reason = takeVipsError();
    if (!reason.empty()) logTrace("Image library: " + reason);  // in words that help nobody else
    return "it is damaged or cut short";
}

/// Takes finished rows of the decoder and lays them, upright and as RGBA, into the result. The decoder calls `write`
/// on a thread of its own, one call after the other. Each call passes the result on: the library's own ordering would
/// do, but the thread checker does not see it.
struct RowSink {
    UprightPixels pixels;
    HandOver handOver;
    int rows = 0;  ///< of the file that have come

    static int write(VipsRegion* region, VipsRect* area, void* self) {
        auto* sink = static_cast<RowSink*>(self);
        sink->handOver.pass();
        sink->rows = std::max(sink->rows, area->top + area->height);
        switch (region->im->Bands) {
            case 1:
                sink->place<1>(region, *area);
                break;
            case 2:
                sink->place<2>(region, *area);
                break;
            case 3:
                sink->place<3>(region, *area);
                break;
            default:
                sink->place<4>(region, *area);
                break;
        }
        sink->handOver.pass();
        return 0;
    }

    template <int Bands>
    void place(VipsRegion* region, const VipsRect& area) const {
        pixels.place<Bands>({VIPS_REGION_ADDR(region, area.left, area.top),
                             static_cast<std::ptrdiff_t>(VIPS_IMAGE_SIZEOF_PEL(region->im)),
                             static_cast<std::ptrdiff_t>(VIPS_REGION_LSKIP(region))},
                            QRect(area.left, area.top, area.width, area.height));
    }
};

/// Has all rows made on this thread.
bool readHere(VipsImage* image, RowSink& sink) {
    constexpr int kStrip = 16;
    const std::unique_ptr<VipsRegion, GlibUnref> region(vips_region_new(image));
    for (int top = 0; top < image->Ysize; top += kStrip) {
        VipsRect area{0, top, image->Xsize, std::min(kStrip, image->Ysize - top)};
        if (vips_region_prepare(region.get(), &area) != 0) return false;
        RowSink::write(region.get(), &area, &sink);
    }
    return true;
}

}  // namespace

std::vector<std::uint8_t> vipsBlob(VipsImage* image, const char* name) {
    const void* data = nullptr;
    std::size_t size = 0;
    if (!vips_image_get_typeof(image, name) || vips_image_get_blob(image, name, &data, &size) != 0) return {};
    const auto* bytes = static_cast<const std::uint8_t*>(data);
    return {bytes, bytes + size};
}

OpenPicture openWithVips(const std::string& path, FileKind kind, int side) {
    OpenPicture open;
    open.error = startVips();
    if (open.error.empty()) open.error = fileProblem(path, kind);
    if (!open.error.empty()) return open;
    open.image = load(path, kind, open.bytes);
    if (!open.image) {
        open.error = decodeError();
        return open;
    }
    open.error = sizeError(open.image->Xsize, open.image->Ysize);
    if (!open.error.empty()) {
        open.image.reset();
    } else if (side > 0) {
        if (VipsRef reduced = loadReduced(path, kind, open.image.get(), side)) open.image = std::move(reduced);
    }
    return open;
}

QImage decodeWithVips(VipsImage* image, std::string& error, DecodeOn on) {
    const int orientation = vips_image_get_orientation(image), width = image->Xsize, height = image->Ysize;
    const VipsRef srgb = toSrgb(image);
    if (!srgb) {
        error = decodeError();
        return {};
    }
    const bool turned = orientation >= 5;
    const bool alpha = srgb->Bands % 2 == 0 || srgb->Bands > 4;
    QImage result = newPicture(turned ? height : width, turned ? width : height,
                               alpha ? QImage::Format_RGBA8888 : QImage::Format_RGBX8888);
    if (result.isNull()) {
        error = "there is not enough memory for it";
        return {};
    }
    RowSink sink{UprightPixels(result, orientation, width, height), {}, 0};
    sink.handOver.pass();
    const bool alone = on == DecodeOn::thisThread || isBackgroundThread();
    const bool failed = alone ? !readHere(srgb.get(), sink) : vips_sink_disc(srgb.get(), RowSink::write, &sink) != 0;
    sink.handOver.pass();
    if (failed) {
        const int percent = static_cast<int>(std::int64_t{100} * sink.rows / std::max(height, 1));
        error = decodeError() + " after " + std::to_string(percent) + " percent";
        return {};
    }
    if (alpha) result.convertTo(QImage::Format_RGBA8888_Premultiplied);
    return result;
}

}  // namespace tavrin
