#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QRectF>
#include <QSize>

#include "core/state/PageLists.h"

namespace tavrin {

/// How a picture that has not the proportions of its slot comes into it.
enum class SlotFit {
    stretch,  ///< whole, out of shape
    fill,     ///< cut at two sides
    whole     ///< whole and in shape, with the sheet's grey at two sides
};

/// What a sheet may have beyond its pictures.
struct SheetLook {
    SlotFit fit = SlotFit::stretch;
    bool cutMarks = false;     ///< thin lines that run on from the slots' edges, outside them
    bool mirrored = false;     ///< left and right exchanged, for paper whose picture is ironed on
    std::string caption = {};  ///< a line beside the pictures, with the macros of a text item; "" for none
};

/// Where one slot of a print page lies on the sheet.
struct SheetSlot {
    QRectF area;          ///< sheet pixels from the lower left corner, y upward
    bool turned = false;  ///< the picture lies in it turned by a quarter, clockwise

    /// The slot as the picture sees it, which is upright in it.
    QSizeF frame() const { return turned ? area.size().transposed() : area.size(); }
};

/// Whether a slot has room and lies on the page, if only in part. Others are left out of the sheet.
bool isOnPage(const PrinterPage& page, const PrinterPageImage& slot);

/// The slots that lie on a page, at `dpi` in whole pixels. `proportion` is the picture's width divided by its height:
/// upright pictures are turned in wide slots, wide ones in upright slots, square ones in both.
std::vector<SheetSlot> slotsOf(const PrinterPage& page, int dpi, double proportion);

/// The grey of the paper around the slots, 0 to 1.
inline constexpr double kSheetGround = 0.7;

/// The part of a picture, in its pixels, that comes into a frame.
QRectF partFor(QSize picture, QSizeF frame, SlotFit fit);
/// The part of a frame, which begins at (0, 0), that a picture fills.
QRectF placeIn(QSizeF frame, QSize picture, SlotFit fit);

/// Thin lines, for a pair of scissors, that go on from the slot's edges outside it: two at each corner.
std::vector<QRectF> cutMarks(const SheetSlot& slot, int dpi);

/// Where a page has room for a line of text: below all its slots, else above them; nothing where neither has.
std::optional<QRectF> captionRoom(const PrinterPage& page, int dpi);

}  // namespace tavrin
