#include "batch/BatchPrint.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <new>
#include <utility>

#include "core/Log.h"
#include "core/files/StandardPath.h"
#include "core/image/ImageReader.h"
#include "delivery/print/PlainJpeg.h"
#include "formats/SettingsFile.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Next = Worker::Next;

constexpr const char* kHistoryName = "History.dat";
/// A photo that cannot be read whole and was written to within this time may still be growing.
constexpr std::chrono::seconds kGrowing{3};

BatchPrintInterface& orSilent(BatchPrintInterface* view) {
    static BatchPrintInterface silent;
    return view ? *view : silent;
}

bool mayStillGrow(const std::string& path) {
    std::error_code gone;
    const auto written = fs::last_write_time(path, gone);
    const auto age = fs::file_time_type::clock::now() - written;
    return !gone && age >= -kGrowing && age < kGrowing;
}

}  // namespace

BatchPrint::BatchPrint(SystemInfo& info, BatchPrintInterface* view)
    : info_(info),
      settings_(*info.oQLXInfo),
      view_(orSilent(view)),
      worker_([this] { return step(); }, Worker::kPause, [this] { view_.enableBatchPrint(true, false); }) {
    const std::string folder = settings_.sBatchPrintFolder;
    nextBatchPrintFile.setFolderToCheck(folder);
    nextBatchPrintFile.setHistoryFileLocation(folder, kHistoryName);
}

void BatchPrint::saveSettings() {
    const std::string problem = SaveQLXFile(settings_);
    if (!problem.empty()) logError(problem);
}

void BatchPrint::chooseBatchPrintFolder() {
    if (const std::optional<std::string> folder = view_.FindFolder()) setFolder(*folder);
}

void BatchPrint::setFolder(const std::string& folder) {
    settings_.sBatchPrintFolder = folder;
    view_.showBatchPrintSettings();
    saveSettings();
    {
        std::lock_guard lock(scanner_);
        nextBatchPrintFile.setHistoryFileLocation(folder, kHistoryName);
        nextBatchPrintFile.setFolderToCheck(folder);
        entered_.clear();
    }
    ShowBatchPrintStatus();
}

void BatchPrint::changedPrinterName(const std::string& name) {
    settings_.sSelectedBatchPrinterName = name;
    saveSettings();
    view_.showBatchPrintSettings();
    ShowBatchPrintStatus();
}

void BatchPrint::updateBatchPrintUI(const std::vector<std::string>& printerNames) {
    printers_ = printerNames.size();
    const bool isThere =
        std::ranges::find(printerNames, settings_.sSelectedBatchPrinterName.load()) != printerNames.end();
    if (!isThere && !printerNames.empty()) {
        settings_.sSelectedBatchPrinterName = printerNames.front();
        saveSettings();
    }
    view_.showBatchPrintSettings();
    ShowBatchPrintStatus();
}

/// It says "stopped" whatever goes on; a run says at its next step what it does.
void BatchPrint::ShowBatchPrintStatus() {
    std::string files, processed;
    {
        std::lock_guard lock(scanner_);
        static_cast<void>(nextBatchPrintFile.NextFileToProcess());
        files = std::to_string(nextBatchPrintFile.iFileCount);
        processed = std::to_string(nextBatchPrintFile.iProcessedCount);
    }
    view_.showBatchPrintCounts(files, processed);
    view_.showBatchPrintState(BatchPrintState::stopped, "");
}

void BatchPrint::clickedButtonStartBatchPrint(BatchPrintTools tools) {
    if (printers_ == 0 || isRunning()) return;
    const std::int32_t index = settings_.iSelectedBatchPrinterTemplate;
    if (index < 0 || index >= info_.iPrinterPageCount())
        return view_.batchPrintFailed("There is no print page to print the photos on.");
    worker_.join();  // it has ended; what it had is free
    run_ = Run();
    run_.tools = std::move(tools);
    // A page that is chosen meanwhile is that of the next run: half of one page on the other's paper helps nobody.
    run_.order.plan = {info_.oPrinterPages[static_cast<std::size_t>(index)], run_.tools.look, {}, run_.tools.profile};
    run_.order.printer = settings_.sSelectedBatchPrinterName;
    {
        std::lock_guard lock(scanner_);
        entered_.clear();
        run_.all = std::exchange(cleared_, false);
    }
    view_.enableBatchPrint(false, true);
    bEndPrinting = false;
    worker_.start();
}

void BatchPrint::clickedButtonStopBatchPrint() {
    bEndPrinting = true;
    worker_.wake();
}

void BatchPrint::clickedButtonClearHistory() {
    {
        std::lock_guard lock(scanner_);
        nextBatchPrintFile.ClearHistoryFile();
        entered_.clear();
        cleared_ = true;
    }
    ShowBatchPrintStatus();
}

/// What there is no memory for now may be printed later.
Next BatchPrint::step() {
    try {
        return batchPrintThread();
    } catch (const std::bad_alloc&) {
        return hold("There is not enough memory for the sheet.");
    }
}

/// One turn: at most one photo.
Next BatchPrint::batchPrintThread() {
    if (bEndPrinting) return stop();
    begin();
    if (!sendWaiting()) return Next::pause;
    std::string folder;
    const std::optional<std::string> name = nextPhoto(folder);
    if (name) return print(folder, *name);
    if (bEndPrinting || !settings_.bWatchPrintFolder) return stop();
    if (!folder.empty() && !fs::is_directory(folder)) return hold("The folder " + folder + " is not there.");
    run_.toldReason.clear();
    view_.showBatchPrintState(BatchPrintState::watching, "");
    return Next::pause;
}

Next BatchPrint::stop() {
    worker_.stop();
    view_.showBatchPrintState(BatchPrintState::stopped, "");
    return Next::pause;
}

/// Told once, and looked at again after a pause.
Next BatchPrint::hold(const std::string& reason) {
    view_.showBatchPrintState(BatchPrintState::held, reason);
    if (std::exchange(run_.toldReason, reason) != reason) view_.batchPrintFailed(reason);
    return Next::pause;
}

/// At the first step, on the run's thread: printers may take seconds to answer.
void BatchPrint::begin() {
    if (run_.service) return;
    run_.service = run_.tools.service();
    run_.queue = std::make_unique<PrintQueue>(run_.tools.queue);
    run_.runner = std::make_unique<PrintRunner>(*run_.queue, *run_.service);
    const PrinterPapers papers = run_.service->papers(run_.order.printer);
    run_.order.plan.paper = run_.tools.paper ? run_.tools.paper(papers) : papers.usual;
    if (run_.order.plan.paper->width <= 0) run_.order.plan.paper = usualPaper();
    if (run_.all) return;
    for (const QueuedSheet& sheet : run_.queue->sheets()) {
        if (sheet.page == run_.order.plan.page.sPageTitle.load()) run_.left.insert(sheet.picture);
    }
}

/// What the printer did not take goes before the next photo. A person may have sent or discarded it meanwhile.
/// @return whether nothing waits any longer
bool BatchPrint::sendWaiting() {
    while (!run_.waiting.empty()) {
        const QueuedSheet sheet = run_.runner->send(run_.waiting.front());
        if (!sheet.id.empty() && sheet.stage == QueuedSheet::Stage::waiting) {
            hold(sheet.reason);
            return false;
        }
        run_.waiting.erase(run_.waiting.begin());
        run_.toldReason.clear();
        view_.batchPrintSheetsChanged();
    }
    return true;
}

/// @param folder gets the one that was looked into
std::optional<std::string> BatchPrint::nextPhoto(std::string& folder) {
    std::lock_guard lock(scanner_);
    folder = standardizePath(nextBatchPrintFile.sFolderToCheck);
    const std::optional<std::string> name = nextBatchPrintFile.NextFileToProcess();
    if (!name || !entered_.contains(*name)) return name;
    // The history was not written. Every photo would be printed again and again.
    view_.batchPrintFailed("What is printed cannot be noted in " + folder + "/" + kHistoryName +
                           ", so the run ends: it would print the same photos once more.");
    bEndPrinting = true;
    return std::nullopt;
}

/// Enters the photo in the history behind the print. One that cannot be read counts as printed, unless it may still
/// be growing; nothing comes out for it.
Next BatchPrint::print(const std::string& folder, const std::string& name) {
    const std::string path = folder + "/" + name;
    view_.showBatchPrintState(BatchPrintState::printing, name);
    if (run_.left.erase(path) > 0) {  // a kill came between its print and the history
        enter(name);
        return Next::atOnce;
    }
    ReadPicture read = readPicture(path);
    if (!(read.error + read.damage).empty() && mayStillGrow(path)) return Next::pause;
    if (read.error == kNoMemory) return hold(path + ": " + read.error + ".");
    if (!read.error.empty()) {
        view_.batchPrintFailed(path + ": " + read.error + ". It is left out.");
        enter(name);
        return Next::atOnce;
    }
    SheetPicture picture{std::move(read.pixels), read.damage.empty() ? plainJpeg(path) : std::string(), path};
    if (info_.iOutputPixelWidth > 0 && info_.iOutputPixelHeight > 0)
        picture.proportion = static_cast<double>(info_.iOutputPixelWidth) / info_.iOutputPixelHeight;
    std::vector<std::string> ids;
    if (const std::string problem = PrintMe(info_, run_.order, picture, *run_.queue, ids); !problem.empty())
        return hold(problem);
    for (const std::string& id : ids) {
        const QueuedSheet sheet = run_.runner->send(id);
        if (!sheet.id.empty() && sheet.stage == QueuedSheet::Stage::waiting) run_.waiting.push_back(id);
    }
    enter(name);
    view_.batchPrintSheetsChanged();
    return Next::atOnce;
}

void BatchPrint::enter(const std::string& name) {
    {
        std::lock_guard lock(scanner_);
        nextBatchPrintFile.AddProcessedFiles(name);
        entered_.insert(name);
    }
    ShowBatchPrintStatus();
}

}  // namespace tavrin
