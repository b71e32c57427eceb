#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli render`: one picture, from file to file. The exit code goes to `result`.
void addRenderCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
