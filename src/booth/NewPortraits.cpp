#include "booth/NewPortraits.h"

#include <chrono>
#include <map>
#include <mutex>
#include <optional>

#include "folders/Arrivals.h"
#include "folders/FileFacts.h"
#include "folders/FolderWatch.h"
#include "folders/NextFileInFolder.h"

namespace tavrin {

using std::chrono::milliseconds;

struct NewPortraits::Known {
    mutable std::mutex mutex;
    std::map<std::string, FileFacts> whole;  ///< by path
    std::map<std::string, FileFacts> arriving;
};

NewPortraits::NewPortraits(std::string folder, std::function<void()> changed)
    : folder_(std::move(folder)),
      changed_(std::move(changed)),
      known_(std::make_unique<Known>()),
      thread_([this](const std::stop_token& ended) { watch(ended); }) {}

NewPortraits::~NewPortraits() = default;

bool NewPortraits::isWhole(const std::string& path) const {
    std::lock_guard lock(known_->mutex);
    return !known_->arriving.contains(path);
}

/// A file that has been looked at and stands as it did costs one look at its facts.
void NewPortraits::watch(const std::stop_token& ended) {
    constexpr milliseconds kLook{100}, kPoll{500};
    const std::unique_ptr<FolderWatch> news = makeFolderWatch();
    Arrivals arrivals;
    auto next = std::chrono::steady_clock::now();
    while (!ended.stop_requested()) {
        news->watch({folder_});  // again and again: the folder may come back as another one
        const FolderNews told = news->wait(kLook);
        for (const std::string& path : told.closed)
            arrivals.closed(path);
        const auto now = std::chrono::steady_clock::now();
        if (told.closed.empty() && !told.lost && now < std::min(next, arrivals.nextMoment(next))) continue;
        arrivals.beginLook();
        std::map<std::string, FileFacts> whole, arriving;
        for (const std::string& name : namesInFolder(folder_, pictureExtensions())) {
            const std::string path = folder_ + "/" + name;
            const std::optional<FileFacts> facts = factsOf(path);
            if (facts) (arrivals.isComplete(path, now) ? whole : arriving)[path] = *facts;
        }
        bool isNew = false;
        {
            std::lock_guard lock(known_->mutex);
            isNew = whole != known_->whole;
            known_->whole = std::move(whole);
            known_->arriving = std::move(arriving);
        }
        if (isNew) changed_();
        // A look at a large folder of another machine takes its time, which is not to be all the time.
        const auto end = std::chrono::steady_clock::now();
        next = std::max(now + milliseconds(kPoll), end + 4 * (end - now));
    }
}

}  // namespace tavrin
