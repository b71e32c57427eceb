#include "core/state/NamedFiles.h"

#include <filesystem>

#include "core/StandardPath.h"

namespace tavrin {

std::vector<Field<std::string>*> namedFiles(SystemInfo& info) {
    std::vector<Field<std::string>*> files = {
        &info.pForegroundBitmapInfo->sSourceImageFullPath,
        &info.pBackgroundBitmapInfo->sSourceImageFullPath,
        &info.pCombinedBitmapInfo->sSourceImageFullPath,
        &info.sFrameOverlay,
        &info.sForegroundOverlay,
        &info.sBackgroundOverlay,
        &info.sSilhouetteFileName,
        &info.oImageTexture->sTextureFileName,
        &info.oReflectionTexture->sTextureFileName,
    };
    for (ImageFrame* frame : {info.oFrame.get(), info.oFrameOverlay.get()}) {
        files.push_back(&frame->sFrameImagePath);
        files.push_back(&frame->oTexture.sTextureFileName);
    }
    for (FontObject& item : info.oFontObject) {
        if (item.isImage) files.push_back(&item.sText);
    }
    return files;
}

void useFullPaths(SystemInfo& info) {
    for (Field<std::string>* file : namedFiles(info)) {
        const std::string path = file->load();
        if (!path.empty()) *file = standardizePath(std::filesystem::absolute(path).string());
    }
}

}  // namespace tavrin
