// The list of print pages.

#include "FuzzFile.h"
#include "formats/Lists.h"

using namespace tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::writeInput(bytes, size);
    std::vector<PrinterPage> list(3), again;
    if (!loadPrinterPages(list, fuzz::inputFile(), true).empty()) {
        fuzz::require(list.size() == 3, "nothing is taken from a refused file");
    } else if (savePrinterPages(list, fuzz::inputFile()).empty()) {
        fuzz::require(loadPrinterPages(again, fuzz::inputFile(), true).empty(), "what was saved loads");
        fuzz::require(again.size() == list.size() && list.size() <= kMaxListEntries, "no entry is lost");
    }
    return 0;
}
