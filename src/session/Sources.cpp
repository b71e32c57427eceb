#include "session/Sources.h"

#include "core/state/ChangeFlags.h"

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

}  // namespace tavrin
