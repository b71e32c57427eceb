#include "delivery/print/PrintService.h"

namespace tavrin {

namespace {

constexpr const char* kNone =
    "This program was built without a printing system, so there are no printers; a sheet "
    "can be saved as a PDF and printed from there.";

class NoPrintService : public PrintService {
  public:
    PrinterList printers() override { return {{}, kNone}; }
    PrinterPapers papers(const std::string&) override { return {usualPapers(), usualPaper(), ""}; }
    Printer printer(const std::string&) override { return {"", "", false, "", kNone}; }
    MadeJob make(const PrintJob&) override { return {0, kNone}; }
    std::string send(const PrintJob&, int, const std::string&) override { return kNone; }
    JobNews news(const PrintJob&, int) override { return {}; }
    bool cancel(const PrintJob&, int) override { return false; }
};

}  // namespace

std::unique_ptr<PrintService> systemPrintService() {
    return std::make_unique<NoPrintService>();
}

}  // namespace tavrin
