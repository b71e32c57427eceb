#pragma once

#include <string>

#include "core/files/Places.h"
#include "core/state/QLXInfo.h"

namespace tavrin {

// The file of what belongs to the installation. It holds a password, so nobody but its owner can read it at any time.

/// Reads the settings. At first start, when there is no file, the settings become the defaults and the file is
/// written with them. A key that the file lacks becomes "", 0 or false, not its default; the positions that the file
/// does not hold stay.
/// @return "" when done; otherwise one line that names the file, and `settings` is as it was. A damaged file is set
///         aside, and the line says where it is kept
[[nodiscard]] std::string LoadQLXFile(QLXInfo& settings, const std::string& path = Places::current().settingsFile());

/// @return "" when done; otherwise one line, and the old file is still there
[[nodiscard]] std::string SaveQLXFile(const QLXInfo& settings,
                                      const std::string& path = Places::current().settingsFile());

}  // namespace tavrin
