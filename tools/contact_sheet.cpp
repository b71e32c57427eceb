// Draws every effect and its variants on one portrait, with captions: contact_sheet PORTRAIT BACKGROUND OUT.png
//
// The sheet fills itself: every preset gives a picture, and so does every line of kMore.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>
#include <vips/vips.h>

#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include "core/state/SettingNames.h"
#include "core/text/TextLayers.h"
#include "effects/Presets.h"
#include "formats/Installation.h"
#include "pipeline/CombineThread.h"
#include "pipeline/SubjectPlace.h"
#include "session/OutputSizes.h"
#include "session/StartUp.h"

namespace {

using namespace tavrin;

constexpr double kWidthInches = 4.0, kHeightInches = 5.0;
constexpr int kDpi = 150;
constexpr int kCellWidth = 208, kCellHeight = 260, kCaption = 20, kGap = 8, kColumns = 8;

/// One picture of the sheet. A choice is group=preset or field=value, as on the command line; a value that begins
/// with an @ is one of the pictures of `Sources` or, by its name, a shipped one.
struct Shot {
    std::string caption;
    std::vector<std::string> choices;
};

struct Sources {
    std::string portrait, background;
    std::string lights;  ///< the background with a few lamps, which stars need
};

// What the presets do not show by themselves.
const std::vector<Shot>& moreShots() {
    static const std::vector<Shot> shots = {
        {"the lights found", {"star=on", "bStarFilterShowSelected=1", "background.sSourceImageFullPath=@lights"}},
        {"light on the subject only", {"lighting=sheet", "iLightingApplyTo=1"}},
        {"reflection on linen",
         {"reflection=on", "foreground.fScale=0.6", "foreground.iOrgYoff=-20", "reflectionTexture.bHaveTexture=1",
          "reflectionTexture.sTextureFileName=@Texture/Linen.jpg"}},
        {"frame with a texture",
         {"frame=square", "frame.iFrameColorRed=150", "frame.iFrameColorGreen=100", "frame.iFrameColorBlue=60",
          "frame.texture.bHaveTexture=1", "frame.texture.sTextureFileName=@Texture/Canvas.jpg"}},
        {"arched oval", {"frame=oval", "frame.bFrameArch=1"}},
        {"title and note",
         {"label0.sText=Anna", "label0.sLabelSize=X-Large", "label1.sText=Summer 2026", "label1.sFontColor=White"}},
        {"text with outline and shadow",
         {"text0.sText=Anna", "text0.iFontSize=60", "text0.isBold=1", "text0.rectSizeWidth=220", "text0.xPos=0.2",
          "text0.rectSizeHeight=72", "text0.yPos=3.95", "text0.dFontFillBlue=0.3", "text0.iFontOutlineThickness=-3",
          "text0.iFontDropShadowRadius=6", "text0.iFontDropShadowHorz=4", "text0.iFontDropShadowVert=-4"}},
        {"two frames",
         {"frame=oval", "frame.iFrameColorRed=240", "frame.iFrameColorGreen=235", "frame.iFrameColorBlue=225",
          "frameOverlay.iFrameType=1", "frameOverlay.iFrameThickness=4", "frameOverlay.iFrameFeather=0"}},
        {"background blurred", {"dSliderBlur=0.06"}},
        {"soft where nothing changes", {"dSliderForegroundBlur=0.04", "iSliderForegroundThreshold=20"}},
        {"subject in black and white", {"iForegroundOutputMode=1"}},
        {"background in sepia", {"iBackgroundOutputMode=2"}},
        {"silhouette", {"bOutputSilhouette=1", "iSilhouetteRed=20", "iSilhouetteBlue=40"}},
        {"skin smoothed, make-up",
         {"iSmoothMode=1", "iRedRequired=60", "iColorDelta=30", "iNumberOfSamples=80", "iMakeup=30"}},
    };
    return shots;
}

// What makes the looks of a group visible on this portrait.
std::vector<std::string> neededBy(const std::string& group) {
    if (group == "shadow") return {"foreground.fScale=0.7", "foreground.iOrgYoff=-100"};
    if (group == "reflection") return {"foreground.fScale=0.6", "foreground.iOrgYoff=-20"};
    if (group == "star") return {"background.sSourceImageFullPath=@lights"};
    if (group == "frame-fill") return {"frame=oval"};
    return {};
}

std::vector<Shot> allShots() {
    std::vector<Shot> shots = {{"no effect", {}}};
    for (const PresetGroup& group : presetGroups()) {
        const std::string name = group.name;
        for (const Preset& preset : group.presets) {
            if (preset.name == std::string("none")) continue;
            const bool isSwitch = preset.name == std::string("on");
            Shot shot = {"--" + name + (isSwitch ? "" : " " + std::string(preset.name)), {name + "=" + preset.name}};
            const std::vector<std::string> needed = neededBy(name);
            shot.choices.insert(shot.choices.end(), needed.begin(), needed.end());
            shots.push_back(shot);
        }
    }
    shots.insert(shots.end(), moreShots().begin(), moreShots().end());
    return shots;
}

std::string valueOf(const std::string& text, const Sources& sources) {
    if (!text.starts_with('@')) return text;
    if (text == "@portrait") return sources.portrait;
    if (text == "@background") return sources.background;
    if (text == "@lights") return sources.lights;
    return shippedPicture(text.substr(1));
}

std::string choose(SystemInfo& info, const std::string& choice, const Sources& sources) {
    const std::size_t equals = choice.find('=');
    const std::string name = choice.substr(0, equals), value = valueOf(choice.substr(equals + 1), sources);
    const PresetGroup* group = findPresetGroup(name);
    return group ? applyPreset(info, *group, value) : setField(info, name, value);
}

/// The finished picture at the size of a cell; null, after a line, when a choice is wrong.
QImage take(const Shot& shot, const Sources& sources) {
    const auto info = std::make_unique<SystemInfo>();
    info->pForegroundBitmapInfo->sSourceImageFullPath = sources.portrait;
    info->pBackgroundBitmapInfo->sSourceImageFullPath = sources.background;
    for (const std::string& choice : shot.choices) {
        const std::string problem = choose(*info, choice, sources);
        if (problem.empty()) continue;
        std::fprintf(stderr, "contact_sheet: %s: %s\n", shot.caption.c_str(), problem.c_str());
        return {};
    }
    updateLabelSettings(*info);
    chooseOwnSize(*info, "sheet", kWidthInches, kHeightInches, kDpi);
    useChosenSize(*info);
    wantPlace(*info, PlaceRule::subject);  // which leaves a place alone that a shot chose
    CombineThread(*info).runUntilIdle();
    const QImage picture = info->pCombinedBitmapInfo->oBitmapRep->snapshot();
    return picture.convertToFormat(QImage::Format_RGB32)
        .scaled(kCellWidth, kCellHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The background with lamps, as a file in `folder`.
std::string paintLights(const std::string& background, const QString& folder) {
    QImage picture = QImage(QString::fromStdString(background)).convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 250, 235));
    const double unit = picture.width() / 100.0;
    for (const auto& [x, y, radius] : {std::tuple{12.0, 18.0, 1.1},
                                       {83.0, 12.0, 0.9},
                                       {90.0, 47.0, 1.2},
                                       {6.0, 66.0, 0.8},
                                       {70.0, 6.0, 0.7},
                                       {27.0, 7.0, 0.8}})
        painter.drawEllipse(QPointF(x * unit, y * unit), radius * unit, radius * unit);
    painter.end();
    const QString path = folder + "/lights.png";
    picture.save(path);
    return path.toStdString();
}

QImage layOut(const std::vector<Shot>& shots, const Sources& sources) {
    const int rows = (static_cast<int>(shots.size()) + kColumns - 1) / kColumns;
    QImage sheet(kColumns * (kCellWidth + kGap) + kGap, rows * (kCellHeight + kCaption + kGap) + kGap,
                 QImage::Format_RGB888);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(13);
    painter.setFont(font);
    for (int i = 0; i < static_cast<int>(shots.size()); ++i) {
        const Shot& shot = shots[static_cast<std::size_t>(i)];
        const QImage picture = take(shot, sources);
        if (picture.isNull()) return {};
        const QPoint corner(kGap + i % kColumns * (kCellWidth + kGap),
                            kGap + i / kColumns * (kCellHeight + kCaption + kGap));
        painter.drawImage(corner, picture);
        painter.drawText(QRect(corner + QPoint(0, kCellHeight), QSize(kCellWidth, kCaption)), Qt::AlignCenter,
                         QString::fromStdString(shot.caption));
    }
    return sheet;
}

/// A PNG with a palette of its own, a quarter of the size.
bool save(const QImage& sheet, const std::string& path) {
    const QImage packed = sheet.convertToFormat(QImage::Format_RGB888);
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < packed.height(); ++y)
        bytes.insert(bytes.end(), packed.constScanLine(y), packed.constScanLine(y) + 3 * packed.width());
    VipsImage* image = vips_image_new_from_memory_copy(bytes.data(), bytes.size(), packed.width(), packed.height(), 3,
                                                       VIPS_FORMAT_UCHAR);
    const bool saved =
        image && vips_pngsave(image, path.c_str(), "palette", TRUE, "Q", 95, "compression", 9, nullptr) == 0;
    if (!saved) std::fprintf(stderr, "contact_sheet: %s: %s\n", path.c_str(), vips_error_buffer());
    if (image) g_object_unref(image);
    return saved;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: contact_sheet PORTRAIT BACKGROUND OUT.png\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    // Once for all: it puts files into a folder of this process and waits for the disk.
    const auto first = std::make_unique<SystemInfo>();
    startCommandLine(*first);
    const QTemporaryDir folder;
    const Sources sources = {argv[1], argv[2], paintLights(argv[2], folder.path())};
    const QImage sheet = layOut(allShots(), sources);
    return !sheet.isNull() && save(sheet, argv[3]) ? 0 : 1;
}
