#include <algorithm>
#include <filesystem>
#include <unordered_set>
#include <utility>

#include "batch/BatchEngine.h"
#include "core/Log.h"
#include "formats/ImageState.h"
#include "pipeline/SaveImage.h"
#include "session/SettingChanges.h"
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
    if (iTotalInBatch == 0 && !bStopBatchProcessing) {
        if (watch) return;
        bStopBatchProcessing = true;
    }
    if (bSaveNextImage) saveFinishedJob();
    if (bStopBatchProcessing) return stopRun();

    std::optional<Selection> job = chooseJob();
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
    if (!job.fromList) nameOutput(job);
    if (const std::string problem = whyNotSaved(); !problem.empty()) {
        info_.alert("The batch has stopped: a picture cannot go where it should.", problem + ".");
        return stopRun();
    }
    bSaveNextImage = true;
    if (!job.fromList) {
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
        return;
    }
    if (settings_.bAutoQLXSave) {
        const std::string problem = saveImageStateToXML(info_, path + ".qlx");
        if (!problem.empty()) logError(problem);
    }
    path += extensionFor(type);
    sSaveFileName = path;
    const fs::path thumbs = fs::path(path).parent_path() / "Thumbs";
    makeFolders(thumbs.string());
    drawMask();
    saveImageToDisk(info_, (thumbs / ("TQTQ" + fs::path(path).filename().string())).string(), type, 0);
    saveImageToDisk(info_, path, type, 1);
}

/// The thumbnail is a picture of the mask: black is the subject.
void BatchEngine::drawMask() {
    const std::uint8_t* alpha = info_.pBackgroundBitmapInfo->pBitmapData;
    std::uint8_t* out = info_.pCombinedBitmapInfo->pBitmapDataLowRes;
    const std::int64_t fullWidth = info_.iOutputPixelWidth, fullHeight = info_.iOutputPixelHeight;
    const int width = info_.iOutputPixelLowResWidth, height = info_.iOutputPixelLowResHeight;
    if (!alpha || !out) return;
    runRows({}, height, 32, [&](int y) {
        const int fromY = static_cast<int>(y * fullHeight / height);
        for (int x = 0; x < width; ++x) {
            const int fromX = static_cast<int>(x * fullWidth / width);
            const std::uint8_t from = alpha[pixelOffset(static_cast<int>(fullWidth), fromX, fromY) + 3];
            std::fill_n(out + pixelOffset(width, x, y), 3, static_cast<std::uint8_t>(255 - from));
        }
    });
}

std::optional<BatchEngine::Selection> BatchEngine::chooseJob() {
    std::lock_guard lock(scanners_);
    for (NextFileInFolder* scanner : {&nextBatchForegroundFile, &nextBatchBackgroundFile, &nextBatchQLXFile}) {
        // An empty slot counts once. A list that was not searched anew has it already.
        std::vector<std::string>& names = scanner->oFilesInFolder;
        if (scanner->iFileCount == 0 && (names.empty() || names.back() != kUseCurrent)) names.push_back(kUseCurrent);
    }
    const bool subfolders = settings_.bUseBackgroundSubfolders;
    if (!subfolders && settings_.bUseBatchXMLFile) return chooseFromList();
    // A watch looks ten times a second, and combinations are many: what was searched in vain is not searched again.
    const Searched now = {subfolders, nextBatchForegroundFile.changes() + nextBatchBackgroundFile.changes() +
                                          nextBatchQLXFile.changes()};
    if (searchedInVain_ == now) return std::nullopt;
    std::optional<Selection> job = chooseCombination();
    if (!job) searchedInVain_ = now;
    return job;
}

/// The first combination that is not in the history. With subfolders, one of the foreground folder is named like the
/// background of its portraits, and state files play no part; the plain search never descends, so this mode has one
/// that does. A portrait that lies in no subfolder has no background and is refused.
std::optional<BatchEngine::Selection> BatchEngine::chooseCombination() {
    static const std::string kNoState = kUseCurrent;
    const std::vector<std::string>& history = nextBatchForegroundFile.oProcessedFiles;
    const std::unordered_set<std::string_view> done(history.begin(), history.end());
    BatchSlots slots = {nextBatchForegroundFile.oFilesInFolder, nextBatchBackgroundFile.oFilesInFolder,
                        nextBatchQLXFile.oFilesInFolder};
    std::optional<Selection> next;
    const auto take = [&](const Combination& at) {
        const std::string& entry = slots.foregrounds[at.foreground];
        const BatchSources names = {entry.substr(entry.find('/') + 1),  // behind its subfolder, or the whole
                                    slots.backgrounds[at.background], slots.states[at.state]};
        const std::string key = names.foreground + names.background + names.state;
        if (done.contains(key)) return true;
        next = Selection{names,
                         nextBatchForegroundFile.sFolderToCheck + "/" + entry,
                         nextBatchBackgroundFile.sFolderToCheck + "/" + names.background,
                         nextBatchQLXFile.sFolderToCheck + "/" + names.state,
                         key,
                         entry};  // two folders may hold portraits of one name
        return false;
    };
    if (settings_.bUseBackgroundSubfolders) {
        slots.states = {&kNoState, 1};
        eachInSubfolders(slots, take, [this](const std::string& entry) {
            if (entry != kUseCurrent) refuseOnce(entry);
        });
    } else {
        eachCombination(slots, take);
    }
    return next;
}

void BatchEngine::refuseOnce(const std::string& entry) {
    if (refused_) return;
    refused_ = true;
    info_.alert("The batch leaves out pictures that lie in no subfolder.",
                entry +
                    " lies in the foreground folder itself; with named subfolders it belongs into one that is named "
                    "like its background");
}

std::optional<BatchEngine::Selection> BatchEngine::chooseFromList() {
    if (iNextXMLBatchElement >= iXMLBatchElements) return std::nullopt;
    const BatchElement& element = myBatchElements[static_cast<std::size_t>(iNextXMLBatchElement.load())];
    iNextXMLBatchElement = iNextXMLBatchElement + 1;
    settings_.iLastBatchLastOutputFileType = element.iOutputFileType;
    useSwitches(info_, {element.OutputTransparency, element.NoGreenScreenProcessing, element.BlueScreenProcessing});
    sSaveFileName = element.sOutputFile;
    Selection job{{element.sForegroundFile, element.sBackgroundFile, element.sQLXFile},
                  element.sForegroundFile,
                  element.sBackgroundFile,
                  nextBatchQLXFile.sFolderToCheck + "/" + element.sQLXFile,
                  ""};
    job.fromList = true;
    return job;
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
