#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli info IMAGE...`: what the reader sees in picture files. The exit code goes to `result`.
void addInfoCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
