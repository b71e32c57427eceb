#include "session/Sources.h"

#include "core/files/StandardPath.h"
#include "core/state/ChangeFlags.h"
#include "formats/ImageState.h"

namespace tavrin {

void setForeground(SystemInfo& info, const std::string& path) {
    info.pForegroundBitmapInfo->setSourceImageFullPath(path);
    raiseFlags(info, kRedoForegroundSource);
}

void setBackground(SystemInfo& info, const std::string& path) {
    info.pBackgroundBitmapInfo->setSourceImageFullPath(path);
    raiseFlags(info, kRedoBackgroundSource);
}

void reloadSources(SystemInfo& info) {
    raiseFlags(info, kRedoForegroundSource | kRedoBackgroundSource);
}

void openPortrait(SystemInfo& info, const std::string& path) {
    info.bHaveGallery = info.bHaveAdjGallery = info.bShowOrgImage = false;
    setForeground(info, path);
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
}

void openBackground(SystemInfo& info, const std::string& path) {
    setBackground(info, path);
    info.bShowOrgImage = false;
    info.pBackgroundBitmapInfo->bHaveBitmap = false;
}

std::string openPortraitReset(SystemInfo& info, const std::string& path, const std::string& stateFile) {
    // What lies on the background or falls on it may go with the reset.
    const bool onBackground = info.iFontObjectCount() > 0 || info.iHaveShadow >= 2 || info.bHaveBackgroundOverlay;
    const std::string problem = LoadImageStateFromXML(info, standardizePath(stateFile), kLoadForForeground);
    if (onBackground) raiseFlags(info, kRedoBackgroundSource);
    openPortrait(info, path);
    return problem;
}

std::string openBackgroundReset(SystemInfo& info, const std::string& path, const std::string& stateFile) {
    const std::string problem = LoadImageStateFromXML(info, standardizePath(stateFile), kLoadBackgroundOnly);
    openBackground(info, path);
    return problem;
}

}  // namespace tavrin
