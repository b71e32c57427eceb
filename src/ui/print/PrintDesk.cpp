#include "ui/print/PrintDesk.h"

#include <algorithm>

#include <QCoreApplication>
#include <QPointer>

#include "core/files/NameText.h"
#include "ui/ReasonText.h"

namespace tavrin {

namespace {

constexpr int kAskEveryMs = 3000, kEndMs = 3000;

using Stage = QueuedSheet::Stage;

QString titleOf(const QueuedSheet& sheet) {
    return QString::fromStdString(sheet.job.title);
}

}  // namespace

PrintDesk::PrintDesk(QObject* parent) : QObject(parent), pool_(std::make_unique<QThreadPool>()) {
    pool_->setMaxThreadCount(1);
    setService(systemPrintService);
    timer_.setInterval(kAskEveryMs);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &PrintDesk::followUp);
}

PrintDesk::~PrintDesk() {
    pool_->clear();
    // A printing system that does not answer holds up no end; its thread ends with the program.
    if (!pool_->waitForDone(kEndMs)) static_cast<void>(pool_.release());
}

void PrintDesk::setService(MakeService make) {
    tools_ = std::make_shared<Tools>(Tools{make(), PrintQueue()});
    make_ = std::move(make);
}

void PrintDesk::run(std::function<Told(Tools&)> work) {
    pool_->start([work = std::move(work), tools = tools_, self = QPointer<PrintDesk>(this)] {
        Told told;
        try {
            told = work(*tools);
        } catch (const std::bad_alloc&) {
            told = [self] { emit self->failed(tr("There is not enough memory for the sheet."), {}); };
        }
        if (!told || !QCoreApplication::instance()) return;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, told] {
                if (self) told();
            },
            Qt::QueuedConnection);
    });
}

void PrintDesk::askPrinters() {
    run([this](Tools& tools) -> Told {
        const PrinterList list = tools.service->printers();
        return [this, list] { emit printersKnown(list); };
    });
}

void PrintDesk::askPapers(const QString& printer) {
    run([this, printer](Tools& tools) -> Told {
        PrinterPapers papers{{}, usualPaper(), ""};
        if (!printer.isEmpty()) papers = tools.service->papers(nameOfText(printer));
        if (papers.papers.empty()) papers.papers = usualPapers();
        return [this, printer, papers] { emit papersKnown(printer, papers); };
    });
}

void PrintDesk::print(const PrintOrder& order, const SheetPicture& picture) {
    run([this, order, picture](Tools& tools) -> Told {
        std::vector<std::string> ids;
        const std::string problem = queueSheets(tools.queue, order, picture, ids);
        if (!problem.empty())
            return [this, problem] { emit failed(tr("The sheet cannot be made."), reasonText(problem)); };
        PrintRunner runner(tools.queue, *tools.service);
        for (const std::string& id : ids)
            runner.send(id);
        return [this, sheets = tools.queue.sheets()] { take(sheets); };
    });
}

void PrintDesk::savePdf(const SheetPlan& plan, const SheetPicture& picture, const QString& path) {
    run([this, plan, picture, path](Tools&) -> Told {
        SheetPdf sheet(nameOfText(path), plan);
        sheet.add(picture);
        const std::string problem = sheet.commit();
        return [this, problem, path] {
            if (problem.empty()) emit told(tr("The sheet is saved as %1.").arg(path));
            if (!problem.empty()) emit failed(tr("The sheet cannot be saved."), reasonText(problem));
        };
    });
}

void PrintDesk::sendAgain(const std::string& id) {
    run([this, id](Tools& tools) -> Told {
        const QueuedSheet sheet = PrintRunner(tools.queue, *tools.service).sendAgain(id);
        return [this, sheet, sheets = tools.queue.sheets()] {
            take(sheets);
            // A person has asked, so an answer comes also where nothing has changed.
            if (!sheet.id.empty() && !sheet.reason.empty())
                emit failed(tr("%1 is not printed.").arg(titleOf(sheet)), reasonText(sheet.reason));
        };
    });
}

void PrintDesk::discard(const std::string& id) {
    run([this, id](Tools& tools) -> Told {
        const std::string problem = PrintRunner(tools.queue, *tools.service).discard(id);
        return [this, id, problem, sheets = tools.queue.sheets()] {
            std::erase_if(sheets_, [&](const QueuedSheet& sheet) { return problem.empty() && sheet.id == id; });
            take(sheets);
            if (!problem.empty()) emit failed(tr("The sheet stays."), reasonText(problem));
        };
    });
}

void PrintDesk::followUp() {
    run([this](Tools& tools) -> Told {
        tools.queue.removeLeftDocuments();
        const std::vector<QueuedSheet> sheets = PrintRunner(tools.queue, *tools.service).followUp();
        return [this, sheets] { take(sheets); };
    });
}

/// Tells what is new of the sheets, and asks again as long as one is on its way.
void PrintDesk::take(const std::vector<QueuedSheet>& sheets) {
    const std::vector<QueuedSheet> before = std::exchange(sheets_, sheets);
    for (const QueuedSheet& sheet : before) {
        if (std::ranges::find(sheets_, sheet.id, &QueuedSheet::id) == sheets_.end() &&
            sheet.stage == Stage::atPrinter)
            emit told(tr("%1 is printed.").arg(titleOf(sheet)));
    }
    for (const QueuedSheet& sheet : sheets_) {
        const auto old = std::ranges::find(before, sheet.id, &QueuedSheet::id);
        tellNews(sheet, old == before.end() ? nullptr : &*old);
    }
    emit sheetsChanged();
    const auto isOnItsWay = [](const QueuedSheet& sheet) {
        return sheet.stage == Stage::atPrinter || sheet.stage == Stage::sending;
    };
    std::ranges::any_of(sheets_, isOnItsWay) ? timer_.start() : timer_.stop();
}

void PrintDesk::tellNews(const QueuedSheet& sheet, const QueuedSheet* before) {
    const bool isSame = before && before->stage == sheet.stage && before->reason == sheet.reason;
    if (isSame) return;
    if (!sheet.reason.empty()) {
        emit failed(tr("%1 is not printed; it waits among the sheets of the Print page.").arg(titleOf(sheet)),
                    reasonText(sheet.reason));
    } else if (sheet.stage == Stage::atPrinter && (!before || before->stage != Stage::atPrinter)) {
        emit told(tr("%1 is sent to %2.").arg(titleOf(sheet), textOfName(sheet.job.printer)));
    }
}

}  // namespace tavrin
