#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli print`: finished pictures on the sheets of a print page, as a PDF or a picture.
void addPrintCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
