#include "pipeline/SaveImage.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include <QBuffer>

#include "core/files/AtomicFile.h"
#include "core/image/ImageWriter.h"
#include "core/state/NamedFiles.h"

namespace tavrin {

namespace {

bool refuse(SystemInfo& info, const std::string& reason) {
    info.alert("You cannot save an image to selected location\nYou must have program write permisson set", reason);
    return false;
}

/// Whether the combined picture, and with it the key's alpha, is that of the present settings; alerts when not.
bool isFinished(SystemInfo& info, const std::string& path, int res) {
    const std::string problem = info.whyNotFinished(res);
    if (!problem.empty()) info.alert("The picture is not saved.", path + ": " + problem + ".");
    return problem.empty();
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

bool saveImageToDisk(SystemInfo& info, const std::string& path, int theFileType, int myRes,
                     const KnownFiles& sources) {
    if (theFileType < kJpegFile || theFileType > kTiffFile) {
        return refuse(info, path + ": there is no file type " + std::to_string(theFileType) + ".");
    }
    if (!isFinished(info, path, myRes)) return false;
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    const PassGeometry size = info.geometry(myRes);
    const std::uint8_t* pixels = myRes == 1 ? combined.pBitmapData : combined.pBitmapDataLowRes;
    if (const std::string problem = whyNotOver(info, path); !problem.empty()) return refuse(info, problem + ".");
    if (const std::string* source = sources.find(path)) return refuse(info, overwritesInput(path, *source) + ".");

    const std::string error = writePicture(
        path, {pixels, size.width, size.height, theFileType, size.dpi, info.pForegroundBitmapInfo->sourceExif});
    return error.empty() || refuse(info, path + ": " + error + ".");
}

bool saveMatteToDisk(SystemInfo& info, const std::string& path, int myRes) {
    if (!isFinished(info, path, myRes)) return false;
    const BitmapInfo& background = *info.pBackgroundBitmapInfo;
    const PassGeometry size = info.geometry(myRes);
    const std::uint8_t* pixels = myRes == 1 ? background.pBitmapData : background.pBitmapDataLowRes;

    if (const std::string problem = whyNotOver(info, path); !problem.empty()) return refuse(info, problem + ".");
    const QImage matte = matteOf(pixels, size.width, size.height);
    QBuffer png;
    if (matte.isNull() || !png.open(QBuffer::WriteOnly) || !matte.save(&png, "PNG"))
        return refuse(info, path + ": there is not enough memory for it.");
    AtomicFile file(path);
    file.write(png.data().constData(), static_cast<std::size_t>(png.size()));
    return file.commit() || refuse(info, path + ": " + file.error() + ".");
}

}  // namespace tavrin
