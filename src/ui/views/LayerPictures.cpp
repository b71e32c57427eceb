#include "ui/views/LayerPictures.h"

namespace tavrin {

namespace {

QImage notLarger(const QImage& picture, QSize most) {
    if (picture.width() <= most.width()) return picture.convertToFormat(QImage::Format_RGB32);
    return picture.scaled(most, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);  // which is drawn fastest
}

}  // namespace

QImage originalPicture(const SystemInfo& info, QSize most) {
    const PassGeometry size = info.geometry(Resolution::full);
    const std::uint8_t* bytes = info.pForegroundBitmapInfo->bytes(Resolution::full);
    if (!bytes) return {};
    return notLarger(QImage(bytes, size.width, size.height, QImage::Format_RGBX8888), most);
}

QImage alphaPicture(const SystemInfo& info, QSize most) {
    const PassGeometry size = info.geometry(Resolution::full);
    const std::uint8_t* bytes = info.pBackgroundBitmapInfo->bytes(Resolution::full);
    if (!bytes) return {};
    QImage grey(size.width, size.height, QImage::Format_Grayscale8);
    for (int y = 0; y < size.height; ++y) {
        std::uint8_t* row = grey.scanLine(y);
        for (int x = 0; x < size.width; ++x, bytes += 4)
            row[x] = static_cast<std::uint8_t>(255 - bytes[3]);
    }
    return notLarger(grey, most);
}

}  // namespace tavrin
