#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "farm/BatchPipeline.h"
#include "farm/BatchPlan.h"
#include "farm/BatchReport.h"
#include "farm/Journal.h"
#include "farm/PictureMaker.h"
#include "farm/Shard.h"
#include "folders/Arrivals.h"
#include "folders/FolderWatch.h"

namespace tavrin {

struct BatchOptions {
    JobSources sources;
    Shard shard;
    bool watch = false;        ///< never end; take files as they arrive
    bool retryFailed = false;  ///< take pictures again that failed in an earlier run
    bool again = false;        ///< take pictures again that are done
    bool overwrite = false;    ///< replace files that no batch of this folder made
    bool dryRun = false;       ///< tell what would be done, and write nothing
    bool pollOnly = false;     ///< look for new files now and then, without the system's help
    int inHand = 3;
    std::string stopFile;  ///< when it is there, the run stops
    std::string report;
};

/// Who hears how a run goes. One call at a time, on any thread.
class BatchObserver {
  public:
    virtual ~BatchObserver() = default;
    /// A job came to its end, or to that of a dry run.
    virtual void finished(const JobResult&, const BatchCounts&) {}
    /// Something that the user should know, as one plain line.
    virtual void note(const std::string&) {}
    /// A watching run has nothing to do.
    virtual void idle(const BatchCounts&) {}
};

/// A batch on the command line: plans the jobs, leaves out what earlier runs did, makes the rest through the
/// pipeline, keeps the journal and the report. With watch on it starts over whenever files have arrived.
class BatchRun {
  public:
    /// @param stopAsked answers at any moment, from any thread, whether the user wants the run to end
    BatchRun(BatchOptions options, PictureMaker& maker, BatchObserver& observer, std::function<bool()> stopAsked);

    /// @return "" or what is wrong with the files and folders that were named, as one plain line: some are not there,
    ///         or pictures would be written over what they are made from
    std::string check() const;
    /// @return "" when the run began and ended; otherwise why it could not begin, or why there is no report of it, as
    ///         one plain line
    std::string run();

    const BatchCounts& counts() const { return counts_; }

  private:
    std::string begin();
    BatchPlan plan(const std::function<bool(const std::string&)>& accept = nullptr) const;
    void tellPassedOver(const std::vector<std::string>& paths);
    void tellPlan(std::vector<BatchJob> jobs);
    void make(const std::vector<BatchJob>& jobs);
    void watchFolders();
    void waitForNews(FolderWatch& watch, std::chrono::steady_clock::time_point until);
    std::string missingPlace() const;
    void tellWatchProblem(const std::string& problem);
    std::vector<std::string> watchedFolders() const;
    std::vector<FileFacts> factsOfJob(const BatchJob& job);
    bool isHandled(const BatchJob& job);
    bool staysUnreadable(const std::string& path) const;
    bool settleInWatch(const JobResult& result);

    bool mayGoOn() const;
    bool isBegun(const BatchJob& job);
    std::string claim(const BatchJob& job);
    std::string claimToWrite(const BatchJob& job);
    std::string whyRefused(const BatchJob& job);
    std::string checkOutputs() const;
    std::string whyNot(const BatchJob& job, bool& failedBefore);
    bool isSameInput(const std::string& path, const InputFile& input) const;
    void end(JobResult result);
    void record(const JobResult& result);
    bool waitForRoom();
    std::string finishReport();
    void countGonePictures(const std::vector<BatchJob>& jobs);

    const BatchOptions options_;
    PictureMaker& maker_;
    BatchObserver& observer_;
    const std::function<bool()> stopAsked_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();

    mutable std::mutex mutex_;  ///< of what follows, while the pipeline runs
    Journal journal_;
    BatchCounts counts_;
    BatchReport report_;
    Arrivals arrivals_;
    /// Watch: jobs that need no more work as long as their files stay as they were.
    std::unordered_map<std::string, std::vector<FileFacts>> handled_;
    /// Files that may not be read, of which that was told, and when to try again.
    std::unordered_map<std::string, std::chrono::steady_clock::time_point> unreadable_;
    std::string watchProblem_;                ///< with the folders, as it was told last
    std::set<std::string> cleared_;           ///< folders from which abandoned parts were removed
    std::set<std::string> passedOver_;        ///< files that were named as no pictures
    std::set<int> made_;                      ///< numbers of the jobs whose pictures this run made
    std::atomic<bool> outOfRoom_ = false;     ///< the run ends for that
    std::atomic<bool> waitsForRoom_ = false;  ///< it was told
};

}  // namespace tavrin
