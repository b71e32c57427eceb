#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <vector>

namespace tavrin {

/// What became of pages.
struct WrittenPages {
    int count = 0;                      ///< 0: the folder holds no pictures, and nothing was written
    std::string problem;                ///< one plain line, "" if all is well
    std::vector<std::string> pictures;  ///< full paths, which the pages name by their index
};

/// What the pages of results are to be.
struct ReviewWish {
    std::string folder;
    int screenWidth = 0;     ///< points of the main screen; a picture is a fifth of it wide
    int lastReviewPage = 0;  ///< whose first cell the page scrolls to; 0 for none
    int firstWanted = 1;     ///< the page that is written before all others; 1 where there is none of the number
};

/// Is told, when the page that is wanted first stands, which one it is and what the pages are of.
using FirstPageThere = std::function<void(int page, const std::vector<std::string>& pictures)>;

/// Pictures on one page.
inline constexpr int kPicturesOnAPage = 30;

/// The file name of a page, from 1 on.
std::string reviewPageName(int page);

/// Lists the pictures of a folder and writes pages with each of them beside the thumbnail of its mask
/// ("Thumbs/TQTQ" and its name). The button below either leads to the picture's index in the list. Touches nothing
/// but the folder, so any thread may do it.
/// @param stop is set when nobody wants the pages any longer
WrittenPages setupReviewBatchOutput(const ReviewWish& wish, const FirstPageThere& firstThere = {},
                                    const std::atomic<bool>* stop = nullptr);

}  // namespace tavrin
