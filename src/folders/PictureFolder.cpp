#include "folders/PictureFolder.h"

#include "core/Log.h"
#include "core/image/PictureTypes.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

bool isPhoto(const fs::path& path) {
    const PictureType* type = typeOfName(path.string());
    return type && type->fileType != 0;
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
        if (!isPhoto(entry->path())) continue;
        logTrace("***** File Name: " + name);
        logTrace("Adding Name " + entry->path().string() + ".");
        info.myFileNames.push_back(entry->path().string());
    }
}

}  // namespace tavrin
