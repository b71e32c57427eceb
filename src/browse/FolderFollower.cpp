#include "browse/FolderFollower.h"

#include <chrono>
#include <filesystem>
#include <utility>

#include "folders/FolderWatch.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using namespace std::chrono_literals;
constexpr auto kRest = 500ms;

FolderPictures listPictures(const std::string& folder, const std::atomic<bool>& unwanted) {
    FolderPictures pictures{folder, {}, {}};
    std::vector<std::string> names = namesInFolder(folder, pictureExtensions(), &pictures.problem, &unwanted);
    std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
    sortAsPeopleDo(names);
    pictures.paths.reserve(names.size());
    for (const std::string& name : names)
        pictures.paths.push_back((fs::path(folder) / name).string());
    return pictures;
}

/// A folder that is gone has the earliest of all times.
fs::file_time_type timeOf(const std::string& folder) {
    std::error_code gone;
    const auto time = fs::last_write_time(folder, gone);
    return gone ? fs::file_time_type::min() : time;
}

}  // namespace

FolderFollower::FolderFollower(Told told)
    : told_(std::move(told)), thread_([this](const std::stop_token& ended) { work(ended); }) {}

FolderFollower::~FolderFollower() {
    isUnwanted_ = true;
    thread_.request_stop();
    thread_.join();
}

void FolderFollower::follow(const std::string& folder) {
    std::lock_guard lock(mutex_);
    if (folder != folder_) isNew_ = isUnwanted_ = true;
    folder_ = folder;
    changed_.notify_all();
}

/// New and missing names change the folder's time, also on a share that tells no news; that a file has been written
/// to its end only news tell.
void FolderFollower::work(const std::stop_token& ended) {
    const std::unique_ptr<FolderWatch> watch = makeFolderWatch();
    fs::file_time_type listed;
    std::unique_lock lock(mutex_);
    while (!ended.stop_requested()) {
        changed_.wait_for(lock, ended, folder_.empty() ? 24h : kRest, [this] { return isNew_; });
        const bool isNew = std::exchange(isNew_, false);
        const std::string folder = folder_;
        isUnwanted_ = false;
        if (ended.stop_requested() || folder.empty()) continue;
        lock.unlock();
        if (isNew) watch->watch({folder});
        const FolderNews news = watch->wait(0ms);
        const auto now = timeOf(folder);
        if (isNew || news.lost || !news.closed.empty() || now != listed) {
            FolderPictures pictures = listPictures(folder, isUnwanted_);
            if (!isUnwanted_) told_(std::move(pictures));
        }
        listed = now;
        lock.lock();
    }
}

}  // namespace tavrin
