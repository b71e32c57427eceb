#include "pipeline/OutputSize.h"

#include <cmath>
#include <cstring>

#include "core/Log.h"

namespace tavrin {

namespace {

constexpr double kMaxPixels = 400e6;
constexpr double kPreviewPixels = 300'000.0;

struct Geometry {
    int dpi = 0, width = 0, height = 0;
};

int inchesToPixels(double inches, int dpi) {
    return static_cast<int>(inches * dpi + 0.5);
}

ImageSize sizeOf(const std::string& name, double widthInches, double heightInches, int dpi) {
    ImageSize size;
    size.sName = name;
    size.dWidth = widthInches;
    size.dHeight = heightInches;
    size.dotsPerInch = dpi;
    return size;
}

Geometry fullGeometry(const ImageSize& size) {
    const int dpi = size.dotsPerInch;
    return {dpi, inchesToPixels(size.dWidth, dpi), inchesToPixels(size.dHeight, dpi)};
}

Geometry previewGeometry(const ImageSize& size) {
    const double area = kPreviewPixels / (size.dWidth * size.dHeight);
    // An output of a fraction of an inch would ask for a preview of billions of dots an inch.
    const int n = static_cast<int>(std::min(area, 2e9));
    const int dpi = static_cast<int>(std::sqrt(n));
    return {dpi, inchesToPixels(size.dWidth, dpi), inchesToPixels(size.dHeight, dpi)};
}

}  // namespace

std::optional<ImageSize> selectedSize(const SystemInfo& info) {
    const std::int32_t index = info.iSelecteImageSize;
    if (index >= 0 && index < info.iImageSizeCount()) return info.oImageSize[static_cast<std::size_t>(index)];
    const double width = info.dOutputImageWidthInInches, height = info.dOutputImageHeightInInches;
    const int dpi = info.iOutputImageDPI;
    if (index != kOwnImageSize || (width == 0.0 && height == 0.0 && dpi == 0)) return std::nullopt;
    return sizeOf(info.sImageSizeName, width, height, dpi);
}

std::string sizeProblem(const ImageSize& size) {
    const double width = size.dWidth, height = size.dHeight, dpi = size.dotsPerInch;
    const std::string named = "The output size \"" + size.sName.load() + "\" ";
    const double pixels = width * dpi * height * dpi;
    if (!(width > 0.0 && height > 0.0 && dpi > 0.0 && pixels >= 1.0 && pixels <= kMaxPixels) ||
        width * dpi >= kMaxPixels || height * dpi >= kMaxPixels)
        return named + "makes no picture of 1 to 400 million pixels.";
    const Geometry full = fullGeometry(size), low = previewGeometry(size);
    if (full.width < 1 || full.height < 1) return named + "makes no picture of 1 to 400 million pixels.";
    if (low.dpi < 1)
        return named + "is too large on paper: over 300,000 square inches its preview would have 0 dots an inch.";
    if (low.width < 1 || low.height < 1) return named + "is too narrow: its preview would have no pixels.";
    return "";
}

std::string ChangeImageSize(SystemInfo& info) {
    const std::optional<ImageSize> selected = selectedSize(info);
    const std::string problem =
        selected ? sizeProblem(*selected)
                 : "There is no output size number " + std::to_string(info.iSelecteImageSize) + " in the list.";
    if (!problem.empty()) return problem;
    const ImageSize& size = *selected;
    const Geometry full = fullGeometry(size), low = previewGeometry(size);
    info.dOutputImageWidthInInches = size.dWidth;
    info.dOutputImageHeightInInches = size.dHeight;
    info.iOutputImageDPI = full.dpi;
    info.iOutputPixelWidth = full.width;
    info.iOutputPixelHeight = full.height;
    info.iOutputImageLowResDPI = low.dpi;
    info.iOutputPixelLowResWidth = low.width;
    info.iOutputPixelLowResHeight = low.height;
    for (BitmapInfo* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        ChangeOutputSize(info, *record);
    }
    info.pForegroundBitmapInfo->bOrgFileChange = true;
    info.pBackgroundBitmapInfo->bOrgFileChange = true;
    return "";
}

void ChangeOutputSize(SystemInfo& info, BitmapInfo& record) {
    logTrace(" ******Createing Image");
    const int lowWidth = info.iOutputPixelLowResWidth, lowHeight = info.iOutputPixelLowResHeight;
    info.hairDetectPixels = PixelBuffer();
    info.hairDetectPixels = PixelBuffer(lowWidth, lowHeight);
    info.pHairDetectBitmap = info.hairDetectPixels.data();
    record.allocateBuffers(info.iOutputPixelWidth, info.iOutputPixelHeight, lowWidth, lowHeight);
    if (!record.pBitmapData || !info.pHairDetectBitmap) logError("Memory not allocated!");
}

void ChangeTemplateBitmap(SystemInfo& info, int page) {
    if (info.iCurrentTemplateIndex == page || page < 0 || page >= info.iPrinterPageCount()) return;
    // Page sizes are in hundredths of an inch, so 6 pixels a unit are 600 dpi.
    constexpr std::int64_t kPixelsPerUnit = 6, kMaxUnits = 10'000;
    const PrinterPage& layout = info.oPrinterPages[static_cast<std::size_t>(page)];
    const std::int64_t pageWidth = layout.iPageWidth, pageHeight = layout.iPageHeight;
    if (pageWidth < 1 || pageHeight < 1 || pageWidth > kMaxUnits || pageHeight > kMaxUnits) {
        logError("The print page \"" + layout.sPageTitle.load() + "\" has no usable size.");
        return;
    }
    info.iCurrentTemplateIndex = page;
    info.iTemplateImageDPI = 600;
    const int width = static_cast<int>(pageWidth * kPixelsPerUnit);
    const int height = static_cast<int>(pageHeight * kPixelsPerUnit);
    info.iTemplatePixelWidth = width;
    info.iTemplatePixelHeight = height;
    info.oBitmapTemplateRep.reset();
    info.templatePixels = PixelBuffer();
    info.templatePixels = PixelBuffer(width, height);
    info.pBitmapTemplateData = info.templatePixels.data();
    if (!info.pBitmapTemplateData) {
        info.iCurrentTemplateIndex = -1;
        logError("Memory not allocated!");
        return;
    }
    std::memset(info.pBitmapTemplateData, 255, pixelBytes(width, height));
    info.oBitmapTemplateRep = std::make_unique<BitmapContext>(info.pBitmapTemplateData, width, height);
}

}  // namespace tavrin
