#pragma once

#include <atomic>
#include <string>
#include <vector>

namespace tavrin {

/// What lies directly in a folder, in the order that the platform gives.
struct FolderListing {
    std::vector<std::string> names;  ///< as far as the folder could be read
    std::string problem;             ///< one plain line with the folder's name, when that was not to its end
};

/// @param stop is set when nobody wants the list any longer: then it ends with the names until there, without a
/// problem
FolderListing listFolder(const std::string& folder, const std::atomic<bool>* stop = nullptr);

}  // namespace tavrin
