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

void CreateListOfFilesInFolder(std::vector<std::string>& myFileNames, const fs::path& folder,
                               const std::atomic<bool>* stop) {
    myFileNames.clear();
    std::error_code failed;
    const auto goesOn = [&] { return !failed && !(stop && *stop); };
    for (fs::directory_iterator entry(folder, failed), end; goesOn() && entry != end; entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        std::error_code ignored;
        if (entry->is_directory(ignored)) {
            logTrace("***** Folder Name: " + name);
            continue;
        }
        if (!isPhoto(entry->path())) continue;
        logTrace("***** File Name: " + name);
        logTrace("Adding Name " + entry->path().string() + ".");
        myFileNames.push_back(entry->path().string());
    }
}

}  // namespace tavrin
