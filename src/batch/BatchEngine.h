#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "batch/BatchInterface.h"
#include "core/files/FileIdentity.h"
#include "core/state/SystemInfo.h"
#include "folders/BatchElement.h"
#include "folders/BatchNames.h"
#include "folders/Combinations.h"
#include "folders/NextFileInFolder.h"
#include "pipeline/IdleJob.h"

namespace tavrin {

/// A picture that a run would make.
struct PlannedPicture {
    BatchSources names;
    std::string picture;  ///< path without extension
};

/// What a run would make.
struct BatchOutlook {
    static constexpr int kMostCounted = 100000;
    std::vector<PlannedPicture> first;  ///< those that come first
    int left = 0;                       ///< all of them, as far as they are counted
};

/// The batch of the desktop program: combinations of foregrounds, backgrounds and states go through the processing
/// thread that serves the screen, one picture at a time. `nextBatchImageToProcess` does one step: it saves what has
/// just been finished, chooses the next job, loads it and asks for its picture. An idle job of the loop, it is called
/// again when that picture stands. A portrait that may still be growing is looked at from step to step. With watch on
/// a run never ends and takes files as they arrive.
///
/// Buttons, choosers and boxes belong to the main thread, the step to the processing thread; `ShowBatchStatus` may be
/// called on both. Settings are those of `QLXInfo`.
class BatchEngine : public IdleJob {
  public:
    using Time = std::chrono::steady_clock::time_point;

    /// Jobs of a list file that are run at most.
    static constexpr std::size_t kBatchElements = 500;

    /// @param view of the panel, not owned; null is fine
    explicit BatchEngine(SystemInfo& info, BatchInterface* view = nullptr);

    void clickedButtonStartBatch();
    void clickedButtonStopBatch();
    void clickedButtonClearBatchHistory();
    /// Takes the jobs that failed once more, before all others, and starts a run unless one is on.
    void clickedButtonBatchAgain();

    /// One step. Processing thread only.
    void nextBatchImageToProcess();
    bool isOn() const override { return !bBatchProcessingStopped; }
    void step() override { nextBatchImageToProcess(); }

    /// Counts what there is to do and what was done, in the way that the settings choose: by all combinations, by
    /// subfolders, or by a list file.
    void ShowBatchStatus();
    void ShowBatchStatusOrg();
    void ShowBatchStatusSubfolders();
    void ShowBatchStatusXML();
    /// Loads a list file from the foreground folder and moves it away, unless one that held jobs was loaded before.
    /// @return its jobs
    std::int32_t ComputeNumberOfFilesInBatchUsingXMLFile();

    /// What a run would make now, in its order, with the first of them by name. It looks into the folders as a run
    /// does, and makes nothing. Any thread.
    BatchOutlook outlook(std::size_t most);
    /// Where the list whose jobs are loaded lies now; "" without one.
    std::string listFile() const;

    void updateBatchUI();
    void chooseBatchForegroundFolder();
    void chooseBatchBackgroundFolder();
    void chooseBatchQLXFolder();
    void chooseBatchOutputFolder();
    void clearBatchForegroundFolder();
    void clearBatchBackgroundFolder();
    void clearBatchQLXFolder();
    void clearBatchOutputFolder();
    /// The key equivalent of the chosen cell: "1", "2" or "3"; anything else changes nothing.
    void changeBatchOutputType(const std::string& keyEquivalent);
    void changeBatchOutputStyle(const std::string& keyEquivalent);
    void changeBatchCheckbox(bool watch, bool lowResolution);
    void checkboxNamedSubfolderClicked(bool on);
    void checkboxUseXMLClicked(bool on);

    Field<bool> bBatchProcessingStopped = true;                                 ///< the run is idle
    Field<bool> bStopBatchProcessing = false;                                   ///< save what is pending, then stop
    Field<bool> bSaveNextImage = false;                                         ///< the picture under work is a job's
    Field<std::string> sLastForegroundFile, sLastBackgroundFile, sLastQLXFile;  ///< not loaded again under this name
    Field<std::string> sSaveFileName;  ///< of the job under work, without extension until it is saved
    Field<std::int32_t> iTotalInBatch = 0, iNextFileNumber = 1;
    Field<std::int32_t> iXMLBatchElements = 0, iNextXMLBatchElement = 0;
    /// Guarded by a lock of the engine's: only for whoever knows that no run is on.
    NextFileInFolder nextBatchForegroundFile, nextBatchBackgroundFile, nextBatchQLXFile;
    std::vector<BatchElement> myBatchElements = std::vector<BatchElement>(kBatchElements);

    /// The clock by which a portrait has to rest; tests put their own in its place.
    std::function<Time()> now = std::chrono::steady_clock::now;

  private:
    /// What is made next, by the names of the lists.
    struct Selection {
        BatchSources names;
        std::string foregroundPath, backgroundPath, statePath;
        std::string historyKey;
        std::string foregroundName = names.foreground;  ///< tells whether the foreground is loaded already
        std::optional<std::size_t> element = {};        ///< its place in the list that it comes from
        bool again = false;                             ///< it failed before
    };

    /// What the last look at a portrait saw.
    struct Seen {
        std::uintmax_t size = 0;
        Time at;
    };

    /// Lists and history as they were searched; the sum of their changes.
    struct Searched {
        bool subfolders = false;
        std::uint64_t changes = 0;
        bool operator==(const Searched&) const = default;
    };

    void showCounts(std::int32_t processed);
    void moveListFileAway(const std::string& folder, const std::string& name);

    void saveFinishedJob();
    void tellEnd(bool saved, const std::string& problem);
    void stopRun();
    void takeJob();
    void beginJob(const Selection& job);
    std::optional<Selection> chooseJob();
    bool hasAgain();
    std::optional<Selection> chooseAgain();
    std::optional<Selection> chooseCombination();
    std::optional<Selection> chooseFromList();
    Selection useElement(std::size_t place);
    Selection ofElement(std::size_t place) const;
    void fillEmptySlots();
    void eachOpenJob(const std::function<bool(Selection)>& take,
                     const std::function<void(const std::string& entry)>& loose);
    void refuseOnce(const std::string& problem);
    void loadState(const Selection& job);
    void loadBackground(const Selection& job);
    void loadForeground(const Selection& job);
    bool isStable(const Selection& job);
    void nameOutput(const Selection& job);
    std::string outputOf(const Selection& job, std::int32_t& number, const MakeFolder& makeFolder) const;
    std::string whyNotSaved();
    KnownFiles inputFiles();

    void chooseFolder(Field<std::string>& setting, NextFileInFolder* scanner);
    void storeFolder(Field<std::string>& setting, NextFileInFolder* scanner, const std::string& folder);
    void placeHistory(const std::string& folder);
    void saveSettings();

    SystemInfo& info_;
    QLXInfo& settings_;
    BatchInterface& view_;
    mutable std::recursive_mutex scanners_;  ///< the panel and a run both look into the folders
    std::optional<Selection> taken_;         ///< the job whose portrait is waited for, and what was seen of it
    std::optional<Seen> seen_;
    std::optional<Selection> underWork_;     ///< the job whose picture is made
    std::vector<Selection> failed_, again_;  ///< under the lock
    std::string listFile_;                   ///< under the lock
    std::optional<Searched> searchedInVain_;
    bool refused_ = false;  ///< a message about an entry that has no place was shown in this run
};

}  // namespace tavrin
