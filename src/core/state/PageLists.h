#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/state/Leaf.h"

namespace tavrin {

/// One entry of the list of output sizes.
struct ImageSize {
    Field<double> dWidth = 0.0, dHeight = 0.0;  ///< inches
    Field<std::string> sName;
    Field<std::string> sDefaultPrinterPage;  ///< title of the print page that suits this size
    Field<std::int32_t> dotsPerInch = 0;
    Field<std::string> sInchWidth, sInchHeight, sCMHeight, sCMWidth;  ///< as the user typed them
    Field<bool> bCentimeters = false;
    Field<bool> bCustom = false;  ///< the user's own entry

    static std::span<const Leaf<ImageSize>> leaves();
};

/// One picture slot on a print page, in hundredths of an inch.
struct PrinterPageImage {
    Field<std::int64_t> iX = 0, iY = 0, iWidth = 0, iHeight = 0;
    Field<std::string> sXInch, sYInch, sWidthInch, sHeightInch, sXCM, sYCM, sWidthCM, sHeightCM;
    Field<bool> bCentimeters = false;

    static std::span<const Leaf<PrinterPageImage>> leaves();
};

/// One entry of the list of print page layouts. The page size is in hundredths of an inch.
struct PrinterPage {
    static constexpr std::size_t kMaxImages = 30;

    Field<std::string> sPageTitle;
    Field<std::string> sPageWidthInch, sPageHeightInch, sPageWidthCM, sPageHeightCM;
    Field<std::int64_t> iPageWidth = 0, iPageHeight = 0;
    Field<bool> bCentimeters = false;
    Field<bool> bCustom = false;
    Field<std::string> sBackgroundBitmap;
    std::vector<PrinterPageImage> oPrinterPageImages;  ///< at most kMaxImages

    std::size_t iPrinterPageImageCount() const { return oPrinterPageImages.size(); }

    static std::span<const Leaf<PrinterPage>> leaves();
};

/// Most entries that either list holds.
inline constexpr std::size_t kMaxListEntries = 100;

}  // namespace tavrin
