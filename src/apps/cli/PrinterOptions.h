#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/cli/Refusal.h"
#include "core/state/SystemInfo.h"
#include "delivery/print/PrintQueue.h"
#include "delivery/print/SheetPdf.h"

namespace tavrin::cli {

/// How sheets look and what they are printed on, as `print` and `render` take it.
struct PrinterOptions {
    std::string page, printer, paper, fit = "stretch", caption, profile, intent = "relative";
    int copies = 1;
    double wait = 0;
    std::string queue = PrintQueue::usualFolder();  ///< before the places become those of the process
    bool landscape = false, cutMarks = false, mirrored = false;

    SheetLook look() const;
};

/// @param printer name of the option that takes the printer
void addPrinterOptions(CLI::App& command, PrinterOptions& options, const char* printer);

/// What the options mean. The page has at least one place for a picture; slots outside it are told.
/// @param service whose printer tells the paper; null: there is none, and only a wanted paper counts
Refusal planSheets(const SystemInfo& info, const PrinterOptions& options, PrintService* service, SheetPlan& plan);

/// Puts the usual printer's name in the place of "default", and sees that there is a printer of that name.
Refusal choosePrinter(PrintService& service, std::string& printer);

/// Sends a sheet of each file to the printer, as often as there are copies. What cannot go waits in the queue.
/// @return the exit code; what happened was told
int printFiles(SystemInfo& info, const PrinterOptions& options, const std::vector<std::string>& files);

}  // namespace tavrin::cli
