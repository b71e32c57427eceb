#include "folders/Arrivals.h"

#include <algorithm>

namespace tavrin {

void Arrivals::beginLook() {
    std::erase_if(files_, [this](const auto& entry) { return entry.second.look < look_; });
    ++look_;
}

void Arrivals::closed(const std::string& path) {
    const std::optional<FileFacts> facts = factsOf(path);
    if (!facts) return;
    File& file = files_[path];
    file.facts = *facts;
    file.closed = true;
    file.since = std::chrono::steady_clock::now();
    file.notBefore = {};
    file.look = look_;  // it lasts until a whole look has missed it
}

namespace {

/// Files from before the watch began are mostly old ones, and nobody needs to wait for these.
bool isOld(const FileFacts& facts) {
    return isOlderThan(facts, Arrivals::kPatience);
}

}  // namespace

bool Arrivals::isComplete(const std::string& path, Time now) {
    const std::optional<FileFacts> facts = factsOf(path);
    if (!facts) {
        files_.erase(path);
        return false;
    }
    const auto [at, isNew] = files_.try_emplace(path);
    File& file = at->second;
    if (isNew || !(file.facts == *facts)) file = {*facts, now, isNew && isOld(*facts), {}, false, look_};
    file.look = look_;
    const bool rests = file.closed || now - file.since >= kRest;
    const bool complete = rests && now >= file.notBefore;
    file.waiting = !complete;
    return complete;
}

bool Arrivals::isBroken(const std::string& path, Time now) {
    const auto at = files_.find(path);
    const std::optional<FileFacts> facts = factsOf(path);
    if (at == files_.end() || !facts || !(at->second.facts == *facts)) return false;
    File& file = at->second;
    if (now - file.since >= kPatience || isOld(*facts)) return true;
    file.notBefore = file.since + kPatience;
    file.waiting = true;
    return false;
}

Arrivals::Time Arrivals::nextMoment(Time limit) const {
    for (const auto& [path, file] : files_) {
        // One that the look missed is not waited for: nothing would ever end its waiting.
        if (!file.waiting || file.look < look_) continue;
        const Time rested = file.closed ? file.since : file.since + kRest;
        limit = std::min(limit, std::max(rested, file.notBefore));
    }
    return limit;
}

}  // namespace tavrin
