#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

// The lists of output sizes and of print pages. Each comes from a shipped file and one with the user's own entries,
// in `Places::current()`. Only the user's file is ever written.
//
// There is room for kMaxListEntries. The shipped entries come first when it gets short, in the order of their file,
// so that a state finds the sizes that it expects; entries of the user's that do not fit are named. A file of the
// user's that cannot be read, or that has more than PrinterPage::kMaxImages slots on a page, is left out whole and
// stays where it is. A damaged shipped file is set aside when there is something to take its place: `instead`, the
// bytes of such a file. The result is "" or one line for each file that not all was taken of. The lists have no lock:
// call these where nothing walks them.

/// Fills `oImageSize`: the user's sizes first, then the shipped ones. The last entry named `sImageSizeName` becomes
/// the selected one; when there is none `iSelecteImageSize` stays. The shipped file, or `instead`, has to be there.
/// Saving writes the entries of the list. A file that holds more than these, which was not read or for which there
/// was no room, is set aside first, and the line names it.
[[nodiscard]] std::string LoadImageSizesFromXML(SystemInfo& info, const std::string& instead = "");
[[nodiscard]] std::string SaveCustomImageSizesFromXML(const SystemInfo& info);

/// Fills `oPrinterPages`: the shipped pages first, then the user's. A missing file is passed over. Then
/// the page that suits the selected size is selected.
[[nodiscard]] std::string LoadPrinterTemplatesFromXML(SystemInfo& info, const std::string& instead = "");
[[nodiscard]] std::string SaveCustomPrinterTemplates(const SystemInfo& info);

/// Selects the page in `oQLXInfo` that the selected size names, the last one of that title, or page 0 when there is
/// none.
void selectPrinterPage(SystemInfo& info);

/// One file of each kind, whatever its length. The readers add to `list`, all entries or none, with `bCustom` as
/// told.
[[nodiscard]] std::string saveImageSizes(const std::vector<ImageSize>& list, const std::string& path);
[[nodiscard]] std::string loadImageSizes(std::vector<ImageSize>& list, const std::string& path, bool custom);
[[nodiscard]] std::string savePrinterPages(const std::vector<PrinterPage>& list, const std::string& path);
[[nodiscard]] std::string loadPrinterPages(std::vector<PrinterPage>& list, const std::string& path, bool custom);

}  // namespace tavrin
