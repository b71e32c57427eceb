#include "apps/cli/ListCommands.h"

#include <cstdio>
#include <memory>

#include "apps/cli/Console.h"
#include "core/Printable.h"
#include "core/state/SystemInfo.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

int printSizes() {
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    std::printf("%-24s %-16s %5s  %s\n", "name", "inches", "dpi", "print page");
    for (const ImageSize& size : info->oImageSize) {
        char inches[40];
        std::snprintf(inches, sizeof inches, "%.6g x %.6g", size.dWidth.load(), size.dHeight.load());
        std::printf("%-24s %-16s %5d  %s\n", printable(size.sName.load()).c_str(), inches, size.dotsPerInch.load(),
                    printable(size.sDefaultPrinterPage.load()).c_str());
    }
    return info->oImageSize.empty() ? kFailed : kDone;
}

int printPages() {
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    std::printf("%-32s %-16s %s\n", "title", "inches", "pictures");
    for (const PrinterPage& page : info->oPrinterPages) {
        char inches[40];
        std::snprintf(inches, sizeof inches, "%.6g x %.6g", static_cast<double>(page.iPageWidth) / 100.0,
                      static_cast<double>(page.iPageHeight) / 100.0);
        std::printf("%-32s %-16s %zu\n", printable(page.sPageTitle.load()).c_str(), inches,
                    page.iPrinterPageImageCount());
    }
    return info->oPrinterPages.empty() ? kFailed : kDone;
}

}  // namespace

void addListCommands(CLI::App& app, int& result) {
    app.add_subcommand("sizes", "Print the list of output sizes")->callback([&result] { result = printSizes(); });
    app.add_subcommand("pages", "Print the list of print pages")->callback([&result] { result = printPages(); });
}

}  // namespace tavrin::cli
