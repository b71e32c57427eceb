#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// Adds `sheet` to the command `report`.
void addSheetCommand(CLI::App& report, int& result);

}  // namespace tavrin::cli
