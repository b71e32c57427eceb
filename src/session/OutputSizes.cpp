#include "session/OutputSizes.h"

#include <cmath>

#include "core/state/ChangeFlags.h"
#include "formats/Lists.h"

namespace tavrin {

namespace {

/// Place in the list of the last entry that fits, kOwnImageSize when none does.
template <class Fits>
std::int32_t lastEntry(const SystemInfo& info, const Fits& fits) {
    for (std::int32_t i = info.iImageSizeCount() - 1; i >= 0; --i) {
        if (fits(info.oImageSize[static_cast<std::size_t>(i)])) return i;
    }
    return kOwnImageSize;
}

std::int32_t entryOfName(const SystemInfo& info, const std::string& name) {
    return lastEntry(info, [&](const ImageSize& size) { return size.sName.load() == name; });
}

std::int32_t entryFor(const SystemInfo& info, const StoredSize& stored) {
    constexpr double kSame = 1e-6;  // a state file holds inches to six places
    const std::int32_t named = entryOfName(info, stored.name);
    if (named != kOwnImageSize) return named;
    if (!stored.tellsInches())
        return stored.index >= 0 && stored.index < info.iImageSizeCount() ? stored.index : kOwnImageSize;
    return lastEntry(info, [&](const ImageSize& size) {
        return size.dotsPerInch == stored.dpi && std::abs(size.dWidth - stored.width) < kSame &&
               std::abs(size.dHeight - stored.height) < kSame;
    });
}

/// Whether the buffers of `before` are of another size than the selected one.
bool isNewSize(const SystemInfo& info, const OutputGeometry& before) {
    const std::optional<ImageSize> size = selectedSize(info);
    return size &&
           (info.iSelecteImageSize != before.iSelecteImageSize ||
            info.sImageSizeName.load() != before.sImageSizeName.load() ||
            size->dWidth != before.dOutputImageWidthInInches || size->dHeight != before.dOutputImageHeightInInches ||
            size->dotsPerInch != before.iOutputImageDPI);
}

/// What every choice of a size brings with it.
void finishChoice(SystemInfo& info, const OutputGeometry& before) {
    if (!isNewSize(info, before)) return;
    selectPrinterPage(info);
    raiseFlags(info, kRedoOutputSize);
}

std::string whyNotStored(const SystemInfo& info, const StoredSize& stored, std::int32_t index) {
    if (index != kOwnImageSize) return sizeProblem(info.oImageSize[static_cast<std::size_t>(index)]);
    if (!stored.tellsInches()) {
        return "The output size \"" + stored.name +
               "\" is not in the list, and the file does not tell its inches and dots an inch.";
    }
    ImageSize own;
    own.sName = stored.name;
    own.dWidth = stored.width;
    own.dHeight = stored.height;
    own.dotsPerInch = stored.dpi;
    return sizeProblem(own);
}

}  // namespace

bool chooseSize(SystemInfo& info, std::int32_t index) {
    if (index < 0 || index >= info.iImageSizeCount()) return false;
    const OutputGeometry before = info;
    info.iSelecteImageSize = index;
    info.sImageSizeName = info.oImageSize[static_cast<std::size_t>(index)].sName;
    finishChoice(info, before);
    return true;
}

bool chooseSizeByName(SystemInfo& info, const std::string& name) {
    return chooseSize(info, entryOfName(info, name));
}

void chooseOwnSize(SystemInfo& info, const std::string& name, double widthInches, double heightInches, int dpi) {
    const OutputGeometry before = info;
    info.iSelecteImageSize = kOwnImageSize;
    info.sImageSizeName = name;
    info.dOutputImageWidthInInches = widthInches;
    info.dOutputImageHeightInInches = heightInches;
    info.iOutputImageDPI = dpi;
    finishChoice(info, before);
}

std::string chooseStoredSize(SystemInfo& info, const StoredSize& stored) {
    const std::int32_t index = entryFor(info, stored);
    if (std::string problem = whyNotStored(info, stored, index); !problem.empty()) return problem;
    if (!chooseSize(info, index)) chooseOwnSize(info, stored.name, stored.width, stored.height, stored.dpi);
    return "";
}

std::string useChosenSize(SystemInfo& info) {
    info.bChangeImageSize = false;
    return ChangeImageSize(info);
}

}  // namespace tavrin
