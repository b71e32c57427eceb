#include "core/state/NamedPictures.h"

#include <algorithm>

#include "core/files/StandardPath.h"
#include "core/image/PictureCache.h"
#include "core/state/SettingNames.h"

namespace tavrin {

QImage readNamedPicture(SystemInfo& info, const std::string& path, const char* leftOut, int width, int height) {
    std::string problem = path.empty() ? "no file is named" : "";
    const QImage picture = path.empty() ? QImage() : readKeptPicture(path, width, height, &problem);
    if (!picture.isNull()) {
        info.missingPictures.erase(path);
        return picture;
    }
    if (info.missingPictures.insert(path).second) {
        info.alert("Cound not load file: " + lastPathComponent(path) + ", check your file permissions",
                   problem + "; " + leftOut);
    }
    return {};
}

void forgetUnnamedPictures(SystemInfo& info) {
    if (info.missingPictures.empty()) return;
    const auto settings = listFields(info);
    std::erase_if(info.missingPictures, [&](const std::string& path) {
        return std::none_of(settings.begin(), settings.end(),
                            [&](const auto& field) { return field.second == path; });
    });
}

}  // namespace tavrin
