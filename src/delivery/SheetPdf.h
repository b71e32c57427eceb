#pragma once

#include <string>
#include <vector>

#include "delivery/SheetLayout.h"

namespace tavrin {

/// Writes one PDF with a sheet for each picture file: pages of the true size, and every picture with all its pixels,
/// kept without loss. When one of the pictures cannot be read nothing is written.
/// @return "" or one plain line
std::string writeSheetsAsPdf(const PrinterPage& page, const std::vector<std::string>& pictures, const SheetLook& look,
                             const std::string& path);

}  // namespace tavrin
