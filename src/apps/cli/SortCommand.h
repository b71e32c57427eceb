#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli sort`: splits a folder of photos into upright and wide ones.
void addSortCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
