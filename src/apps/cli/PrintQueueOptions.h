#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace tavrin::cli {

/// What `print` does besides printing files.
struct PrintQueueOptions {
    bool printers = false, waiting = false;
    std::string again, discard;

    bool isWanted() const { return printers || waiting || !again.empty() || !discard.empty(); }
};

void addPrintQueueOptions(CLI::App& command, PrintQueueOptions& options);

/// Lists printers or waiting sheets, sends these again or discards them.
/// @return the exit code
int workOnQueue(const PrintQueueOptions& options);

}  // namespace tavrin::cli
