#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// The settings that name a file: sources, overlays, silhouette, textures, pictures of frames and picture items.
/// Empty ones are among them.
std::vector<Field<std::string>*> namedFiles(SystemInfo& info);

/// Writes out from the root every file that the state names relative to the working folder, so that the state means
/// the same files wherever it is opened.
void useFullPaths(SystemInfo& info);

}  // namespace tavrin
