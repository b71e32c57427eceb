#include "folders/FolderListing.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace tavrin {

FolderListing listFolder(const std::string& folder) {
    FolderListing listing;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        listing.names.push_back(entry->path().filename().string());
    if (failed) listing.problem = "The folder " + folder + " cannot be read: " + failed.message() + ".";
    return listing;
}

}  // namespace tavrin
