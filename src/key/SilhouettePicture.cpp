#include "key/SilhouettePicture.h"

#include <algorithm>

#include "core/image/ImageReader.h"

namespace tavrin {

bool loadSilhouette(const SystemInfo& info, CombineParams& params, QImage& picture) {
    const std::string path = info.sSilhouetteFileName;
    if (path.empty() || !info.bOutputSilhouette) return true;

    picture = myCreateImageUsingImageSourceFromFile(path).convertToFormat(QImage::Format_RGBA8888);
    if (picture.isNull()) return false;

    // A slider moves the picture by its own size from one end to the other.
    const auto shift = [](std::int64_t length, std::int64_t slider) { return length * (slider - 50) / 50; };
    const auto [width, height] = params.size;
    SilhouetteFill& fill = params.finish.silhouette;
    fill.pixels = picture.constBits();
    fill.width = picture.width();
    fill.height = picture.height();
    fill.scale = std::min(static_cast<double>(fill.height) / height, static_cast<double>(fill.width) / width);
    fill.rowShift = shift(fill.height, info.iSliderlSilhouetteY);
    fill.columnShift = shift(fill.width, info.iSliderlSilhouetteX);
    return true;
}

}  // namespace tavrin
