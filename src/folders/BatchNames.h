#pragma once

#include <functional>
#include <string>

namespace tavrin {

/// How the pictures of a batch are named.
enum OutputStyle : int {
    kCombineNames = 1,     ///< stems of foreground, background and state behind one another
    kNumberFiles = 2,      ///< BatchFile1, BatchFile2, ...
    kSplitIntoFolders = 3  ///< background/state/foreground
};

/// The three files of a job by name or path; "UseCurrent" for one that is not there.
struct BatchSources {
    std::string foreground, background, state;
};

/// Makes a folder with those above it; failures show when the picture is written.
using MakeFolder = std::function<void(const std::string&)>;
void makeFolders(const std::string& folder);

std::string numberedName(const std::string& folder, int number);
/// The first number from this one on under which no picture of the type and no state lies in the folder.
int freeNumber(const std::string& folder, int number, int fileType);
/// @param between stands between the stems
std::string combinedName(const std::string& folder, const BatchSources& sources, const std::string& between = "");
/// Makes the folders of background and state on the way.
std::string splitName(const std::string& folder, const BatchSources& sources, const MakeFolder& makeFolder);

/// Extension of a file type with its dot; "" for any other number.
std::string extensionFor(int fileType);

}  // namespace tavrin
