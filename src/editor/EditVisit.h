#pragma once

#include <optional>
#include <vector>

#include "editor/EditFile.h"
#include "editor/EditRecording.h"

namespace tavrin {

/// What was done between entering the editor and leaving it, and the tools as they were before it.
struct EditVisit {
    std::vector<EditItem> items;
    BrushTable brushes = makeBrushTable();
    int iActiveButton = kEraseForeground;
    std::optional<GUI_BrushInfo> well;  ///< the colour well
    int height = 0;                     ///< of the picture that was edited, in pixels
};

/// What brings the tools from the start of one visit to that of another.
std::vector<EditItem> itemsTo(const EditVisit& wanted, const EditVisit& from);

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
