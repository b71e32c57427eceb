#include "formats/Lists.h"

#include "core/Places.h"
#include "formats/LeafXML.h"

namespace tavrin {

namespace {

void loadEntry(ProcessXML& xml, ImageSize& size) {
    loadLeaves(xml, size);
}

void loadEntry(ProcessXML& xml, PrinterPage& page) {
    loadLeaves(xml, page);
    const auto images = xml.FindNodesForName("Image");
    if (images.size() > PrinterPage::kMaxImages) {
        xml.fail("the page \"" + page.sPageTitle.load() + "\" has " + std::to_string(images.size()) +
                 " elements Image, and a page has room for " + std::to_string(PrinterPage::kMaxImages));
        return;
    }
    page.oPrinterPageImages.resize(images.size());
    for (std::size_t i = 0; i < images.size(); ++i) {
        xml.SetActiveElement(images[i]);
        loadLeaves(xml, page.oPrinterPageImages[i]);
    }
}

void saveEntry(ProcessXML& xml, const ImageSize& size) {
    saveLeaves(xml, size);
}

void saveEntry(ProcessXML& xml, const PrinterPage& page) {
    saveLeaves(xml, page);
    for (const PrinterPageImage& slot : page.oPrinterPageImages) {
        xml.OpenNode("Image");
        saveLeaves(xml, slot);
        xml.CloseNode("Image");
    }
}

/// Adds the entries of a file to the list: all of them or none.
template <class Entry>
std::string loadList(std::vector<Entry>& list, const std::string& path, const std::string& root,
                     const std::string& name, bool custom) {
    ProcessXML xml;
    if (!xml.OpenXMLFile(path)) return xml.error;
    if (xml.FindNodesForPath(".//" + root).empty()) xml.fail("not a list: the element " + root + " is missing");
    const auto found = xml.FindNodesForPath(".//" + root + "/" + name);
    if (list.size() + found.size() > kMaxListEntries) {
        xml.fail("its " + std::to_string(found.size()) + " elements " + name + " do not fit: the list has room for " +
                 std::to_string(kMaxListEntries - list.size()) + " more");
    }
    if (!xml.error.empty()) return xml.error;
    std::vector<Entry> entries(found.size());
    for (std::size_t i = 0; i < found.size() && xml.error.empty(); ++i) {
        xml.SetActiveElement(found[i]);
        loadEntry(xml, entries[i]);
        entries[i].bCustom = custom;
    }
    if (xml.error.empty()) list.insert(list.end(), entries.begin(), entries.end());
    return xml.error;
}

template <class Entry>
std::string saveList(const std::vector<Entry>& list, const std::string& path, const std::string& root,
                     const std::string& name) {
    ProcessXML xml;
    xml.StartXMLSave(path);
    xml.OpenNode(root);
    for (const Entry& entry : list) {
        xml.OpenNode(name);
        saveEntry(xml, entry);
        xml.CloseNode(name);
    }
    xml.CloseNode(root);
    xml.EndXMLSave();
    return xml.error;
}

template <class Entry>
std::vector<Entry> customEntries(const std::vector<Entry>& list) {
    std::vector<Entry> custom;
    for (const Entry& entry : list) {
        if (entry.bCustom) custom.push_back(entry);
    }
    return custom;
}

void addLine(std::string& lines, const std::string& line) {
    if (!lines.empty() && !line.empty()) lines += '\n';
    lines += line;
}

/// The line of a file that may be missing.
std::string unlessMissing(const std::string& problem, const std::string& path) {
    return safeFileExists(path) ? problem : "";
}

void selectPrinterPage(SystemInfo& info) {
    const std::int32_t selected = info.iSelecteImageSize;
    std::string title;
    if (selected >= 0 && selected < info.iImageSizeCount())
        title = info.oImageSize[static_cast<std::size_t>(selected)].sDefaultPrinterPage;
    // As with sizes, the last one of a name counts, so a user's page stands in for a shipped one of its title.
    std::int32_t index = 0;
    for (std::int32_t i = 0; i < info.iPrinterPageCount(); ++i) {
        if (info.oPrinterPages[static_cast<std::size_t>(i)].sPageTitle.load() == title) index = i;
    }
    info.oQLXInfo->iSelectedPrinterTemplate = index;
    info.oQLXInfo->sSelectedPrinterTemplate = title;
}

}  // namespace

std::string saveImageSizes(const std::vector<ImageSize>& list, const std::string& path) {
    return saveList(list, path, "ImageSizeList", "ImageSize");
}

std::string loadImageSizes(std::vector<ImageSize>& list, const std::string& path, bool custom) {
    return loadList(list, path, "ImageSizeList", "ImageSize", custom);
}

std::string savePrinterPages(const std::vector<PrinterPage>& list, const std::string& path) {
    return saveList(list, path, "AllPages", "Page");
}

std::string loadPrinterPages(std::vector<PrinterPage>& list, const std::string& path, bool custom) {
    return loadList(list, path, "AllPages", "Page", custom);
}

std::string LoadImageSizesFromXML(SystemInfo& info) {
    const Places& places = Places::current();
    std::vector<ImageSize> list;
    std::string problems =
        unlessMissing(loadImageSizes(list, places.customImageSizeFile(), true), places.customImageSizeFile());
    addLine(problems, loadImageSizes(list, places.imageSizeFile(), false));
    info.oImageSize = std::move(list);
    for (std::int32_t i = 0; i < info.iImageSizeCount(); ++i) {
        if (info.oImageSize[static_cast<std::size_t>(i)].sName.load() == info.sImageSizeName.load())
            info.iSelecteImageSize = i;
    }
    return problems;
}

std::string LoadPrinterTemplatesFromXML(SystemInfo& info) {
    const Places& places = Places::current();
    std::vector<PrinterPage> list;
    std::string problems = unlessMissing(loadPrinterPages(list, places.printerFile(), false), places.printerFile());
    addLine(problems,
            unlessMissing(loadPrinterPages(list, places.customPrinterFile(), true), places.customPrinterFile()));
    info.oPrinterPages = std::move(list);
    selectPrinterPage(info);
    return problems;
}

std::string SaveCustomImageSizesFromXML(const SystemInfo& info) {
    return saveImageSizes(customEntries(info.oImageSize), Places::current().customImageSizeFile());
}

std::string SaveCustomPrinterTemplates(const SystemInfo& info) {
    return savePrinterPages(customEntries(info.oPrinterPages), Places::current().customPrinterFile());
}

}  // namespace tavrin
