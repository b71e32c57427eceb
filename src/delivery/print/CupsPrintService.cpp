// The printers of CUPS, spoken to by its own library.
#include <algorithm>
#include <cups/cups.h>
#include <fstream>

#include "core/NearestName.h"
#include "delivery/print/CupsWords.h"
#include "delivery/print/PrintService.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

constexpr int kConnectMs = 5000;
constexpr double kAnswerSeconds = 15.0;

/// A connection that gives up where nobody answers.
class Connection {
  public:
    Connection()
        : http_(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kConnectMs, nullptr)) {
        if (http_)
            httpSetTimeout(
                http_, kAnswerSeconds, [](http_t*, void*) { return 0; }, nullptr);
    }
    ~Connection() { httpClose(http_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    explicit operator bool() const { return http_ != nullptr; }
    http_t* get() const { return http_; }

  private:
    http_t* http_;
};

/// What the library says about the last call. @param what with places for the printer and the reason
std::string lastProblem(Says what, const std::string& printer) {
    std::string line = cupsLastErrorString() ? cupsLastErrorString() : "";
    while (line.ends_with('.'))
        line.pop_back();
    return said(what, {printer, line.empty() ? said(Says::noReason) : line});
}

std::string option(const cups_dest_t& dest, const char* name) {
    const char* value = cupsGetOption(name, dest.num_options, dest.options);
    return value ? value : "";
}

std::string troubleOf(const std::string& name, const cups_dest_t& dest, const std::string& words) {
    const bool isStopped = option(dest, "printer-state") == std::to_string(IPP_PSTATE_STOPPED);
    if (option(dest, "printer-is-accepting-jobs") == "false") return said(Says::takesNoJobs, {name});
    if (words.empty() || words == "stopped") {
        const std::string told = option(dest, "printer-state-message");
        if (!isStopped) return "";
        return told.empty() || told == "Paused" ? said(Says::printerStopped, {name})
                                                : said(Says::printerStoppedBy, {name, told});
    }
    return said(isStopped ? Says::printerStoppedBy : Says::cannotPrintNow, {name, words});
}

Printer printerOf(const cups_dest_t& dest) {
    const std::string reasons = option(dest, "printer-state-reasons"), words = wordsOf(reasons, true);
    const std::string state = option(dest, "printer-state");
    Printer printer{dest.name, option(dest, "printer-info"), dest.is_default != 0, words, ""};
    if (words.empty())
        printer.state = said(state == std::to_string(IPP_PSTATE_STOPPED)      ? Says::stopped
                             : state == std::to_string(IPP_PSTATE_PROCESSING) ? Says::printing
                                                                              : Says::ready);
    if (option(dest, "printer-is-accepting-jobs") == "false") printer.state = said(Says::noJobsNow);
    printer.trouble = troubleOf(printer.name, dest, wordsOf(reasons, false));
    return printer;
}

/// The printers as the library lists them.
struct Dests {
    explicit Dests(http_t* http) : count(cupsGetDests2(http, &first)) {}
    ~Dests() { cupsFreeDests(count, first); }
    Dests(const Dests&) = delete;
    Dests& operator=(const Dests&) = delete;
    cups_dest_t* find(const std::string& name) { return cupsGetDest(name.c_str(), nullptr, count, first); }

    cups_dest_t* first = nullptr;
    int count;
};

/// One printer with all that there is to know about it.
class Dest {
  public:
    Dest(http_t* http, const std::string& name) : http_(http), dests_(http), dest_(dests_.find(name)) {
        if (dest_) info_ = cupsCopyDestInfo(http, dest_);
    }
    ~Dest() { cupsFreeDestInfo(info_); }
    Dest(const Dest&) = delete;
    Dest& operator=(const Dest&) = delete;
    explicit operator bool() const { return info_ != nullptr; }
    cups_dest_t* dest() const { return dest_; }
    cups_dinfo_t* info() const { return info_; }

    /// The printer's own name of a paper; "" when it has none of that size.
    std::string mediaOf(const Paper& paper) const {
        constexpr double kHundredths = 2540.0 / 72.0;  // of a millimetre in a point
        const int width = static_cast<int>(std::min(paper.width, paper.height) * kHundredths + 0.5);
        const int length = static_cast<int>(std::max(paper.width, paper.height) * kHundredths + 0.5);
        cups_size_t size{};
        if (cupsGetDestMediaBySize(http_, dest_, info_, width, length, CUPS_MEDIA_FLAGS_DEFAULT, &size))
            return size.media;
        const pwg_media_t* known = pwgMediaForSize(width, length);
        return known ? known->pwg : "";
    }

  private:
    http_t* http_;
    Dests dests_;
    cups_dest_t* dest_;
    cups_dinfo_t* info_ = nullptr;
};

Paper paperOf(const cups_size_t& size) {
    constexpr double kPoints = 72.0 / 2540.0;
    const double width = size.width * kPoints, height = size.length * kPoints;
    return {width, height, paperName(width, height)};
}

std::string withoutStop(std::string line) {
    if (line.ends_with('.')) line.pop_back();
    return line;
}

JobNews newsOf(ipp_t* response) {
    const auto number = [response](const char* name) {
        ipp_attribute_t* attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
        return attribute ? ippGetInteger(attribute, 0) : 0;
    };
    std::string reasons;
    for (const char* name : {"job-state-reasons", "job-printer-state-reasons"}) {
        ipp_attribute_t* attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
        for (int i = 0; attribute && i < ippGetCount(attribute); ++i)
            reasons += std::string(ippGetString(attribute, i, nullptr)) + ',';
    }
    ipp_attribute_t* told = ippFindAttribute(response, "job-printer-state-message", IPP_TAG_ZERO);
    const char* message = told ? ippGetString(told, 0, nullptr) : "";
    const auto state = static_cast<ipp_jstate_t>(number("job-state"));
    using State = JobNews::State;
    if (state == IPP_JSTATE_COMPLETED) return {State::printed, ""};
    if (state == IPP_JSTATE_CANCELED) return {State::givenUp, said(Says::wasCancelled)};
    if (state == IPP_JSTATE_ABORTED) return {State::givenUp, withoutStop(message ? message : "")};
    if (number("number-of-documents") < 1) return {State::empty, ""};
    std::string words = wordsOf(reasons, true);
    if (words.empty() && message) words = troubleIn(message);
    words = withoutStop(words);
    if (state == IPP_JSTATE_PROCESSING) return {State::printing, words};
    return {State::waiting, words};
}

class CupsPrintService : public PrintService {
  public:
    PrinterList printers() override {
        const Connection connection;
        if (!connection) return {{}, said(Says::noCups)};
        PrinterList list;
        Dests dests(connection.get());
        for (int i = 0; i < dests.count; ++i) {
            if (!dests.first[i].instance) list.printers.push_back(printerOf(dests.first[i]));
        }
        return list;
    }

    Printer printer(const std::string& name) override {
        const PrinterList list = printers();
        if (!list.problem.empty()) return {"", "", false, "", list.problem};
        const auto found = std::ranges::find(list.printers, name, &Printer::name);
        if (found != list.printers.end()) return *found;
        if (list.printers.empty()) return {"", "", false, "", said(Says::noPrinters)};
        std::vector<std::string> names;
        for (const Printer& one : list.printers)
            names.push_back(one.name);
        const std::string nearest = nearestName(name, names);
        return {"", "", false, "",
                nearest.empty() ? said(Says::noSuchPrinter, {name}) : said(Says::noSuchPrinterNear, {name, nearest})};
    }

    PrinterPapers papers(const std::string& name) override {
        PrinterPapers papers{{}, usualPaper(), ""};
        const Connection connection;
        if (!connection) return {{}, usualPaper(), said(Says::noCups)};
        const Dest dest(connection.get(), name);
        if (!dest) return {{}, usualPaper(), printer(name).trouble};
        cups_size_t size{};
        const int count = cupsGetDestMediaCount(connection.get(), dest.dest(), dest.info(), CUPS_MEDIA_FLAGS_DEFAULT);
        for (int i = 0; i < count; ++i) {
            if (!cupsGetDestMediaByIndex(connection.get(), dest.dest(), dest.info(), i, CUPS_MEDIA_FLAGS_DEFAULT,
                                         &size))
                continue;
            const Paper paper = paperOf(size);
            if (std::ranges::find(papers.papers, paper.name, &Paper::name) == papers.papers.end())
                papers.papers.push_back(paper);
        }
        if (cupsGetDestMediaDefault(connection.get(), dest.dest(), dest.info(), CUPS_MEDIA_FLAGS_DEFAULT, &size) &&
            size.width > 0)
            papers.usual = paperOf(size);
        return papers;
    }

    MadeJob make(const PrintJob& job) override {
        const Connection connection;
        if (!connection) return {0, said(Says::noCups)};
        const Dest dest(connection.get(), job.printer);
        if (!dest) return {0, lastProblem(Says::printerUnasked, job.printer)};
        cups_option_t* options = nullptr;
        const std::string media = dest.mediaOf(job.paper);
        int count = cupsAddOption("print-scaling", "none", 0, &options);
        if (!media.empty()) count = cupsAddOption("media", media.c_str(), count, &options);
        int id = 0;
        const ipp_status_t status =
            cupsCreateDestJob(connection.get(), dest.dest(), dest.info(), &id, job.title.c_str(), count, options);
        cupsFreeOptions(count, options);
        if (status <= IPP_STATUS_OK_EVENTS_COMPLETE && id > 0) return {id, ""};
        return {0, lastProblem(Says::doesNotTake, job.printer)};
    }

    std::string send(const PrintJob& job, int id, const std::string& document) override {
        const std::string unread = said(Says::sheetNotSent, {job.printer, said(Says::itsFileUnreadable, {document})});
        std::ifstream file(document, std::ios::binary);
        if (!file) return unread;
        const Connection connection;
        if (!connection) return said(Says::noCups);
        const Dest dest(connection.get(), job.printer);
        if (!dest) return lastProblem(Says::sheetNotSent, job.printer);
        if (cupsStartDestDocument(connection.get(), dest.dest(), dest.info(), id, "sheet.pdf", CUPS_FORMAT_PDF, 0,
                                  nullptr, 1) != HTTP_STATUS_CONTINUE)
            return lastProblem(Says::sheetNotSent, job.printer);
        std::vector<char> bytes(std::size_t{1} << 16U);
        while (file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())), file.gcount() > 0) {
            if (cupsWriteRequestData(connection.get(), bytes.data(), static_cast<std::size_t>(file.gcount())) !=
                HTTP_STATUS_CONTINUE)
                return lastProblem(Says::sheetNotSent, job.printer);
        }
        if (file.bad()) return unread;
        if (cupsFinishDestDocument(connection.get(), dest.dest(), dest.info()) > IPP_STATUS_OK_EVENTS_COMPLETE)
            return lastProblem(Says::sheetNotSent, job.printer);
        return "";
    }

    JobNews news(const PrintJob& job, int id) override {
        const Connection connection;
        if (!connection) return {};
        ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
        const std::string uri = "ipp://localhost/jobs/" + std::to_string(id);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
        ipp_t* response = cupsDoRequest(connection.get(), request, "/");
        const ipp_status_t status = cupsLastError();
        JobNews told;
        if (status == IPP_STATUS_ERROR_NOT_FOUND || status == IPP_STATUS_ERROR_GONE)
            told.state = JobNews::State::unknown;
        if (response && status <= IPP_STATUS_OK_EVENTS_COMPLETE) told = newsOf(response);
        // A printing system that was set up anew counts from the beginning.
        ipp_attribute_t* name = response ? ippFindAttribute(response, "job-name", IPP_TAG_ZERO) : nullptr;
        if (name && job.title != ippGetString(name, 0, nullptr)) told = {JobNews::State::unknown, ""};
        ippDelete(response);
        return told;
    }

    bool cancel(const PrintJob& job, int id) override {
        const Connection connection;
        if (!connection) return false;
        return cupsCancelJob2(connection.get(), job.printer.c_str(), id, 0) <= IPP_STATUS_OK_EVENTS_COMPLETE;
    }
};

}  // namespace

std::unique_ptr<PrintService> systemPrintService() {
    return std::make_unique<CupsPrintService>();
}

}  // namespace tavrin
