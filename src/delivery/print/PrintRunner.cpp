#include "delivery/print/PrintRunner.h"

#include <QLockFile>

#include "core/Log.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

using Stage = QueuedSheet::Stage;
using News = JobNews::State;

}  // namespace

QueuedSheet PrintRunner::stay(QueuedSheet sheet, Stage stage, const std::string& reason) {
    if (sheet.stage == stage && sheet.reason == reason) return sheet;
    sheet.stage = stage;
    sheet.reason = reason;
    if (stage == Stage::waiting) sheet.number = 0;
    if (const std::string problem = queue_.note(sheet); !problem.empty()) logError(problem);
    return sheet;
}

QueuedSheet PrintRunner::send(const std::string& id) {
    const auto hold = queue_.hold(id);
    QueuedSheet sheet = queue_.sheet(id);
    if (!hold) sheet.reason = said(Says::sheetBusy);
    return hold && sheet.stage == Stage::waiting && !sheet.id.empty() ? sendHeld(sheet) : sheet;
}

QueuedSheet PrintRunner::sendHeld(QueuedSheet sheet) {
    const Printer printer = service_.printer(sheet.job.printer);
    if (!printer.trouble.empty()) return stay(sheet, Stage::waiting, printer.trouble);
    sheet.stage = Stage::sending;
    sheet.reason.clear();
    sheet.number = 0;
    if (const std::string problem = queue_.note(sheet); !problem.empty()) {
        sheet.stage = Stage::waiting;
        sheet.reason = problem;
        return sheet;
    }
    const MadeJob made = service_.make(sheet.job);
    if (made.id == 0) return stay(sheet, Stage::waiting, made.problem);
    sheet.number = made.id;
    if (const std::string problem = queue_.note(sheet); !problem.empty()) {
        service_.cancel(sheet.job, made.id);
        return stay(sheet, Stage::waiting, problem);
    }
    const std::string problem = service_.send(sheet.job, made.id, queue_.document(sheet.id));
    if (problem.empty()) return stay(sheet, Stage::atPrinter, "");
    // The answer may have been lost on its way, and the sheet not.
    sheet.reason = problem;
    return taken(sheet, service_.news(sheet.job, made.id));
}

/// What the printer knows of a sheet that may have gone, or is there.
QueuedSheet PrintRunner::taken(QueuedSheet sheet, const JobNews& news) {
    const std::string& printer = sheet.job.printer;
    switch (news.state) {
        case News::printed:
            queue_.remove(sheet.id);
            sheet.id.clear();
            return sheet;
        case News::waiting:
        case News::printing:
            return stay(sheet, Stage::atPrinter,
                        news.reason.empty() ? "" : said(Says::doesNotGoOn, {printer, news.reason}));
        case News::empty: {
            // A document that is still on its way must not arrive in a job that is taken for dead.
            if (!service_.cancel(sheet.job, sheet.number))
                return stay(sheet, Stage::unsure, said(Says::keepsItUnsure, {printer}));
            const std::string reason = sheet.reason.empty() ? said(Says::endedBeforeSheet) : sheet.reason;
            return stay(sheet, Stage::waiting, reason);
        }
        case News::givenUp:
            // Somebody took it out of the printer's hands, or it cannot be printed as it is; once more would be the
            // same.
            sheet.byItself = false;
            return stay(sheet, Stage::waiting,
                        news.reason.empty() ? said(Says::didNotPrint, {printer})
                                            : said(Says::didNotPrintFor, {printer, news.reason}));
        case News::unknown:
            return stay(sheet, Stage::unsure, said(Says::forgotItUnsure, {printer}));
        case News::unreachable:
            break;
    }
    if (sheet.stage == Stage::atPrinter) return sheet;
    return stay(sheet, Stage::unsure, said(Says::unaskedUnsure, {printer}));
}

void PrintRunner::follow(const std::string& id) {
    const auto hold = queue_.hold(id);
    if (!hold) return;
    const QueuedSheet sheet = queue_.sheet(id);
    if (sheet.id.empty() || sheet.stage == Stage::waiting) return;
    if (sheet.number == 0) {  // it had no job yet, so nothing was printed
        stay(sheet, Stage::waiting, said(Says::endedBeforeSheet));
    } else {
        taken(sheet, service_.news(sheet.job, sheet.number));
    }
}

std::vector<QueuedSheet> PrintRunner::followUp() {
    for (const QueuedSheet& sheet : queue_.sheets())
        follow(sheet.id);
    return queue_.sheets();
}

/// @return false when it turned out to be printed, or the printer keeps it
bool PrintRunner::takeBack(QueuedSheet& sheet) {
    if (sheet.stage == Stage::waiting || sheet.number == 0) return true;
    sheet = taken(sheet, service_.news(sheet.job, sheet.number));
    if (sheet.id.empty()) return false;
    if (sheet.stage != Stage::atPrinter) return true;
    return service_.cancel(sheet.job, sheet.number);
}

QueuedSheet PrintRunner::sendAgain(const std::string& id) {
    const auto hold = queue_.hold(id);
    QueuedSheet sheet = queue_.sheet(id);
    if (!hold) sheet.reason = said(Says::sheetBusy);
    if (!hold || sheet.id.empty()) return sheet;
    if (!takeBack(sheet)) {
        if (!sheet.id.empty()) sheet.reason = said(Says::keepsSheet, {sheet.job.printer});
        return sheet;
    }
    return sendHeld(sheet);
}

std::string PrintRunner::discard(const std::string& id) {
    const auto hold = queue_.hold(id);
    if (!hold) return said(Says::sheetBusy);
    QueuedSheet sheet = queue_.sheet(id);
    if (sheet.id.empty()) return "";
    if (!takeBack(sheet) && !sheet.id.empty()) return said(Says::keepsSheet, {sheet.job.printer});
    queue_.remove(id);
    return "";
}

}  // namespace tavrin
