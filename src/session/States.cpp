#include "session/States.h"

#include "session/OutputSizes.h"
#include "session/Sources.h"

namespace tavrin {

LoadedState loadState(SystemInfo& info, const std::string& path) {
    LoadedState loaded;
    StoredSize stored;
    OutputGeometry geometry = info;
    loaded.problem = LoadImageStateFromXML(info, path, kLoadAll, &stored);
    if (!loaded.problem.empty()) return loaded;
    geometry.dOrgImageScale = info.dOrgImageScale;  // these two are kept for the file alone
    geometry.dImageSliderScale = info.dImageSliderScale;
    static_cast<OutputGeometry&>(info) = geometry;
    loaded.sizeProblem = chooseStoredSize(info, stored);
    if (!loaded.sizeProblem.empty()) loaded.sizeProblem = path + ": " + loaded.sizeProblem;
    reloadSources(info);  // from which all the rest follows
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
