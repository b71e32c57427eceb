// The part of a batch run that decides about one job: what earlier runs did of it, and whether its picture's name is
// free for it.
#include <filesystem>

#include "core/files/AtomicFile.h"
#include "farm/BatchRun.h"
#include "folders/BatchNames.h"
#include "folders/OutputPlace.h"

namespace fs = std::filesystem;

namespace tavrin {

/// Whether the job goes into the pipeline; otherwise it has come to its end here.
bool BatchRun::isBegun(const BatchJob& job) {
    using Status = JobResult::Status;
    JobResult result;
    if (job.problem.empty()) {
        bool failedBefore = false;
        {
            std::lock_guard lock(mutex_);
            result.reason = whyNot(job, failedBefore);
            if (!result.reason.empty() && !failedBefore) result.judgement = journal_.find(job.name)->judgement;
        }
        result.status = failedBefore ? Status::failed : Status::skipped;
        if (result.reason.empty()) {
            result.reason = whyRefused(job);
            const bool isNumbered = options_.sources.style == kNumberFiles && options_.shard.isWhole();
            if (result.reason.empty() && isNumbered) result.reason = claim(job);
            if (result.reason.empty()) return true;
            result.status = Status::failed;
            result.diskFull = result.reason == kDiskFull;
        }
    } else {
        result.reason = job.problem;
    }
    result.job = job;
    end(std::move(result));
    return false;
}

/// Why no picture may go to the job's place, in words behind its name; "" when it may.
std::string BatchRun::whyRefused(const BatchJob& job) {
    const std::string problem = whyOutside(options_.sources.out, job.out);
    std::error_code ignored;
    if (!problem.empty() || options_.overwrite || !fs::exists(fs::symlink_status(job.out, ignored))) return problem;
    std::lock_guard lock(mutex_);
    if (journal_.owns(relativeTo(options_.sources.out, job.out))) return "";
    return "a file of this name is there that this batch did not make; --overwrite replaces it";
}

/// A kill may come between the picture and its record, and it must be known as ours then.
std::string BatchRun::claimToWrite(const BatchJob& job) {
    const std::string problem = whyRefused(job);
    return problem.empty() ? claim(job) : problem;
}

/// A name belongs to its job from here on, whatever happens to this process.
std::string BatchRun::claim(const BatchJob& job) {
    JobRecord claim;
    claim.name = job.name;
    claim.out = relativeTo(options_.sources.out, job.out);
    {
        std::lock_guard lock(mutex_);
        const JobRecord* known = journal_.find(job.name);
        const bool isOurs = known && known->out == claim.out && journal_.owns(claim.out);
        // What was done before is so no longer: a kill may leave another picture under the name.
        if (isOurs && known->status == JobRecord::Status::begun) return "";
    }
    std::string problem;
    do {
        std::lock_guard lock(mutex_);
        problem = journal_.add(claim);
    } while (problem == kDiskFull && options_.watch && waitForRoom());
    return problem;
}

bool BatchRun::isSameInput(const std::string& path, const InputFile& input) const {
    const std::optional<FileFacts> facts = factsOf(path);
    if (!facts || facts->size != input.facts.size) return false;
    return *facts == input.facts || digestOfFile(path) == input.digest;
}

/// Why an earlier run's work on the job still holds; "" when it has to be made.
std::string BatchRun::whyNot(const BatchJob& job, bool& failedBefore) {
    const JobRecord* known = journal_.find(job.name);
    if (!known || known->status == JobRecord::Status::begun || options_.again) return "";
    const bool failed = known->status == JobRecord::Status::failed;
    if (failed && options_.retryFailed) return "";
    if (known->out != relativeTo(options_.sources.out, job.out)) return "";
    std::string problem;
    if (known->recipe != maker_.recipeOf(job, problem)) return "";
    std::error_code ignored;
    // A hot folder's pictures may have been taken away.
    if (!failed && !options_.watch && !fs::exists(job.out, ignored)) return "";
    const std::string paths[] = {job.foreground, maker_.backgroundOf(job, problem)};
    for (std::size_t i = 0; i < std::min(known->inputs.size(), std::size(paths)); ++i) {
        if (!isSameInput(paths[i], known->inputs[i])) return "";
    }
    failedBefore = failed;
    return failed ? known->reason + " (in an earlier run; --retry-failed takes it again)" : "it was made before";
}

}  // namespace tavrin
