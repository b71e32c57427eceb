#include "core/image/ImageReader.h"

#include <cstdio>
#include <cstring>
#include <lcms2.h>
#include <new>

#include "core/Log.h"
#include "core/image/Exif.h"
#include "core/image/FileKind.h"
#include "core/image/JpegReader.h"
#include "core/image/RawReader.h"
#include "core/image/SrgbConversion.h"
#include "core/image/VipsReader.h"

namespace tavrin {

namespace {

std::string profileName(const std::vector<std::uint8_t>& profile) {
    cmsHPROFILE handle = cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size()));
    if (!handle) return {};
    char name[256] = "";
    cmsGetProfileInfoASCII(handle, cmsInfoDescription, "en", "US", name, sizeof name);
    cmsCloseProfile(handle);
    return name;
}

std::string spaceName(const VipsImage* image) {
    switch (image->Type) {
        case VIPS_INTERPRETATION_CMYK:
            return "CMYK";
        case VIPS_INTERPRETATION_LAB:
        case VIPS_INTERPRETATION_LABS:
            return "Lab";
        case VIPS_INTERPRETATION_scRGB:
            return "linear RGB";
        case VIPS_INTERPRETATION_XYZ:
            return "XYZ";
        default:
            return image->Bands < 3 ? "grey" : "RGB";
    }
}

int bitsOf(VipsImage* image) {
    int bits = 0;
    if (vips_image_get_typeof(image, "bits-per-sample") && vips_image_get_int(image, "bits-per-sample", &bits) == 0)
        return bits;
    return static_cast<int>(vips_format_sizeof(image->BandFmt)) * 8;
}

// Pixels a millimetre; the library gives 1 where the file names nothing. Not every loader names the unit.
double dpiOf(VipsImage* image) {
    constexpr double kMillimetresInInch = 25.4;
    const bool named = vips_image_get_typeof(image, VIPS_META_RESOLUTION_UNIT) || image->Xres != 1.0;
    return named ? image->Xres * kMillimetresInInch : 0;
}

void fillCamera(const CameraFacts& camera, PictureFacts& facts) {
    facts.camera = camera.maker;
    // Many makers put their name before the model's.
    if (camera.model.rfind(camera.maker, 0) == 0) facts.camera.clear();
    if (!facts.camera.empty() && !camera.model.empty()) facts.camera += ' ';
    facts.camera += camera.model;
    facts.taken = camera.taken;
}

void fillFromVips(VipsImage* image, PictureFacts& facts) {
    facts.fileWidth = image->Xsize;
    facts.fileHeight = image->Ysize;
    facts.orientation = vips_image_get_orientation(image);
    const bool turned = facts.orientation >= 5;
    facts.width = turned ? facts.fileHeight : facts.fileWidth;
    facts.height = turned ? facts.fileWidth : facts.fileHeight;
    facts.channels = image->Bands;
    facts.bitsPerChannel = bitsOf(image);
    facts.hasAlpha = vips_image_hasalpha(image);
    facts.colourSpace = spaceName(image);
    facts.dpi = dpiOf(image);
    const std::vector<std::uint8_t> profile = vipsBlob(image, VIPS_META_ICC_NAME);
    facts.hasProfile = !profile.empty();
    if (facts.hasProfile) facts.profileName = profileName(profile);
    fillCamera(cameraFacts(vipsBlob(image, VIPS_META_EXIF_NAME)), facts);
}

void fillFromRaw(const std::string& path, PictureFacts& facts) {
    const RawFacts raw = readRawFacts(path);
    facts.error = raw.error;
    facts.width = facts.fileWidth = raw.width;
    facts.height = facts.fileHeight = raw.height;
    facts.channels = 3;
    facts.bitsPerChannel = raw.bits;
    facts.colourSpace = "camera";
    fillCamera(raw.camera, facts);
}

void decode(const std::string& path, FileKind kind, VipsImage* image, ReadPicture& picture) {
    bool damaged = false;
    if (kind == FileKind::jpeg && isSrgb(image)) {
        picture.pixels =
            decodeOrdinaryJpeg(path, vips_image_get_orientation(image), image->Xsize, image->Ysize, &damaged);
        if (!picture.pixels.isNull()) return;
    }
    picture.pixels = decodeWithVips(image, picture.error);
    if (damaged && picture.error.empty()) picture.damage = "it is damaged, and was read as far as it goes";
}

ReadPicture readAny(const std::string& path) {
    ReadPicture picture;
    const FileProbe probe = probeFile(path);
    picture.error = probe.error;
    if (!picture.error.empty()) return picture;
    if (probe.kind == FileKind::raw) {
        RawPicture raw = readRaw(path);
        picture.pixels = std::move(raw.pixels);
        picture.error = std::move(raw.error);
        if (picture.error.empty()) picture.exif = makeExif(raw.camera);
        return picture;
    }
    const OpenPicture open = openWithVips(path, probe.kind);
    picture.error = open.error;
    if (!picture.error.empty()) return picture;
    decode(path, probe.kind, open.image.get(), picture);
    if (picture.error.empty()) picture.exif = vipsBlob(open.image.get(), VIPS_META_EXIF_NAME);
    return picture;
}

PictureFacts readAnyFacts(const std::string& path) {
    PictureFacts facts;
    const FileProbe probe = probeFile(path);
    facts.error = probe.error;
    if (!facts.error.empty()) return facts;
    facts.format = kindName(probe.kind);
    if (probe.kind == FileKind::raw) {
        fillFromRaw(path, facts);
        return facts;
    }
    const OpenPicture open = openWithVips(path, probe.kind);
    facts.error = open.error;
    if (facts.error.empty()) fillFromVips(open.image.get(), facts);
    return facts;
}

/// What `read` returns, or that there is no memory for it.
template <class Result>
Result withinMemory(Result (*read)(const std::string&), const std::string& path) {
    try {
        return read(path);
    } catch (const std::bad_alloc&) {
        Result refused;
        refused.error = kNoMemory;
        return refused;
    }
}

}  // namespace

ReadPicture readPicture(const std::string& path) {
    return withinMemory(readAny, path);
}

PictureFacts readPictureFacts(const std::string& path) {
    return withinMemory(readAnyFacts, path);
}

QImage myCreateImageUsingImageSourceFromFile(const std::string& path) {
    ReadPicture picture = readPicture(path);
    if (picture.error.empty()) return std::move(picture.pixels);
    const bool noSource = probeFile(path).kind == FileKind::unknown;
    logError(noSource ? "Couldn't create image source from URL!" : "Couldn't create image from image source!");
    logError(path + ": " + picture.error);
    return {};
}

}  // namespace tavrin
