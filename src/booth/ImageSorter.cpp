#include "booth/ImageSorter.h"

#include <filesystem>

#include "core/Interruption.h"
#include "core/files/StandardPath.h"
#include "core/image/ImageReader.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// The name of a part that is not a whole picture yet: no listing takes it for a photo.
fs::path partOf(const fs::path& target) {
    return target.parent_path() / ("." + target.filename().string() + ".part");
}

/// Copies a file under a name that is free, whole or not at all.
/// @param error says why not
/// @return whether it is there now; false without an error when the name was taken
bool copyWhole(const fs::path& source, const fs::path& target, std::error_code& error) {
    const fs::path part = partOf(target);
    const Leftover ends(part.string());
    std::error_code ignored;
    if (!fs::copy_file(source, part, fs::copy_options::overwrite_existing, error)) {
        fs::remove(part, ignored);
        return false;
    }
    // A link takes no name that is there. Where the disk has no links, the look at the name has to do.
    fs::create_hard_link(part, target, error);
    if (error && !fs::exists(fs::symlink_status(target, ignored))) {
        error.clear();
        fs::rename(part, target, error);
    } else if (error) {
        error.clear();
        fs::remove(part, ignored);
        return false;
    }
    fs::remove(part, ignored);
    return !error;
}

void copyInto(const fs::path& photo, const fs::path& folder, SortedImages& sorted) {
    const fs::path target = folder / photo.filename();
    std::error_code error;
    if (fs::exists(fs::symlink_status(target, error))) {
        const bool isSame = fs::file_size(target, error) == fs::file_size(photo, error);
        if (isSame && !error) {
            ++sorted.alreadyThere;
        } else {
            sorted.failures.push_back(photo.string() + ": " + target.string() +
                                      " is there already, and another one.");
        }
    } else if (copyWhole(photo, target, error)) {
        ++sorted.copied;
    } else {
        sorted.failures.push_back(photo.string() + ": it cannot be copied to " + folder.string() +
                                  (error ? ": " + error.message() : std::string()) + ".");
    }
}

}  // namespace

int ImageSorter::selectImagerSortFolder(const std::string& folder) {
    nextItemToSort.setFolderToCheck(folder);
    nextItemToSort.setHistoryFileLocation(folder, "HistorySort.dat");  // which nothing writes
    nextItemToSort.FindPhotosInFolder();
    return nextItemToSort.iFileCount;
}

bool ImageSorter::isLandscape(const std::string& photo, SortedImages& sorted) const {
    const PictureFacts facts = readPictureFacts(photo);
    if (!facts.error.empty()) sorted.failures.push_back(photo + ": " + facts.error + "; it counts as a portrait.");
    const bool isTurned = facts.orientation == 6 || facts.orientation == 8;
    return facts.error.empty() && facts.fileWidth > facts.fileHeight && !isTurned;
}

SortedImages ImageSorter::sortImagesInFolder(const Progress& progress, const std::atomic<bool>* stop) {
    SortedImages sorted;
    const fs::path folder = standardizePath(nextItemToSort.sFolderToCheck);
    std::error_code failed;
    if (!fs::is_directory(folder, failed)) {
        sorted.problem = folder.empty() ? "No folder is chosen." : "The folder " + folder.string() + " is not there.";
        return sorted;
    }
    const fs::path upright = folder / "Portrait", wide = folder / "Landscape";
    for (const fs::path& made : {upright, wide}) {
        fs::create_directories(made, failed);
        if (failed) sorted.problem = "The folder " + made.string() + " cannot be made: " + failed.message() + ".";
        if (failed) return sorted;
    }
    for (const std::string& name : nextItemToSort.oFilesInFolder) {
        if (stop && *stop) {
            sorted.stopped = true;
            break;
        }
        const fs::path photo = folder / name;
        const bool isWide = isLandscape(photo.string(), sorted);
        ++(isWide ? sorted.landscape : sorted.portrait);
        if (progress) progress(sorted.landscape, sorted.portrait);
        copyInto(photo, isWide ? wide : upright, sorted);
    }
    return sorted;
}

}  // namespace tavrin
