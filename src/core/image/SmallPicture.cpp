#include "core/image/SmallPicture.h"

#include <algorithm>
#include <new>

#include "core/image/FileKind.h"
#include "core/image/RawReader.h"
#include "core/image/VipsReader.h"

namespace tavrin {

namespace {

VipsRef shrunk(VipsImage* image, int side) {
    const double scale = static_cast<double>(side) / std::max(image->Xsize, image->Ysize);
    VipsImage* small = nullptr;
    // A long strip keeps at least a pixel of its width.
    const auto least = [&](int length) { return std::max(scale, 1.0 / length); };
    return takeVips(vips_resize(image, &small, least(image->Xsize), "vscale", least(image->Ysize), nullptr), small);
}

void readRawSmall(const std::string& path, int side, ReadPicture& picture) {
    RawPicture raw = readRawPreview(path, side);
    picture.error = std::move(raw.error);
    if (!picture.error.empty()) return;
    picture.pixels = std::move(raw.pixels);
    if (std::max(picture.pixels.width(), picture.pixels.height()) > side)
        picture.pixels = picture.pixels.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void readSmall(const std::string& path, int side, ReadPicture& picture) {
    const FileProbe probe = probeFile(path);
    picture.error = probe.error;
    if (!picture.error.empty()) return;
    if (probe.kind == FileKind::raw) return readRawSmall(path, side, picture);
    const OpenPicture open = openWithVips(path, probe.kind, side);
    picture.error = open.error;
    if (!picture.error.empty()) return;
    VipsImage* image = open.image.get();
    const VipsRef small = std::max(image->Xsize, image->Ysize) > side ? shrunk(image, side) : nullptr;
    picture.pixels = decodeWithVips(small ? small.get() : image, picture.error, DecodeOn::thisThread);
}

}  // namespace

ReadPicture readSmallPicture(const std::string& path, int side) {
    ReadPicture picture;
    try {
        readSmall(path, side, picture);
    } catch (const std::bad_alloc&) {
        picture.pixels = QImage();
        picture.error = kNoMemory;
    }
    return picture;
}

}  // namespace tavrin
