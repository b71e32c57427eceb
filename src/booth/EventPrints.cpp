#include "booth/EventPrints.h"

#include <algorithm>

namespace tavrin {

namespace {

using Stage = QueuedSheet::Stage;

PrintQueue queueOf(const EventSetup& setup) {
    return setup.printQueue.empty() ? PrintQueue() : PrintQueue(setup.printQueue);
}

}  // namespace

EventPrints::EventPrints(std::shared_ptr<const EventSetup> setup, EventTeller& teller)
    : setup_(std::move(setup)),
      teller_(teller),
      service_(setup_->printers()),
      queue_(queueOf(*setup_)),
      runner_(queue_, *service_) {}

/// The chosen printer; without one the usual one of the machine.
void EventPrints::look() {
    Printer printer;
    const std::string wanted = setup_->settings.sEventModePrinterName;
    if (!wanted.empty()) {
        printer = service_->printer(wanted);
    } else {
        const PrinterList list = service_->printers();
        const auto usual = std::ranges::find_if(list.printers, &Printer::isDefault);
        if (usual != list.printers.end()) {
            printer = *usual;
        } else {
            printer.trouble = list.problem.empty() ? "No printer is chosen for the event." : list.problem;
        }
    }
    findTarget(printer);
}

void EventPrints::findTarget(const Printer& printer) {
    std::optional<PrintTarget> found = target_;
    if (!printer.name.empty() && (!found || found->printer != printer.name)) {
        found = PrintTarget{printer.name, usualPaper()};
        if (const std::optional<Paper> paper = paperOf(setup_->paper)) {
            found->paper = *paper;
        } else if (const PrinterPapers papers = service_->papers(printer.name); papers.problem.empty()) {
            found->paper = papers.usual;
        } else {
            found.reset();  // a sheet for another paper would be cut off
        }
    }
    {
        std::lock_guard lock(mutex_);
        printer_ = printer;
        target_ = std::move(found);
        hasAnswer_ = true;
    }
    answered_.notify_all();
}

void EventPrints::step() {
    constexpr std::chrono::seconds kPause{5};  // where no sheet waits
    const auto now = std::chrono::steady_clock::now();
    if (hasSheets_ || now >= nextLook_) {
        look();
        nextLook_ = now + kPause;
    }
    const std::vector<QueuedSheet> sheets = runner_.followUp();
    sendWaiting(sheets);
    count(queue_.sheets());
}

/// In order: where one cannot go, those behind it wait, too.
void EventPrints::sendWaiting(const std::vector<QueuedSheet>& sheets) {
    std::vector<std::string> stuck;
    for (const QueuedSheet& sheet : sheets) {
        if (sheet.stage != Stage::waiting || !sheet.byItself) continue;
        if (std::ranges::find(stuck, sheet.job.printer) != stuck.end()) continue;
        const QueuedSheet sent = runner_.send(sheet.id);
        if (sent.stage == Stage::waiting) stuck.push_back(sheet.job.printer);
    }
}

void EventPrints::count(const std::vector<QueuedSheet>& sheets) {
    int waiting = 0, unsure = 0;
    std::string trouble;
    hasSheets_ = !sheets.empty();
    for (const QueuedSheet& sheet : sheets) {
        const bool asks = sheet.stage == Stage::unsure || (sheet.stage == Stage::waiting && !sheet.byItself);
        asks ? ++unsure : ++waiting;
        if (!asks && trouble.empty()) trouble = sheet.reason;
    }
    {
        std::lock_guard lock(mutex_);
        waiting_ = waiting;
        unsure_ = unsure;
        if (printer_.trouble.empty()) printer_.trouble = trouble;
        trouble = waiting > 0 ? printer_.trouble : "";
    }
    teller_.trouble("printer", "The sheets wait for their printer.", trouble);
    teller_.trouble("unsure", "Some sheets wait for your word.",
                    unsure > 0
                        ? std::to_string(unsure) + " in the list of waiting sheets: print them again, or forget them."
                        : std::string());
}

std::optional<PrintTarget> EventPrints::target(std::chrono::milliseconds limit, std::string& problem) {
    std::unique_lock lock(mutex_);
    answered_.wait_for(lock, limit, [this] { return hasAnswer_; });
    if (!target_) problem = hasAnswer_ ? printer_.trouble : "The printing system has not answered yet.";
    if (!target_ && problem.empty()) problem = "The printer does not tell its paper.";
    return target_;
}

void EventPrints::tell(EventSigns& signs) const {
    std::lock_guard lock(mutex_);
    signs.printer = printer_.name.empty() ? setup_->settings.sEventModePrinterName.load() : printer_.name;
    signs.printerState = printer_.state;
    signs.printerTrouble = printer_.trouble;
    signs.printsWaiting = waiting_;
    signs.printsUnsure = unsure_;
}

}  // namespace tavrin
