#include "core/image/PictureTypes.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "core/image/ImageWriter.h"

namespace tavrin {

const std::vector<PictureType>& pictureTypes() {
    static const std::vector<PictureType> types = {
        {FileKind::jpeg, "JPEG", {"jpg", "jpeg"}, kJpegFile},
        {FileKind::png, "PNG", {"png"}, kPngFile},
        {FileKind::tiff, "TIFF", {"tif", "tiff"}, kTiffFile},
        {FileKind::gif, "GIF", {"gif"}},
        {FileKind::bmp, "BMP", {"bmp"}},
        {FileKind::psd, "PSD", {"psd"}},
        {FileKind::webp, "WebP", {"webp"}},
        {FileKind::heif, "HEIF", {"heic", "heif", "avif"}},
        {FileKind::raw, "camera raw", {"3fr", "arw", "cr2", "cr3", "dcr", "dng", "erf", "fff",
                                       "iiq", "k25", "kdc", "mef", "mos", "nef", "nrw", "orf",
                                       "pef", "raf", "raw", "rw2", "rwl", "sr2", "srf", "srw"}},
    };
    return types;
}

const PictureType* typeOfName(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    if (extension.empty()) return nullptr;
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto type = std::ranges::find_if(pictureTypes(), [&](const PictureType& candidate) {
        return std::ranges::find(candidate.extensions, extension.substr(1)) != candidate.extensions.end();
    });
    return type == pictureTypes().end() ? nullptr : &*type;
}

}  // namespace tavrin
