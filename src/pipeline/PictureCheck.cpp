#include "pipeline/PictureCheck.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>

#include "core/text/Fonts.h"
#include "core/text/TextLayers.h"

namespace tavrin {

namespace {

// Where they lie between pictures that are fine and pictures that are not is told in docs/key-quality.md.
constexpr double kDarkScreen = 165.0, kUnevenScreen = 0.75, kWashedOutScreen = 0.1;
constexpr double kClothes = 0.03, kShadow = 0.0003;           // of the picture
constexpr int kSure = 25;                                     // of 100, from here on nobody has to look
constexpr double kSoftPortrait = 2.0, kSoftBackground = 4.0;  // times enlarged

std::string nameOf(const BitmapInfo& record) {
    return std::filesystem::path(record.sSourceImageFullPath.load()).filename().string();
}

void tellEnlarged(const SystemInfo& info, const BitmapInfo& record, double most,
                  std::vector<PictureWarning>& warnings) {
    if (record.orgImage.isNull()) return;
    const PassGeometry size = info.geometry(Resolution::full);
    const double times = record.fScale * std::max(double(size.width) / record.orgImage.width(),
                                                  double(size.height) / record.orgImage.height());
    if (times <= most) return;
    char text[120];
    std::snprintf(text, sizeof text, " has %d x %d pixels and is enlarged %.1f times; the picture will look soft.",
                  record.orgImage.width(), record.orgImage.height(), times);
    warnings.push_back({"small-source", nameOf(record) + text});
}

void tellDamage(const BitmapInfo& record, std::vector<PictureWarning>& warnings) {
    const std::string damage = record.sSourceDamage;
    if (!damage.empty()) warnings.push_back({"damaged", nameOf(record) + ": " + damage + "."});
}

/// The heaviest doubt of a picture that is likely not fine, unless one of its doubts was told already.
void tellDoubt(const std::string& name, const Judgement& judgement, std::vector<PictureWarning>& warnings) {
    if (judgement.confidence >= kSure || judgement.doubts.empty()) return;
    for (const Doubt& doubt : judgement.doubts) {
        for (const PictureWarning& told : warnings)
            if (told.kind == doubt.kind) return;
    }
    const Doubt& heaviest = judgement.doubts.front();
    warnings.push_back({heaviest.kind, "Look at " + name + ": " + heaviest.text + "."});
}

/// Families that the state's texts ask for and that the system does not have.
void tellFonts(const SystemInfo& info, std::vector<PictureWarning>& warnings) {
    std::set<std::string> names;
    for (const FontObject& label : info.oFontLabelObject) {
        if (!labelString(info, label).empty()) names.insert(label.sFontName);
    }
    for (const FontObject& item : info.oFontObject) {
        if (!item.isImage && !item.sText.load().empty()) names.insert(item.sFontName);
    }
    for (const std::string& name : names) {
        const std::string taken = fontInsteadOf(name);
        if (!taken.empty())
            warnings.push_back({"font", "There is no font \"" + name + "\"; \"" + taken + "\" is taken."});
    }
}

}  // namespace

void PictureCheck::lookAtPortrait(SystemInfo& info, const QImage& portrait) {
    look_ = lookAtScreen(portrait.constBits(), portrait.width(), portrait.height());
    const bool isBlue = look_.kind == ScreenKind::blue;
    if (!mayChooseScreen_ || !look_.isScreen() || isBlue == info.bUseBlueLogic) return;
    info.bUseBlueLogic = isBlue;
    changedScreen_ = true;
}

void PictureCheck::tellScreen(const SystemInfo& info, const MatteMeasures& measures,
                              std::vector<PictureWarning>& warnings) const {
    const std::string name = nameOf(*info.pForegroundBitmapInfo);
    const char* const color = look_.kind == ScreenKind::blue ? "blue" : "green";
    const char* const other = look_.kind == ScreenKind::blue ? "green" : "blue";
    if (look_.kind == ScreenKind::none) {
        warnings.push_back({"no-screen", "There is no green or blue screen in " + name + "."});
    }
    if (!look_.isScreen()) return;
    if (changedScreen_) {
        warnings.push_back({"other-screen", "The screen of " + name + " is " + color + ", not " + other +
                                                "; it is taken as " + color + "."});
    } else if (measures[MatteMeasure::otherScreen] > 0.0) {
        warnings.push_back(
            {"other-screen", "The screen of " + name + " is " + color + ", and it is keyed as " + other + "."});
    }
    if (measures[MatteMeasure::darkScreen] > kDarkScreen)
        warnings.push_back({"dark-screen", "The screen of " + name + " is very dark."});
    if (measures[MatteMeasure::overexposed] > kWashedOutScreen)
        warnings.push_back({"overexposed-screen", "The screen of " + name + " is overexposed."});
    if (measures[MatteMeasure::uneven] > kUnevenScreen)
        warnings.push_back({"uneven-screen", "The screen of " + name + " is lit very unevenly."});
}

std::optional<Judgement> PictureCheck::judge(const SystemInfo& info, Resolution resolution) const {
    const PassGeometry size = info.geometry(resolution);
    const std::optional<MatteMap> map = info.bShowOrgImage ? std::nullopt : mapMatte(info, resolution);
    if (!map) return std::nullopt;
    return tavrin::judge(measureMatte(info, *map, look_), QSize(size.width, size.height), map->step);
}

std::vector<PictureWarning> PictureCheck::warnings(const SystemInfo& info,
                                                   const std::optional<Judgement>& judgement) const {
    std::vector<PictureWarning> warnings;
    const BitmapInfo& portrait = *info.pForegroundBitmapInfo;
    if (judgement) {
        const MatteMeasures& measures = judgement->measures;
        tellScreen(info, measures, warnings);
        if (measures[MatteMeasure::nothing] > 0.0) {
            warnings.push_back({"empty", measures.subject > 0.0
                                             ? "Next to nothing of " + nameOf(portrait) + " is left."
                                             : "Nothing of " + nameOf(portrait) + " is left."});
        } else if (measures[MatteMeasure::clothes] > kClothes) {
            warnings.push_back({"clothes", "Something on the subject of " + nameOf(portrait) +
                                               " has the screen's hue and may have holes."});
        }
        tellDoubt(nameOf(portrait), *judgement, warnings);
        const bool isTold = !warnings.empty() && warnings.back().kind == "shadow";
        if (measures[MatteMeasure::shadow] > kShadow && !isTold)
            warnings.push_back({"shadow", "Part of the shadow that the subject of " + nameOf(portrait) +
                                              " throws on the screen is left."});
    }
    tellDamage(portrait, warnings);
    tellDamage(*info.pBackgroundBitmapInfo, warnings);
    tellEnlarged(info, portrait, kSoftPortrait, warnings);
    tellEnlarged(info, *info.pBackgroundBitmapInfo, kSoftBackground, warnings);
    tellFonts(info, warnings);
    return warnings;
}

}  // namespace tavrin
