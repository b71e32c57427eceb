#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <vector>

namespace tavrin {

/// Fills a list with the full paths of the pictures in a folder (JPG, JPEG, PNG, TIF, TIFF in any case),
/// in the order that the platform gives. Does not descend into subfolders.
/// @param stop is set when nobody wants the list any longer: then it ends with the names until there
void CreateListOfFilesInFolder(std::vector<std::string>& myFileNames, const std::filesystem::path& folder,
                               const std::atomic<bool>* stop = nullptr);

}  // namespace tavrin
