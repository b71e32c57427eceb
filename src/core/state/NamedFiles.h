#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Every file that a state names, in use or not: the sources of the layers, overlays, pictures of the list, textures,
/// frames, the silhouette. Names that are empty are left out.
std::vector<std::string> filesNamedBy(const SystemInfo& info);

/// Writes out from the root every file that the state names relative to the working folder, so that the state means
/// the same files wherever it is opened.
void useFullPaths(SystemInfo& info);

/// Why nothing may be written to `path`, since the state's picture is made from what is there, as one line that names
/// both without a full stop; "" when it may.
std::string whyNotOver(const SystemInfo& info, const std::string& path);

/// The same for a state that is to be saved there, which takes no picture's place either.
std::string whyNoStateOver(const SystemInfo& info, const std::string& path);

/// That line for an output and the input that it is.
std::string overwritesInput(const std::string& output, const std::string& input);

}  // namespace tavrin
