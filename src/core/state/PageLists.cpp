#include "core/state/PageLists.h"

namespace tavrin {

std::span<const Leaf<ImageSize>> ImageSize::leaves() {
    using G = ImageSize;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, dWidth),      TAVRIN_LEAF(G, dHeight),
        TAVRIN_LEAF(G, sName),       TAVRIN_LEAF(G, sDefaultPrinterPage),
        TAVRIN_LEAF(G, dotsPerInch), TAVRIN_LEAF(G, sInchWidth),
        TAVRIN_LEAF(G, sInchHeight), TAVRIN_LEAF(G, sCMHeight),
        TAVRIN_LEAF(G, sCMWidth),    TAVRIN_LEAF(G, bCentimeters),
    };
    return table;
}

// Here the names in the file leave out the type prefixes of the fields.
std::span<const Leaf<PrinterPageImage>> PrinterPageImage::leaves() {
    using G = PrinterPageImage;
    static const Leaf<G> table[] = {
        {"X", &G::iX},
        {"Y", &G::iY},
        {"Width", &G::iWidth},
        {"Height", &G::iHeight},
        TAVRIN_LEAF(G, sXInch),
        TAVRIN_LEAF(G, sYInch),
        TAVRIN_LEAF(G, sWidthInch),
        TAVRIN_LEAF(G, sHeightInch),
        TAVRIN_LEAF(G, sXCM),
        TAVRIN_LEAF(G, sYCM),
        TAVRIN_LEAF(G, sWidthCM),
        TAVRIN_LEAF(G, sHeightCM),
        TAVRIN_LEAF(G, bCentimeters),
    };
    return table;
}

std::span<const Leaf<PrinterPage>> PrinterPage::leaves() {
    using G = PrinterPage;
    static const Leaf<G> table[] = {
        {"Title", &G::sPageTitle},       TAVRIN_LEAF(G, sPageWidthInch), TAVRIN_LEAF(G, sPageHeightInch),
        TAVRIN_LEAF(G, sPageWidthCM),    TAVRIN_LEAF(G, sPageHeightCM),  {"PageWidth", &G::iPageWidth},
        {"PageHeight", &G::iPageHeight}, TAVRIN_LEAF(G, bCentimeters),
    };
    return table;
}

}  // namespace tavrin
