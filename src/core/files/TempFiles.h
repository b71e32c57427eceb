#pragma once

#include <filesystem>

namespace tavrin {

/// Removes every entry of the working folder for temporary files; a missing folder is fine.
void ClearTempFiles(const std::filesystem::path& workingFolder);

}  // namespace tavrin
