#include "delivery/print/PrintService.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

class NoPrintService : public PrintService {
  public:
    PrinterList printers() override { return {{}, said(Says::builtWithoutPrinting)}; }
    PrinterPapers papers(const std::string&) override { return {usualPapers(), usualPaper(), ""}; }
    Printer printer(const std::string&) override { return {"", "", false, "", said(Says::builtWithoutPrinting)}; }
    MadeJob make(const PrintJob&) override { return {0, said(Says::builtWithoutPrinting)}; }
    std::string send(const PrintJob&, int, const std::string&) override { return said(Says::builtWithoutPrinting); }
    JobNews news(const PrintJob&, int) override { return {}; }
    bool cancel(const PrintJob&, int) override { return false; }
};

}  // namespace

std::unique_ptr<PrintService> systemPrintService() {
    return std::make_unique<NoPrintService>();
}

}  // namespace tavrin
