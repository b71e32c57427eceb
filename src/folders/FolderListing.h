#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// What lies directly in a folder, in the order that the platform gives.
struct FolderListing {
    std::vector<std::string> names;  ///< as far as the folder could be read
    std::string problem;             ///< one plain line with the folder's name, when that was not to its end
};

FolderListing listFolder(const std::string& folder);

}  // namespace tavrin
