#include "core/state/NamedFiles.h"

#include <algorithm>

#include "core/FileIdentity.h"
#include "core/image/FileKind.h"

namespace tavrin {

std::vector<std::string> filesNamedBy(const SystemInfo& info) {
    std::vector<std::string> files = {
        info.pForegroundBitmapInfo->sSourceImageFullPath,
        info.pBackgroundBitmapInfo->sSourceImageFullPath,
        info.pCombinedBitmapInfo->sSourceImageFullPath,
        info.sBackgroundOverlay,
        info.sForegroundOverlay,
        info.sFrameOverlay,
        info.sSilhouetteFileName,
        info.oImageTexture->sTextureFileName,
        info.oReflectionTexture->sTextureFileName,
    };
    for (const ImageFrame* frame : {info.oFrame.get(), info.oFrameOverlay.get()}) {
        files.push_back(frame->sFrameImagePath);
        files.push_back(frame->oTexture.sTextureFileName);
    }
    for (const FontObject& item : info.oFontObject) {
        if (item.isImage) files.push_back(item.sText);
    }
    std::erase(files, std::string());
    return files;
}

std::string whyNotOver(const SystemInfo& info, const std::string& path) {
    const std::optional<FileIdentity> file = identityOf(path);
    if (!file) return "";
    for (const std::string& input : filesNamedBy(info)) {
        if (identityOf(input) == file) return overwritesInput(path, input);
    }
    return "";
}

std::string whyNoStateOver(const SystemInfo& info, const std::string& path) {
    const std::string problem = whyNotOver(info, path);
    const bool isPicture = isPlainFile(path) && probeFile(path).kind != FileKind::unknown;
    return problem.empty() && isPicture ? path + " is a picture; no state is written over it" : problem;
}

std::string overwritesInput(const std::string& output, const std::string& input) {
    return output + " would be written over " + input + ", from which the picture is made";
}

}  // namespace tavrin
