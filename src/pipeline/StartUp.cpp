#include "pipeline/StartUp.h"

#include "core/Log.h"
#include "core/Places.h"
#include "core/StandardPath.h"
#include "formats/ImageState.h"
#include "formats/Installation.h"
#include "formats/Lists.h"
#include "formats/SafeFile.h"
#include "formats/SettingsFile.h"
#include "pipeline/Files.h"
#include "pipeline/OutputSize.h"

namespace tavrin {

namespace {

void tell(const std::string& problem) {
    if (!problem.empty()) logError(problem);
}

void loadLists(SystemInfo& info) {
    tell(LoadImageSizesFromXML(info));
    tell(LoadPrinterTemplatesFromXML(info));
}

void placeNote(FontObject& label) {
    label.sLocation = "ABSOLUTE";
    label.xPos = 0.1;
    label.yPos = 0.2;
}

}  // namespace

void startSystem(SystemInfo& info) {
    tell(installMissingFiles());
    tell(LoadQLXFile(*info.oQLXInfo));
    loadLists(info);
    ClearTempFiles(Places::current().tempFilesFolder());

    const std::string defaultState = info.oQLXInfo->sDefaultQLXFilePath;
    if (!defaultState.empty()) tell(LoadImageStateFromXML(info, defaultState, kLoadAll));
    placeNote(info.oFontLabelObject[2]);  // after the load, so that this position always wins
    info.pForegroundBitmapInfo->setSourceImageFullPath(standardizePath(info.oQLXInfo->sStartupFileForegroundPath));
    info.pBackgroundBitmapInfo->setSourceImageFullPath(standardizePath(info.oQLXInfo->sStartupFileBackgroundPath));
    ChangeImageSize(info);
    info.bNewOutputSize = true;
    logTrace("System Info Loaded");
}

void startCommandLine(SystemInfo& info) {
    Places& places = Places::current();
    places.usePrivateTempFiles();
    if (!safeFileExists(places.imageSizeFile())) {
        places.setSharedFolder(places.tempFilesFolder() + "Tavrin/");
        tell(installMissingFiles());
    }
    loadLists(info);
}

std::string openStateFile(SystemInfo& info, const std::string& path) {
    const std::string sizeBefore = info.sImageSizeName;
    std::string problem = LoadImageStateFromXML(info, path, kLoadAll);
    if (!problem.empty()) return problem;
    if (info.sImageSizeName.load() != sizeBefore) {
        info.bChangeImageSize = true;
        info.bNewOutputSize = true;
    }
    info.pForegroundBitmapInfo->bOrgFileChange = true;
    info.pBackgroundBitmapInfo->bOrgFileChange = true;
    return "";
}

}  // namespace tavrin
