#include "booth/BoothFolder.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <map>
#include <mutex>
#include <sys/stat.h>
#include <utility>

#include "core/files/AtomicFile.h"
#include "folders/FolderListing.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// Which folders lay where when this process last used them, by device and number.
class KnownFolders {
  public:
    using Identity = std::pair<dev_t, ino_t>;

    void forget(const std::string& path) {
        std::lock_guard lock(mutex_);
        folders_.erase(path);
    }
    /// @return whether it is the one of before, or there is none of before
    bool isSame(const std::string& path, const Identity& identity) {
        std::lock_guard lock(mutex_);
        const auto at = folders_.find(path);
        return at == folders_.end() || at->second == identity;
    }
    void note(const std::string& path, const Identity& identity) {
        std::lock_guard lock(mutex_);
        folders_[path] = identity;
    }

  private:
    std::mutex mutex_;
    std::map<std::string, Identity> folders_;
};

KnownFolders& knownFolders() {
    static KnownFolders known;
    return known;
}

}  // namespace

BoothFolder::BoothFolder(std::string output) : output_(std::move(output)) {
    if (!output_.ends_with('/')) output_ += '/';
}

std::string BoothFolder::prepare() const {
    if (output_ == "/") return "No folder is chosen for the event's pictures.";
    struct stat facts {};
    if (::stat(output_.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode))
        return "The output folder " + output_ + " is not there.";
    const KnownFolders::Identity identity{facts.st_dev, facts.st_ino};
    struct stat ignored {};
    const bool isUsed = ::stat(hidden().c_str(), &ignored) == 0;
    if (!isUsed && !knownFolders().isSame(output_, identity))
        return "Another folder lies at " + output_ + " than before; a disk may not be connected.";
    // Only this one is made: a folder that is not there may be a disk that is not connected.
    if (!isUsed && ::mkdir(hidden().c_str(), 0777) != 0 && errno != EEXIST)
        return "Nothing can be saved in the output folder: " + writeProblem(errno, output_) + ".";
    knownFolders().note(output_, identity);
    return "";
}

std::string BoothFolder::adopt() const {
    knownFolders().forget(output_);
    return prepare();
}

void BoothFolder::removeLeftovers() const {
    constexpr std::chrono::hours kAge{1};  // a younger one may be under work
    AtomicFile::removeAbandonedParts(hidden());
    for (const std::string& name : listFolder(hidden()).names) {
        const fs::path path = hidden() + name;
        const std::string extension = path.extension().string();
        std::error_code failed;
        const bool isPress = name.starts_with("press-");
        const bool isJobs = extension == ".jpg" || extension == ".own";
        if (!isPress && !(isJobs && !fs::exists(ticket(path.stem().string()), failed))) continue;
        const auto changed = fs::last_write_time(path, failed);
        if (!failed && fs::file_time_type::clock::now() - changed > kAge) fs::remove(path, failed);
    }
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
