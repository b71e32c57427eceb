#include "session/StartUp.h"

#include <QLockFile>

#include "core/Interruption.h"
#include "core/Lines.h"
#include "core/Log.h"
#include "core/files/Places.h"
#include "core/files/StandardPath.h"
#include "core/files/TempFiles.h"
#include "formats/Installation.h"
#include "formats/Lists.h"
#include "formats/SafeFile.h"
#include "formats/SettingsFile.h"
#include "pipeline/StartUpPictures.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/States.h"

namespace tavrin {

namespace {

/// Works with folders of this process, which go away with it.
/// @return "" or why there are none
std::string useOwnFolders(Places& places) {
    const std::string problem = places.usePrivateTempFiles();
    if (!problem.empty()) return problem;
    places.setSharedFolder(places.tempFilesFolder() + "Tavrin/");
    places.setPicturesFolder(places.tempFilesFolder() + "Pictures/");
    return "";
}

/// Puts what is missing into the account. Where that has no settings and takes none, the program works all the same.
std::string prepareAccount() {
    Places& places = Places::current();
    std::string problems = installMissingFiles();
    if (problems.empty() || safeFileExists(places.settingsFile())) return problems;
    if (const std::string none = useOwnFolders(places); !none.empty()) {
        addLine(problems, none);
    } else {
        addLine(problems, "Until it ends the program works in a temporary folder; no settings are kept.");
        addLine(problems, installMissingFiles());
    }
    return problems;
}

std::string loadSettings(QLXInfo& settings) {
    std::string problem = LoadQLXFile(settings);
    if (problem.empty()) return "";
    problem = withSentence(problem, "The program starts with the settings of a fresh account.");
    // With nothing set there would be no state and no picture to start with.
    settings = firstSettings();
    if (!safeFileExists(Places::current().settingsFile())) addLine(problem, SaveQLXFile(settings));
    return problem;
}

std::string loadLists(SystemInfo& info) {
    std::string problems = LoadImageSizesFromXML(info, shippedFile("ImageSize.xml"));
    addLine(problems, LoadPrinterTemplatesFromXML(info, shippedFile("Printer.xml")));
    const Places& places = Places::current();
    const bool setAside =
        !problems.empty() && !(safeFileExists(places.imageSizeFile()) && safeFileExists(places.printerFile()));
    if (setAside) static_cast<void>(installMissingLists());  // the next start finds whole ones
    return problems;
}

std::string loadDefaultState(SystemInfo& info) {
    const std::string path = info.oQLXInfo->sDefaultQLXFilePath;
    if (path.empty()) return "";
    const LoadedState loaded = loadState(info, path);
    if (!loaded.problem.empty())
        return withSentence(loaded.problem, "The program starts without this default state.");
    if (loaded.sizeProblem.empty()) return "";
    return withSentence(loaded.sizeProblem, "The size \"" + info.sImageSizeName.load() + "\" is used.");
}

/// A list of the user's own making may lack the size to start with.
void selectUsableSize(SystemInfo& info) {
    const std::optional<ImageSize> selected = selectedSize(info);
    if (selected && sizeProblem(*selected).empty()) return;
    for (std::int32_t i = 0; i < info.iImageSizeCount(); ++i) {
        if (!sizeProblem(info.oImageSize[static_cast<std::size_t>(i)]).empty()) continue;
        chooseSize(info, i);
        return;
    }
}

/// Empties the working folder, unless another program of this account is running and may be using it.
void clearOwnTempFiles() {
    if (Places::current().sharedFolder().starts_with(Places::current().tempFilesFolder()))
        return;  // all is new there
    static QLockFile running(QString::fromStdString(Places::current().sharedFolder() + "running.lock"));
    running.setStaleLockTime(0);  // only the end of its process frees it
    if (running.isLocked() || running.tryLock()) ClearTempFiles(Places::current().tempFilesFolder());
}

void placeNote(FontObject& label) {
    label.sLocation = "ABSOLUTE";
    label.xPos = 0.1;
    label.yPos = 0.2;
}

}  // namespace

std::string startSystem(SystemInfo& info) {
    std::string problems = prepareAccount();
    addLine(problems, loadSettings(*info.oQLXInfo));
    addLine(problems, loadLists(info));
    clearOwnTempFiles();
    addLine(problems, loadDefaultState(info));
    placeNote(info.oFontLabelObject[2]);  // after the load, so that this position always wins
    setForeground(info, standardizePath(info.oQLXInfo->sStartupFileForegroundPath));
    setBackground(info, standardizePath(info.oQLXInfo->sStartupFileBackgroundPath));
    selectUsableSize(info);
    addLine(problems, useChosenSize(info));
    loadTextIcons(info);
    loadSketchPictures(info);
    info.bNewOutputSize = true;
    if (!problems.empty()) logError(problems);
    logTrace("System Info Loaded");
    return problems;
}

void startCommandLine(SystemInfo& info) {
    const Interruption::Hold hold;  // or the folder would be filled while it is removed
    Places& places = Places::current();
    std::string problems =
        safeFileExists(places.imageSizeFile()) ? places.usePrivateTempFiles() : useOwnFolders(places);
    addLine(problems, loadLists(info));
    if (!problems.empty()) logError(problems);
}

void startLike(SystemInfo& info, const SystemInfo& other) {
    info.oImageSize = other.oImageSize;
    info.iSelecteImageSize = other.iSelecteImageSize;
    info.oPrinterPages = other.oPrinterPages;
    static_cast<StartUpPictures&>(info) = other;
}

}  // namespace tavrin
