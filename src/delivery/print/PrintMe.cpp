#include "delivery/print/PrintMe.h"

#include <algorithm>
#include <filesystem>

namespace tavrin {

namespace {

/// What a printer shows of a sheet: one line of whole letters, no longer than printers take it.
std::string titleOf(const std::string& picture, const std::string& page) {
    const std::string file = std::filesystem::path(picture).filename().string();
    const std::string whole = file + (file.empty() ? "" : ", ") + page;
    constexpr qsizetype kLetters = 80, kBytes = 250;
    QString title = QString::fromUtf8(QByteArray::fromStdString(whole)).simplified().left(kLetters);
    while (title.toUtf8().size() > kBytes)
        title.chop(1);
    return title.toStdString();
}

std::string keepSheet(PrintQueue& queue, QueuedSheet& sheet, const std::string& document,
                      const std::string& prepareAs, int copy) {
    if (prepareAs.empty()) return queue.add(sheet, document);
    sheet.id = prepareAs + "-" + std::to_string(copy + 1);
    sheet.byItself = true;
    return queue.prepare(sheet, document);
}

}  // namespace

int copiesToPrint(SystemInfo& info) {
    if (info.iEventPrintCount < 1) info.iEventPrintCount = 1;
    return info.iEventPrintCount;
}

std::string queueSheets(PrintQueue& queue, const PrintOrder& order, const SheetPicture& picture,
                        std::vector<std::string>& ids) {
    std::string problem;
    const std::string document = queue.newDocument(problem);
    if (!problem.empty()) return problem;
    SheetPdf sheet(document, order.plan);
    sheet.add(picture);
    problem = sheet.commit();
    QueuedSheet queued;
    queued.picture = picture.name;
    queued.page = order.plan.page.sPageTitle;
    queued.job = {order.printer, titleOf(picture.name, queued.page), order.plan.paper.value_or(usualPaper())};
    std::vector<std::string> added;
    for (int copy = 0; copy < order.copies && problem.empty(); ++copy) {
        problem = keepSheet(queue, queued, document, order.prepareAs, copy);
        if (problem.empty()) added.push_back(queued.id);
    }
    for (const std::string& id : problem.empty() ? std::vector<std::string>() : added)
        order.prepareAs.empty() ? queue.remove(id) : queue.withdraw(id);
    std::error_code ignored;
    std::filesystem::remove(document, ignored);
    if (problem.empty()) ids.insert(ids.end(), added.begin(), added.end());
    return problem;
}

std::string PrintMe(SystemInfo& info, PrintOrder order, const SheetPicture& picture, PrintQueue& queue,
                    std::vector<std::string>& ids) {
    order.copies = copiesToPrint(info);
    return queueSheets(queue, order, picture, ids);
}

std::string printEventFile(SystemInfo& info, const std::string& file, PrintOrder order, PrintQueue& queue,
                           std::vector<std::string>& ids) {
    const std::int32_t index = info.oQLXInfo->iEventModeSelectedTemplate;
    if (index < 0 || index >= info.iPrinterPageCount()) return "There is no print page for the event.";
    order.plan.page = info.oPrinterPages[static_cast<std::size_t>(index)];
    SheetPicture picture;
    if (std::string problem = readForSheet(file, picture); !problem.empty()) return problem;
    if (!order.picture.empty()) picture.name = order.picture;
    if (info.iOutputPixelWidth > 0 && info.iOutputPixelHeight > 0)
        picture.proportion = static_cast<double>(info.iOutputPixelWidth) / info.iOutputPixelHeight;
    return PrintMe(info, std::move(order), picture, queue, ids);
}

}  // namespace tavrin
