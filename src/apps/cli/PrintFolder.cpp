#include "apps/cli/PrintFolder.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <utility>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "batch/BatchPrint.h"
#include "core/Interruption.h"

namespace tavrin::cli {

namespace {

/// Tells on the streams what a run does.
class FolderTeller : public BatchPrintInterface {
  public:
    FolderTeller(std::string folder, std::string printer)
        : folder_(std::move(folder)), printer_(std::move(printer)) {}

    void showBatchPrintState(BatchPrintState state, const std::string& detail) override {
        if (state == BatchPrintState::held) {
            held_ = detail;
        } else if (state != BatchPrintState::stopped) {
            held_.clear();
        }
        if (state != BatchPrintState::printing || std::exchange(last_, detail) == detail || isQuiet()) return;
        printLine(folder_ + "/" + detail + ": to \"" + printer_ + "\"");
        flushOutput();  // somebody watches a run that goes on for hours
    }
    void batchPrintFailed(const std::string& line) override {
        if (line == held_) return warn(line + " The run waits.");
        complain(line);
        failed_ = true;
    }
    void batchPrintSheetsChanged() override { held_.clear(); }
    /// All photos were printed.
    bool isGood() const { return !failed_ && held_.empty(); }

  private:
    const std::string folder_, printer_;
    std::string last_, held_;
    bool failed_ = false;
};

std::int32_t indexOf(const SystemInfo& info, const std::string& title) {
    const auto found = std::ranges::find_if(info.oPrinterPages,
                                            [&](const PrinterPage& page) { return page.sPageTitle.load() == title; });
    return static_cast<std::int32_t>(found - info.oPrinterPages.begin());
}

}  // namespace

int printFolder(SystemInfo& info, const PrinterOptions& options, const std::string& folder, bool watch) {
    std::error_code failed;
    if (!std::filesystem::is_directory(folder, failed)) {
        complain(folder + ": there is no such folder.");
        return kUsage;
    }
    const std::unique_ptr<PrintService> service = systemPrintService();
    PrinterOptions chosen = options;
    Refusal refusal = choosePrinter(*service, chosen.printer);
    SheetPlan plan;
    if (refusal.code == kDone) refusal = planSheets(info, chosen, service.get(), plan);
    if (refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    QLXInfo& settings = *info.oQLXInfo;
    settings.sBatchPrintFolder = folder;
    settings.sSelectedBatchPrinterName = chosen.printer;
    settings.bWatchPrintFolder = watch;
    settings.iSelectedBatchPrinterTemplate = indexOf(info, chosen.page);
    info.iEventPrintCount = chosen.copies;
    FolderTeller teller(folder, chosen.printer);
    BatchPrint run(info, &teller);
    Interruption::stopFirst([&run] { run.clickedButtonStopBatchPrint(); });
    run.updateBatchPrintUI({chosen.printer});
    BatchPrintTools tools;
    tools.paper = [paper = plan.paper](const PrinterPapers& papers) { return paper.value_or(papers.usual); };
    tools.queue = options.queue;
    tools.look = plan.look;
    tools.profile = plan.profile;
    run.clickedButtonStartBatchPrint(std::move(tools));
    run.join();
    Interruption::stopFirst([] {});
    return teller.isGood() ? kDone : kFailed;
}

}  // namespace tavrin::cli
