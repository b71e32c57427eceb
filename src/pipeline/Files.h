#pragma once

#include <filesystem>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Removes every entry of the working folder for temporary files; a missing folder is fine.
void ClearTempFiles(const std::filesystem::path& workingFolder);

/// Fills `myFileNames` with the full paths of the pictures in a folder (JPG, JPEG, PNG, TIF, TIFF in any case),
/// in the order that the platform gives. Does not descend into subfolders.
void CreateListOfFilesInFolder(SystemInfo& info, const std::filesystem::path& folder);

}  // namespace tavrin
