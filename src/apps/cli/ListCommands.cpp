#include "apps/cli/ListCommands.h"

#include <cstdio>
#include <memory>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "core/Printable.h"
#include "core/files/NameText.h"
#include "core/state/SystemInfo.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

std::string inchesOf(double width, double height) {
    char inches[40];
    std::snprintf(inches, sizeof inches, "%.6g x %.6g", width, height);
    return inches;
}

int printSizes(bool json) {
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    QJsonArray sizes;
    if (!json) std::printf("%-24s %-16s %5s  %s\n", "name", "inches", "dpi", "print page");
    for (const ImageSize& size : info->oImageSize) {
        const double width = size.dWidth, height = size.dHeight;
        sizes.append(QJsonObject{{"name", textOfName(size.sName)},
                                 {"width", width},
                                 {"height", height},
                                 {"dpi", size.dotsPerInch.load()},
                                 {"page", textOfName(size.sDefaultPrinterPage)}});
        if (json) continue;
        std::printf("%-24s %-16s %5d  %s\n", printable(size.sName.load()).c_str(), inchesOf(width, height).c_str(),
                    size.dotsPerInch.load(), printable(size.sDefaultPrinterPage.load()).c_str());
    }
    if (json) printJson(QJsonDocument(sizes), false);
    return info->oImageSize.empty() ? kFailed : kDone;
}

int printPages(bool json) {
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    QJsonArray pages;
    if (!json) std::printf("%-32s %-16s %s\n", "title", "inches", "pictures");
    for (const PrinterPage& page : info->oPrinterPages) {
        const double width = static_cast<double>(page.iPageWidth) / 100.0,
                     height = static_cast<double>(page.iPageHeight) / 100.0;
        pages.append(QJsonObject{{"title", textOfName(page.sPageTitle)},
                                 {"width", width},
                                 {"height", height},
                                 {"pictures", static_cast<qint64>(page.iPrinterPageImageCount())}});
        if (json) continue;
        std::printf("%-32s %-16s %zu\n", printable(page.sPageTitle.load()).c_str(), inchesOf(width, height).c_str(),
                    page.iPrinterPageImageCount());
    }
    if (json) printJson(QJsonDocument(pages), false);
    return info->oPrinterPages.empty() ? kFailed : kDone;
}

void addList(CLI::App& app, const char* name, const char* help, int (*print)(bool), int& result) {
    const auto json = std::make_shared<bool>(false);
    CLI::App* command = app.add_subcommand(name, help);
    command->add_flag("--json", *json, "As JSON; lengths are inches");
    command->callback([json, print, &result] { result = print(*json); });
}

}  // namespace

void addListCommands(CLI::App& app, int& result) {
    addList(app, "sizes", "Print the list of output sizes", printSizes, result);
    addList(app, "pages", "Print the list of print pages", printPages, result);
}

}  // namespace tavrin::cli
