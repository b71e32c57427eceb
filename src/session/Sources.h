#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Makes a file the source of the foreground or the background; the next pass loads it, also when it is the same
/// file as before.
void setForeground(SystemInfo& info, const std::string& path);
void setBackground(SystemInfo& info, const std::string& path);

/// Loads both files again with the next pass.
void reloadSources(SystemInfo& info);

/// As somebody opens a portrait or a background to work on: besides the source, what was shown of the picture before
/// goes, that is its galleries and the view of the foreground without a key. A batch and the command line set that
/// view on purpose, so they set the source alone.
void openPortrait(SystemInfo& info, const std::string& path);
void openBackground(SystemInfo& info, const std::string& path);

}  // namespace tavrin
