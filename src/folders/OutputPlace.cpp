#include "folders/OutputPlace.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace tavrin {

namespace {

std::string realPath(const fs::path& path) {
    std::error_code failed;
    const fs::path real = fs::weakly_canonical(fs::absolute(path.empty() ? "." : path), failed);
    return failed ? std::string() : real.string();
}

bool isWithin(const std::string& path, const std::string& folder) {
    return path == folder || folder == "/" || path.starts_with(folder + "/");
}

}  // namespace

std::string whyOutside(const std::string& folder, const std::string& picture) {
    const std::string own = fs::path(picture).parent_path().string();
    const std::string base = realPath(!folder.empty() && picture.starts_with(folder + "/") ? folder : own);
    if (!isWithin(realPath(own), base)) return "its folder leads out of " + folder;
    std::error_code ignored;
    if (!fs::is_symlink(picture, ignored) || isWithin(realPath(picture), base)) return "";
    return "there is a link of this name that leads out of " + (own.empty() ? "the folder" : own);
}

}  // namespace tavrin
