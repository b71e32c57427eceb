#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli sizes` and `tavrin-cli pages`: the lists of output sizes and print pages.
void addListCommands(CLI::App& app, int& result);

}  // namespace tavrin::cli
