#include "session/States.h"

#include "formats/Installation.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"

namespace tavrin {

namespace {

/// @param load reads the settings and the size that is stored beside them, and returns what is wrong
template <class Load>
LoadedState loadAs(const std::string& path, SystemInfo& info, const Load& load) {
    LoadedState loaded;
    StoredSize stored;
    OutputGeometry geometry = info;
    loaded.problem = load(stored);
    if (!loaded.problem.empty()) return loaded;
    geometry.dOrgImageScale = info.dOrgImageScale;  // these two are kept for the file alone
    geometry.dImageSliderScale = info.dImageSliderScale;
    static_cast<OutputGeometry&>(info) = geometry;
    loaded.sizeProblem = chooseStoredSize(info, stored);
    if (!loaded.sizeProblem.empty()) loaded.sizeProblem = path + ": " + loaded.sizeProblem;
    reloadSources(info);  // from which all the rest follows
    return loaded;
}

}  // namespace

LoadedState loadState(SystemInfo& info, const std::string& path) {
    return loadAs(path, info,
                  [&](StoredSize& stored) { return LoadImageStateFromXML(info, path, kLoadAll, &stored); });
}

LoadedState loadShippedState(SystemInfo& info) {
    const char* const name = "Default.qlx";
    LoadedState loaded = loadAs(name, info, [&](StoredSize& stored) {
        return LoadImageStateFromBytes(info, name, shippedFile(name), &stored);
    });
    loaded.isStart = true;
    return loaded;
}

std::string openState(SystemInfo& info, const std::string& path, Portrait portrait) {
    const std::string before = info.pForegroundBitmapInfo->sSourceImageFullPath;
    const LoadedState loaded = loadState(info, path);
    if (!loaded.problem.empty()) return loaded.problem;
    if (!loaded.sizeProblem.empty()) info.alert("The present output size stays.", loaded.sizeProblem);
    if (portrait == Portrait::stays) setForeground(info, before);
    return "";
}

}  // namespace tavrin
