// The part of a batch run that waits for files.
#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "farm/BatchRun.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Clock = std::chrono::steady_clock;

/// How often a run looks for itself, since news from other machines do not get through; less often where the look
/// takes long, so that waiting costs less than a hundredth of a core.
constexpr std::chrono::milliseconds kPoll{2000};
constexpr int kPauseForLook = 20, kPauseForWork = 150;
/// How soon it notices that it should stop.
constexpr std::chrono::milliseconds kSlice{200};

Clock::duration workOf(std::clock_t from, std::clock_t to) {
    const std::chrono::duration<double> seconds(static_cast<double>(to - from) / CLOCKS_PER_SEC);
    return std::chrono::duration_cast<Clock::duration>(seconds);
}

}  // namespace

/// How the files of a job stand: foreground, background, state.
std::vector<FileFacts> BatchRun::factsOfJob(const BatchJob& job) {
    std::vector<FileFacts> facts;
    std::string ignored;
    for (const std::string& path : {job.foreground, maker_.backgroundOf(job, ignored), job.state})
        facts.push_back(factsOf(path).value_or(FileFacts()));
    return facts;
}

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
        const std::clock_t work = std::clock();
        watch->watch(watchedFolders());
        for (const std::string& path : watch->wait(std::chrono::milliseconds(0)).closed)
            arrivals_.closed(path);
        arrivals_.beginLook();
        BatchPlan list = plan([this](const std::string& path) { return arrivals_.isComplete(path); });
        tellWatchProblem(list.problem.empty() ? missingPlace() : list.problem);
        tellPassedOver(list.passedOver);
        std::erase_if(list.jobs, [this](const BatchJob& job) { return isHandled(job); });
        const Clock::duration lookPause = (Clock::now() - look) * kPauseForLook;
        const Clock::duration pause =
            std::max({Clock::duration(kPoll), lookPause, workOf(work, std::clock()) * kPauseForWork});
        counts_.jobs = counts_.done + counts_.skipped + counts_.failed + static_cast<int>(list.jobs.size());
        if (!list.jobs.empty()) make(list.jobs);
        if (!mayGoOn()) break;
        // Files that grow side by side become complete one after the other, and not each is worth a look of its own.
        const Clock::time_point soonest = Clock::now() + std::min<Clock::duration>(lookPause, kPoll);
        waitForNews(*watch, std::max(arrivals_.nextMoment(Clock::now() + pause), soonest));
    }
    report_.begin("1/1", counts_.done + counts_.skipped + counts_.failed, "", options_.sources.out);
}

std::string BatchRun::missingPlace() const {
    std::error_code ignored;
    for (const std::string& place :
         {options_.sources.foregrounds, options_.sources.backgrounds, options_.sources.states}) {
        if (!place.empty() && !fs::exists(place, ignored)) return place + " is not there any more.";
    }
    return "";
}

/// A folder that cannot be read now may be there again later, so the watch goes on.
void BatchRun::tellWatchProblem(const std::string& problem) {
    if (!problem.empty() && problem != watchProblem_) observer_.note(problem + " The watch goes on.");
    watchProblem_ = problem;
}

void BatchRun::waitForNews(FolderWatch& watch, Clock::time_point until) {
    observer_.idle(counts_);
    while (mayGoOn() && Clock::now() < until) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
        const FolderNews news = watch.wait(std::min(left, kSlice));
        for (const std::string& path : news.closed)
            arrivals_.closed(path);
        if (!news.closed.empty() || news.lost) return;
    }
}

bool BatchRun::staysUnreadable(const std::string& path) const {
    const auto known = unreadable_.find(path);
    if (known == unreadable_.end() || !factsOf(path)) return false;
    return Clock::now() < known->second || !std::ifstream(path);
}

/// A job that was seen before and whose files have not changed since, or one that an earlier run did.
bool BatchRun::isHandled(const BatchJob& job) {
    if (staysUnreadable(job.foreground) || staysUnreadable(job.background)) return true;
    std::vector<FileFacts> facts = factsOfJob(job);
    const auto known = handled_.find(job.name);
    if (known != handled_.end()) return known->second == facts;
    bool failedBefore = false;
    if (!job.problem.empty() || whyNot(job, failedBefore).empty()) return false;
    handled_[job.name] = std::move(facts);
    return true;
}

/// @return false when nothing is to be told: the job will come again, or its files are gone
bool BatchRun::settleInWatch(const JobResult& result) {
    using Status = JobResult::Status;
    const bool ended = result.status == Status::done || result.status == Status::skipped;
    // A background that only a state names is not among the files that arrive.
    const bool arrives = result.badFile == result.job.foreground || result.badFile == result.job.background;
    if (!ended && !result.badFile.empty() && arrives) {
        if (!arrivals_.isBroken(result.badFile) || result.status == Status::gone) return false;
        // It may be opened to us without any change of the file itself, so it is tried again, and told once.
        if (!result.lasting)
            return unreadable_.insert_or_assign(result.badFile, Clock::now() + Arrivals::kPatience).second;
    }
    if (ended) unreadable_.erase(result.job.foreground);
    std::vector<FileFacts> facts = factsOfJob(result.job);
    // What counts is the file that was read, not the one that may have taken its place meanwhile.
    if (!result.inputs.empty()) facts[0] = result.inputs[0].facts;
    if (result.inputs.size() > 1) facts[1] = result.inputs[1].facts;
    handled_[result.job.name] = std::move(facts);
    return true;
}

}  // namespace tavrin
