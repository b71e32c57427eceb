#include "farm/BatchRun.h"

#include <filesystem>
#include <set>
#include <thread>

#include "core/files/AtomicFile.h"
#include "farm/OutputGuard.h"
#include "folders/BatchNames.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

bool isSameFolder(const std::string& one, const std::string& other) {
    std::error_code ignored;
    return !one.empty() && fs::equivalent(one, other, ignored);
}

std::string missing(const char* what, const std::string& path) {
    return std::string("There are no ") + what + ": " + path + " is not there.";
}

}  // namespace

BatchRun::BatchRun(BatchOptions options, PictureMaker& maker, BatchObserver& observer,
                   std::function<bool()> stopAsked)
    : options_(std::move(options)), maker_(maker), observer_(observer), stopAsked_(std::move(stopAsked)) {}

std::string BatchRun::check() const {
    const JobSources& from = options_.sources;
    std::error_code ignored;
    if (from.listFile.empty() && !fs::exists(from.foregrounds, ignored))
        return missing("foregrounds", from.foregrounds);
    if (!from.backgrounds.empty() && !fs::exists(from.backgrounds, ignored))
        return missing("backgrounds", from.backgrounds);
    if (!from.states.empty() && !fs::exists(from.states, ignored)) return missing("states", from.states);
    // The pictures would be taken for new sources, or written over them.
    for (const std::string& folder : {from.foregrounds, from.backgrounds}) {
        if (isSameFolder(folder, from.out)) return "The pictures need a folder of their own, not " + from.out + ".";
    }
    if (from.subfolders && isSameFolder(from.foregrounds, fs::path(from.out).parent_path().string()))
        return "The pictures need a folder outside " + from.foregrounds + ".";
    return checkOutputs();
}

/// Before anything is made, the folder for the pictures and its journal included.
std::string BatchRun::checkOutputs() const {
    const bool reports = !options_.report.empty() && !options_.dryRun;
    if (std::string problem = reports ? whyNoReport(options_.report, options_.sources.out) : ""; !problem.empty())
        return problem;
    Journal past;
    if (options_.sources.style == kNumberFiles) past.open(options_.sources.out, Journal::Use::look);
    const GivenNames given = past.givenNames();
    const BatchPlan list = planJobs(options_.sources, options_.shard.isWhole() ? &given : nullptr);
    return findOverwrittenInput(options_.sources, options_.report, list.jobs, maker_);
}

std::string BatchRun::begin() {
    std::error_code failed;
    if (!options_.dryRun) fs::create_directories(options_.sources.out, failed);
    if (failed) return options_.sources.out + " cannot be made: " + failed.message() + ".";
    const Journal::Use use = options_.dryRun            ? Journal::Use::look
                             : options_.shard.isWhole() ? Journal::Use::alone
                                                        : Journal::Use::shared;
    return journal_.open(options_.sources.out, use);
}

std::string BatchRun::run() {
    if (std::string problem = begin(); !problem.empty()) return problem;
    if (options_.watch && !options_.dryRun) {
        watchFolders();
        return finishReport();
    }
    BatchPlan list = plan();
    if (!list.problem.empty()) return list.problem;
    if (list.jobs.empty()) observer_.note("There is nothing to make: no picture was found for it.");
    tellPassedOver(list.passedOver);
    const Shard& shard = options_.shard;
    report_.begin(std::to_string(shard.index) + "/" + std::to_string(shard.count), static_cast<int>(list.jobs.size()),
                  digestOfList(list.jobs), options_.sources.out);
    std::erase_if(list.jobs, [&shard](const BatchJob& job) { return !shard.has(job.number); });
    counts_.jobs = static_cast<int>(list.jobs.size());
    if (options_.dryRun) {
        tellPlan(std::move(list.jobs));
        return "";
    }
    make(list.jobs);
    countGonePictures(list.jobs);
    return finishReport();
}

std::string BatchRun::finishReport() {
    if (options_.report.empty()) return "";
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start_;
    return report_.write(options_.report, counts_, taken.count());
}

/// What was made and is not there any more was not made: somebody removed the folder, or it was another disk's.
void BatchRun::countGonePictures(const std::vector<BatchJob>& jobs) {
    std::error_code ignored;
    for (const BatchJob& job : jobs) {
        if (!made_.contains(job.number) || fs::exists(job.out, ignored)) continue;
        JobResult result;
        result.reason = "the picture was made and has been removed since";
        result.job = job;
        --counts_.done;
        ++counts_.failed;
        report_.add(result, options_.sources.out);
        observer_.finished(result, counts_);
    }
}

// A shard goes by the list alone, since it does not see what the others do at this moment.
BatchPlan BatchRun::plan(const std::function<bool(const std::string&)>& accept) const {
    if (!options_.shard.isWhole()) return planJobs(options_.sources, nullptr, accept);
    const GivenNames given = journal_.givenNames();
    return planJobs(options_.sources, &given, accept);
}

/// In one line, and each file once in the life of a watch.
void BatchRun::tellPassedOver(const std::vector<std::string>& paths) {
    constexpr std::size_t kNamed = 3;
    std::string names;
    std::size_t count = 0;
    for (const std::string& path : paths) {
        if (!passedOver_.insert(path).second || ++count > kNamed) continue;
        names += (names.empty() ? "" : ", ") + fs::path(path).filename().string();
    }
    if (count > kNamed) names += " and " + std::to_string(count - kNamed) + " more";
    if (count > 0) observer_.note("warning: passed over as no pictures by their names: " + names + ".");
}

void BatchRun::tellPlan(std::vector<BatchJob> jobs) {
    for (BatchJob& job : jobs) {
        using Status = JobResult::Status;
        bool failedBefore = !job.problem.empty();
        JobResult result;
        result.reason = failedBefore ? job.problem : whyNot(job, failedBefore);
        if (result.reason.empty()) {
            result.reason = whyRefused(job);
            failedBefore = !result.reason.empty();
        }
        result.status = failedBefore ? Status::failed : result.reason.empty() ? Status::planned : Status::skipped;
        result.job = std::move(job);
        counts_.skipped += result.status == Status::skipped;
        counts_.failed += result.status == Status::failed;
        observer_.finished(result, counts_);
    }
}

bool BatchRun::mayGoOn() const {
    std::error_code ignored;
    return !stopAsked_() && !outOfRoom_ && (options_.stopFile.empty() || !fs::exists(options_.stopFile, ignored));
}

void BatchRun::make(const std::vector<BatchJob>& jobs) {
    std::set<std::string> folders;
    for (const BatchJob& job : jobs)
        folders.insert(fs::path(job.out).parent_path().string());
    if (!options_.report.empty()) folders.insert(fs::absolute(options_.report).parent_path().string());
    for (const std::string& folder : folders) {
        std::error_code ignored;
        if (!cleared_.insert(folder).second || !fs::is_directory(folder, ignored)) continue;
        AtomicFile::removeAbandonedParts(folder);
    }

    std::size_t at = 0;
    PipelineTasks tasks;
    tasks.inHand = options_.inHand;
    tasks.beforeWrite = [this](const BatchJob& job) { return claimToWrite(job); };
    tasks.finished = [this](JobResult result) { end(std::move(result)); };
    tasks.next = [this, &jobs, &at]() -> std::optional<BatchJob> {
        while (at < jobs.size() && mayGoOn()) {
            const BatchJob& job = jobs[at++];
            if (isBegun(job)) return job;
        }
        return std::nullopt;
    };
    if (options_.watch) tasks.waitForRoom = [this] { return waitForRoom(); };
    runPipeline(maker_, tasks);
}

void BatchRun::end(JobResult result) {
    std::lock_guard lock(mutex_);
    if (options_.watch && !settleInWatch(result)) return;
    using Status = JobResult::Status;
    if (result.status == Status::done || result.status == Status::failed) record(result);
    if (result.status == Status::done) {
        ++counts_.done;
        waitsForRoom_ = false;
        if (!options_.watch) made_.insert(result.job.number);  // a hot folder's pictures may be taken away
    } else if (result.status == Status::skipped) {
        ++counts_.skipped;
    } else {
        ++counts_.failed;
    }
    // A watch has no list, so its pictures are numbered as they come.
    if (options_.watch) result.job.number = counts_.done + counts_.skipped + counts_.failed;
    report_.add(result, options_.sources.out);
    observer_.finished(result, counts_);
    if (result.diskFull && !options_.watch && !outOfRoom_.exchange(true))
        observer_.note("The disk is full, so the run stops here. Run the same command again when there is room.");
}

void BatchRun::record(const JobResult& result) {
    const bool done = result.status == JobResult::Status::done;
    if (!done && !result.lasting && !result.incomplete) return;
    JobRecord record;
    record.name = result.job.name;
    record.out = relativeTo(options_.sources.out, result.job.out);
    record.status = done ? JobRecord::Status::done : JobRecord::Status::failed;
    // What was noted of an earlier picture under this name holds no longer, and a later run makes it again.
    if (result.incomplete) record.status = JobRecord::Status::begun;
    record.recipe = result.recipe;
    record.inputs = result.inputs;
    record.reason = result.reason;
    record.warnings = result.warnings;
    record.judgement = result.judgement;
    const std::string problem = journal_.add(record);
    if (!problem.empty())
        observer_.note(record.out + " is not in the journal, so a later run makes it again: " + problem + ".");
}

bool BatchRun::waitForRoom() {
    if (!waitsForRoom_.exchange(true)) {
        std::lock_guard lock(mutex_);
        observer_.note(options_.sources.out + ": the disk is full. The batch waits for room.");
    }
    for (int i = 0; i < 10 && mayGoOn(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    return mayGoOn();
}

}  // namespace tavrin
