// Which job of the desktop program's batch comes next, and which would come.
#include <algorithm>
#include <unordered_set>
#include <utility>

#include "batch/BatchEngine.h"
#include "session/SettingChanges.h"

namespace tavrin {

bool BatchEngine::hasAgain() {
    std::lock_guard lock(scanners_);
    return !again_.empty();
}

void BatchEngine::clickedButtonBatchAgain() {
    {
        std::lock_guard lock(scanners_);
        std::move(failed_.begin(), failed_.end(), std::back_inserter(again_));
        failed_.clear();
    }
    if (bBatchProcessingStopped) clickedButtonStartBatch();
}

/// The files of a job that failed are read in any case.
std::optional<BatchEngine::Selection> BatchEngine::chooseAgain() {
    std::lock_guard lock(scanners_);
    if (again_.empty()) return std::nullopt;
    Selection job = std::move(again_.front());
    again_.erase(again_.begin());
    if (job.element) useElement(*job.element);
    sLastForegroundFile = sLastBackgroundFile = sLastQLXFile = kUseCurrent;
    return job;
}

/// An empty slot counts once. A list that was not searched anew has it already.
void BatchEngine::fillEmptySlots() {
    for (NextFileInFolder* scanner : {&nextBatchForegroundFile, &nextBatchBackgroundFile, &nextBatchQLXFile}) {
        std::vector<std::string>& names = scanner->oFilesInFolder;
        if (scanner->iFileCount == 0 && (names.empty() || names.back() != kUseCurrent)) names.push_back(kUseCurrent);
    }
}

std::optional<BatchEngine::Selection> BatchEngine::chooseJob() {
    std::lock_guard lock(scanners_);
    fillEmptySlots();
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

std::optional<BatchEngine::Selection> BatchEngine::chooseCombination() {
    std::optional<Selection> next;
    eachOpenJob(
        [&next](Selection job) {
            next = std::move(job);
            return false;
        },
        [this](const std::string& entry) { refuseOnce(entry); });
    return next;
}

/// The combinations that are not in the history. With subfolders, one of the foreground folder is named like the
/// background of its portraits, and state files play no part; the plain search never descends, so this mode has one
/// that does. A portrait that lies in no subfolder has no background and is refused.
void BatchEngine::eachOpenJob(const std::function<bool(Selection)>& take,
                              const std::function<void(const std::string& entry)>& loose) {
    static const std::string kNoState = kUseCurrent;
    const std::vector<std::string>& history = nextBatchForegroundFile.oProcessedFiles;
    const std::unordered_set<std::string_view> done(history.begin(), history.end());
    BatchSlots slots = {nextBatchForegroundFile.oFilesInFolder, nextBatchBackgroundFile.oFilesInFolder,
                        nextBatchQLXFile.oFilesInFolder};
    const auto takeOpen = [&](const Combination& at) {
        const std::string& entry = slots.foregrounds[at.foreground];
        const BatchSources names = {entry.substr(entry.find('/') + 1),  // behind its subfolder, or the whole
                                    slots.backgrounds[at.background], slots.states[at.state]};
        const std::string key = names.foreground + names.background + names.state;
        if (done.contains(key)) return true;
        return take(Selection{names, nextBatchForegroundFile.sFolderToCheck + "/" + entry,
                              nextBatchBackgroundFile.sFolderToCheck + "/" + names.background,
                              nextBatchQLXFile.sFolderToCheck + "/" + names.state, key,
                              entry});  // two folders may hold portraits of one name
    };
    if (settings_.bUseBackgroundSubfolders) {
        slots.states = {&kNoState, 1};
        eachInSubfolders(slots, takeOpen, [&loose](const std::string& entry) {
            if (entry != kUseCurrent) loose(entry);
        });
    } else {
        eachCombination(slots, takeOpen);
    }
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
    const auto place = static_cast<std::size_t>(iNextXMLBatchElement.load());
    iNextXMLBatchElement = iNextXMLBatchElement + 1;
    return useElement(place);
}

/// Type, switches and name of the picture are those that the list says.
BatchEngine::Selection BatchEngine::useElement(std::size_t place) {
    const BatchElement& element = myBatchElements[place];
    settings_.iLastBatchLastOutputFileType = element.iOutputFileType;
    useSwitches(info_, {element.OutputTransparency, element.NoGreenScreenProcessing, element.BlueScreenProcessing});
    sSaveFileName = element.sOutputFile;
    return ofElement(place);
}

BatchEngine::Selection BatchEngine::ofElement(std::size_t place) const {
    const BatchElement& element = myBatchElements[place];
    Selection job{{element.sForegroundFile, element.sBackgroundFile, element.sQLXFile},
                  element.sForegroundFile,
                  element.sBackgroundFile,
                  nextBatchQLXFile.sFolderToCheck + "/" + element.sQLXFile,
                  ""};
    job.element = place;
    return job;
}

BatchOutlook BatchEngine::outlook(std::size_t most) {
    ShowBatchStatus();
    std::lock_guard lock(scanners_);
    BatchOutlook outlook;
    const auto add = [&](const Selection& job, const std::string& picture) {
        if (outlook.first.size() < most) outlook.first.push_back({job.names, picture});
        ++outlook.left;
    };
    if (iTotalInBatch == 0) return outlook;
    if (!settings_.bUseBackgroundSubfolders && settings_.bUseBatchXMLFile) {
        for (auto place = static_cast<std::size_t>(iNextXMLBatchElement.load());
             place < static_cast<std::size_t>(iXMLBatchElements.load()); ++place)
            add(ofElement(place), myBatchElements[place].sOutputFile);
        return outlook;
    }
    fillEmptySlots();
    std::int32_t number = bBatchProcessingStopped ? 1 : iNextFileNumber.load();
    eachOpenJob(
        [&](const Selection& job) {
            const bool isShown = outlook.first.size() < most;
            add(job, isShown ? outputOf(job, number, [](const std::string&) {}) : "");
            return outlook.left < BatchOutlook::kMostCounted;
        },
        [](const std::string&) {});
    return outlook;
}

}  // namespace tavrin
