#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

// The lists of output sizes and of print pages. Each comes from a shipped file and one with the user's own entries,
// in `Places::current()`. Only the user's file is ever written.
//
// A file that cannot be read, or that would make more than kMaxListEntries entries or PrinterPage::kMaxImages slots
// on a page, is left out whole; what the other file holds is taken. The result is "" or one line for each file left
// out. The lists have no lock: call these where nothing walks them.

/// Fills `oImageSize`: the user's sizes first, then the shipped ones. The last entry named `sImageSizeName` becomes
/// the selected one; when there is none `iSelecteImageSize` stays. The shipped file has to be there.
[[nodiscard]] std::string LoadImageSizesFromXML(SystemInfo& info);
[[nodiscard]] std::string SaveCustomImageSizesFromXML(const SystemInfo& info);

/// Fills `oPrinterPages`: the shipped pages first, then the user's. A missing file is passed over. Then the page
/// named by the selected size is selected in `oQLXInfo`, or page 0 when there is none of that title.
[[nodiscard]] std::string LoadPrinterTemplatesFromXML(SystemInfo& info);
[[nodiscard]] std::string SaveCustomPrinterTemplates(const SystemInfo& info);

/// One file of each kind. The readers add to `list`, all entries or none, with `bCustom` as told.
[[nodiscard]] std::string saveImageSizes(const std::vector<ImageSize>& list, const std::string& path);
[[nodiscard]] std::string loadImageSizes(std::vector<ImageSize>& list, const std::string& path, bool custom);
[[nodiscard]] std::string savePrinterPages(const std::vector<PrinterPage>& list, const std::string& path);
[[nodiscard]] std::string loadPrinterPages(std::vector<PrinterPage>& list, const std::string& path, bool custom);

}  // namespace tavrin
