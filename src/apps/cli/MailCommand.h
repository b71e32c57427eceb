#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// "tavrin-cli mail" and "tavrin-cli outbox".
void addMailCommands(CLI::App& app, int& result);

}  // namespace tavrin::cli
