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

/// The same, after the layer's settings went back to a state file: for the portrait all but the background and the
/// output, for the background nothing else. Call it on the loop's thread.
/// @return "" or why that file could not be read; the picture is opened all the same
std::string openPortraitReset(SystemInfo& info, const std::string& path, const std::string& stateFile);
std::string openBackgroundReset(SystemInfo& info, const std::string& path, const std::string& stateFile);

}  // namespace tavrin
