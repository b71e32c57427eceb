#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "farm/BatchJob.h"
#include "farm/Journal.h"
#include "farm/PictureMaker.h"

namespace tavrin {

/// What became of a job.
struct JobResult {
    enum class Status {
        done,
        skipped,  ///< was done before
        failed,   ///< `reason` tells why
        gone,     ///< a source went away or is still being written
        planned   ///< would be made, if this were no dry run
    };

    BatchJob job;
    Status status = Status::failed;
    std::string reason;
    bool lasting = false;                  ///< it failed for what its files are, and would fail again
    bool incomplete = false;               ///< it failed, but a picture that lacks something was written
    std::string badFile;                   ///< the source that could not be read
    std::vector<PictureWarning> warnings;  ///< of a picture that was made
    std::optional<Judgement> judgement;  ///< of its matte; for one that was skipped, as it was told when it was made
    bool diskFull = false;
    int width = 0, height = 0;
    double seconds = 0.0;  ///< from the first look at its files to the end
    std::string recipe;
    std::vector<InputFile> inputs;
};

struct PipelineTasks {
    /// The next job, nothing at the end; called by one thread at a time.
    std::function<std::optional<BatchJob>()> next;
    /// Called on any thread before the file of a picture that stands is begun.
    /// @return "" or why it may not be written
    std::function<std::string(const BatchJob&)> beforeWrite;
    /// Called by one thread at a time, as jobs come to their end.
    std::function<void(JobResult)> finished;
    /// The disk is full: waits a moment and says whether to try once more. Null: never.
    std::function<bool()> waitForRoom;
    /// Pictures in the works at the same time. One is one after the other.
    int inHand = 3;
};

/// Makes pictures side by side: while one is keyed the next is decoded and the last encoded, on all cores. The bytes
/// are those of one at a time. Memory is bounded by the pictures in hand. Returns when `next` has nothing more and
/// all that was begun has ended.
void runPipeline(PictureMaker& maker, const PipelineTasks& tasks);

}  // namespace tavrin
