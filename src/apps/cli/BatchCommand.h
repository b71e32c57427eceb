#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::cli {

/// `tavrin-cli batch`: folders of portraits over folders of backgrounds. The exit code goes to `result`.
void addBatchCommand(CLI::App& app, int& result);

/// `tavrin-cli report merge`: joins the reports of shards.
void addReportCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
