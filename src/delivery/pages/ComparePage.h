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

/// What the page is to be.
struct CompareWish {
    std::string folder;
    int screenWidth = 0;  ///< points of the main screen; the strip takes nine tenths of it
    int scrolled = 0;     ///< where the strip begins, in its pixels (`iLastScrollHtmlFileChooser`)
};

/// Lists the pictures of a folder and writes a page with a strip of them and five boxes below, into which they are
/// dragged to be compared; a double click leads to the picture's index in the list. Pictures with "%" in their path
/// are left out of it. Touches nothing but the page, so any thread may do it.
/// @param stop is set when nobody wants the page any longer
/// @return `count` is 1, or 0 for a folder without pictures
WrittenPages setupCompareFiles(const CompareWish& wish, const std::atomic<bool>* stop = nullptr);

}  // namespace tavrin
