#pragma once

#include <string>

namespace tavrin {

class SystemInfo;

/// Where pages were written to.
struct WrittenPages {
    int count = 0;        ///< 0: the folder holds no pictures, and nothing was written
    std::string problem;  ///< one plain line, "" if all is well
};

/// Pictures on one page.
inline constexpr int kPicturesOnAPage = 30;

/// The file name of a page, from 1 on.
std::string reviewPageName(int page);

/// Lists the pictures of a folder in `myFileNames` and writes pages with each of them beside the thumbnail of its
/// mask ("Thumbs/TQTQ" and its name). The button below either leads to the picture's index in the list.
/// @param screenWidth points of the main screen; a picture is a fifth of it wide
WrittenPages setupReviewBatchOutput(SystemInfo& info, const std::string& folder, int screenWidth);

}  // namespace tavrin
