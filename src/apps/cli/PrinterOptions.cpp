#include "apps/cli/PrinterOptions.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/Usage.h"
#include "core/NearestName.h"
#include "delivery/print/PrintMe.h"
#include "delivery/print/PrintRunner.h"

namespace tavrin::cli {

namespace {

constexpr int kMostCopies = 999;

/// The page of a title, or what is wrong; one that has nothing for a picture prints nothing.
std::string findPage(const SystemInfo& info, const std::string& title, PrinterPage& page) {
    std::vector<std::string> titles;
    for (const PrinterPage& one : info.oPrinterPages)
        titles.push_back(one.sPageTitle);
    const auto found = std::find(titles.begin(), titles.end(), title);
    if (found == titles.end()) {
        const std::string nearest = nearestName(title, titles);
        return "There is no print page \"" + title + "\"" +
               (nearest.empty() ? "." : "; did you mean \"" + nearest + "\"?");
    }
    page = info.oPrinterPages[static_cast<std::size_t>(found - titles.begin())];
    const auto& places = page.oPrinterPageImages;
    const auto in = std::ranges::count_if(places, [&](const PrinterPageImage& slot) { return isOnPage(page, slot); });
    if (in == 0) return "The print page \"" + title + "\" has no room for a picture.";
    if (const auto out = static_cast<std::ptrdiff_t>(places.size()) - in; out > 0)
        warn("The print page \"" + title + "\" has " + std::to_string(out) +
             " slots that lie outside it; they are left out.");
    return "";
}

std::string choosePaper(const PrinterOptions& options, PrintService* service, SheetPlan& plan) {
    if (!options.paper.empty()) {
        plan.paper = paperOf(options.paper);
        if (!plan.paper)
            return "There is no paper \"" + options.paper +
                   "\"; it is a name such as A4 or Letter, or a size such as 4x6 (inches) or 10x15cm.";
    } else if (service) {
        plan.paper = service->papers(options.printer).usual;
    }
    if (options.landscape && !plan.paper) return "--landscape turns the paper, so --paper is wanted.";
    if (options.landscape) plan.paper = plan.paper->turned();
    constexpr int kPixels = 6;  // of 600 dpi in a hundredth of an inch
    if (plan.paper && isCutOff(*plan.paper, static_cast<int>(plan.page.iPageWidth * kPixels),
                               static_cast<int>(plan.page.iPageHeight * kPixels)))
        warn("The print page \"" + plan.page.sPageTitle.load() + "\" is larger than the paper (" + plan.paper->name +
             "); what stands over is cut off.");
    return "";
}

std::string chooseProfile(const PrinterOptions& options, SheetPlan& plan) {
    if (options.profile.empty()) return "";
    const char* intents[] = {"perceptual", "relative", "saturation", "absolute"};
    const auto intent = std::ranges::find(intents, options.intent, [](const char* one) { return std::string(one); });
    std::string problem;
    plan.profile = PrinterProfile::load(options.profile, static_cast<Intent>(intent - std::begin(intents)), problem);
    return problem;
}

/// Until a sheet is printed, given up, or nobody waits any longer.
QueuedSheet waitFor(PrintRunner& runner, PrintQueue& queue, const std::string& id, double seconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    QueuedSheet sheet = queue.sheet(id);
    while (sheet.stage == QueuedSheet::Stage::atPrinter && !sheet.id.empty() &&
           std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        runner.followUp();
        sheet = queue.sheet(id);
    }
    return sheet;
}

/// @return whether the printer has it
bool sendOne(PrintRunner& runner, PrintQueue& queue, const std::string& id, double wait) {
    QueuedSheet sheet = runner.send(id);
    const std::string title = sheet.job.title;
    if (wait > 0) sheet = waitFor(runner, queue, id, wait);
    if (sheet.id.empty()) {
        if (!isQuiet()) printLine(title + ": printed");
        return true;
    }
    const bool isGone = sheet.stage == QueuedSheet::Stage::atPrinter;
    if (isGone && wait <= 0 && !isQuiet())
        printLine(title + ": sent to \"" + sheet.job.printer + "\" as job " + std::to_string(sheet.number));
    if (isGone && wait > 0)
        complain(title + ": not printed yet. " + (sheet.reason.empty() ? "The printer is at work." : sheet.reason));
    if (!isGone) complain(title + ": " + sheet.reason + " It is kept; see tavrin-cli print --waiting.");
    return isGone && wait <= 0;
}

}  // namespace

SheetLook PrinterOptions::look() const {
    return {fit == "fill"    ? SlotFit::fill
            : fit == "whole" ? SlotFit::whole
                             : SlotFit::stretch,
            cutMarks, mirrored, caption};
}

void addPrinterOptions(CLI::App& command, PrinterOptions& options, const char* printer) {
    command.add_option("--page", options.page, "Print page by its title (see tavrin-cli pages)")->type_name("TITLE");
    command
        .add_option(printer, options.printer,
                    "Printer to send the sheets to, by its name (see tavrin-cli print --printers); \"default\" is "
                    "the usual one")
        ->type_name("NAME");
    command.add_option("--copies", options.copies, "Copies, each a job of its own (default 1)")
        ->check(within(1, kMostCopies));
    command
        .add_option("--paper", options.paper,
                    "Paper with the sheet in its middle: A4, Letter, 4x6, 10x15cm ... (default: the printer's)")
        ->type_name("NAME");
    command.add_flag("--landscape", options.landscape, "The paper lies on its side");
    command
        .add_option(
            "--fit", options.fit,
            "How a picture fills a slot of other proportions: stretch (default), fill (cut) or whole (grey sides)")
        ->check(oneOf({"stretch", "fill", "whole"}))
        ->type_name("NAME");
    command.add_flag("--cut-marks", options.cutMarks, "Thin lines at the slots' corners, where there is room");
    command.add_flag("--mirrored", options.mirrored, "Left and right exchanged, for transfer paper");
    command.add_option("--caption", options.caption,
                       "A line beside the pictures, where the page has room; <<filename>>, <<filenumber>>, <<date>> "
                       "and <<time>> are replaced");
    command.add_option("--profile", options.profile, "ICC profile of the printer and its paper")->type_name("FILE");
    command
        .add_option("--intent", options.intent,
                    "With --profile, what becomes of colours that the printer lacks (default relative)")
        ->check(oneOf({"perceptual", "relative", "saturation", "absolute"}))
        ->type_name("NAME");
    command
        .add_option("--wait", options.wait,
                    "Seconds to wait until the sheets are printed; without it they are only handed over")
        ->check(within(0.0, 86400.0));
    for (const char* name : {"--page", printer, "--copies", "--paper", "--landscape", "--fit", "--cut-marks",
                             "--mirrored", "--caption", "--profile", "--intent", "--wait"})
        command.get_option(name)->group("Printing");
}

Refusal planSheets(const SystemInfo& info, const PrinterOptions& options, PrintService* service, SheetPlan& plan) {
    if (options.page.empty()) return {kUsage, "--page is missing."};
    plan.look = options.look();
    std::string problem = findPage(info, options.page, plan.page);
    if (problem.empty()) problem = choosePaper(options, service, plan);
    if (problem.empty()) problem = chooseProfile(options, plan);
    if (problem.empty() && !options.caption.empty() && !captionRoom(plan.page, 600))
        warn("The print page \"" + options.page + "\" has no room for a caption; it is left out.");
    return problem.empty() ? Refusal{} : Refusal{kUsage, problem};
}

Refusal choosePrinter(PrintService& service, std::string& printer) {
    if (printer == "default") {
        const PrinterList list = service.printers();
        const auto usual = std::ranges::find_if(list.printers, &Printer::isDefault);
        if (!list.problem.empty()) return {kFailed, list.problem};
        if (usual == list.printers.end()) return {kFailed, "No printer is the usual one; name one with --printer."};
        printer = usual->name;
        return {};
    }
    const Printer found = service.printer(printer);
    return found.name.empty() && service.printers().problem.empty() ? Refusal{kUsage, found.trouble} : Refusal{};
}

int printFiles(SystemInfo& info, const PrinterOptions& options, const std::vector<std::string>& files) {
    const std::unique_ptr<PrintService> service = systemPrintService();
    PrinterOptions chosen = options;
    PrintOrder order;
    Refusal refusal = choosePrinter(*service, chosen.printer);
    if (refusal.code == kDone) refusal = planSheets(info, chosen, service.get(), order.plan);
    if (refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    order.printer = chosen.printer;
    order.copies = options.copies;
    if (!order.plan.paper) order.plan.paper = usualPaper();
    info.iEventPrintCount = options.copies;
    PrintQueue queue(options.queue);
    PrintRunner runner(queue, *service);
    // All are in the queue before the first one goes, so that nothing is lost whatever happens.
    std::vector<std::string> ids;
    bool good = true;
    for (const std::string& file : files) {
        SheetPicture picture;
        std::string problem = readForSheet(file, picture);
        if (problem.empty()) problem = PrintMe(info, order, picture, queue, ids);
        if (!problem.empty()) complain(problem);
        good = good && problem.empty();
    }
    for (const std::string& id : ids)
        good = sendOne(runner, queue, id, options.wait) && good;
    return good ? kDone : kFailed;
}

}  // namespace tavrin::cli
