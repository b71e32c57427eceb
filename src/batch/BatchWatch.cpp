// The part of a batch run that waits for files.
#include <filesystem>

#include "batch/BatchRun.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Clock = std::chrono::steady_clock;

/// How often a run looks for itself, since news from other machines do not get through; less often where the look
/// takes long.
constexpr std::chrono::milliseconds kPoll{2000};
constexpr int kPauseForLook = 20;
/// How soon it notices that it should stop.
constexpr std::chrono::milliseconds kSlice{200};

std::vector<FileFacts> factsOf(const BatchJob& job) {
    std::vector<FileFacts> facts;
    for (const std::string& path : {job.foreground, job.background, job.state})
        facts.push_back(tavrin::factsOf(path).value_or(FileFacts()));
    return facts;
}

}  // namespace

std::vector<std::string> BatchRun::watchedFolders() const {
    std::vector<std::string> folders;
    std::error_code failed;
    for (const std::string& place :
         {options_.sources.foregrounds, options_.sources.backgrounds, options_.sources.states}) {
        if (fs::is_directory(place, failed)) folders.push_back(place);
    }
    if (!options_.sources.subfolders) return folders;
    for (fs::directory_iterator entry(options_.sources.foregrounds, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code ignored;
        if (entry->is_directory(ignored)) folders.push_back(entry->path().string());
    }
    return folders;
}

void BatchRun::watchFolders() {
    const auto watch = options_.pollOnly ? makePollingWatch() : makeFolderWatch();
    while (mayGoOn()) {
        const Clock::time_point look = Clock::now();
        watch->watch(watchedFolders());
        for (const std::string& path : watch->wait(std::chrono::milliseconds(0)).closed)
            arrivals_.closed(path);
        JobList list = plan([this](const std::string& path) { return arrivals_.isComplete(path); });
        std::erase_if(list.jobs, [this](const BatchJob& job) { return isHandled(job); });
        const Clock::duration pause = std::max<Clock::duration>(kPoll, (Clock::now() - look) * kPauseForLook);
        counts_.jobs = counts_.done + counts_.skipped + counts_.failed + static_cast<int>(list.jobs.size());
        if (!list.jobs.empty()) make(list.jobs);
        if (!mayGoOn()) break;
        waitForNews(*watch, pause);
    }
    report_.begin("1/1", counts_.done + counts_.skipped + counts_.failed, "");
}

void BatchRun::waitForNews(FolderWatch& watch, Clock::duration pause) {
    observer_.idle(counts_);
    const Clock::time_point until = arrivals_.nextMoment(Clock::now() + pause);
    while (mayGoOn() && Clock::now() < until) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
        const FolderNews news = watch.wait(std::min(left, kSlice));
        for (const std::string& path : news.closed)
            arrivals_.closed(path);
        if (!news.closed.empty() || news.lost) return;
    }
}

/// A job that was seen before and whose files have not changed since, or one that an earlier run did.
bool BatchRun::isHandled(const BatchJob& job) {
    std::vector<FileFacts> facts = factsOf(job);
    const auto known = handled_.find(job.name);
    if (known != handled_.end()) return known->second == facts;
    bool failedBefore = false;
    if (!job.problem.empty() || whyNot(job, failedBefore).empty()) return false;
    handled_[job.name] = std::move(facts);
    return true;
}

/// @return false when nothing is to be told: the job will come again, or its files are gone
bool BatchRun::settleInWatch(const JobResult& result) {
    const bool ended = result.status == JobResult::Status::done || result.status == JobResult::Status::skipped;
    if (!ended && !result.badFile.empty() && !arrivals_.isBroken(result.badFile)) return false;
    if (result.status == JobResult::Status::gone) return false;
    std::vector<FileFacts> facts = factsOf(result.job);
    // What counts is the file that was read, not the one that may have taken its place meanwhile.
    if (!result.inputs.empty()) facts[0] = result.inputs[0].facts;
    if (result.inputs.size() > 1 && !result.job.background.empty()) facts[1] = result.inputs[1].facts;
    handled_[result.job.name] = std::move(facts);
    return true;
}

}  // namespace tavrin
