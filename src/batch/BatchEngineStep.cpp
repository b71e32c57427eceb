#include <algorithm>
#include <filesystem>
#include <unordered_set>

#include "batch/BatchEngine.h"
#include "core/Log.h"
#include "formats/ImageState.h"
#include "pipeline/OutputSize.h"
#include "pipeline/SaveImage.h"
#include "pipeline/StateFile.h"

namespace fs = std::filesystem;

namespace tavrin {

void BatchEngine::nextBatchImageToProcess() {
    if (bBatchProcessingStopped) return;
    ShowBatchStatus();
    const bool watch = settings_.bLastBatchCheckForNewFiles;
    if (iTotalInBatch == 0 && !bStopBatchProcessing) {
        if (watch) return;
        bStopBatchProcessing = true;
    }
    if (bSaveNextImage) saveFinishedJob();
    if (bStopBatchProcessing) return stopRun();

    const std::optional<Job> job = chooseJob();
    if (!job) {
        if (!watch) stopRun();
        return;
    }
    loadState(*job);
    loadBackground(*job);
    loadForeground(*job);
    if (!job->fromList) nameOutput(*job);
    if (const std::string problem = whyNotSaved(); !problem.empty()) {
        info_.alert("The batch has stopped: a picture cannot go where it should.", problem + ".");
        return stopRun();
    }
    bSaveNextImage = true;
    if (!job->fromList) {
        // Before the picture is made: a job that breaks the program is not tried for ever.
        std::lock_guard lock(scanners_);
        nextBatchForegroundFile.AddProcessedFiles(job->historyKey);
    }
    info_.StartUpdate();
}

void BatchEngine::stopRun() {
    bBatchProcessingStopped = true;
    refused_ = false;
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

std::optional<BatchEngine::Job> BatchEngine::chooseJob() {
    std::lock_guard lock(scanners_);
    for (NextFileInFolder* scanner : {&nextBatchForegroundFile, &nextBatchBackgroundFile, &nextBatchQLXFile}) {
        // An empty slot counts once. A list that was not searched anew has it already.
        std::vector<std::string>& names = scanner->oFilesInFolder;
        if (scanner->iFileCount == 0 && (names.empty() || names.back() != kUseCurrent)) names.push_back(kUseCurrent);
    }
    if (settings_.bUseBackgroundSubfolders) return chooseInSubfolders();
    if (settings_.bUseBatchXMLFile) return chooseFromList();
    return choosePlain();
}

std::optional<BatchEngine::Job> BatchEngine::choosePlain() {
    const std::vector<std::string>& history = nextBatchForegroundFile.oProcessedFiles;
    const std::unordered_set<std::string_view> done(history.begin(), history.end());
    for (const std::string& state : nextBatchQLXFile.oFilesInFolder) {
        for (const std::string& background : nextBatchBackgroundFile.oFilesInFolder) {
            for (const std::string& foreground : nextBatchForegroundFile.oFilesInFolder) {
                const std::string key = foreground + background + state;
                if (done.contains(key)) continue;
                return Job{{foreground, background, state},
                           nextBatchForegroundFile.sFolderToCheck + "/" + foreground,
                           nextBatchBackgroundFile.sFolderToCheck + "/" + background,
                           nextBatchQLXFile.sFolderToCheck + "/" + state,
                           key};
            }
        }
    }
    return std::nullopt;
}

// A subfolder of the foreground folder is named like the background of its portraits. The plain search never
// descends, so this mode has one that does; a portrait that lies in no subfolder has no background and is refused.
std::optional<BatchEngine::Job> BatchEngine::chooseInSubfolders() {
    const std::vector<std::string>& history = nextBatchForegroundFile.oProcessedFiles;
    const std::unordered_set<std::string_view> done(history.begin(), history.end());
    for (const std::string& entry : nextBatchForegroundFile.oFilesInFolder) {
        const std::size_t slash = entry.find('/');
        if (slash == std::string::npos) {
            if (entry != kUseCurrent) refuseOnce(entry);
            continue;
        }
        const std::string folder = entry.substr(0, slash), file = entry.substr(slash + 1);
        const std::string* match = nullptr;
        for (const std::string& background : nextBatchBackgroundFile.oFilesInFolder) {
            if (background.substr(0, background.find('.')) == folder) match = &background;  // the last one wins
        }
        const std::string key = match ? file + *match + kUseCurrent : std::string();
        if (!match || done.contains(key)) continue;
        // Two folders may hold portraits of one name.
        return Job{{file, *match, kUseCurrent},
                   nextBatchForegroundFile.sFolderToCheck + "/" + entry,
                   nextBatchBackgroundFile.sFolderToCheck + "/" + *match,
                   nextBatchQLXFile.sFolderToCheck + "/" + kUseCurrent,
                   key,
                   entry};
    }
    return std::nullopt;
}

void BatchEngine::refuseOnce(const std::string& entry) {
    if (refused_) return;
    refused_ = true;
    info_.alert("The batch leaves out pictures that lie in no subfolder.",
                entry +
                    " lies in the foreground folder itself; with named subfolders it belongs into one that is named "
                    "like its background");
}

std::optional<BatchEngine::Job> BatchEngine::chooseFromList() {
    if (iNextXMLBatchElement >= iXMLBatchElements) return std::nullopt;
    const BatchElement& element = myBatchElements[static_cast<std::size_t>(iNextXMLBatchElement.load())];
    iNextXMLBatchElement = iNextXMLBatchElement + 1;
    settings_.iLastBatchLastOutputFileType = element.iOutputFileType;
    info_.bOutputTransparency = element.OutputTransparency;
    info_.bShowOrgImage = element.NoGreenScreenProcessing;
    info_.bUseBlueLogic = element.BlueScreenProcessing;
    sSaveFileName = element.sOutputFile;
    Job job{{element.sForegroundFile, element.sBackgroundFile, element.sQLXFile},
            element.sForegroundFile,
            element.sBackgroundFile,
            nextBatchQLXFile.sFolderToCheck + "/" + element.sQLXFile,
            ""};
    job.fromList = true;
    return job;
}

void BatchEngine::loadState(const Job& job) {
    if (job.names.state == sLastQLXFile.load()) return;
    const std::string foreground = info_.pForegroundBitmapInfo->sSourceImageFullPath;
    const LoadedStateFile loaded = loadStateFile(info_, job.statePath);
    if (!loaded.problem.empty()) logTrace(loaded.problem);  // the job runs with the state in force
    if (!loaded.sizeProblem.empty()) info_.alert("The present output size stays.", loaded.sizeProblem);
    info_.pForegroundBitmapInfo->sSourceImageFullPath = foreground;
    if (loaded.newSize) useSize();
    info_.pForegroundBitmapInfo->bOrgFileChange = true;
    info_.pBackgroundBitmapInfo->bOrgFileChange = true;
    sLastQLXFile = job.names.state;
}

void BatchEngine::useSize() {
    const std::optional<ImageSize> size = selectedSize(info_);
    if (!size || !ChangeImageSize(info_)) return;
    info_.bNewOutputSize = true;
    if (info_.pInterface) info_.pInterface->updateScaleUI();
    const std::string title = size->sDefaultPrinterPage;
    std::int32_t page = 0;
    for (std::int32_t i = 0; i < info_.iPrinterPageCount(); ++i) {
        if (info_.oPrinterPages[static_cast<std::size_t>(i)].sPageTitle.load() == title) page = i;
    }
    settings_.iSelectedPrinterTemplate = page;
    settings_.sSelectedPrinterTemplate = title;
}

void BatchEngine::loadBackground(const Job& job) {
    if (job.names.background == sLastBackgroundFile.load()) return;
    info_.pBackgroundBitmapInfo->setSourceImageFullPath(job.backgroundPath);
    info_.pBackgroundBitmapInfo->bOrgFileChange = true;
    sLastBackgroundFile = job.names.background;
}

void BatchEngine::loadForeground(const Job& job) {
    if (job.foregroundName == sLastForegroundFile.load()) return;
    waitUntilStable(job.foregroundPath);
    info_.pForegroundBitmapInfo->setSourceImageFullPath(job.foregroundPath);
    info_.pForegroundBitmapInfo->bOrgFileChange = true;
    sLastForegroundFile = job.foregroundName;
}

// A camera or a copy over the network may still be writing. A file that goes away meanwhile keeps its last size, so
// that the wait ends.
void BatchEngine::waitUntilStable(const std::string& path) {
    const auto look = [&path](std::uintmax_t before) {
        std::error_code gone;
        const std::uintmax_t size = fs::file_size(path, gone);
        return gone ? before : size;
    };
    std::uintmax_t before = look(0);
    for (;;) {
        pause();
        const std::uintmax_t now = look(before);
        std::lock_guard lock(waitMutex_);
        if (now == before || leaving_) return;
        before = now;
    }
}

}  // namespace tavrin
