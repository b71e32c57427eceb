#include "browse/ReadAhead.h"

#include <algorithm>
#include <numeric>

#include "core/Log.h"

namespace tavrin {

namespace {

std::size_t bytesOf(const ReadPicture& picture) {
    return static_cast<std::size_t>(picture.pixels.sizeInBytes());
}

}  // namespace

ReadAhead::ReadAhead() : thread_([this](const std::stop_token& ended) { work(ended); }) {}

ReadAhead::~ReadAhead() = default;

void ReadAhead::want(std::vector<std::string> paths) {
    std::lock_guard lock(mutex_);
    wanted_ = std::move(paths);
    ready_.remove_if([this](const Ready& ready) { return std::ranges::find(wanted_, ready.path) == wanted_.end(); });
    changed_.notify_all();
}

std::list<ReadAhead::Ready>::iterator ReadAhead::find(const std::string& path) {
    return std::ranges::find(ready_, path, &Ready::path);
}

bool ReadAhead::has(const std::string& path) {
    std::lock_guard lock(mutex_);
    return find(path) != ready_.end();
}

/// What is wanted and neither there nor known to fail; "" for nothing.
std::string ReadAhead::nextWanted() {
    const auto next =
        std::ranges::find_if(wanted_, [this](const std::string& path) { return find(path) == ready_.end(); });
    return next == wanted_.end() ? std::string() : *next;
}

void ReadAhead::keep(Ready ready) {
    const auto held = [](std::size_t sum, const Ready& other) { return sum + bytesOf(other.picture); };
    const std::size_t sum = std::accumulate(ready_.begin(), ready_.end(), bytesOf(ready.picture), held);
    if (sum > kMostBytes) ready.picture = ReadPicture();  // known, and read when it is asked for
    ready_.remove_if([&](const Ready& other) { return other.path == ready.path; });
    ready_.push_back(std::move(ready));
}

void ReadAhead::work(const std::stop_token& ended) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, ended, [this] { return !nextWanted().empty(); })) {
        underWork_ = nextWanted();
        lock.unlock();
        Ready ready{underWork_, {}, {}};
        if (const std::optional<FileFacts> facts = factsOf(ready.path)) {
            ready.facts = *facts;
            ready.picture = readPicture(ready.path);
        }
        lock.lock();
        underWork_.clear();
        if (std::ranges::find(wanted_, ready.path) != wanted_.end()) keep(std::move(ready));
        changed_.notify_all();
    }
}

std::optional<ReadPicture> ReadAhead::take(const std::string& path, const std::optional<FileFacts>& facts) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return underWork_ != path; });
    const auto ready = find(path);
    if (ready == ready_.end() || !facts || ready->facts != *facts || ready->picture.pixels.isNull()) return {};
    return ready->picture;
}

ReadPicture ReadAhead::read(const std::string& path) {
    const std::optional<FileFacts> facts = factsOf(path);
    std::optional<ReadPicture> ready = take(path, facts);
    ReadPicture picture = ready ? std::move(*ready) : readPicture(path);
    if (picture.error == kNoMemory) {
        want({});
        picture = readPicture(path);
    }
    if (!picture.damage.empty()) logWarning(path + ": " + picture.damage + ".");
    if (ready || !facts || !picture.error.empty()) return picture;
    std::lock_guard lock(mutex_);
    keep({path, *facts, picture});
    return picture;
}

}  // namespace tavrin
