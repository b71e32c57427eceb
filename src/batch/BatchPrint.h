#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/Worker.h"
#include "core/state/SystemInfo.h"
#include "delivery/print/PrintMe.h"
#include "delivery/print/PrintRunner.h"
#include "folders/NextFileInFolder.h"

namespace tavrin {

/// What a run of batch print is doing.
enum class BatchPrintState {
    stopped,
    printing,  ///< the photo that is named
    watching,  ///< for photos that arrive
    held       ///< for the reason that is named; goes on by itself when it is gone
};

/// What batch print asks of its panel; the default does nothing. All but the last two may be called from its thread.
class BatchPrintInterface {
  public:
    virtual ~BatchPrintInterface() = default;

    /// Texts of `textBatchPrintFileCount` and `textBatchPrintProcessedCount`.
    virtual void showBatchPrintCounts(const std::string& /*files*/, const std::string& /*processed*/) {}
    /// `textBatchPrintStatus`. @param detail a photo's name, or a reason as one plain line
    virtual void showBatchPrintState(BatchPrintState, const std::string& /*detail*/) {}
    /// `buttonBatchPrintStart` and `buttonBatchPrintStop`.
    virtual void enableBatchPrint(bool /*start*/, bool /*stop*/) {}
    /// One plain line on what was not done.
    virtual void batchPrintFailed(const std::string& /*line*/) {}
    /// Sheets came into the queue, or went on.
    virtual void batchPrintSheetsChanged() {}

    /// Shows folder, printer, watch and page of `QLXInfo` again. Main thread.
    virtual void showBatchPrintSettings() {}
    /// Asks for a folder; nothing when the user gave up. Main thread.
    virtual std::optional<std::string> FindFolder() { return std::nullopt; }
};

/// What a run prints with.
struct BatchPrintTools {
    std::function<std::unique_ptr<PrintService>()> service = systemPrintService;
    /// The paper that is meant, of those of the printer; its usual one when empty.
    std::function<Paper(const PrinterPapers&)> paper = {};
    std::string queue = PrintQueue::usualFolder();
    SheetLook look = {};
    std::shared_ptr<const PrinterProfile> profile = {};
};

/// Prints every photo of a folder on the chosen page, on a thread of its own, and with watch on those that arrive.
/// A photo stands in the folder's history as soon as its sheets are with the printer or in the queue of sheets; those
/// that the printer does not take wait there, and the run with them. Folder, printer, page and watch are those of
/// `QLXInfo`; the page is that of the moment in which the run began. Buttons and choices belong to the main thread.
class BatchPrint {
  public:
    /// @param view of the panel, not owned; null is fine
    explicit BatchPrint(SystemInfo& info, BatchPrintInterface* view = nullptr);
    /// Ends the run after the photo in hand.
    ~BatchPrint() = default;

    void chooseBatchPrintFolder();
    /// The folder was chosen by other means.
    void setFolder(const std::string& folder);
    /// Not saved until another change saves the settings.
    void changeWatchBatchPrint(bool on) { settings_.bWatchPrintFolder = on; }
    void changedPrinterName(const std::string& name);
    /// The printers are known, by name: the one of the settings is kept, else the first one becomes it. Without any
    /// the rest is shown all the same.
    void updateBatchPrintUI(const std::vector<std::string>& printerNames);
    void ShowBatchPrintStatus();
    /// Without printers nothing happens.
    void clickedButtonStartBatchPrint(BatchPrintTools tools = {});
    void clickedButtonStopBatchPrint();
    void clickedButtonClearHistory();

    bool isRunning() const { return worker_.isRunning(); }
    /// Waits for the end of a run.
    void join() { worker_.join(); }

    Field<bool> bEndPrinting = false;
    /// Guarded by a lock of this class: only for whoever knows that no run is on.
    NextFileInFolder nextBatchPrintFile;

  private:
    /// What a run has, for its thread alone.
    struct Run {
        BatchPrintTools tools;
        PrintOrder order;
        std::unique_ptr<PrintService> service;
        std::unique_ptr<PrintQueue> queue;
        std::unique_ptr<PrintRunner> runner;
        std::vector<std::string> waiting;  ///< sheets that the printer did not take
        bool all = false;                  ///< the history was cleared: whatever was printed is wanted again
        std::set<std::string> left;        ///< else photos whose sheets an earlier run left in the queue
        std::string toldReason;            ///< why it is held, told once
    };

    Worker::Next step();
    Worker::Next batchPrintThread();
    Worker::Next stop();
    Worker::Next hold(const std::string& reason);
    void begin();
    bool sendWaiting();
    std::optional<std::string> nextPhoto(std::string& folder);
    Worker::Next print(const std::string& folder, const std::string& name);
    void enter(const std::string& name);
    void saveSettings();

    SystemInfo& info_;
    QLXInfo& settings_;
    BatchPrintInterface& view_;
    std::mutex scanner_;             ///< the panel and a run both look into the folder
    std::set<std::string> entered_;  ///< under it: photos that this run has entered in the history
    bool cleared_ = false;           ///< under it: the history, and no run has begun since
    std::size_t printers_ = 0;
    Run run_;
    Worker worker_;  // goes first: its step uses all of the others
};

}  // namespace tavrin
