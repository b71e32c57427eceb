#include "folders/PictureFolder.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "core/Log.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

bool hasPictureExtension(const fs::path& path) {
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    constexpr std::array known = {".JPG", ".JPEG", ".PNG", ".TIF", ".TIFF"};
    return std::find(known.begin(), known.end(), extension) != known.end();
}

}  // namespace

void CreateListOfFilesInFolder(SystemInfo& info, const fs::path& folder) {
    info.myFileNames.clear();
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        std::error_code ignored;
        if (entry->is_directory(ignored)) {
            logTrace("***** Folder Name: " + name);
            continue;
        }
        if (!hasPictureExtension(entry->path())) continue;
        logTrace("***** File Name: " + name);
        logTrace("Adding Name " + entry->path().string() + ".");
        info.myFileNames.push_back(entry->path().string());
    }
}

}  // namespace tavrin
