#include "pipeline/SaveImage.h"

#include <QBuffer>

#include "core/files/AtomicFile.h"
#include "core/image/ImageWriter.h"
#include "core/image/PictureTypes.h"
#include "core/state/NamedFiles.h"

namespace tavrin {

namespace {

bool refuse(SystemInfo& info, const std::string& reason) {
    info.alert("You cannot save an image to selected location\nYou must have program write permisson set", reason);
    return false;
}

/// Whether the combined picture, and with it the key's alpha, is that of the present settings; alerts when not.
bool isFinished(SystemInfo& info, const std::string& path, Resolution resolution) {
    const std::string problem = info.whyNotFinished(resolution);
    if (!problem.empty()) info.alert("The picture is not saved.", path + ": " + problem + ".");
    return problem.empty();
}

QImage matteOf(ConstPixelView picture) {
    QImage matte(picture.width, picture.height, QImage::Format_Grayscale8);
    for (int y = 0; y < matte.height(); ++y) {
        std::uint8_t* row = matte.scanLine(y);
        for (int x = 0; x < picture.width; ++x)
            row[x] = picture.at(x, y)[3];
    }
    return matte;
}

}  // namespace

int fileTypeForPath(const std::string& path) {
    const PictureType* type = typeOfName(path);
    return type ? type->fileType : 0;
}

bool saveImageToDisk(SystemInfo& info, const std::string& path, int theFileType, int myRes, const KnownFiles& sources,
                     const std::atomic<bool>* stop) {
    if (theFileType < kJpegFile || theFileType > kTiffFile) {
        return refuse(info, path + ": there is no file type " + std::to_string(theFileType) + ".");
    }
    const Resolution resolution = fullIf(myRes == 1);
    if (!isFinished(info, path, resolution)) return false;
    const PassGeometry size = info.geometry(resolution);
    const std::uint8_t* pixels = info.pCombinedBitmapInfo->bytes(resolution);
    if (const std::string problem = whyNotOver(info, path); !problem.empty()) return refuse(info, problem + ".");
    if (const std::string* source = sources.find(path)) return refuse(info, overwritesInput(path, *source) + ".");

    const std::string error = writePicture(
        path, {pixels, size.width, size.height, theFileType, size.dpi, info.pForegroundBitmapInfo->sourceExif, stop});
    if (error == kWritingStopped) return false;
    return error.empty() || refuse(info, path + ": " + error + ".");
}

bool saveMatteToDisk(SystemInfo& info, const std::string& path, int myRes) {
    const Resolution resolution = fullIf(myRes == 1);
    if (!isFinished(info, path, resolution)) return false;
    if (const std::string problem = whyNotOver(info, path); !problem.empty()) return refuse(info, problem + ".");
    const QImage matte = matteOf(info.pixels(*info.pBackgroundBitmapInfo, resolution));
    QBuffer png;
    if (matte.isNull() || !png.open(QBuffer::WriteOnly) || !matte.save(&png, "PNG"))
        return refuse(info, path + ": there is not enough memory for it.");
    AtomicFile file(path);
    file.write(png.data().constData(), static_cast<std::size_t>(png.size()));
    return file.commit() || refuse(info, path + ": " + file.error() + ".");
}

}  // namespace tavrin
