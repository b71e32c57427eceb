#include "session/PrintPages.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "formats/Lists.h"
#include "session/OwnSizes.h"

namespace tavrin {

namespace {

constexpr std::int64_t kMostUnits = 10'000;  // hundredths of an inch that a page may be long

std::string textOr(const std::string& text, std::int64_t hundredths, bool centimetres) {
    if (!text.empty()) return text;
    char digits[32];
    const double number = std::round(static_cast<double>(hundredths) * (centimetres ? 25.4 : 10.0)) / 1000.0;
    return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

/// What is typed, in hundredths of an inch.
std::int64_t pageUnits(const std::string& text, bool centimetres) {
    const double number = typedNumber(text) * 100.0;
    return static_cast<std::int64_t>(std::clamp(centimetres ? number / 2.54 : number, -1e9, 1e9));
}

std::int64_t slotUnits(const std::string& text, bool centimetres) {
    return static_cast<std::int64_t>(
        std::clamp(typedNumber(text) * 10000.0 / (centimetres ? 254.0 : 100.0), -1e9, 1e9));
}

PrinterPage* pageAt(SystemInfo& info, std::int32_t index) {
    return index >= 0 && index < info.iPrinterPageCount() ? &info.oPrinterPages[static_cast<std::size_t>(index)]
                                                          : nullptr;
}

/// The page has other places, or is another one: it is the user's, and its sheet is made anew.
std::string keepPages(SystemInfo& info, PrinterPage* changed) {
    if (changed) changed->bCustom = true;
    info.iCurrentTemplateIndex = -1;
    return SaveCustomPrinterTemplates(info);
}

}  // namespace

PageEntry pageEntryOf(const PrinterPage& page) {
    const bool cm = page.bCentimeters;
    return {page.sPageTitle, textOr(cm ? page.sPageWidthCM : page.sPageWidthInch, page.iPageWidth, cm),
            textOr(cm ? page.sPageHeightCM : page.sPageHeightInch, page.iPageHeight, cm), cm};
}

SlotEntry slotEntryOf(const PrinterPage& page, const PrinterPageImage& slot) {
    const bool cm = page.bCentimeters;
    return {textOr(cm ? slot.sXCM : slot.sXInch, slot.iX, cm), textOr(cm ? slot.sYCM : slot.sYInch, slot.iY, cm),
            textOr(cm ? slot.sWidthCM : slot.sWidthInch, slot.iWidth, cm),
            textOr(cm ? slot.sHeightCM : slot.sHeightInch, slot.iHeight, cm)};
}

PrinterPageImage slotOf(const PrinterPage& page, const SlotEntry& entry) {
    const bool cm = page.bCentimeters;
    PrinterPageImage slot;
    slot.bCentimeters = cm;
    slot.iX = slotUnits(entry.x, cm);
    slot.iY = slotUnits(entry.y, cm);
    slot.iWidth = slotUnits(entry.width, cm);
    slot.iHeight = slotUnits(entry.height, cm);
    (cm ? slot.sXCM : slot.sXInch) = entry.x;
    (cm ? slot.sYCM : slot.sYInch) = entry.y;
    (cm ? slot.sWidthCM : slot.sWidthInch) = entry.width;
    (cm ? slot.sHeightCM : slot.sHeightInch) = entry.height;
    return slot;
}

std::string whyNoPrinterPage(const SystemInfo& info, std::int32_t index, const PageEntry& entry) {
    for (const std::string& side : {entry.width, entry.height}) {
        const std::int64_t units = pageUnits(side, entry.centimetres);
        if (units < 1 || units > kMostUnits) return "A page is 0.01 to 100 inches long and wide.";
    }
    if (entry.title.empty()) return "A page needs a name.";
    if (index < 0 && info.oPrinterPages.size() >= kMaxListEntries)
        return "There is room for " + std::to_string(kMaxListEntries) + " print pages, and they are there.";
    for (std::int32_t i = 0; i < info.iPrinterPageCount(); ++i) {
        const PrinterPage& other = info.oPrinterPages[static_cast<std::size_t>(i)];
        if (i != index && other.sPageTitle.load() == entry.title)
            return "There is a print page \"" + entry.title + "\" already.";
    }
    return "";
}

std::string putPrinterPage(SystemInfo& info, std::int32_t index, const PageEntry& entry) {
    if (index < 0) info.oPrinterPages.emplace_back();
    PrinterPage& page = index < 0 ? info.oPrinterPages.back() : *pageAt(info, index);
    const bool cm = entry.centimetres;
    const std::string before = page.sPageTitle;
    page.sPageTitle = entry.title;
    page.bCentimeters = cm;
    (cm ? page.sPageWidthCM : page.sPageWidthInch) = entry.width;
    (cm ? page.sPageHeightCM : page.sPageHeightInch) = entry.height;
    page.iPageWidth = pageUnits(entry.width, cm);
    page.iPageHeight = pageUnits(entry.height, cm);
    QLXInfo& settings = *info.oQLXInfo;
    for (Field<std::string>* chosen : {&settings.sSelectedPrinterTemplate, &settings.sSelectedBatchPrinterTemplate,
                                       &settings.sEventModeSelectedTemplate})
        if (index >= 0 && chosen->load() == before) *chosen = entry.title;
    return keepPages(info, &page);
}

std::string deletePrinterPage(SystemInfo& info, std::int32_t index) {
    if (!pageAt(info, index)) return "";
    info.oPrinterPages.erase(info.oPrinterPages.begin() + index);
    findChosenPages(info);
    return keepPages(info, nullptr);
}

std::string putSlot(SystemInfo& info, std::int32_t index, std::size_t slot, const SlotEntry& entry) {
    PrinterPage* page = pageAt(info, index);
    if (!page || slot > page->oPrinterPageImages.size()) return "";
    if (slot == page->oPrinterPageImages.size()) page->oPrinterPageImages.emplace_back();
    page->oPrinterPageImages[slot] = slotOf(*page, entry);
    return keepPages(info, page);
}

std::string deleteSlot(SystemInfo& info, std::int32_t index, std::size_t slot) {
    PrinterPage* page = pageAt(info, index);
    if (!page || slot >= page->oPrinterPageImages.size()) return "";
    page->oPrinterPageImages.erase(page->oPrinterPageImages.begin() + static_cast<std::ptrdiff_t>(slot));
    return keepPages(info, page);
}

void findChosenPages(SystemInfo& info) {
    QLXInfo& settings = *info.oQLXInfo;
    const auto find = [&](const Field<std::string>& title, Field<std::int32_t>& index) {
        const std::string wanted = title;
        index = 0;
        for (std::int32_t i = 0; i < info.iPrinterPageCount(); ++i)
            if (pageAt(info, i)->sPageTitle.load() == wanted) index = i;
    };
    find(settings.sSelectedPrinterTemplate, settings.iSelectedPrinterTemplate);
    find(settings.sSelectedBatchPrinterTemplate, settings.iSelectedBatchPrinterTemplate);
    find(settings.sEventModeSelectedTemplate, settings.iEventModeSelectedTemplate);
}

void choosePrinterPage(SystemInfo& info, std::int32_t index) {
    const PrinterPage* page = pageAt(info, index);
    if (!page) return;
    info.oQLXInfo->iSelectedPrinterTemplate = index;
    info.oQLXInfo->sSelectedPrinterTemplate = page->sPageTitle;
}

}  // namespace tavrin
