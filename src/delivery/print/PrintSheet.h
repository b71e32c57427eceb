#pragma once

#include <string>

#include <QImage>

#include "delivery/print/SheetLayout.h"

namespace tavrin {

class BitmapContext;
class SystemInfo;

/// Draws one picture into every slot of a page on a sheet of `dpi`; the rest of the sheet becomes grey. So a preview
/// is the printed sheet at fewer dots.
void drawPage(BitmapContext& sheet, const PrinterPage& page, int dpi, const QImage& picture, double proportion,
              const SheetLook& look = {});

/// Draws one picture into every slot of the sheet that `ChangeTemplateBitmap` made for page `iCurrentTemplateIndex`;
/// the rest of the sheet becomes grey. Whether it is turned follows from `proportion`, the width of the output
/// divided by its height. Without a sheet nothing is drawn.
/// @param picture opaque, or with alpha as its format says: the ground shows through
void drawSheet(SystemInfo& info, const QImage& picture, double proportion, const SheetLook& look = {});

/// Writes the sheet of the state as it stands to a PNG, JPEG or TIFF file.
/// @return "" or one plain line
std::string writeSheet(const SystemInfo& info, const std::string& path);

}  // namespace tavrin
