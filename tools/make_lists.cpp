// Writes the lists of output sizes and print pages that the program ships: make_lists FOLDER

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "formats/Lists.h"

namespace {

using tavrin::ImageSize;
using tavrin::PrinterPage;
using tavrin::PrinterPageImage;

constexpr double kCmPerInch = 2.54;

/// A paper format, upright; in centimetres when `metric`, else in inches.
struct Format {
    std::string name;
    double width, height;
    bool metric;

    double inchWidth() const { return metric ? width / kCmPerInch : width; }
    double inchHeight() const { return metric ? height / kCmPerInch : height; }
};

const std::vector<Format> kFormats = {
    {"Wallet", 2.5, 3.5, false}, {"3.5x5", 3.5, 5, false}, {"4x5", 4, 5, false},     {"4x6", 4, 6, false},
    {"5x7", 5, 7, false},        {"6x8", 6, 8, false},     {"8x10", 8, 10, false},   {"8x12", 8, 12, false},
    {"10x13", 10, 13, false},    {"11x14", 11, 14, false}, {"16x20", 16, 20, false}, {"A5", 14.8, 21, true},
    {"A4", 21, 29.7, true},
};

/// A length as a person types it: two places at most, no zeros behind.
std::string typed(double length) {
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, length, std::chars_format::fixed, 2).ptr;
    std::string text(digits, end);
    while (text.ends_with('0'))
        text.pop_back();
    if (text.ends_with('.')) text.pop_back();
    return text;
}

long long hundredths(double inches) {
    return std::llround(inches * 100.0);
}

ImageSize makeSize(const Format& format, bool horizontal, int dpi) {
    ImageSize size;
    size.dWidth = horizontal ? format.inchHeight() : format.inchWidth();
    size.dHeight = horizontal ? format.inchWidth() : format.inchHeight();
    const std::string way = horizontal ? "Horz" : "Vert";
    size.sName = format.name + " " + std::to_string(dpi) + " " + way;
    size.sDefaultPrinterPage = format.name + " " + way;
    size.dotsPerInch = dpi;
    size.sInchWidth = typed(size.dWidth);
    size.sInchHeight = typed(size.dHeight);
    size.sCMHeight = typed(size.dHeight * kCmPerInch);
    size.sCMWidth = typed(size.dWidth * kCmPerInch);
    size.bCentimeters = format.metric;
    return size;
}

PrinterPage makePage(const std::string& title, double width, double height, bool metric) {
    PrinterPage page;
    page.sPageTitle = title;
    page.iPageWidth = hundredths(width);
    page.iPageHeight = hundredths(height);
    page.sPageWidthInch = typed(width);
    page.sPageHeightInch = typed(height);
    page.sPageWidthCM = typed(width * kCmPerInch);
    page.sPageHeightCM = typed(height * kCmPerInch);
    page.bCentimeters = metric;
    return page;
}

/// A slot in hundredths of an inch from the lower left corner of the page.
void addSlot(PrinterPage& page, long long x, long long y, long long width, long long height) {
    PrinterPageImage slot;
    slot.iX = x;
    slot.iY = y;
    slot.iWidth = width;
    slot.iHeight = height;
    const auto inches = [](long long length) { return static_cast<double>(length) / 100.0; };
    slot.sXInch = typed(inches(x));
    slot.sYInch = typed(inches(y));
    slot.sWidthInch = typed(inches(width));
    slot.sHeightInch = typed(inches(height));
    slot.sXCM = typed(inches(x) * kCmPerInch);
    slot.sYCM = typed(inches(y) * kCmPerInch);
    slot.sWidthCM = typed(inches(width) * kCmPerInch);
    slot.sHeightCM = typed(inches(height) * kCmPerInch);
    slot.bCentimeters = page.bCentimeters.load();
    page.oPrinterPageImages.push_back(slot);
}

/// Rows and columns of one slot size, side by side without gaps, as a cutter wants them.
struct Block {
    int columns, rows;
    double width, height;  ///< of a slot, inches
};

/// A page with its blocks one above the other, the first on top, the whole centred.
PrinterPage makePackage(const std::string& title, const Format& paper, const std::vector<Block>& blocks) {
    PrinterPage page = makePage(title, paper.inchWidth(), paper.inchHeight(), paper.metric);
    long long total = 0;
    for (const Block& block : blocks)
        total += block.rows * hundredths(block.height);
    long long top = (page.iPageHeight + total) / 2;
    for (const Block& block : blocks) {
        const long long width = hundredths(block.width), height = hundredths(block.height);
        const long long left = (page.iPageWidth - block.columns * width) / 2;
        for (int row = 0; row < block.rows; ++row) {
            top -= height;
            for (int column = 0; column < block.columns; ++column)
                addSlot(page, left + column * width, top, width, height);
        }
    }
    return page;
}

std::vector<ImageSize> makeSizes() {
    std::vector<ImageSize> sizes;
    for (const Format& format : kFormats) {
        for (const int dpi : {200, 300}) {
            sizes.push_back(makeSize(format, false, dpi));
            sizes.push_back(makeSize(format, true, dpi));
        }
    }
    return sizes;
}

std::vector<PrinterPage> makePages() {
    std::vector<PrinterPage> pages;
    for (const Format& format : kFormats) {
        const double width = format.inchWidth(), height = format.inchHeight();
        pages.push_back(makePage(format.name + " Vert", width, height, format.metric));
        pages.push_back(makePage(format.name + " Horz", height, width, format.metric));
        for (PrinterPage* page : {&pages[pages.size() - 2], &pages.back()})
            addSlot(*page, 0, 0, page->iPageWidth, page->iPageHeight);
    }
    const std::vector<Block> wallets = {{2, 4, 3.5, 2.5}}, fourWallets = {{2, 2, 3.5, 2.5}};
    for (const Format& paper : {Format{"Letter", 8.5, 11, false}, Format{"A4", 21, 29.7, true}}) {
        const auto add = [&](const std::string& title, const std::vector<Block>& blocks) {
            pages.push_back(makePackage(paper.name + " " + title, paper, blocks));
        };
        add("One 8x10", {{1, 1, 8, 10}});
        add("Two 5x7", {{1, 2, 7, 5}});
        add("Two 4x6", {{1, 2, 6, 4}});
        add("Four 4x5", {{2, 2, 4, 5}});
        add("Four 3.5x5", {{2, 2, 3.5, 5}});
        add("Eight Wallets", wallets);
        add("One 5x7 Four Wallets", {{1, 1, 7, 5}, fourWallets[0]});
        add("One 5x7 Two 4x5", {{1, 1, 7, 5}, {2, 1, 4, 5}});
        add("Two 4x5 Four Wallets", {{2, 1, 4, 5}, fourWallets[0]});
    }
    const Format a4{"A4", 21, 29.7, true};
    pages.push_back(makePackage("A4 Two A5", a4, {{1, 2, 21 / kCmPerInch, 14.8 / kCmPerInch}}));
    pages.push_back(makePackage("A4 Four A6", a4, {{2, 2, 10.5 / kCmPerInch, 14.8 / kCmPerInch}}));
    return pages;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "make_lists FOLDER\n");
        return 2;
    }
    const std::string folder = std::string(arguments[1]) + "/";
    for (const std::string& problem : {tavrin::saveImageSizes(makeSizes(), folder + "ImageSize.xml"),
                                       tavrin::savePrinterPages(makePages(), folder + "Printer.xml")}) {
        if (problem.empty()) continue;
        std::fprintf(stderr, "%s\n", problem.c_str());
        return 1;
    }
    return 0;
}
