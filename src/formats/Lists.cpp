#include "formats/Lists.h"

#include "core/Lines.h"
#include "core/files/Places.h"
#include "formats/LeafXML.h"
#include "formats/SafeFile.h"

namespace tavrin {

namespace {

/// The form of a list file.
template <class Entry>
struct Form;
template <>
struct Form<ImageSize> {
    static constexpr const char *kRoot = "ImageSizeList", *kEntry = "ImageSize";
};
template <>
struct Form<PrinterPage> {
    static constexpr const char *kRoot = "AllPages", *kEntry = "Page";
};

std::string nameOf(const ImageSize& size) {
    return size.sName;
}
std::string nameOf(const PrinterPage& page) {
    return page.sPageTitle;
}

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

/// Adds the entries of the document to the list: all of them, or none when xml.error says why.
template <class Entry>
void takeEntries(ProcessXML& xml, std::vector<Entry>& list, bool custom) {
    const std::string root = Form<Entry>::kRoot;
    if (xml.FindNodesForPath(".//" + root).empty()) xml.fail("not a list: the element " + root + " is missing");
    const auto found = xml.FindNodesForPath(".//" + root + "/" + Form<Entry>::kEntry);
    std::vector<Entry> entries(found.size());
    for (std::size_t i = 0; i < found.size() && xml.error.empty(); ++i) {
        xml.SetActiveElement(found[i]);
        loadEntry(xml, entries[i]);
        entries[i].bCustom = custom;
    }
    if (xml.error.empty()) list.insert(list.end(), entries.begin(), entries.end());
}

template <class Entry>
std::string loadList(std::vector<Entry>& list, const std::string& path, bool custom) {
    ProcessXML xml;
    if (xml.OpenXMLFile(path)) takeEntries(xml, list, custom);
    return xml.error;
}

/// Takes what does not fit off the end of a list.
/// @return one line that names it
template <class Entry>
std::string leaveOut(std::vector<Entry>& list, std::size_t room, const std::string& path) {
    constexpr std::size_t kNamed = 20;
    if (list.size() <= room) return "";
    std::string line = path + ": there is room for " + std::to_string(room) + " of its " +
                       std::to_string(list.size()) + " elements " + Form<Entry>::kEntry + "; left out:";
    for (std::size_t i = room; i < list.size() && i < room + kNamed; ++i)
        line += (i > room ? ", \"" : " \"") + nameOf(list[i]) + "\"";
    if (list.size() > room + kNamed) line += " and " + std::to_string(list.size() - room - kNamed) + " more";
    list.resize(room);
    return line;
}

/// The shipped list of the account. One that is damaged is set aside, and `instead` is taken for any that cannot be
/// read.
template <class Entry>
std::string loadShipped(std::vector<Entry>& list, const std::string& path, const std::string& instead,
                        bool mayBeMissing) {
    ProcessXML xml;
    if (xml.OpenXMLFile(path)) takeEntries(xml, list, false);
    std::string problem = xml.error;
    if (!problem.empty() && !instead.empty()) {
        problem = withSentence(problem + keptAside(xml, path), "The shipped list is used.");
        if (xml.OpenXMLBytes(path, instead)) takeEntries(xml, list, false);
    }
    if (xml.isMissing() && (mayBeMissing || !instead.empty())) problem.clear();
    addLine(problem, leaveOut(list, kMaxListEntries, path));
    return problem;
}

/// The user's own entries, as far as the shipped ones leave room. There may be no such file.
template <class Entry>
std::string loadCustom(std::vector<Entry>& list, const std::string& path, std::size_t shipped) {
    const std::string problem = loadList(list, path, true);
    if (!problem.empty()) return safeFileExists(path) ? problem : "";
    return leaveOut(list, kMaxListEntries - shipped, path);
}

template <class Entry>
std::string saveList(const std::vector<Entry>& list, const std::string& path) {
    const std::string root = Form<Entry>::kRoot, name = Form<Entry>::kEntry;
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

/// Why the file of the user's holds more than the list took of it, as a part of a sentence; "" when it took all.
/// @param shipped the file whose entries come first when room gets short
template <class Entry>
std::string leftOutOf(const std::string& path, const std::string& shipped) {
    std::vector<Entry> first, own;
    if (!safeFileExists(path)) return "";
    if (std::string problem = loadList(own, path, true); !problem.empty()) return problem;
    static_cast<void>(loadList(first, shipped, false));
    return first.size() + own.size() > kMaxListEntries ? path + ": there was no room for all of it" : "";
}

template <class Entry>
std::vector<Entry> customEntries(const std::vector<Entry>& list) {
    std::vector<Entry> custom;
    for (const Entry& entry : list) {
        if (entry.bCustom) custom.push_back(entry);
    }
    return custom;
}

/// Saves the user's own entries. What is left out of a list goes on in a file that is set aside.
template <class Entry>
std::string saveCustom(const std::vector<Entry>& list, const std::string& path, const std::string& shipped) {
    std::string problem = leftOutOf<Entry>(path, shipped);
    if (!problem.empty()) {
        const std::string kept = setDamagedFileAside(path);
        if (kept.empty()) return withSentence(problem, "It cannot be set aside, so it stays as it is.");
        problem = withSentence(problem, "The whole file is kept as " + kept + ".");
    }
    addLine(problem, saveList(customEntries(list), path));
    return problem;
}

}  // namespace

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

std::string saveImageSizes(const std::vector<ImageSize>& list, const std::string& path) {
    return saveList(list, path);
}

std::string loadImageSizes(std::vector<ImageSize>& list, const std::string& path, bool custom) {
    return loadList(list, path, custom);
}

std::string savePrinterPages(const std::vector<PrinterPage>& list, const std::string& path) {
    return saveList(list, path);
}

std::string loadPrinterPages(std::vector<PrinterPage>& list, const std::string& path, bool custom) {
    return loadList(list, path, custom);
}

std::string LoadImageSizesFromXML(SystemInfo& info, const std::string& instead) {
    const Places& places = Places::current();
    std::vector<ImageSize> shipped, list;
    std::string problems = loadShipped(shipped, places.imageSizeFile(), instead, false);
    addLine(problems, loadCustom(list, places.customImageSizeFile(), shipped.size()));
    list.insert(list.end(), shipped.begin(), shipped.end());
    info.oImageSize = std::move(list);
    for (std::int32_t i = 0; i < info.iImageSizeCount(); ++i) {
        if (info.oImageSize[static_cast<std::size_t>(i)].sName.load() == info.sImageSizeName.load())
            info.iSelecteImageSize = i;
    }
    return problems;
}

std::string LoadPrinterTemplatesFromXML(SystemInfo& info, const std::string& instead) {
    const Places& places = Places::current();
    std::vector<PrinterPage> list, custom;
    std::string problems = loadShipped(list, places.printerFile(), instead, true);
    addLine(problems, loadCustom(custom, places.customPrinterFile(), list.size()));
    list.insert(list.end(), custom.begin(), custom.end());
    info.oPrinterPages = std::move(list);
    selectPrinterPage(info);
    return problems;
}

std::string SaveCustomImageSizesFromXML(const SystemInfo& info) {
    const Places& places = Places::current();
    return saveCustom(info.oImageSize, places.customImageSizeFile(), places.imageSizeFile());
}

std::string SaveCustomPrinterTemplates(const SystemInfo& info) {
    const Places& places = Places::current();
    return saveCustom(info.oPrinterPages, places.customPrinterFile(), places.printerFile());
}

}  // namespace tavrin
