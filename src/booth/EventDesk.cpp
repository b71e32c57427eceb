#include "booth/EventDesk.h"

#include <filesystem>

#include <QString>

#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "core/files/StandardPath.h"
#include "core/state/ChangeFlags.h"
#include "core/text/TextLayers.h"
#include "formats/ImageState.h"
#include "formats/SettingsFile.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/States.h"
#include "session/TextItems.h"

namespace tavrin {

namespace {

constexpr const char *kVert = "Vert", *kHorz = "Horz";

bool hasWord(const SystemInfo& info, const char* word) {
    return selectedSizeName(info).find(word) != std::string::npos;
}

}  // namespace

std::string selectedSizeName(const SystemInfo& info) {
    const std::optional<ImageSize> size = selectedSize(info);
    return size ? size->sName.load() : info.sImageSizeName.load();
}

/// The first of these that is found counts, in this order and wherever it stands.
std::string baseOfPicture(const std::string& path) {
    const QString text = textOfName(path);
    for (const char* extension : {".tiff", ".tif", ".png", ".jpeg", ".jpg"}) {
        const auto at = text.indexOf(QLatin1String(extension), 0, Qt::CaseInsensitive);
        if (at >= 0) return nameOfText(text.left(at));
    }
    return path;
}

std::string EventDesk::defaultRecipe() {
    return Places::current().picturesFolder() + "QLXXML/defaultEvent.qlx";
}

std::string EventDesk::batchButtonClicked() {
    sEventLastQLXFile_ = defaultRecipe();
    std::error_code unmade;  // the saving tells
    std::filesystem::create_directories(std::filesystem::path(sEventLastQLXFile_).parent_path(), unmade);
    const std::string problem = saveImageStateToXML(info_, sEventLastQLXFile_);
    goesToPortrait_ = !hasWord(info_, kHorz);
    ChangeEventLayout();
    return problem;
}

const char* EventDesk::buttonEventLayout() const {
    return goesToPortrait_ ? "Go to Portrait Layout" : "Go to Landscape Layout";
}

std::string EventDesk::backgroundFolder() const {
    const QLXInfo& settings = *info_.oQLXInfo;
    return goesToPortrait_ ? settings.sEventModeBackgroundHorzFolder : settings.sEventModeBackgroundVertFolder;
}

/// What stands behind the found word in the name is dropped.
void EventDesk::ChangeEventLayout() {
    const std::string name = selectedSizeName(info_);
    goesToPortrait_ = !goesToPortrait_;
    const char *before = goesToPortrait_ ? kVert : kHorz, *after = goesToPortrait_ ? kHorz : kVert;
    const std::size_t at = name.find(before);
    if (at == std::string::npos) return;
    if (!chooseSizeByName(info_, name.substr(0, at) + after))
        info_.alert("Cound not find  image size",
                    "Make sure the  image size selected has an identical Horz and Vert size");
}

/// @param problem is set to what is wrong with it; of a size that cannot be had the rest is taken
/// @return whether its settings are in force
bool EventDesk::loadRecipe(const std::string& path, std::string& problem) {
    const LoadedState loaded = loadState(info_, path);
    problem = loaded.problem.empty() ? loaded.sizeProblem : loaded.problem;
    if (loaded.problem.empty()) sEventLastQLXFile_ = path;
    return loaded.problem.empty();
}

std::string EventDesk::eventBackgroundSelected(const std::string& path) {
    const std::string guest = info_.pForegroundBitmapInfo->sSourceImageFullPath;
    const std::string recipe = baseOfPicture(path) + ".qlx";
    std::string problem;
    std::error_code none;
    const bool hasRecipe = std::filesystem::exists(recipe, none);
    if (!hasRecipe && sEventLastQLXFile_ != defaultRecipe()) loadRecipe(defaultRecipe(), problem);
    // Of a recipe the background that the file names stands.
    if (!hasRecipe || !loadRecipe(recipe, problem)) setBackground(info_, path);
    setForeground(info_, guest);
    raiseFlags(info_, kRedoBackgroundSource);
    info_.pBackgroundBitmapInfo->bHaveBitmap = false;
    keepLayout();
    return problem;
}

/// A recipe brings an output size with it; the layout that the operator chose stays.
void EventDesk::keepLayout() {
    const bool isVert = hasWord(info_, kVert);
    if (isVert != goesToPortrait_) return;
    goesToPortrait_ = !goesToPortrait_;
    ChangeEventLayout();
}

void EventDesk::eventImageSelected(const std::string& path) {
    setForeground(info_, path);
}

std::string buttonAddTextClicked(SettingEditor& editor, const EventText& text) {
    SystemInfo& info = editor.info();
    FontObject item;
    item.sText = text.sText;
    item.sFontName = text.sFontName;
    item.sLabelSize = text.sLabelSize;
    item.bDropShadow = text.bDropShadow;
    item.sFontColor = text.isBlack ? "Black" : "White";
    QLXInfo& settings = *info.oQLXInfo;
    settings.sEventFontName = text.sFontName;
    settings.sEventLabelSize = text.sLabelSize;
    settings.sEventFontColor = item.sFontColor.load();
    settings.bEventDropShadow = text.bDropShadow;
    std::string problem = SaveQLXFile(settings);
    useLabelSize(item);
    if (text.bDropShadow) {
        item.iFontDropShadowVert = -3;
        item.iFontDropShadowHorz = 3;
    }
    const double fill = text.isBlack ? 0.0 : 1.0;
    item.dFontFillRed = item.dFontFillGreen = item.dFontFillBlue = fill;
    item.dFontDropshadowGlowRed = item.dFontDropshadowGlowGreen = item.dFontDropshadowGlowBlue = 1.0 - fill;
    fitTextBox(info, item);
    const auto row = static_cast<std::int32_t>(info.oFontObject.size());
    if (const std::string full = addItem(editor, item); !full.empty()) return full;
    info.iSelectedFontObject = row;
    info.iSelectedImageObject = -1;
    return problem;
}

}  // namespace tavrin
