#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli completion bash|zsh|fish|man`: what a shell needs to complete commands and options, and the manual
/// page, all from the options as they are declared. To be added last.
void addCompletionCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
