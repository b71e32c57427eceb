#pragma once

#include <string>
#include <vector>

#include "session/Looks.h"

namespace tavrin {

// Looks by name: state files in a folder of the user's. Those that are deleted stay in a folder beside them until
// another of their name is deleted.

/// In alphabetical order.
std::vector<std::string> lookNames();
std::string lookFile(const std::string& name);
/// @return "" or why a look cannot have this name, as one plain line
std::string lookNameProblem(const std::string& name);
/// A name that no look has: the given one, or with a number behind it.
std::string freeLookName(const std::string& name);

/// Saves everything that a state holds under a name; an older look of it is replaced. A look that is saved and taken
/// has the output modes that it was saved with.
/// @return "" when done; otherwise one line, and the old look is still there. So for all that follow.
std::string saveLook(const SettingValues& settings, const std::string& name);
/// Reads the look in a state file, in the load mode that keeps the pictures: the background's record and the size
/// stay out of it, too. Nothing of `info` changes; it is what the parts that a file may lack are taken from.
std::string readLook(const SystemInfo& info, const std::string& file, SettingValues& look);

std::string renameLook(const std::string& from, const std::string& to);
std::string deleteLook(const std::string& name);
std::string restoreLook(const std::string& name);
/// Copies a state file to a look of a name, or a look to a file. An older one is replaced.
std::string importLook(const SystemInfo& info, const std::string& file, const std::string& name);
std::string exportLook(const std::string& name, const std::string& file);

}  // namespace tavrin
