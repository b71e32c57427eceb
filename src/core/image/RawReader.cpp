#include "core/image/RawReader.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <exception>
#include <libraw/libraw.h>
#include <memory>

#include <QBuffer>
#include <QImageReader>
#include <QTransform>

#include "core/image/FileKind.h"
#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

std::string asExifDate(std::time_t time) {
    std::tm parts{};
    if (time <= 0 || !localtime_r(&time, &parts)) return {};
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y:%m:%d %H:%M:%S", &parts);
    return text.data();
}

CameraFacts cameraOf(const LibRaw& raw) {
    CameraFacts facts;
    facts.maker = raw.imgdata.idata.make;
    facts.model = raw.imgdata.idata.model;
    facts.lens = raw.imgdata.lens.Lens;
    facts.taken = asExifDate(raw.imgdata.other.timestamp);
    facts.exposureSeconds = raw.imgdata.other.shutter;
    facts.aperture = raw.imgdata.other.aperture;
    facts.iso = raw.imgdata.other.iso_speed;
    facts.focalLength = raw.imgdata.other.focal_len;
    return facts;
}

std::string reason(int code) {
    return "it cannot be developed (" + std::string(LibRaw::strerror(code)) + ")";
}

// Opens the file and checks its sizes, the stored and the visible one.
std::string openRaw(LibRaw& raw, const std::string& path) {
    const int code = raw.open_file(path.c_str());
    if (code != LIBRAW_SUCCESS) return reason(code);
    const auto& sizes = raw.imgdata.sizes;
    const std::string error = sizeError(sizes.raw_width, sizes.raw_height);
    return error.empty() ? sizeError(sizes.iwidth, sizes.iheight) : error;
}

void setDevelopment(LibRaw& raw) {
    auto& params = raw.imgdata.params;
    params.use_camera_wb = 1;
    params.output_color = 1;  // sRGB
    params.output_bps = 8;
    params.gamm[0] = 1 / 2.4;
    params.gamm[1] = 12.92;
}

// The library writes 3 bytes a pixel (1 for grey) into rows that have room for 4: widened in place, from the right.
void widenRow(std::uint8_t* row, int width, int colours) {
    for (int x = width - 1; x >= 0; --x) {
        const std::uint8_t* from = row + static_cast<std::ptrdiff_t>(x) * colours;
        const std::uint8_t r = from[0], g = from[colours == 3 ? 1 : 0], b = from[colours == 3 ? 2 : 0];
        std::uint8_t* to = row + static_cast<std::ptrdiff_t>(x) * 4;
        to[0] = r;
        to[1] = g;
        to[2] = b;
        to[3] = 255;
    }
}

QImage takeImage(LibRaw& raw, std::string& error) {
    int width = 0, height = 0, colours = 0, bits = 0;
    raw.get_mem_image_format(&width, &height, &colours, &bits);
    if ((colours != 1 && colours != 3) || bits != 8) {
        error = "its colours are of an unknown kind";
        return {};
    }
    QImage image = newPicture(width, height, QImage::Format_RGBX8888);
    if (image.isNull()) {
        error = "there is not enough memory for it";
        return {};
    }
    const int code = raw.copy_mem_image(image.bits(), static_cast<int>(image.bytesPerLine()), 0);
    if (code != LIBRAW_SUCCESS) {
        error = reason(code);
        return {};
    }
    for (int y = 0; y < height; ++y)
        widenRow(image.scanLine(y), width, colours);
    return image;
}

/// The camera's own JPEG, decoded no larger than needed. Null when there is none that fills `side`.
QImage takePreview(LibRaw& raw, int side) {
    if (raw.unpack_thumb() != LIBRAW_SUCCESS || raw.imgdata.thumbnail.tformat != LIBRAW_THUMBNAIL_JPEG) return {};
    const auto& thumb = raw.imgdata.thumbnail;
    QByteArray bytes = QByteArray::fromRawData(thumb.thumb, static_cast<qsizetype>(thumb.tlength));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    const QSize size = reader.size();
    if (std::max(size.width(), size.height()) < side || !sizeError(size.width(), size.height()).empty()) return {};
    reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage small = reader.read().convertToFormat(QImage::Format_RGBX8888);
    const int flip = raw.imgdata.sizes.flip;  // as the library counts: 3 upside down, 5 and 6 on their sides
    const double degrees = flip == 3 ? 180 : flip == 5 ? -90 : flip == 6 ? 90 : 0;
    return degrees == 0 ? small : small.transformed(QTransform().rotate(degrees));
}

void develop(LibRaw& raw, const std::string& path, RawPicture& picture, bool half = false) {
    bool damaged = false;
    // The library goes on over damaged data and past the end of the file, but a picture of noise helps nobody.
    raw.set_dataerror_handler([](void* flag, const char*, auto) { *static_cast<bool*>(flag) = true; }, &damaged);
    setDevelopment(raw);
    raw.imgdata.params.half_size = half ? 1 : 0;
    picture.error = openRaw(raw, path);
    if (!picture.error.empty()) return;
    picture.camera = cameraOf(raw);
    int code = raw.unpack();
    if (damaged) {
        picture.error = "it is damaged or cut short";
        return;
    }
    if (code == LIBRAW_SUCCESS) code = raw.dcraw_process();
    if (code != LIBRAW_SUCCESS) {
        picture.error = reason(code);
        return;
    }
    picture.pixels = takeImage(raw, picture.error);
}

}  // namespace

RawFacts readRawFacts(const std::string& path) {
    RawFacts facts;
    try {
        const auto raw = std::make_unique<LibRaw>();
        facts.error = openRaw(*raw, path);
        if (!facts.error.empty()) return facts;
        const auto& sizes = raw->imgdata.sizes;
        const bool turned = sizes.flip & 4;
        facts.width = turned ? sizes.iheight : sizes.iwidth;
        facts.height = turned ? sizes.iwidth : sizes.iheight;
        for (unsigned top = raw->imgdata.color.maximum; top > 0; top >>= 1)
            ++facts.bits;
        facts.camera = cameraOf(*raw);
    } catch (const std::exception& error) {
        facts.error = std::string("it cannot be developed (") + error.what() + ")";
    }
    return facts;
}

RawPicture readRaw(const std::string& path) {
    RawPicture picture;
    try {
        const auto raw = std::make_unique<LibRaw>();
        develop(*raw, path, picture);
    } catch (const std::exception& error) {
        picture.error = std::string("it cannot be developed (") + error.what() + ")";
    }
    return picture;
}

RawPicture readRawPreview(const std::string& path, int side) {
    RawPicture picture;
    try {
        const auto raw = std::make_unique<LibRaw>();
        picture.error = openRaw(*raw, path);
        if (picture.error.empty()) picture.pixels = takePreview(*raw, side);
        if (!picture.error.empty() || !picture.pixels.isNull()) return picture;
        raw->recycle();
        develop(*raw, path, picture, true);
    } catch (const std::exception& error) {
        picture.error = std::string("it cannot be developed (") + error.what() + ")";
    }
    return picture;
}

}  // namespace tavrin
