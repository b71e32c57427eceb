#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli state show|diff|set`: state files. The exit code goes to `result`.
void addStateCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
