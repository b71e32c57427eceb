#pragma once

#include <string>

namespace tavrin {

/// What a contact sheet is made from.
struct SheetOrder {
    std::string report;
    std::string out;     ///< the sheet: .jpg, .png or .tif
    std::string folder;  ///< of the pictures; "" for the one that the report names
    int worst = 12;      ///< pictures on the sheet, 1 to `kMostOnSheet`
};
inline constexpr int kMostOnSheet = 200;

struct MadeSheet {
    int pictures = 0;     ///< on the sheet
    int gone = 0;         ///< of them, those whose files cannot be read any more: their cells say so
    int failed = 0;       ///< of the report, without a picture and so not on the sheet
    std::string problem;  ///< why there is no sheet; one plain line
};

/// Draws the pictures of a report that are least sure, worst first: of each the place that is in doubt at its own
/// size, with its name, its number and the reasons. The sheet appears whole, and over nothing that the report names.
MadeSheet drawSheet(const SheetOrder& order);

}  // namespace tavrin
