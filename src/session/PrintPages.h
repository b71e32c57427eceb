#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

// Print pages of the user's own, and the places for pictures on them. As with sizes, what changes the list keeps it
// in the user's file and returns what is wrong with keeping it, and the caller sees to it that nothing else walks the
// list. A page that came with the program becomes the user's when it is changed; the next start has both.

/// A page as somebody enters it; width and height in centimetres or inches, as typed.
struct PageEntry {
    std::string title = "Name of Template", width = "8", height = "10";
    bool centimetres = false;
};

/// A place for a picture as somebody enters it, from the lower left corner of the page, in the page's unit.
struct SlotEntry {
    std::string x = "0", y = "0", width = "1", height = "1";
};

PageEntry pageEntryOf(const PrinterPage& page);
/// The texts of a place in the unit of its page.
SlotEntry slotEntryOf(const PrinterPage& page, const PrinterPageImage& slot);

/// @param index of the page that is edited; -1 for a new one
/// @return why it makes no page, or "" when it does
std::string whyNoPrinterPage(const SystemInfo& info, std::int32_t index, const PageEntry& entry);
/// Puts a page into the list, a new one without places at its end.
std::string putPrinterPage(SystemInfo& info, std::int32_t index, const PageEntry& entry);
/// Takes a page out of the list. Who used it prints on the first page, unless another has its title.
std::string deletePrinterPage(SystemInfo& info, std::int32_t index);

/// The place that an entry means on a page.
PrinterPageImage slotOf(const PrinterPage& page, const SlotEntry& entry);
/// @param slot which place; that behind the last one is a new one
std::string putSlot(SystemInfo& info, std::int32_t index, std::size_t slot, const SlotEntry& entry);
std::string deleteSlot(SystemInfo& info, std::int32_t index, std::size_t slot);

/// Finds the chosen pages again by their titles after the list has changed; one that is gone is the first.
void findChosenPages(SystemInfo& info);

/// Chooses the page to print on.
void choosePrinterPage(SystemInfo& info, std::int32_t index);

}  // namespace tavrin
