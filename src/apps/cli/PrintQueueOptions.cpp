#include "apps/cli/PrintQueueOptions.h"

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "delivery/print/PrintRunner.h"

namespace tavrin::cli {

namespace {

using Stage = QueuedSheet::Stage;

int listPrinters(PrintService& service) {
    const PrinterList list = service.printers();
    if (!list.problem.empty()) {
        complain(list.problem);
        return kFailed;
    }
    if (list.printers.empty()) {
        complain("There are no printers on this machine. Add one in the desktop's settings.");
        return kFailed;
    }
    for (const Printer& printer : list.printers)
        printLine(
            printer.name + (printer.isDefault ? " (usual)" : "") + ": " + printer.state +
            (printer.description.empty() || printer.description == printer.name ? "" : ", " + printer.description));
    return kDone;
}

std::string lineOf(const QueuedSheet& sheet) {
    const char* stages[] = {"waits", "is being sent", "is at the printer", "may have been printed"};
    return sheet.id + "  " + sheet.job.title + " for \"" + sheet.job.printer + "\" " +
           stages[static_cast<int>(sheet.stage)] + (sheet.reason.empty() ? "" : ": " + sheet.reason);
}

int listSheets(PrintRunner& runner) {
    const std::vector<QueuedSheet> sheets = runner.followUp();
    for (const QueuedSheet& sheet : sheets)
        printLine(lineOf(sheet));
    if (sheets.empty() && !isQuiet()) tell("No sheet waits.");
    return kDone;
}

/// Those that a word means: one by its name, or all. What may have been printed, or is at its printer, is only meant
/// by its name.
std::vector<std::string> meant(PrintRunner& runner, const std::string& word) {
    std::vector<std::string> ids;
    for (const QueuedSheet& sheet : runner.followUp()) {
        if (word == sheet.id || (word == "all" && sheet.stage == Stage::waiting)) ids.push_back(sheet.id);
    }
    if (ids.empty() && word != "all") complain("No sheet that waits is called " + word + ".");
    if (ids.empty() && word == "all") tell("No sheet waits.");
    return ids;
}

int sendAgain(PrintRunner& runner, const std::string& word) {
    const std::vector<std::string> ids = meant(runner, word);
    bool good = !ids.empty() || word == "all";
    for (const std::string& id : ids) {
        const QueuedSheet sheet = runner.sendAgain(id);
        const bool isGone = sheet.id.empty() || (sheet.stage == Stage::atPrinter && sheet.reason.empty());
        if (!isGone) complain(sheet.job.title + ": " + sheet.reason);
        if (isGone && !isQuiet())
            printLine(sheet.job.title + (sheet.id.empty() ? ": has been printed meanwhile"
                                                          : ": sent to \"" + sheet.job.printer + "\" as job " +
                                                                std::to_string(sheet.number)));
        good = good && isGone;
    }
    return good ? kDone : kFailed;
}

int discard(PrintRunner& runner, const std::string& word) {
    const std::vector<std::string> ids = meant(runner, word);
    bool good = !ids.empty() || word == "all";
    for (const std::string& id : ids) {
        const std::string problem = runner.discard(id);
        if (!problem.empty()) complain(problem);
        good = good && problem.empty();
    }
    return good ? kDone : kFailed;
}

}  // namespace

void addPrintQueueOptions(CLI::App& command, PrintQueueOptions& options) {
    command.add_flag("--printers", options.printers, "List the printers and how they are");
    command.add_flag("--waiting", options.waiting,
                     "List the sheets that are not known to be printed, after asking the printers about them");
    command
        .add_option("--again", options.again,
                    "Send such a sheet once more, by its name in that list, or \"all\" that wait")
        ->type_name("SHEET");
    command
        .add_option("--discard", options.discard,
                    "Forget such a sheet, by its name in that list, or \"all\" that wait")
        ->type_name("SHEET");
}

int workOnQueue(const PrintQueueOptions& options) {
    const std::unique_ptr<PrintService> service = systemPrintService();
    if (options.printers) return listPrinters(*service);
    PrintQueue queue;
    queue.removeLeftDocuments();
    PrintRunner runner(queue, *service);
    if (!options.again.empty()) return sendAgain(runner, options.again);
    if (!options.discard.empty()) return discard(runner, options.discard);
    return listSheets(runner);
}

}  // namespace tavrin::cli
