#include "core/files/PrivateFolder.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <vector>

#include <QTemporaryDir>

#include "core/files/Tenancy.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

std::string beginning() {
    return "tavrin-" + machineMark() + "-";
}

}  // namespace

PrivateFolder::PrivateFolder(const std::string& place) {
    constexpr int kTries = 10;
    const Interruption::Hold hold;
    // Another program that clears the place may meet the new folder before it is locked.
    for (int i = 0; i < kTries && handle_ < 0; ++i) {
        folder_ = std::make_unique<QTemporaryDir>(QString::fromStdString(place + "/" + beginning() + "XXXXXX"));
        if (!folder_->isValid()) return;
        handle_ = ::open(path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (handle_ < 0 || takePossession(handle_)) continue;
        ::close(handle_);
        handle_ = -1;
    }
    leftover_.emplace(path());
}

PrivateFolder::~PrivateFolder() {
    folder_.reset();
    if (handle_ >= 0) ::close(handle_);
}

std::string PrivateFolder::path() const {
    return folder_ && folder_->isValid() ? folder_->path().toStdString() : std::string();
}

void PrivateFolder::removeAbandoned(const std::string& place) {
    constexpr std::size_t kRandomLetters = 6;
    const std::string begin = beginning();
    std::vector<std::string> found;
    std::error_code failed;
    for (fs::directory_iterator entry(place, failed), end; !failed && entry != end; entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(begin) && name.size() == begin.size() + kRandomLetters)
            found.push_back(entry->path().string());
    }
    for (const std::string& path : found)
        removeIfAbandoned(path, machineMark(), [] { return false; });
}

}  // namespace tavrin
