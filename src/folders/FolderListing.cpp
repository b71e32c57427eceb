#include "folders/FolderListing.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace tavrin {

FolderListing listFolder(const std::string& folder, const std::atomic<bool>* stop) {
    FolderListing listing;
    std::error_code failed;
    const auto goesOn = [&] { return !failed && !(stop && *stop); };
    for (fs::directory_iterator entry(folder, failed), end; goesOn() && entry != end; entry.increment(failed))
        listing.names.push_back(entry->path().filename().string());
    if (failed) listing.problem = "The folder " + folder + " cannot be read: " + failed.message() + ".";
    return listing;
}

}  // namespace tavrin
