#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// Adds "booth": the worker of the photo booth without a window, and its helpers for scripts.
void addBoothCommand(CLI::App& app, int& result);

/// Those below it: press, retry, counts, refill.
void addBoothHelpers(CLI::App& booth, int& result);

}  // namespace tavrin::cli
