#include "session/OwnSizes.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core/Lines.h"
#include "formats/Lists.h"
#include "session/OutputSizes.h"

namespace tavrin {

namespace {

constexpr double kCentimetres = 2.54;  // to an inch

/// A number as a person would type it.
std::string numberText(double number) {
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, std::round(number * 1000.0) / 1000.0).ptr};
}

ImageSize imageSizeOf(const SizeEntry& entry) {
    ImageSize size;
    const bool cm = entry.centimetres;
    const double unit = cm ? kCentimetres : 1.0;
    size.bCustom = true;
    size.sName = imageSizeName(entry);
    size.dotsPerInch = entry.dotsPerInch;
    size.bCentimeters = cm;
    (cm ? size.sCMWidth : size.sInchWidth) = entry.width;
    (cm ? size.sCMHeight : size.sInchHeight) = entry.height;
    size.dWidth = typedNumber(entry.width) / unit;
    size.dHeight = typedNumber(entry.height) / unit;
    size.sDefaultPrinterPage = entry.page;
    return size;
}

/// A page that one picture of this size fills, upright whatever the size is.
PrinterPage pageFor(const ImageSize& size) {
    const bool wide = size.dWidth > size.dHeight;
    PrinterPage page;
    PrinterPageImage slot;
    page.bCustom = true;
    page.sPageTitle = "One " + size.sName.load();
    page.bCentimeters = slot.bCentimeters = size.bCentimeters.load();
    page.iPageWidth = slot.iWidth = static_cast<std::int64_t>(std::min<double>(size.dWidth, size.dHeight) * 100.0);
    page.iPageHeight = slot.iHeight = static_cast<std::int64_t>(std::max<double>(size.dWidth, size.dHeight) * 100.0);
    page.sPageWidthInch = slot.sWidthInch = (wide ? size.sInchHeight : size.sInchWidth).load();
    page.sPageHeightInch = slot.sHeightInch = (wide ? size.sInchWidth : size.sInchHeight).load();
    page.sPageWidthCM = slot.sWidthCM = (wide ? size.sCMHeight : size.sCMWidth).load();
    page.sPageHeightCM = slot.sHeightCM = (wide ? size.sCMWidth : size.sCMHeight).load();
    for (Field<std::string>* zero : {&slot.sXInch, &slot.sYInch, &slot.sXCM, &slot.sYCM})
        *zero = "0";
    page.oPrinterPageImages.push_back(slot);
    return page;
}

/// Whether the user has such a page already, perhaps with other places for pictures by now.
bool hasPage(const SystemInfo& info, const PrinterPage& page) {
    return std::any_of(info.oPrinterPages.begin(), info.oPrinterPages.end(), [&](const PrinterPage& one) {
        return one.bCustom && one.sPageTitle.load() == page.sPageTitle.load() && one.iPageWidth == page.iPageWidth &&
               one.iPageHeight == page.iPageHeight;
    });
}

}  // namespace

double typedNumber(const std::string& text) {
    std::string plain = text.substr(std::min(text.size(), text.find_first_not_of(' ')));
    std::replace(plain.begin(), plain.end(), ',', '.');
    double number = 0.0;
    std::from_chars(plain.data(), plain.data() + plain.size(), number);
    return std::isfinite(number) ? number : 0.0;
}

std::string imageSizeName(const SizeEntry& entry) {
    const bool upright = typedNumber(entry.height) > typedNumber(entry.width);
    return entry.width + "x" + entry.height + " " + std::to_string(entry.dotsPerInch) +
           (upright ? " Vert" : " Horz") + (entry.centimetres ? " CM **" : " **");
}

SizeEntry sizeEntryOf(const ImageSize& size) {
    const bool cm = size.bCentimeters;
    const double unit = cm ? kCentimetres : 1.0;
    SizeEntry entry{(cm ? size.sCMWidth : size.sInchWidth), (cm ? size.sCMHeight : size.sInchHeight), cm,
                    size.dotsPerInch, size.sDefaultPrinterPage};
    if (entry.width.empty()) entry.width = numberText(size.dWidth * unit);
    if (entry.height.empty()) entry.height = numberText(size.dHeight * unit);
    return entry;
}

std::string whyNoImageSize(const SystemInfo& info, std::int32_t index, const SizeEntry& entry) {
    const ImageSize size = imageSizeOf(entry);
    if (std::string problem = sizeProblem(size); !problem.empty()) return problem;
    if (index < 0 && info.oImageSize.size() >= kMaxListEntries)
        return "The list has room for " + std::to_string(kMaxListEntries) + " sizes, and they are there.";
    for (std::int32_t i = 0; i < info.iImageSizeCount(); ++i) {
        if (i != index && info.oImageSize[static_cast<std::size_t>(i)].sName.load() == size.sName.load())
            return "There is a size \"" + size.sName.load() + "\" already.";
    }
    if (entry.page == kDefaultTemplate && info.oPrinterPages.size() >= kMaxListEntries &&
        !hasPage(info, pageFor(size)))
        return "There is room for " + std::to_string(kMaxListEntries) +
               " print pages, and they are there; choose one of them.";
    return "";
}

std::string putImageSize(SystemInfo& info, std::int32_t index, const SizeEntry& entry) {
    ImageSize size = imageSizeOf(entry);
    if (entry.page == kDefaultTemplate) {
        PrinterPage page = pageFor(size);
        size.sDefaultPrinterPage = page.sPageTitle;
        if (!hasPage(info, page)) info.oPrinterPages.push_back(std::move(page));
    }
    if (index < 0) {
        info.oImageSize.push_back(size);
    } else {
        info.oImageSize[static_cast<std::size_t>(index)] = size;
        if (index == info.iSelecteImageSize) {
            chooseSize(info, index);
            selectPrinterPage(info);
        }
    }
    std::string problems = SaveCustomPrinterTemplates(info);
    addLine(problems, SaveCustomImageSizesFromXML(info));
    return problems;
}

std::string deleteImageSize(SystemInfo& info, std::int32_t index) {
    if (index < 0 || index >= info.iImageSizeCount()) return "";
    const auto place = info.oImageSize.begin() + index;
    const ImageSize size = *place;
    info.oImageSize.erase(place);
    if (info.iSelecteImageSize == index) {
        chooseOwnSize(info, size.sName, size.dWidth, size.dHeight, size.dotsPerInch);
    } else if (info.iSelecteImageSize > index) {
        info.iSelecteImageSize = info.iSelecteImageSize - 1;
    }
    return SaveCustomImageSizesFromXML(info);
}

}  // namespace tavrin
