#include "pipeline/StartUp.h"

#include <QLockFile>

#include "core/Interruption.h"
#include "core/Log.h"
#include "core/Places.h"
#include "core/StandardPath.h"
#include "core/image/ImageReader.h"
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

/// Empties the working folder, unless another program of this account is running and may be using it.
void clearOwnTempFiles() {
    static QLockFile running(QString::fromStdString(Places::current().sharedFolder() + "running.lock"));
    running.setStaleLockTime(0);  // only the end of its process frees it
    if (running.isLocked() || running.tryLock()) ClearTempFiles(Places::current().tempFilesFolder());
}

LoadedPicture loadPicture(const std::string& path) {
    LoadedPicture picture;
    picture.Image = myCreateImageUsingImageSourceFromFile(path);
    if (picture.Image.isNull()) return picture;
    picture.rawData = picture.Image.constBits();
    picture.iWidth = picture.Image.width();
    picture.iHeight = picture.Image.height();
    picture.stride = picture.iWidth * picture.Image.depth() / 8;
    return picture;
}

void loadStartUpPictures(StartUpPictures& pictures) {
    const Places& places = Places::current();
    pictures.TextEditIcon = loadPicture(places.textIconsFolder() + "Edit.png");
    pictures.TextDeleteIcon = loadPicture(places.textIconsFolder() + "Delete.png");
    pictures.iTextIconWidth = pictures.TextEditIcon.iWidth;
    pictures.iTextIconHeight = pictures.TextEditIcon.iHeight;
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
    clearOwnTempFiles();

    const std::string defaultState = info.oQLXInfo->sDefaultQLXFilePath;
    if (!defaultState.empty()) tell(LoadImageStateFromXML(info, defaultState, kLoadAll));
    placeNote(info.oFontLabelObject[2]);  // after the load, so that this position always wins
    info.pForegroundBitmapInfo->setSourceImageFullPath(standardizePath(info.oQLXInfo->sStartupFileForegroundPath));
    info.pBackgroundBitmapInfo->setSourceImageFullPath(standardizePath(info.oQLXInfo->sStartupFileBackgroundPath));
    ChangeImageSize(info);
    loadStartUpPictures(info);
    loadSketchPictures(info);
    info.bNewOutputSize = true;
    logTrace("System Info Loaded");
}

void startCommandLine(SystemInfo& info) {
    const Interruption::Hold hold;  // or the folder would be filled while it is removed
    Places& places = Places::current();
    places.usePrivateTempFiles();
    if (!safeFileExists(places.imageSizeFile())) {
        places.setSharedFolder(places.tempFilesFolder() + "Tavrin/");
        places.setPicturesFolder(places.tempFilesFolder() + "Pictures/");
        tell(installMissingLists());
    }
    loadLists(info);
}

void loadSketchPictures(StartUpPictures& pictures) {
    const std::pair<LoadedPicture*, const char*> wanted[] = {
        {&pictures.PencilCross2, "PencilDenseCross.jpg"},
        {&pictures.PencilCross, "PencilDense.jpg"},
        {&pictures.LightParchment, "lightParchment.jpg"},
    };
    for (const auto& [picture, file] : wanted) {
        if (!picture->rawData) *picture = loadPicture(shippedPicture("Texture/Sketch/" + std::string(file)));
    }
}

void startLike(SystemInfo& info, const SystemInfo& other) {
    info.oImageSize = other.oImageSize;
    info.iSelecteImageSize = other.iSelecteImageSize;
    info.oPrinterPages = other.oPrinterPages;
    static_cast<StartUpPictures&>(info) = other;
}

std::string openStateFile(SystemInfo& info, const std::string& path) {
    // The buffers have the size that they have. The file's pixel sizes allocate nothing, so they must not stand: the
    // file's size comes into force through its place in the list.
    const OutputGeometry before = info;
    std::string problem = LoadImageStateFromXML(info, path, kLoadAll);
    if (!problem.empty()) return problem;
    const std::string name = info.sImageSizeName;
    const std::int32_t index = info.iSelecteImageSize;
    static_cast<OutputGeometry&>(info) = before;
    if (index >= 0 && index < info.iImageSizeCount()) {
        const bool changed = name != before.sImageSizeName.load() || index != before.iSelecteImageSize;
        info.sImageSizeName = name;
        info.iSelecteImageSize = index;
        if (changed) info.bChangeImageSize = info.bNewOutputSize = true;
    } else {
        logError(path + ": the output size \"" + name + "\" is not in the list; the present one stays.");
    }
    info.pForegroundBitmapInfo->bOrgFileChange = true;
    info.pBackgroundBitmapInfo->bOrgFileChange = true;
    return "";
}

}  // namespace tavrin
