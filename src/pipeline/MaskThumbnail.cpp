#include "pipeline/MaskThumbnail.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "core/raster/Pixels.h"
#include "core/raster/Rows.h"
#include "pipeline/SaveImage.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

void drawMask(const SystemInfo& info, std::uint8_t* out) {
    const std::uint8_t* alpha = info.pBackgroundBitmapInfo->pBitmapData;
    const std::int64_t fullWidth = info.iOutputPixelWidth, fullHeight = info.iOutputPixelHeight;
    const int width = info.iOutputPixelLowResWidth, height = info.iOutputPixelLowResHeight;
    runRows({}, height, 32, [&](int y) {
        const int fromY = static_cast<int>(y * fullHeight / height);
        for (int x = 0; x < width; ++x) {
            const int fromX = static_cast<int>(x * fullWidth / width);
            const std::uint8_t from = alpha[pixelOffset(static_cast<int>(fullWidth), fromX, fromY) + 3];
            std::fill_n(out + pixelOffset(width, x, y), 3, static_cast<std::uint8_t>(255 - from));
        }
    });
}

}  // namespace

bool saveMaskThumbnail(SystemInfo& info, const std::string& picture, int theFileType) {
    std::uint8_t* preview = info.pCombinedBitmapInfo->pBitmapDataLowRes;
    if (!preview || !info.pBackgroundBitmapInfo->pBitmapData) return false;
    const fs::path thumbs = fs::path(picture).parent_path() / "Thumbs";
    std::error_code problem;  // a folder that is not there is told by the save
    fs::create_directories(thumbs, problem);
    const std::size_t bytes = pixelOffset(info.iOutputPixelLowResWidth, 0, info.iOutputPixelLowResHeight);
    const std::vector<std::uint8_t> shown(preview, preview + bytes);
    drawMask(info, preview);
    const std::string name = "TQTQ" + fs::path(picture).filename().string();
    const bool done = saveImageToDisk(info, (thumbs / name).string(), theFileType, 0);
    std::ranges::copy(shown, preview);
    return done;
}

}  // namespace tavrin
