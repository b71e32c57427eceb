#include "session/SaveTarget.h"

#include <algorithm>
#include <cctype>

#include "core/image/ImageWriter.h"

namespace tavrin {

namespace {

struct Extension {
    const char* text;
    int type;
};
constexpr Extension kExtensions[] = {
    {".tiff", kTiffFile}, {".tif", kTiffFile}, {".png", kPngFile}, {".jpeg", kJpegFile}, {".jpg", kJpegFile}};

}  // namespace

std::string SaveTarget::picture() const {
    return stem + (type == kTiffFile ? ".tif" : type == kPngFile ? ".png" : ".jpg");
}

SaveTarget saveTargetOf(const std::string& path) {
    std::string lower = path;
    std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) { return std::tolower(c); });
    for (const Extension& extension : kExtensions) {
        const std::size_t at = lower.find(extension.text);
        if (at == std::string::npos) continue;
        return {at > 0 ? path.substr(0, at) : path, extension.type};
    }
    return {path, kJpegFile};
}

}  // namespace tavrin
