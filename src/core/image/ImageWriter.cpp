#include "core/image/ImageWriter.h"

#include "core/AtomicFile.h"
#include "core/HandOver.h"
#include "core/image/Exif.h"
#include "core/image/PngWriter.h"
#include "core/image/TiffWriter.h"
#include "core/image/Vips.h"

namespace tavrin {

namespace {

/// The widest picture that a JPEG file can hold.
constexpr int kMaxJpegSide = 65500;

using TargetRef = std::unique_ptr<VipsTarget, GlibUnref>;

/// The encoder writes from a thread of its own.
struct EncodedFile {
    AtomicFile& file;
    HandOver handOver;
};

gint64 writeToFile(VipsTargetCustom*, const void* bytes, gint64 size, gpointer user) {
    auto* encoded = static_cast<EncodedFile*>(user);
    encoded->handOver.pass();
    const bool written = encoded->file.write(bytes, static_cast<std::size_t>(size));
    encoded->handOver.pass();
    return written ? size : -1;
}

TargetRef targetOf(EncodedFile& encoded) {
    VipsTargetCustom* target = vips_target_custom_new();
    g_signal_connect(target, "write", G_CALLBACK(writeToFile), &encoded);
    return TargetRef(VIPS_TARGET(target));
}

std::vector<std::uint8_t> srgbProfile() {
    VipsBlob* blob = nullptr;
    if (vips_profile_load("srgb", &blob, nullptr) != 0 || !blob) return {};
    std::size_t size = 0;
    const auto* bytes = static_cast<const std::uint8_t*>(vips_blob_get(blob, &size));
    std::vector<std::uint8_t> profile(bytes, bytes + size);
    vips_area_unref(VIPS_AREA(blob));
    return profile;
}

void setBlob(VipsImage* image, const char* name, const std::vector<std::uint8_t>& bytes) {
    if (!bytes.empty()) vips_image_set_blob_copy(image, name, bytes.data(), bytes.size());
}

// The picture over the caller's bytes, with all that the file says beside them.
VipsRef describe(const WriteRequest& request) {
    constexpr double kMillimetresInInch = 25.4;
    const std::size_t size = std::size_t{4} * request.width * request.height;
    const VipsRef raw(
        vips_image_new_from_memory(request.pixels, size, request.width, request.height, 4, VIPS_FORMAT_UCHAR));
    VipsImage *colours = nullptr, *out = nullptr;
    if (!raw || vips_extract_band(raw.get(), &colours, 0, "n", 3, nullptr) != 0) return nullptr;
    const VipsRef held(colours);
    const double resolution = request.dpi / kMillimetresInInch;
    VipsRef described = takeVips(vips_copy(colours, &out, "interpretation", VIPS_INTERPRETATION_sRGB, "xres",
                                           resolution, "yres", resolution, nullptr),
                                 out);
    if (!described) return nullptr;
    vips_image_set_string(out, VIPS_META_RESOLUTION_UNIT, "in");
    setBlob(out, VIPS_META_ICC_NAME, srgbProfile());
    setBlob(out, VIPS_META_EXIF_NAME, request.exif);
    return described;
}

std::string writeJpeg(AtomicFile& file, const WriteRequest& request) {
    EncodedFile encoded{file, {}};
    const TargetRef target = targetOf(encoded);
    const VipsRef image = describe(request);
    const bool done = image && vips_jpegsave_target(image.get(), target.get(), "Q", 100, "subsample_mode",
                                                    VIPS_FOREIGN_SUBSAMPLE_OFF, nullptr) == 0;
    encoded.handOver.pass();
    return done ? std::string() : "it cannot be encoded (" + takeVipsError() + ")";
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
    return writeJpeg(file, request);
}

}  // namespace

std::string writePicture(const std::string& path, const WriteRequest& request) {
    const std::string wrong = checkRequest(request);
    if (!wrong.empty()) return wrong;
    if (!startVips()) return "the image library cannot be started";
    AtomicFile file(path);
    if (!file.error().empty()) return file.error();
    WriteRequest own = request;
    own.exif = carryOverExif(request.exif, request.width, request.height, request.dpi);
    const std::string failed = encode(file, own);
    if (!file.error().empty()) return file.error();
    if (!failed.empty()) return failed;
    return file.commit() ? std::string() : file.error();
}

}  // namespace tavrin
