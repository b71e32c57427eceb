#include "delivery/pages/ReviewPages.h"

#include <algorithm>
#include <filesystem>

#include "delivery/pages/HtmlText.h"
#include "folders/NextFileInFolder.h"
#include "folders/PictureFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kHead =
    "<html><head><script language=\"JavaScript\" type=\"text/javascript\">"
    "function gotoRow(){"
    "var rowLast=document.getElementById('rowlast');"
    "if(rowLast==null) return;"
    "var offset=-document.getElementById('rowlast').offsetTop*-1;"
    "window.scrollTo(0,offset)"
    "}</script></head>"
    "<body onload=\"gotoRow();\">";

constexpr const char* kLinksBegin =
    "<table width='90%' height='30'><tr><td bgcolor='#999999'><font color='white' size='7'><b>Select Page:</b>";

/// What all pages of a folder share.
struct Review {
    int pages = 1;
    int lastPage = 0;  ///< whose first cell the page scrolls to; 0 for none
    int imageWidth = 0;
};

/// A link to each page; these lie in one folder, so a name is enough. There is one link more than there are pages
/// where the count of pictures is a multiple of a page's.
std::string linkTable(const Review& review, int current) {
    std::string table = kLinksBegin;
    for (int page = 1; page <= review.pages; ++page) {
        const std::string number = std::to_string(page);
        table += "&nbsp;<a href='" + reviewPageName(page) + "'>";
        table += (page == current ? '[' + number + ']' : number) + "</a>&nbsp;";
    }
    return table + "</font></td></tr></table>";
}

std::string pageBegin(const Review& review, int page) {
    std::string html = kHead;
    if (review.pages > 1) html += linkTable(review, page);
    return html + "<div id=\"container\" style=\"position:relative;top:0px;overflow:auto;\"> <table border=3>";
}

/// A single page ends with the beginning of a table of links that has none.
std::string pageEnd(const Review& review, int page) {
    return "</tr></table>" + (review.pages > 1 ? linkTable(review, page) : kLinksBegin) + "</body></html>";
}

/// @param cell number on the page, two for each picture; every fourth opens a row, without closing the one before it
std::string pictureCell(const Review& review, int page, int cell, const std::string& path, int index) {
    const bool opensRow = cell % 4 == 0;
    const bool isMarked = cell == 0 && page == review.lastPage;
    std::string html = opensRow ? "<tr>" : "";
    html += isMarked ? "<td id=\"rowlast\"><img width=" : "<td><img width=";
    html += std::to_string(review.imageWidth) + " src=\"file:\\\\\\" + linkPath(path) + "\"/><br/>";
    html += "<a href=\"" + std::to_string(index) + "\"><input type=\"button\" value=\"Select\" /></a></td>";
    return opensRow ? html : html + "</td>";
}

std::string thumbnailOf(const std::string& picture) {
    const fs::path path(picture);
    return (path.parent_path() / "Thumbs" / ("TQTQ" + path.filename().string())).string();
}

std::string pageHtml(const Review& review, const std::vector<std::string>& pictures, int page) {
    const int begin = (page - 1) * kPicturesOnAPage;
    const int end = std::min(begin + kPicturesOnAPage, static_cast<int>(pictures.size()));
    std::string html = pageBegin(review, page);
    for (int i = begin; i < end; ++i) {
        const std::string& path = pictures[static_cast<std::size_t>(i)];
        html += pictureCell(review, page, 2 * (i - begin), path, i);
        html += pictureCell(review, page, 2 * (i - begin) + 1, thumbnailOf(path), i);
    }
    return html + pageEnd(review, page);
}

/// Pages of a time when the folder held more, which the last link could lead to.
void removePagesFrom(const std::string& folder, int page) {
    std::error_code failed;
    while (fs::remove(fs::path(folder) / reviewPageName(page), failed))
        ++page;
}

}  // namespace

std::string reviewPageName(int page) {
    return "FilesInFolder" + std::to_string(page) + ".htm";
}

WrittenPages setupReviewBatchOutput(const ReviewWish& wish, const FirstPageThere& firstThere,
                                    const std::atomic<bool>* stop) {
    WrittenPages written;
    std::vector<std::string>& pictures = written.pictures;
    CreateListOfFilesInFolder(pictures, wish.folder, stop);
    sortAsPeopleDo(pictures);  // most systems list a folder in no order that people see
    const int count = static_cast<int>(pictures.size());
    if (count == 0) return {};
    const Review review{count / kPicturesOnAPage + 1, wish.lastReviewPage, static_cast<int>(0.2 * wish.screenWidth)};
    const int pages = (count + kPicturesOnAPage - 1) / kPicturesOnAPage;
    const int first = wish.firstWanted >= 1 && wish.firstWanted <= pages ? wish.firstWanted : 1;
    const auto write = [&](int page) {
        const std::string path = (fs::path(wish.folder) / reviewPageName(page)).string();
        written.problem = writeHtml(path, pageHtml(review, pictures, page));
        return written.problem.empty();
    };
    written.count = pages;
    if (!write(first)) return written;
    if (firstThere) firstThere(first, pictures);
    for (int page = 1; page <= pages; ++page)
        if ((stop && *stop) || (page != first && !write(page))) return written;
    removePagesFrom(wish.folder, pages + 1);
    return written;
}

}  // namespace tavrin
