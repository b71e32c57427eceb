#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QImage>

#include "delivery/print/Paper.h"
#include "delivery/print/PdfFile.h"
#include "delivery/print/PrinterProfile.h"
#include "delivery/print/SheetLayout.h"

namespace tavrin {

/// How sheets are laid out and what they are printed on.
struct SheetPlan {
    PrinterPage page;
    SheetLook look = {};
    std::optional<Paper> paper = {};  ///< with the sheet in its middle; without one the page of the PDF is the sheet
    std::shared_ptr<const PrinterProfile> profile = {};  ///< null: sRGB as it stands
};

/// A picture for the slots of a sheet.
struct SheetPicture {
    QImage pixels;          ///< of any format
    std::string jpeg = {};  ///< the same as a file (`plainJpeg`), if there is one
    std::string name = {};  ///< its file, for the caption
    double proportion = 0;  ///< width by height, by which it is turned; 0: its own

    double shape() const {
        return proportion > 0 ? proportion : static_cast<double>(pixels.width()) / pixels.height();
    }
};

/// Reads a picture file for a sheet.
/// @return "" or one plain line
std::string readForSheet(const std::string& path, SheetPicture& picture);

/// A PDF of sheets, one a page: of the true size, and every picture in it once with all its pixels, kept without
/// loss.
class SheetPdf {
  public:
    /// @param path the file, which appears with `commit`
    SheetPdf(const std::string& path, const SheetPlan& plan);

    void add(const SheetPicture& picture);
    /// @return "" or one plain line
    std::string commit();

  private:
    std::string drawSheet(const SheetPicture& picture) const;
    std::string drawSlots(const SheetPicture& picture, const std::vector<SheetSlot>& places) const;
    std::string drawCaption(const std::string& picture) const;
    std::string colour(double grey) const;

    const std::string path_;
    const SheetPlan plan_;
    const int width_, height_;  ///< of the sheet, in pixels of 600 dpi
    PdfFile file_;
    const int pages_;
    std::vector<int> sheets_;
};

/// Writes one PDF with a sheet for each picture file. When one of them cannot be read nothing is written.
/// @return "" or one plain line
std::string writeSheetsAsPdf(const SheetPlan& plan, const std::vector<std::string>& pictures,
                             const std::string& path);

}  // namespace tavrin
