#include "batch/Galleries.h"

#include <filesystem>

#include "batch/GalleryPresets.h"
#include "core/Log.h"
#include "core/files/Places.h"
#include "core/files/StandardPath.h"
#include "core/image/ImageWriter.h"
#include "core/state/ChangeFlags.h"
#include "delivery/pages/HtmlText.h"
#include "folders/NextFileInFolder.h"
#include "formats/ImageState.h"
#include "pipeline/SaveImage.h"
#include "session/Sources.h"
#include "session/States.h"

namespace tavrin {

namespace {

constexpr const char* kHead =
    "<html><HEAD><meta http-equiv=\"Pragma\" content=\"no-cache\"><META HTTP-EQUIV=\"Expires\" "
    "CONTENT=\"-1\"></HEAD> "
    "<body><table border=3>";
constexpr const char* kFoot = "</table></body></html>";
constexpr int kInARow = 3;

GalleryInterface& orSilent(GalleryInterface* view) {
    static GalleryInterface silent;
    return view ? *view : silent;
}

std::string inTempFiles(const std::string& name) {
    return Places::current().tempFilesFolder() + name;
}

std::string keptState() {
    return inTempFiles("saved.qlx");
}

/// The preview as it stands. What could not be made, say for a background that cannot be read, has been told; its
/// place on the page has the picture before it.
void savePreview(SystemInfo& info, const std::string& path) {
    if (info.whyNotFinished(Resolution::preview).empty()) {
        static_cast<void>(saveImageToDisk(info, path, kJpegFile, 0));  // which tells its own failure
        return;
    }
    const PassGeometry size = info.geometry(Resolution::preview);
    const std::uint8_t* pixels = info.pCombinedBitmapInfo->bytes(Resolution::preview);
    if (!pixels) return;
    const std::string problem =
        writePicture(path, {pixels, size.width, size.height, kJpegFile, size.dpi, {}, nullptr});
    if (!problem.empty()) logError(path + ": " + problem + ".");
}

}  // namespace

Galleries::Galleries(SystemInfo& info, GalleryInterface* view) : info_(info), view_(orSilent(view)) {}

std::string Galleries::adjustPage() {
    return inTempFiles("AdjGallery.htm");
}

std::string Galleries::backgroundPage() {
    return inTempFiles("Gallery.htm");
}

std::vector<std::string> Galleries::backgrounds() const {
    std::lock_guard lock(mutex_);
    return backgrounds_;
}

// A run that is on is left alone: begun anew it would take an alternative for what is to be put back.
bool Galleries::showAdjustGallery(int number) {
    std::lock_guard lock(mutex_);
    if (number != 0 && number != asked_) return false;
    if (isOn()) return true;
    if (info_.bHaveAdjGallery && std::filesystem::exists(adjustPage())) {
        info_.sGalleryToViewPath = adjustPage();
        view_.showGalleryViewer();
    } else {
        SetupAdjustGallery();
    }
    return true;
}

bool Galleries::showGallery(int number) {
    std::lock_guard lock(mutex_);
    if (number != 0 && number != asked_) return false;
    if (isOn()) return true;
    if (info_.bHaveGallery && std::filesystem::exists(backgroundPage())) {
        info_.sGalleryToViewPath = backgroundPage();
        view_.showGalleryViewer();
    } else {
        LoadGalleryNamesToProcess();
    }
    return true;
}

int Galleries::ask() {
    std::lock_guard lock(mutex_);
    return ++asked_;
}

/// Without the state on the disk no run begins.
void Galleries::SetupAdjustGallery() {
    if (const std::string problem = saveImageStateToXML(info_, keptState()); !problem.empty())
        return view_.galleryEnded(problem);
    const BitmapInfo& combined = *info_.pCombinedBitmapInfo;
    kept_ = {combined.sliderRestoredDarkAreas,
             combined.sliderGreenTintAreas,
             combined.sliderWhiteBalance,
             combined.sliderAdjustBaseGreen,
             combined.sliderTransparentcyAdjustment,
             info_.bUseBlueLogic,
             info_.bShowBright};
    info_.iNextAdjGalleryItem = -1;
    info_.iAdjGalleryCount = kGalleryPresets;
    info_.sHtml = kHead;
    info_.bSkipHiRes = true;
    info_.bProcessingAdjGallery = true;
}

void Galleries::LoadGalleryNamesToProcess() {
    std::string folder = standardizePath(info_.oQLXInfo->sPickDirectory);
    info_.sOrgGalleryBackground = info_.pBackgroundBitmapInfo->sSourceImageFullPath.load();
    info_.sHtml = kHead;
    info_.bHaveGallery = false;
    info_.iNextGalleryItem = -1;
    info_.bSkipHiRes = true;
    info_.myGalleryNames.clear();
    if (!folder.empty()) {
        if (!folder.ends_with('/')) folder += '/';
        for (const std::string& name : namesInFolder(folder, photoExtensions()))
            info_.myGalleryNames.push_back(folder + name);
    }
    info_.bProcessingGallery = true;
}

void Galleries::step() {
    std::lock_guard lock(mutex_);
    if (info_.bProcessingGallery) return NextGalleryImageToProcess();
    if (info_.bProcessingAdjGallery) NextAdjustmentToProcess();
}

/// Saves the picture that stands and gives it a cell of the page.
void Galleries::addPicture(const std::string& name, const char* upright, const char* wide, int index) {
    savePreview(info_, inTempFiles(name));
    std::string html = info_.sHtml;
    html += index % kInARow == 0 ? "</tr><tr><td>" : "<td>";
    html += "<img ";
    html += info_.iOutputPixelHeight > info_.iOutputPixelWidth ? upright : wide;
    html += " src=\"" + name + "\"></br><a href=\"" + std::to_string(index) +
            "\"><input type=\"button\" value=\"Select\" /></a></td>";
    info_.sHtml = html;
}

std::string Galleries::writePage(const std::string& path) {
    info_.sHtml = info_.sHtml.load() + kFoot;
    return writeHtml(path, info_.sHtml);
}

void Galleries::NextAdjustmentToProcess() {
    if (const int made = info_.iNextAdjGalleryItem; made != -1) {
        addPicture("GalleryAdjFile" + std::to_string(made) + ".jpg", "width=300 height=400", "width=400 height=300",
                   made);
        view_.galleryStepped(made + 1, info_.iAdjGalleryCount);
    }
    info_.iNextAdjGalleryItem = info_.iNextAdjGalleryItem + 1;
    if (info_.iNextAdjGalleryItem != info_.iAdjGalleryCount) {
        SelectAdjustGallerSettings(info_, info_.iNextAdjGalleryItem);
        return info_.StartUpdate();
    }
    info_.iAdjGalleryCounter = info_.iAdjGalleryCounter + 1;
    info_.sGalleryToViewPath = adjustPage();
    const std::string problem = writePage(adjustPage());
    // The run ends also without a page: it would go on with items that there are not, and never put anything back.
    info_.bProcessingAdjGallery = false;
    info_.bHaveAdjGallery = problem.empty();
    info_.bSkipHiRes = false;
    putBackState();
    info_.StartUpdate();
    view_.galleryEnded(problem);
    if (problem.empty()) view_.showGalleryViewer();
}

void Galleries::NextGalleryImageToProcess() {
    if (const int made = info_.iNextGalleryItem; made != -1) {
        addPicture("GalleryFile" + std::to_string(made) + ".jpg", "width=250 height=350", "width=350 height=250",
                   made);
        view_.galleryStepped(made + 1, iGalleryCount());
    }
    info_.iNextGalleryItem = info_.iNextGalleryItem + 1;
    if (info_.iNextGalleryItem != iGalleryCount()) {
        const std::string& name = info_.myGalleryNames[static_cast<std::size_t>(info_.iNextGalleryItem)];
        logTrace("Using Name " + name + ".");
        setBackground(info_, name);
        return info_.StartUpdate();
    }
    info_.iBackgroundGalleryCounter = info_.iBackgroundGalleryCounter + 1;
    info_.sGalleryToViewPath = backgroundPage();
    const std::string problem = writePage(backgroundPage());
    if (problem.empty()) backgrounds_ = info_.myGalleryNames;
    info_.bHaveGallery = problem.empty();
    info_.bProcessingGallery = false;
    info_.bSkipHiRes = false;
    setBackground(info_, info_.sOrgGalleryBackground);
    info_.StartUpdate();
    view_.galleryEnded(problem);
    if (problem.empty()) view_.showGalleryViewer();
}

void Galleries::putBackSettings() {
    BitmapInfo& combined = *info_.pCombinedBitmapInfo;
    combined.sliderRestoredDarkAreas = kept_.dark;
    combined.sliderGreenTintAreas = kept_.tint;
    combined.sliderWhiteBalance = kept_.white;
    combined.sliderAdjustBaseGreen = kept_.base;
    combined.sliderTransparentcyAdjustment = kept_.through;
    info_.bShowBright = kept_.bright;
    if (info_.bUseBlueLogic.exchange(kept_.blueLogic) != kept_.blueLogic)
        raiseFlags(info_, redoOf(info_, "bUseBlueLogic"));
    combined.bHaveBaseGreen = false;
}

/// The file is the way that it is done; memory has the same should the file be gone.
void Galleries::putBackState() {
    const LoadedState loaded = loadState(info_, keptState());
    if (loaded.problem.empty()) return;
    logError(loaded.problem);
    putBackSettings();
}

/// Unless a person has chosen another.
void Galleries::putBackBackground() {
    const std::int32_t item = info_.iNextGalleryItem;
    if (item < 0 || item >= iGalleryCount()) return;
    const std::string present = info_.pBackgroundBitmapInfo->sSourceImageFullPath;
    if (present == info_.myGalleryNames[static_cast<std::size_t>(item)])
        setBackground(info_, info_.sOrgGalleryBackground);
}

bool Galleries::leave() {
    {
        std::lock_guard lock(mutex_);
        ++asked_;
        if (!isOn()) return false;
        if (info_.bProcessingAdjGallery.exchange(false)) putBackSettings();
        if (info_.bProcessingGallery.exchange(false)) putBackBackground();
        info_.bSkipHiRes = false;
    }
    view_.galleryEnded("");
    return true;
}

}  // namespace tavrin
