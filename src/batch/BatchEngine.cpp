#include "batch/BatchEngine.h"

#include <algorithm>
#include <filesystem>
#include <limits>

#include "core/Log.h"
#include "folders/BatchListFile.h"
#include "folders/ListText.h"
#include "formats/SettingsFile.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kHistoryName = "ForegroundHistory.dat";

BatchInterface& orSilent(BatchInterface* view) {
    static BatchInterface silent;
    return view ? *view : silent;
}

std::int64_t atLeastOne(std::int32_t count) {
    return std::max(count, 1);
}

/// A batch of one single combination counts as empty.
std::int32_t totalOf(std::int64_t product) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    return product == 1 ? 0 : static_cast<std::int32_t>(std::min(product, kMost));
}

}  // namespace

BatchEngine::BatchEngine(SystemInfo& info, BatchInterface* view)
    : info_(info), settings_(*info.oQLXInfo), view_(orSilent(view)) {
    nextBatchForegroundFile.setFolderToCheck(settings_.sLastBatchForeground);
    nextBatchBackgroundFile.setFolderToCheck(settings_.sLastBatchBackground);
    nextBatchQLXFile.setFolderToCheck(settings_.sLastBatchQLX);
    nextBatchForegroundFile.setHistoryFileLocation(settings_.sLastBatchOutput, kHistoryName);
}

void BatchEngine::clickedButtonStartBatch() {
    view_.enableBatchStart(false);
    view_.enableBatchStop(true);
    sLastForegroundFile = kUseCurrent;
    sLastBackgroundFile = kUseCurrent;
    sLastQLXFile = kUseCurrent;
    bStopBatchProcessing = false;
    bSaveNextImage = false;
    iNextFileNumber = 1;
    bBatchProcessingStopped = false;  // last: from here on the processing thread goes to work
}

void BatchEngine::clickedButtonStopBatch() {
    view_.enableBatchStop(false);
    bStopBatchProcessing = true;
}

void BatchEngine::clickedButtonClearBatchHistory() {
    {
        std::lock_guard lock(scanners_);
        nextBatchForegroundFile.ClearHistoryFile();
        failed_.clear();  // any run takes them now
    }
    ShowBatchStatus();
}

void BatchEngine::ShowBatchStatus() {
    if (settings_.bUseBackgroundSubfolders) {
        ShowBatchStatusSubfolders();
    } else if (settings_.bUseBatchXMLFile) {
        ShowBatchStatusXML();
    } else {
        ShowBatchStatusOrg();
    }
}

void BatchEngine::showCounts(std::int32_t processed) {
    view_.showBatchCounts(std::to_string(iTotalInBatch), std::to_string(processed));
}

void BatchEngine::ShowBatchStatusOrg() {
    std::lock_guard lock(scanners_);
    nextBatchForegroundFile.FindPhotosInFolder();
    nextBatchBackgroundFile.FindPhotosInFolder();
    nextBatchForegroundFile.ReadHistoryFile();
    nextBatchQLXFile.FindQLXInFolder();
    iTotalInBatch = totalOf(std::min<std::int64_t>(atLeastOne(nextBatchForegroundFile.iFileCount) *
                                                       atLeastOne(nextBatchBackgroundFile.iFileCount),
                                                   std::numeric_limits<std::int32_t>::max()) *
                            atLeastOne(nextBatchQLXFile.iFileCount));
    showCounts(nextBatchForegroundFile.iProcessedCount);
}

void BatchEngine::ShowBatchStatusSubfolders() {
    std::lock_guard lock(scanners_);
    nextBatchForegroundFile.FindPhotosInFolderAndSubfolders();
    nextBatchBackgroundFile.FindPhotosInFolder();
    nextBatchForegroundFile.ReadHistoryFile();
    iTotalInBatch = totalOf(nextBatchForegroundFile.iFileCount);
    showCounts(nextBatchForegroundFile.iProcessedCount);
}

void BatchEngine::ShowBatchStatusXML() {
    std::lock_guard lock(scanners_);
    iTotalInBatch = ComputeNumberOfFilesInBatchUsingXMLFile();
    showCounts(iNextXMLBatchElement);
}

// A list that gave jobs blocks all later lists until the program starts again, also after its jobs have run.
std::int32_t BatchEngine::ComputeNumberOfFilesInBatchUsingXMLFile() {
    std::lock_guard lock(scanners_);
    if (iXMLBatchElements != 0) return iXMLBatchElements;
    const std::string folder = settings_.sLastBatchForeground;
    if (folder.empty()) return 0;
    NextFileInFolder lists;
    lists.setFolderToCheck(folder);
    lists.FindXMLFilesInFolder();
    iNextXMLBatchElement = 0;
    if (lists.iFileCount == 0) return 0;

    BatchListDefaults defaults;
    defaults.foregroundPath = info_.pForegroundBitmapInfo->sSourceImageFullPath;
    defaults.backgroundPath = info_.pBackgroundBitmapInfo->sSourceImageFullPath;
    defaults.outputFolder = settings_.sLastBatchOutput;
    defaults.outputFileType = settings_.iLastBatchLastOutputFileType;
    defaults.outputStyle = settings_.iLastBatchLastOutputStyle;
    defaults.skipTakenNumbers = true;
    defaults.outputTransparency = info_.bOutputTransparency;
    defaults.noGreenScreenProcessing = info_.bShowOrgImage;
    defaults.blueScreenProcessing = info_.bUseBlueLogic;

    const std::string name = lists.oFilesInFolder[0];
    int next = iNextFileNumber;
    ParsedBatchList list =
        parseBatchList(readListText(folder + "/" + name).text, defaults, next, kBatchElements, makeFolders);
    iNextFileNumber = next;
    std::move(list.jobs.begin(), list.jobs.end(), myBatchElements.begin());
    moveListFileAway(folder, name);
    if (!list.jobs.empty()) listFile_ = (fs::path(folder) / "SavedXML" / name).string();
    iXMLBatchElements = static_cast<std::int32_t>(list.jobs.size());
    if (list.refused > 0) {
        info_.alert("The batch list " + name + " has too many jobs.",
                    "the first " + std::to_string(kBatchElements) + " are run, the other " +
                        std::to_string(list.refused) + " are not; put them into a list of their own");
    }
    return iXMLBatchElements;
}

// Whatever fails here, the list goes: it would be loaded again at every step.
void BatchEngine::moveListFileAway(const std::string& folder, const std::string& name) {
    const fs::path saved = fs::path(folder) / "SavedXML";
    std::error_code ignored;
    fs::create_directories(saved, ignored);
    fs::copy_file(fs::path(folder) / name, saved / name, ignored);
    fs::remove(fs::path(folder) / name, ignored);
}

std::string BatchEngine::listFile() const {
    std::lock_guard lock(scanners_);
    return listFile_;
}

void BatchEngine::updateBatchUI() {
    view_.showBatchSettings();
    ShowBatchStatus();
}

void BatchEngine::saveSettings() {
    const std::string problem = SaveQLXFile(settings_);
    if (!problem.empty()) logError(problem);
}

void BatchEngine::placeHistory(const std::string& folder) {
    std::lock_guard lock(scanners_);
    nextBatchForegroundFile.setHistoryFileLocation(folder, kHistoryName);
}

void BatchEngine::storeFolder(Field<std::string>& setting, NextFileInFolder* scanner, const std::string& folder) {
    setting = folder;
    view_.showBatchSettings();
    saveSettings();
    if (scanner) {
        std::lock_guard lock(scanners_);
        scanner->setFolderToCheck(folder);
    }
    ShowBatchStatus();
}

void BatchEngine::chooseFolder(Field<std::string>& setting, NextFileInFolder* scanner) {
    if (const std::optional<std::string> folder = view_.FindFolder()) storeFolder(setting, scanner, *folder);
}

// Where the history lies differs: choosing the foregrounds takes it there, clearing the output puts it back to the
// (then empty) output folder, and choosing the output leaves it where it was.
void BatchEngine::chooseBatchForegroundFolder() {
    const std::optional<std::string> folder = view_.FindFolder();
    if (!folder) return;
    placeHistory(*folder);
    storeFolder(settings_.sLastBatchForeground, &nextBatchForegroundFile, *folder);
}

void BatchEngine::chooseBatchBackgroundFolder() {
    chooseFolder(settings_.sLastBatchBackground, &nextBatchBackgroundFile);
}

void BatchEngine::chooseBatchQLXFolder() {
    chooseFolder(settings_.sLastBatchQLX, &nextBatchQLXFile);
}

void BatchEngine::chooseBatchOutputFolder() {
    chooseFolder(settings_.sLastBatchOutput, nullptr);
}

void BatchEngine::clearBatchForegroundFolder() {
    storeFolder(settings_.sLastBatchForeground, &nextBatchForegroundFile, "");
}

void BatchEngine::clearBatchBackgroundFolder() {
    storeFolder(settings_.sLastBatchBackground, &nextBatchBackgroundFile, "");
}

void BatchEngine::clearBatchQLXFolder() {
    storeFolder(settings_.sLastBatchQLX, &nextBatchQLXFile, "");
}

void BatchEngine::clearBatchOutputFolder() {
    placeHistory("");
    storeFolder(settings_.sLastBatchOutput, nullptr, "");
}

namespace {

/// 1 to 3 from a key equivalent; 0 for anything else.
std::int32_t choiceOf(const std::string& keyEquivalent) {
    return keyEquivalent == "1" || keyEquivalent == "2" || keyEquivalent == "3" ? keyEquivalent[0] - '0' : 0;
}

}  // namespace

void BatchEngine::changeBatchOutputType(const std::string& keyEquivalent) {
    if (const std::int32_t type = choiceOf(keyEquivalent)) settings_.iLastBatchLastOutputFileType = type;
    saveSettings();
}

void BatchEngine::changeBatchOutputStyle(const std::string& keyEquivalent) {
    if (const std::int32_t style = choiceOf(keyEquivalent)) settings_.iLastBatchLastOutputStyle = style;
    saveSettings();
}

void BatchEngine::changeBatchCheckbox(bool watch, bool lowResolution) {
    settings_.bLastBatchCheckForNewFiles = watch;
    settings_.bLastBatchOutputLowResolution = lowResolution;
    saveSettings();
}

void BatchEngine::checkboxNamedSubfolderClicked(bool on) {
    settings_.bUseBackgroundSubfolders = on;
    saveSettings();
    ShowBatchStatus();
}

void BatchEngine::checkboxUseXMLClicked(bool on) {
    settings_.bUseBatchXMLFile = on;
    saveSettings();
    ShowBatchStatus();
}

}  // namespace tavrin
