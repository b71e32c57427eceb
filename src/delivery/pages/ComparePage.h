#pragma once

#include <string>

#include "delivery/pages/ReviewPages.h"

namespace tavrin {

/// The link by which the page asks for another folder.
inline constexpr const char* kChangeFolderLink = "QQChangeFolder";
/// Pictures in the strip at most.
inline constexpr int kMostCompared = 1000;

/// The page that compares the portraits of a folder.
std::string comparePagePath();

/// Lists the pictures of a folder in `myFileNames` and writes a page with a strip of them and five boxes below, into
/// which they are dragged to be compared; a double click leads to the picture's index in the list. The strip begins
/// at `iLastScrollHtmlFileChooser`. Pictures with "%" in their path are left out of it.
/// @param screenWidth points of the main screen; the strip takes nine tenths of it
/// @return `count` is 1, or 0 for a folder without pictures
WrittenPages setupCompareFiles(SystemInfo& info, const std::string& folder, int screenWidth);

}  // namespace tavrin
