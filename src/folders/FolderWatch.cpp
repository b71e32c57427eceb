#include "folders/FolderWatch.h"

#include <thread>

#ifdef __linux__
#include <map>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>
#endif

namespace tavrin {

namespace {

class PollingWatch : public FolderWatch {
  public:
    void watch(const std::vector<std::string>&) override {}
    FolderNews wait(std::chrono::milliseconds limit) override {
        std::this_thread::sleep_for(limit);
        return {};
    }
};

#ifdef __linux__

class InotifyWatch : public FolderWatch {
  public:
    InotifyWatch() : file_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}
    ~InotifyWatch() override {
        if (file_ >= 0) ::close(file_);
    }
    bool works() const { return file_ >= 0; }

    void watch(const std::vector<std::string>& folders) override {
        std::map<int, std::string> old;
        old.swap(folders_);
        for (const std::string& folder : folders) {
            const int id = ::inotify_add_watch(
                file_, folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE | IN_ONLYDIR | IN_DELETE_SELF);
            if (id >= 0) folders_[id] = folder;
        }
        for (const auto& [id, folder] : old) {
            if (!folders_.contains(id)) ::inotify_rm_watch(file_, id);
        }
    }

    FolderNews wait(std::chrono::milliseconds limit) override {
        FolderNews news;
        pollfd ready{file_, POLLIN, 0};
        if (::poll(&ready, 1, static_cast<int>(limit.count())) <= 0) return news;
        alignas(inotify_event) char buffer[64 * 1024];
        for (;;) {
            const ssize_t size = ::read(file_, buffer, sizeof buffer);
            if (size <= 0) return news;
            for (ssize_t at = 0; at < size;) {
                const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
                take(*event, news);
                at += static_cast<ssize_t>(sizeof *event) + event->len;
            }
        }
    }

  private:
    void take(const inotify_event& event, FolderNews& news) const {
        // A new folder may already hold files, and of a full queue nobody knows what was in it.
        if (event.mask & (IN_Q_OVERFLOW | IN_DELETE_SELF | IN_ISDIR)) news.lost = true;
        const auto folder = folders_.find(event.wd);
        if (folder == folders_.end() || event.len == 0 || !(event.mask & (IN_CLOSE_WRITE | IN_MOVED_TO))) return;
        news.closed.push_back(folder->second + "/" + event.name);
    }

    const int file_;
    std::map<int, std::string> folders_;
};

#endif

}  // namespace

std::unique_ptr<FolderWatch> makePollingWatch() {
    return std::make_unique<PollingWatch>();
}

std::unique_ptr<FolderWatch> makeFolderWatch() {
#ifdef __linux__
    if (auto watch = std::make_unique<InotifyWatch>(); watch->works()) return watch;
#endif
    return makePollingWatch();
}

}  // namespace tavrin
