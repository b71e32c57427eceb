#pragma once

#include <string>

#include "apps/cli/PrinterOptions.h"

namespace tavrin::cli {

/// Prints the photos of a folder that its history lacks, as the window's Print page does; with `watch` those that
/// arrive, too, until a signal ends it.
/// @return the exit code; what happened was told
int printFolder(SystemInfo& info, const PrinterOptions& options, const std::string& folder, bool watch);

}  // namespace tavrin::cli
