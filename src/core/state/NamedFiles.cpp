#include "core/state/NamedFiles.h"

#include <filesystem>

#include "core/files/FileIdentity.h"
#include "core/files/StandardPath.h"
#include "core/image/FileKind.h"

namespace tavrin {

namespace {

/// Calls `use` with each setting that names a file, the empty ones among them.
template <class Info, class Use>
void forEachNamedFile(Info& info, Use use) {
    use(info.pForegroundBitmapInfo->sSourceImageFullPath);
    use(info.pBackgroundBitmapInfo->sSourceImageFullPath);
    use(info.pCombinedBitmapInfo->sSourceImageFullPath);
    use(info.sBackgroundOverlay);
    use(info.sForegroundOverlay);
    use(info.sFrameOverlay);
    use(info.sSilhouetteFileName);
    use(info.oImageTexture->sTextureFileName);
    use(info.oReflectionTexture->sTextureFileName);
    for (auto* frame : {info.oFrame.get(), info.oFrameOverlay.get()}) {
        use(frame->sFrameImagePath);
        use(frame->oTexture.sTextureFileName);
    }
    for (auto& item : info.oFontObject) {
        if (item.isImage) use(item.sText);
    }
}

}  // namespace

std::vector<std::string> filesNamedBy(const SystemInfo& info) {
    std::vector<std::string> files;
    forEachNamedFile(info, [&files](const Field<std::string>& file) {
        if (!file.empty()) files.push_back(file);
    });
    return files;
}

void useFullPaths(SystemInfo& info) {
    forEachNamedFile(info, [](Field<std::string>& file) {
        if (!file.empty()) file = standardizePath(std::filesystem::absolute(file.load()).string());
    });
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
