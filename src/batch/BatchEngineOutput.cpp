// Where the pictures of the desktop program's batch go.
#include "batch/BatchEngine.h"
#include "core/files/FileIdentity.h"
#include "core/state/NamedFiles.h"
#include "folders/OutputPlace.h"

namespace tavrin {

void BatchEngine::nameOutput(const Selection& job) {
    std::int32_t number = iNextFileNumber;
    sSaveFileName = outputOf(job, number, makeFolders);
    iNextFileNumber = number;
}

/// @param number of the next numbered picture; counted on
std::string BatchEngine::outputOf(const Selection& job, std::int32_t& number, const MakeFolder& makeFolder) const {
    const std::string folder = settings_.sLastBatchOutput;
    switch (settings_.iLastBatchLastOutputStyle) {
        case kNumberFiles:
            // Every start counts from one, and what an earlier run made stays.
            number = freeNumber(folder, number, settings_.iLastBatchLastOutputFileType);
            return numberedName(folder, number++);
        case kCombineNames:
            return combinedName(folder, job.names);
        case kSplitIntoFolders:
            return splitName(folder, job.names, makeFolder);
        default:
            return sSaveFileName;
    }
}

/// Whatever the run reads is not written over, and no link leads a picture elsewhere.
/// @return "" or one line without a full stop
std::string BatchEngine::whyNotSaved() {
    const std::string base = sSaveFileName;
    const std::string picture = base + extensionFor(settings_.iLastBatchLastOutputFileType);
    if (const std::string problem = whyOutside(settings_.sLastBatchOutput, picture); !problem.empty())
        return picture + ": " + problem;
    std::vector<std::string> outputs = {picture};
    if (settings_.bAutoQLXSave) outputs.push_back(base + ".qlx");
    std::erase_if(outputs, [](const std::string& path) { return !identityOf(path); });
    if (outputs.empty()) return "";
    const KnownFiles inputs = inputFiles();
    for (const std::string& output : outputs) {
        if (const std::string* input = inputs.find(output)) return overwritesInput(output, *input);
    }
    return "";
}

KnownFiles BatchEngine::inputFiles() {
    KnownFiles files;
    for (const std::string& path : filesNamedBy(info_))
        files.add(path);
    std::lock_guard lock(scanners_);
    for (const NextFileInFolder* scanner : {&nextBatchForegroundFile, &nextBatchBackgroundFile, &nextBatchQLXFile}) {
        for (const std::string& name : scanner->oFilesInFolder)
            files.add(scanner->sFolderToCheck + "/" + name);
    }
    for (std::int32_t i = 0; i < iXMLBatchElements; ++i) {
        const BatchElement& element = myBatchElements[static_cast<std::size_t>(i)];
        for (const std::string& path : {element.sForegroundFile, element.sBackgroundFile,
                                        nextBatchQLXFile.sFolderToCheck + "/" + element.sQLXFile})
            files.add(path);
    }
    return files;
}

}  // namespace tavrin
