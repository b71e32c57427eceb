#include "session/OwnLists.h"

#include "formats/Lists.h"
#include "session/OutputSizes.h"
#include "session/PrintPages.h"

namespace tavrin {

OwnLists::OwnLists(const SystemInfo& info)
    : sizes_(info.oImageSize),
      pages_(info.oPrinterPages),
      size_(info.iSelecteImageSize),
      page_(info.oQLXInfo->sSelectedPrinterTemplate) {}

std::string OwnLists::putBack(SystemInfo& info) const {
    info.oImageSize = sizes_;
    info.oPrinterPages = pages_;
    info.iCurrentTemplateIndex = -1;  // its sheet is made anew
    info.oQLXInfo->sSelectedPrinterTemplate = page_;
    findChosenPages(info);
    if (size_ >= 0 && info.iSelecteImageSize != size_) chooseSize(info, size_);
    const std::string pages = SaveCustomPrinterTemplates(info), sizes = SaveCustomImageSizesFromXML(info);
    return pages.empty() || sizes.empty() ? pages + sizes : pages + "\n" + sizes;
}

}  // namespace tavrin
