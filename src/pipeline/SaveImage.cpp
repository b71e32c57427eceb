#include "pipeline/SaveImage.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include <QBuffer>

#include "core/AtomicFile.h"
#include "core/image/ImageWriter.h"

namespace tavrin {

namespace {

bool refuse(SystemInfo& info, const std::string& reason) {
    info.alert("You cannot save an image to selected location\nYou must have program write permisson set", reason);
    return false;
}

QImage matteOf(const std::uint8_t* pixels, int width, int height) {
    QImage matte(width, height, QImage::Format_Grayscale8);
    for (int y = 0; y < matte.height(); ++y) {
        std::uint8_t* row = matte.scanLine(y);
        for (int x = 0; x < width; ++x)
            row[x] = pixels[pixelOffset(width, x, y) + 3];
    }
    return matte;
}

}  // namespace

int fileTypeForPath(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".jpg" || extension == ".jpeg") return kJpegFile;
    if (extension == ".png") return kPngFile;
    if (extension == ".tif" || extension == ".tiff") return kTiffFile;
    return 0;
}

bool saveImageToDisk(SystemInfo& info, const std::string& path, int theFileType, int myRes) {
    if (theFileType < kJpegFile || theFileType > kTiffFile) {
        return refuse(info, path + ": there is no file type " + std::to_string(theFileType) + ".");
    }
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    const PassGeometry size = info.geometry(myRes);
    const std::uint8_t* pixels = myRes == 1 ? combined.pBitmapData : combined.pBitmapDataLowRes;
    if (!pixels) return refuse(info, path + ": there is no picture to save yet.");

    const std::string error = writePicture(
        path, {pixels, size.width, size.height, theFileType, size.dpi, info.pForegroundBitmapInfo->sourceExif});
    return error.empty() || refuse(info, error);
}

bool saveMatteToDisk(SystemInfo& info, const std::string& path, int myRes) {
    const BitmapInfo& background = *info.pBackgroundBitmapInfo;
    const PassGeometry size = info.geometry(myRes);
    const std::uint8_t* pixels = myRes == 1 ? background.pBitmapData : background.pBitmapDataLowRes;
    if (!pixels) return refuse(info, path + ": there is no matte to save yet.");

    QBuffer bytes;
    if (!bytes.open(QIODevice::WriteOnly) || !matteOf(pixels, size.width, size.height).save(&bytes, "PNG"))
        return refuse(info, path + ": there is not enough memory for it.");
    AtomicFile file(path);
    file.write(bytes.data().constData(), static_cast<std::size_t>(bytes.size()));
    return file.commit() || refuse(info, path + ": " + file.error() + ".");
}

}  // namespace tavrin
