#include "core/image/ImageWriter.h"

#include <new>

#include "core/files/AtomicFile.h"
#include "core/image/Exif.h"
#include "core/image/JpegWriter.h"
#include "core/image/Location.h"
#include "core/image/PngWriter.h"
#include "core/image/TiffWriter.h"
#include "core/image/Vips.h"

namespace tavrin {

namespace {

/// The widest picture that a JPEG file can hold.
constexpr int kMaxJpegSide = 65500;

std::vector<std::uint8_t> srgbProfile() {
    VipsBlob* blob = nullptr;
    if (vips_profile_load("srgb", &blob, nullptr) != 0 || !blob) return {};
    std::size_t size = 0;
    const auto* bytes = static_cast<const std::uint8_t*>(vips_blob_get(blob, &size));
    std::vector<std::uint8_t> profile(bytes, bytes + size);
    vips_area_unref(VIPS_AREA(blob));
    return profile;
}

std::string checkRequest(const WriteRequest& request) {
    if (request.fileType < kJpegFile || request.fileType > kTiffFile) return "there is no such type of picture file";
    if (!request.pixels || request.width < 1 || request.height < 1) return "there is no picture to write";
    if (request.fileType == kJpegFile && (request.width > kMaxJpegSide || request.height > kMaxJpegSide))
        return "the picture is too large for a JPEG file";
    return {};
}

std::string encode(AtomicFile& file, const WriteRequest& request) {
    if (request.fileType == kTiffFile) return writeTiff(file, request, srgbProfile());
    if (request.fileType == kPngFile) return writePng(file, request, srgbProfile());
    return writeJpeg(file, request, srgbProfile());
}

std::string write(const std::string& path, const WriteRequest& request) {
    AtomicFile file(path);
    if (!file.error().empty()) return file.error();
    file.stopWhen(request.stop);
    WriteRequest own = request;
    own.exif = carryOverExif(request.exif, request.width, request.height, request.dpi, !areLocationsLeftOut());
    const std::string failed = encode(file, own);
    if (!file.error().empty()) return file.error();
    if (!failed.empty()) return failed;
    return file.commit() ? std::string() : file.error();
}

}  // namespace

std::string writePicture(const std::string& path, const WriteRequest& request) {
    const std::string wrong = checkRequest(request);
    if (!wrong.empty()) return wrong;
    if (const std::string problem = startVips(); !problem.empty()) return problem;
    try {
        return write(path, request);
    } catch (const std::bad_alloc&) {
        return "there is not enough memory to write it";
    }
}

}  // namespace tavrin
