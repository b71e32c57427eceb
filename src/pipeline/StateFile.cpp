#include "pipeline/StateFile.h"

#include "formats/ImageState.h"
#include "formats/Installation.h"
#include "pipeline/OutputSize.h"

namespace tavrin {

namespace {

/// Whether the buffers of `before` are of another size than the selected one.
bool isNewSize(const SystemInfo& info, const OutputGeometry& before) {
    const std::optional<ImageSize> size = selectedSize(info);
    return size &&
           (info.iSelecteImageSize != before.iSelecteImageSize ||
            info.sImageSizeName.load() != before.sImageSizeName.load() ||
            size->dWidth != before.dOutputImageWidthInInches || size->dHeight != before.dOutputImageHeightInInches ||
            size->dotsPerInch != before.iOutputImageDPI);
}

/// @param load reads the settings and the size that is stored beside them, and returns what is wrong
template <class Load>
LoadedStateFile loadAs(const std::string& path, SystemInfo& info, const Load& load) {
    LoadedStateFile loaded;
    StoredSize stored;
    OutputGeometry geometry = info;
    loaded.problem = load(stored);
    if (!loaded.problem.empty()) return loaded;
    geometry.dOrgImageScale = info.dOrgImageScale;  // these two are kept for the file alone
    geometry.dImageSliderScale = info.dImageSliderScale;
    static_cast<OutputGeometry&>(info) = geometry;
    loaded.sizeProblem = selectStoredSize(info, stored);
    if (!loaded.sizeProblem.empty()) loaded.sizeProblem = path + ": " + loaded.sizeProblem;
    loaded.newSize = isNewSize(info, geometry);
    return loaded;
}

}  // namespace

LoadedStateFile loadStateFile(SystemInfo& info, const std::string& path) {
    return loadAs(path, info,
                  [&](StoredSize& stored) { return LoadImageStateFromXML(info, path, kLoadAll, &stored); });
}

LoadedStateFile loadShippedState(SystemInfo& info) {
    const char* const name = "Default.qlx";
    return loadAs(name, info, [&](StoredSize& stored) {
        return LoadImageStateFromBytes(info, name, shippedFile(name), &stored);
    });
}

std::string openStateFile(SystemInfo& info, const std::string& path) {
    const LoadedStateFile loaded = loadStateFile(info, path);
    if (!loaded.problem.empty()) return loaded.problem;
    if (!loaded.sizeProblem.empty()) info.alert("The present output size stays.", loaded.sizeProblem);
    if (loaded.newSize) info.bChangeImageSize = info.bNewOutputSize = true;
    info.pForegroundBitmapInfo->bOrgFileChange = true;
    info.pBackgroundBitmapInfo->bOrgFileChange = true;
    return "";
}

}  // namespace tavrin
