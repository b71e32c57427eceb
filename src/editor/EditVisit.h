#pragma once

#include <vector>

#include "editor/EditFile.h"
#include "editor/EditTools.h"

namespace tavrin {

/// What was done between entering the editor and leaving it, and the tools as they were before it.
struct EditVisit : EditTools {
    std::vector<EditItem> items = {};
    int height = 0;  ///< of the picture that was edited, in pixels
};

/// What brings tools from where they stand to where they stood. It is for a replay: a hand's would select, too.
/// @param zoom pixels of the picture per point of the view, at home
std::vector<EditItem> itemsTo(const EditTools& wanted, const EditTools& from, double zoom);

/// What takes a selection off, and leaves whose colours one would compare.
EditItem selectionItem(const EditTools& tools);

/// The same anchor in a picture so many times as large.
CopyAnchor scaled(const CopyAnchor& anchor, double times);

/// The same with every scale of the radius `height` over `ofHeight` as large.
std::vector<EditItem> withScale(std::vector<EditItem> items, std::int64_t height, std::int64_t ofHeight);

/// Strokes that were begun in a visit, or in all of these.
int strokesOf(const EditVisit& visit);
int strokesOf(const std::vector<EditVisit>& visits);

/// All that visits did, one after the other, as a file that begins with the tools as they are when the program
/// starts.
/// @param zoom pixels of the picture per point of the view
EditFile fileOf(const std::vector<EditVisit>& visits, int width, int height, double zoom);

}  // namespace tavrin
