#include <filesystem>
#include <utility>

#include "batch/BatchEngine.h"
#include "core/Log.h"
#include "formats/ImageState.h"
#include "pipeline/MaskThumbnail.h"
#include "pipeline/SaveImage.h"
#include "session/Sources.h"
#include "session/States.h"

namespace fs = std::filesystem;

namespace tavrin {

void BatchEngine::nextBatchImageToProcess() {
    if (bBatchProcessingStopped) return;
    if (!taken_) takeJob();
    // Once taken a job is made, also when a stop is asked for while its portrait is waited for.
    if (taken_ && isStable(*taken_)) beginJob(*std::exchange(taken_, std::nullopt));
}

/// Saves the job that is finished and takes the next one, with its state and its background.
void BatchEngine::takeJob() {
    ShowBatchStatus();
    const bool watch = settings_.bLastBatchCheckForNewFiles;
    if (iTotalInBatch == 0 && !hasAgain() && !bStopBatchProcessing) {
        if (watch) return;
        bStopBatchProcessing = true;
    }
    if (bSaveNextImage) saveFinishedJob();
    if (bStopBatchProcessing) return stopRun();

    std::optional<Selection> job = chooseAgain();
    if (!job) job = chooseJob();
    if (!job) {
        if (!watch) stopRun();
        return;
    }
    loadState(*job);
    loadBackground(*job);
    taken_ = std::move(job);  // last: what found no memory for these is chosen again
}

void BatchEngine::beginJob(const Selection& job) {
    loadForeground(job);
    if (!job.element) nameOutput(job);
    if (const std::string problem = whyNotSaved(); !problem.empty()) {
        info_.alert("The batch has stopped: a picture cannot go where it should.", problem + ".");
        return stopRun();
    }
    bSaveNextImage = true;
    underWork_ = job;
    if (!job.element && !job.again) {
        // Before the picture is made: a job that breaks the program is not tried for ever.
        std::lock_guard lock(scanners_);
        nextBatchForegroundFile.AddProcessedFiles(job.historyKey);
    }
    info_.StartUpdate();
}

void BatchEngine::stopRun() {
    bBatchProcessingStopped = true;
    refused_ = false;
    searchedInVain_.reset();
    view_.enableBatchStart(true);
    view_.enableBatchStop(false);
}

void BatchEngine::saveFinishedJob() {
    bSaveNextImage = false;
    const int type = settings_.iLastBatchLastOutputFileType;
    std::string path = sSaveFileName;
    if (const std::string problem = info_.whyNotFinished(Resolution::full); !problem.empty()) {
        // What the buffers hold is another job's picture. The alert has been shown.
        logError(path + extensionFor(type) + " is not made: " + problem + ".");
        sLastForegroundFile = sLastBackgroundFile = kUseCurrent;  // the next job reads its files in any case
        sSaveFileName = path + extensionFor(type);
        return tellEnd(false, problem);
    }
    if (settings_.bAutoQLXSave) {
        const std::string problem = saveImageStateToXML(info_, path + ".qlx");
        if (!problem.empty()) logError(problem);
    }
    path += extensionFor(type);
    sSaveFileName = path;
    static_cast<void>(saveMaskThumbnail(info_, path, type));  // which tells its own failure
    tellEnd(saveImageToDisk(info_, path, type, 1), "");
}

/// A job that failed can be taken again.
void BatchEngine::tellEnd(bool saved, const std::string& problem) {
    if (!underWork_) return;
    Selection job = *std::exchange(underWork_, std::nullopt);
    view_.batchJobEnded({job.names.foreground, sSaveFileName, saved, problem});
    if (saved) return;
    job.again = true;
    std::lock_guard lock(scanners_);
    failed_.push_back(std::move(job));
}

void BatchEngine::loadState(const Selection& job) {
    if (job.names.state == sLastQLXFile.load()) return;
    if (const std::string problem = openState(info_, job.statePath, Portrait::stays); !problem.empty()) {
        logTrace(problem);  // the job runs with the state in force
        reloadSources(info_);
    }
    // Until the job's picture is there, none of the size that is told now may be saved by hand.
    if (info_.bChangeImageSize) info_.pictures.begin();
    sLastQLXFile = job.names.state;
}

void BatchEngine::loadBackground(const Selection& job) {
    if (job.names.background == sLastBackgroundFile.load()) return;
    setBackground(info_, job.backgroundPath);
    sLastBackgroundFile = job.names.background;
}

void BatchEngine::loadForeground(const Selection& job) {
    if (job.foregroundName == sLastForegroundFile.load()) return;
    setForeground(info_, job.foregroundPath);
    sLastForegroundFile = job.foregroundName;
}

/// A camera or a copy over the network may still be writing a new portrait: two looks, a second apart, have to see
/// one size. A file that goes away meanwhile keeps its last size, so that the waiting ends.
bool BatchEngine::isStable(const Selection& job) {
    if (job.foregroundName == sLastForegroundFile.load()) return true;
    const Time time = now();
    if (seen_ && time - seen_->at < std::chrono::seconds(1)) return false;
    const std::optional<Seen> before = std::exchange(seen_, std::nullopt);
    std::error_code gone;
    std::uintmax_t size = fs::file_size(job.foregroundPath, gone);
    if (gone) size = before ? before->size : 0;
    if (before && size == before->size) return true;
    seen_ = Seen{size, time};
    return false;
}

}  // namespace tavrin
