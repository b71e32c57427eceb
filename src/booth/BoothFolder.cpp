#include "booth/BoothFolder.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

#include "core/files/AtomicFile.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

BoothFolder::BoothFolder(std::string output) : output_(std::move(output)) {
    if (!output_.ends_with('/')) output_ += '/';
}

std::string BoothFolder::prepare() const {
    if (output_ == "/") return "No folder is chosen for the event's pictures.";
    std::error_code failed;
    if (!fs::is_directory(output_, failed)) return "The output folder " + output_ + " is not there.";
    // Only this one is made: a folder that is not there may be a disk that is not connected.
    if (::mkdir(hidden().c_str(), 0777) == 0 || errno == EEXIST) return "";
    return "Nothing can be saved in the output folder: " + writeProblem(errno, output_) + ".";
}

bool BoothFolder::hasPhoto(const std::string& stem) const {
    for (const std::string& extension : photoExtensions()) {
        std::string small = extension, name = extension;
        for (char& c : small)
            c = static_cast<char>(c - 'A' + 'a');
        name.replace(1, std::string::npos, small, 1);
        for (const std::string& one : {small, extension, name}) {
            std::error_code failed;
            if (fs::exists(fs::symlink_status(output_ + stem + "." + one, failed))) return true;
        }
    }
    return false;
}

}  // namespace tavrin
