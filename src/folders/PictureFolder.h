#pragma once

#include <filesystem>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Fills `myFileNames` with the full paths of the pictures in a folder (JPG, JPEG, PNG, TIF, TIFF in any case),
/// in the order that the platform gives. Does not descend into subfolders.
void CreateListOfFilesInFolder(SystemInfo& info, const std::filesystem::path& folder);

}  // namespace tavrin
