#include "core/files/Places.h"

#include <filesystem>

#include <QStandardPaths>

#include "core/files/AtomicFile.h"
#include "core/files/PrivateFolder.h"

namespace tavrin {

namespace {

std::string withSlash(const std::string& folder) {
    return folder.ends_with('/') ? folder : folder + "/";
}

/// The nearest folder above one that is missing.
std::string above(const std::string& folder) {
    std::filesystem::path path = std::filesystem::path(folder).parent_path();
    std::error_code ignored;
    while (path.has_relative_path() && !std::filesystem::exists(path, ignored))
        path = path.parent_path();
    return path.string();
}

std::string ownFolderIn(QStandardPaths::StandardLocation place) {
    return withSlash(QStandardPaths::writableLocation(place).toStdString()) + "Tavrin/";
}

}  // namespace

Places& Places::current() {
    static Places places;
    return places;
}

Places::Places()
    : shared_(ownFolderIn(QStandardPaths::GenericDataLocation)),
      pictures_(ownFolderIn(QStandardPaths::PicturesLocation)) {}

Places::~Places() = default;

void Places::setSharedFolder(const std::string& folder) {
    shared_ = withSlash(folder);
}

void Places::setPicturesFolder(const std::string& folder) {
    pictures_ = withSlash(folder);
}

std::string Places::usePrivateTempFiles() {
    // Asked for one that is not there, QDir would name the root of the disk.
    std::error_code failed;
    const std::string place = std::filesystem::temp_directory_path(failed).string();
    if (failed) return "There is no folder for temporary files (TMPDIR).";
    PrivateFolder::removeAbandoned(place);
    auto folder = std::make_unique<PrivateFolder>(place);
    if (folder->path().empty()) return "No folder for temporary files can be made in " + place + ".";
    privateTempFiles_ = std::move(folder);
    tempFiles_ = withSlash(privateTempFiles_->path());
    return "";
}

std::string Places::createFolders() const {
    for (const std::string& folder :
         {xmlFolder(), tempFilesFolder(), samplePortraitsFolder(), sampleBackgroundsFolder(), textIconsFolder(),
          frameFolder(), overlaysFolder(), sketchFolder()}) {
        std::error_code problem;
        std::filesystem::create_directories(folder, problem);
        if (problem)
            return "The folder " + folder + " cannot be made: " + writeProblem(problem.value(), above(folder)) + ".";
    }
    return "";
}

}  // namespace tavrin
