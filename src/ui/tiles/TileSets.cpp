#include "ui/tiles/TileSets.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <QtGlobal>

#include "core/files/Places.h"
#include "core/state/SettingNames.h"
#include "effects/Presets.h"
#include "key/EasySettings.h"
#include "session/Overlays.h"
#include "ui/bind/GroupSettings.h"

namespace tavrin {

namespace {

using Settings = std::vector<std::string>;

constexpr const char *kSecondFrame = "MyEffectsFrame2Panel", *kOverlayGroup = "groupOverlays";

Settings joinedSettings(Settings first, const Settings& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void use(SystemInfo& info, const char* group, const char* preset) {
    applyPreset(info, *findPresetGroup(group), preset);
}

TileSet shadowSet() {
    return {
        "groupShadow",
        "tilesShadow",
        QT_TRANSLATE_NOOP("Panel", "Shadow"),
        settingsOfGroup<ShadowSettings>(),
        {{"removeShadow", "removeShadow:", QT_TRANSLATE_NOOP("Panel", "None"),
          QT_TRANSLATE_NOOP("Panel", "Takes the shadow away."), removeShadow},
         {"buttonWall", "buttonWall:", QT_TRANSLATE_NOOP("Panel", "Wall"),
          QT_TRANSLATE_NOOP("Panel", "A shadow on a wall behind the subject, at its starting position."), buttonWall},
         {"buttonFloor", "buttonFloor:", QT_TRANSLATE_NOOP("Panel", "Floor"),
          QT_TRANSLATE_NOOP("Panel", "A shadow on the floor, at its starting position."), buttonFloor},
         {"buttonFloorAndWall", "buttonFloorAndWall:", QT_TRANSLATE_NOOP("Panel", "Floor and wall"),
          QT_TRANSLATE_NOOP("Panel", "A shadow over the floor and up a wall, at its starting position."),
          buttonFloorAndWall},
         {"tileShadowFloorBehind", "tilesShadow", QT_TRANSLATE_NOOP("Panel", "Floor, back"),
          QT_TRANSLATE_NOOP("Panel", "A shadow on the floor, from the feet away from the viewer."),
          [](SystemInfo& info) { use(info, "shadow", "floor"); }},
         {"tileShadowFloorAndWallBehind", "tilesShadow", QT_TRANSLATE_NOOP("Panel", "Wall, back"),
          QT_TRANSLATE_NOOP("Panel", "A shadow away from the viewer over the floor and up a wall."),
          [](SystemInfo& info) { use(info, "shadow", "floor-wall"); }}}};
}

TileSet frameSet() {
    return {
        "MyEffectsFrame1Panel",
        "tilesFrame",
        QT_TRANSLATE_NOOP("Panel", "Frame"),
        settingsOfGroup<ImageFrame>("frame."),
        {{"tileFrameNone", "tilesFrame", QT_TRANSLATE_NOOP("Panel", "None"),
          QT_TRANSLATE_NOOP("Panel", "Takes the frame away."), [](SystemInfo& info) { use(info, "frame", "none"); }},
         {"tileFrameSquare", "tilesFrame", QT_TRANSLATE_NOOP("Panel", "Square"),
          QT_TRANSLATE_NOOP("Panel", "A frame along the four sides."),
          [](SystemInfo& info) { use(info, "frame", "square"); }},
         {"tileFrameOval", "tilesFrame", QT_TRANSLATE_NOOP("Panel", "Oval"),
          QT_TRANSLATE_NOOP("Panel", "A frame around an oval."),
          [](SystemInfo& info) { use(info, "frame", "oval"); }},
         {"tileFrameHeart", "tilesFrame", QT_TRANSLATE_NOOP("Panel", "Heart"),
          QT_TRANSLATE_NOOP("Panel", "A frame around a heart."),
          [](SystemInfo& info) { use(info, "frame", "heart"); }},
         {"tileFrameJagged", "tilesFrame", QT_TRANSLATE_NOOP("Panel", "Jagged"),
          QT_TRANSLATE_NOOP("Panel", "A frame with teeth like torn paper."),
          [](SystemInfo& info) { use(info, "frame", "jagged"); }}}};
}

/// What a frame is made of is seen on a frame: without one it is laid along the four sides.
void fill(SystemInfo& info, const char* preset) {
    if (info.oFrame->iFrameType == 0) use(info, "frame", "square");
    use(info, "frame-fill", preset);
}

TileSet frameFillSet() {
    return {"MyEffectsFrame1Panel",
            "tilesFrameFill",
            QT_TRANSLATE_NOOP("Panel", "Frame"),
            settingsOfGroup<ImageFrame>("frame."),
            {{"tileFillColour", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Colour"),
              QT_TRANSLATE_NOOP("Panel", "A frame of one colour."), [](SystemInfo& info) { fill(info, "colour"); }},
             {"tileFillBlur", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Blur"),
              QT_TRANSLATE_NOOP("Panel", "A frame of the picture itself, blurred."),
              [](SystemInfo& info) { fill(info, "blur"); }},
             {"tileFillBackground", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Backgr."),
              QT_TRANSLATE_NOOP("Panel", "A frame of the background without the subject."),
              [](SystemInfo& info) { fill(info, "background"); }},
             {"tileFillWalnut", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Walnut"),
              QT_TRANSLATE_NOOP("Panel", "A frame of dark wood."), [](SystemInfo& info) { fill(info, "walnut"); }},
             {"tileFillGold", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Gold"),
              QT_TRANSLATE_NOOP("Panel", "A frame of brushed gold."), [](SystemInfo& info) { fill(info, "gold"); }},
             {"tileFillMarble", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Marble"),
              QT_TRANSLATE_NOOP("Panel", "A frame of pale marble."), [](SystemInfo& info) { fill(info, "marble"); }},
             {"tileFillVelvet", "tilesFrameFill", QT_TRANSLATE_NOOP("Panel", "Velvet"),
              QT_TRANSLATE_NOOP("Panel", "A frame of red velvet."), [](SystemInfo& info) { fill(info, "velvet"); }}}};
}

void copyFrame(const SystemInfo& from, const char* read, SystemInfo& to, const char* written) {
    const Settings names = settingsOfGroup<ImageFrame>(read), others = settingsOfGroup<ImageFrame>(written);
    for (std::size_t i = 0; i < names.size(); ++i)
        static_cast<void>(setField(to, others[i], fieldValue(from, names[i]).value_or("")));
}

/// The first looks of a set of the first frame, done to the second one by way of another state, so that the first one
/// stays.
TileSet ofSecondFrame(TileSet set, std::size_t count) {
    set.group = kSecondFrame;
    set.name += "Second";
    set.title = "Second frame";
    set.settings = settingsOfGroup<ImageFrame>("frameOverlay.");
    set.looks.resize(count);
    for (TileLook& look : set.looks) {
        look.control += "Second";
        look.handler = set.name;
        look.write = [write = look.write](SystemInfo& info) {
            static const auto other = std::make_unique<SystemInfo>();
            copyFrame(info, "frameOverlay.", *other, "frame.");
            write(*other);
            copyFrame(*other, "frame.", info, "frameOverlay.");
        };
    }
    return set;
}

TileSet lightingSet() {
    return {"MyEffectsLightingPanel",
            "tilesLighting",
            QT_TRANSLATE_NOOP("Panel", "Lighting"),
            settingsOfGroup<LightingSettings>(),
            {{"tileLightNone", "tilesLighting", QT_TRANSLATE_NOOP("Panel", "None"),
              QT_TRANSLATE_NOOP("Panel", "Takes the light away."),
              [](SystemInfo& info) { use(info, "lighting", "none"); }},
             {"tileLightSheet", "tilesLighting", QT_TRANSLATE_NOOP("Panel", "Sheet"),
              QT_TRANSLATE_NOOP("Panel", "Brighter at one side, darker at the other."),
              [](SystemInfo& info) { use(info, "lighting", "sheet"); }},
             {"tileLightCircle", "tilesLighting", QT_TRANSLATE_NOOP("Panel", "Circle"),
              QT_TRANSLATE_NOOP("Panel", "A spot of light behind the head."),
              [](SystemInfo& info) { use(info, "lighting", "circle"); }},
             {"tileLightCone", "tilesLighting", QT_TRANSLATE_NOOP("Panel", "Cone"),
              QT_TRANSLATE_NOOP("Panel", "A beam of light from above."),
              [](SystemInfo& info) { use(info, "lighting", "cone"); }},
             {"tileLightGlow", "tilesLighting", QT_TRANSLATE_NOOP("Panel", "Glow"),
              QT_TRANSLATE_NOOP("Panel", "A halo around the subject."),
              [](SystemInfo& info) { use(info, "lighting", "glow"); }}}};
}

TileSet cartoonSet() {
    return {"MyEffectsCartoonPanel",
            "tilesCartoon",
            QT_TRANSLATE_NOOP("Panel", "Drawing"),
            settingsOfGroup<CartoonSettings>(),
            {{"tileCartoonNone", "tilesCartoon", QT_TRANSLATE_NOOP("Panel", "None"),
              QT_TRANSLATE_NOOP("Panel", "The picture is no drawing."),
              [](SystemInfo& info) { use(info, "cartoon", "none"); }},
             {"tileCartoon", "tilesCartoon", QT_TRANSLATE_NOOP("Panel", "Cartoon"),
              QT_TRANSLATE_NOOP("Panel", "Black lines and strong colours."),
              [](SystemInfo& info) { use(info, "cartoon", "cartoon"); }},
             {"tileCartoonGray", "tilesCartoon", QT_TRANSLATE_NOOP("Panel", "Grey"),
              QT_TRANSLATE_NOOP("Panel", "A soft pencil sketch."),
              [](SystemInfo& info) { use(info, "cartoon", "grey"); }},
             {"tileCartoonPencil", "tilesCartoon", QT_TRANSLATE_NOOP("Panel", "Pencil"),
              QT_TRANSLATE_NOOP("Panel", "Hatched with a pencil."),
              [](SystemInfo& info) { use(info, "cartoon", "pencil"); }},
             {"tileCartoonParchment", "tilesCartoon", QT_TRANSLATE_NOOP("Panel", "Old paper"),
              QT_TRANSLATE_NOOP("Panel", "Hatched on old parchment."),
              [](SystemInfo& info) { use(info, "cartoon", "parchment"); }}}};
}

TileSet textureSet() {
    return {"MyEffectsTexturePanel",
            "tilesTexture",
            QT_TRANSLATE_NOOP("Panel", "Texture"),
            settingsOfGroup<ImageTexture>("texture."),
            {{"tileTextureNone", "tilesTexture", QT_TRANSLATE_NOOP("Panel", "None"),
              QT_TRANSLATE_NOOP("Panel", "Takes the texture away."),
              [](SystemInfo& info) { use(info, "texture", "none"); }},
             {"tileTextureCanvas", "tilesTexture", QT_TRANSLATE_NOOP("Panel", "Canvas"),
              QT_TRANSLATE_NOOP("Panel", "As on a painter's canvas."),
              [](SystemInfo& info) { use(info, "texture", "canvas"); }},
             {"tileTextureLinen", "tilesTexture", QT_TRANSLATE_NOOP("Panel", "Linen"),
              QT_TRANSLATE_NOOP("Panel", "As on finely woven linen."),
              [](SystemInfo& info) { use(info, "texture", "linen"); }},
             {"tileTexturePaper", "tilesTexture", QT_TRANSLATE_NOOP("Panel", "Paper"),
              QT_TRANSLATE_NOOP("Panel", "As on rough drawing paper."),
              [](SystemInfo& info) { use(info, "texture", "paper"); }}}};
}

TileSet overlaySet() {
    return {kOverlayGroup,
            "tilesOverlays",
            QT_TRANSLATE_NOOP("Panel", "Overlays"),
            settingsOfGroup<OverlaySettings>(),
            {{"tileOverlaysNone", "tilesOverlays", QT_TRANSLATE_NOOP("Panel", "None"),
              QT_TRANSLATE_NOOP("Panel", "Takes the overlays away."),
              [](SystemInfo& info) { use(info, "overlays", "none"); }},
             {"tileOverlaysGold", "tilesOverlays", QT_TRANSLATE_NOOP("Panel", "Gold"),
              QT_TRANSLATE_NOOP("Panel", "A thin golden frame."),
              [](SystemInfo& info) { use(info, "overlays", "gold"); }},
             {"tileOverlaysGraduation", "tilesOverlays", QT_TRANSLATE_NOOP("Panel", "Graduation"),
              QT_TRANSLATE_NOOP("Panel", "A set of overlays for graduations."),
              [](SystemInfo& info) { use(info, "overlays", "graduation"); }},
             {"tileOverlaysWinter", "tilesOverlays", QT_TRANSLATE_NOOP("Panel", "Winter"),
              QT_TRANSLATE_NOOP("Panel", "A set of overlays for winter."),
              [](SystemInfo& info) { use(info, "overlays", "winter"); }},
             {"tileOverlaysParty", "tilesOverlays", QT_TRANSLATE_NOOP("Panel", "Party"),
              QT_TRANSLATE_NOOP("Panel", "A set of overlays for parties."),
              [](SystemInfo& info) { use(info, "overlays", "party"); }}}};
}

/// The sets that ship and those that the user put beside them.
TileSet allOverlaySets() {
    constexpr std::size_t kMostOwn = 24;
    TileSet set = overlaySet();
    const std::size_t shipped = set.looks.size();
    for (const NamedOverlaySet& own : overlaySetsIn(Places::current().overlaysFolder())) {
        const std::string control = "tileOverlays" + own.name;
        if (std::ranges::find(set.looks, control, &TileLook::control) != set.looks.end()) continue;
        if (set.looks.size() == shipped + kMostOwn) break;
        set.looks.push_back({control, set.name, own.name,
                             QT_TRANSLATE_NOOP("Panel", "A set of overlays of your own."),
                             [files = own.files](SystemInfo& info) {
                                 layOverlays(info, files.frame, files.foreground, files.background);
                             }});
    }
    return set;
}

/// The colour of hair as the quick settings have it (`iMacroHairColor`).
template <int kColour>
void chooseHair(SystemInfo& info) {
    info.iMacroHairColor = kColour;
    UpdateEZCombineSettings(info);
}

TileSet hairSet() {
    const Settings combined = {
        "combined.sliderRemoveGreenAreas", "combined.sliderRestoredDarkAreas",       "combined.sliderWhiteAdjust",
        "combined.sliderGreenTintAreas",   "combined.sliderTransparentcyAdjustment", "combined.sliderWhiteBalance",
        "combined.sliderAdjustBaseGreen"};
    const char* toolTip = QT_TRANSLATE_NOOP("Panel", "Sets the key for this colour of hair.");
    const auto hair = [&](const char* control, const char* label, void (*write)(SystemInfo&)) {
        return TileLook{control, "tilesHair", label, toolTip, write};
    };
    return {"groupEasy",
            "tilesHair",
            QT_TRANSLATE_NOOP("Panel", "Hair"),
            joinedSettings(settingsOfGroup<EasySettings>(), combined),
            {hair("tileHairAuto", QT_TRANSLATE_NOOP("Panel", "Auto"), chooseHair<6>),
             hair("tileHairBrown", QT_TRANSLATE_NOOP("Panel", "Brown"), chooseHair<4>),
             hair("tileHairBlond", QT_TRANSLATE_NOOP("Panel", "Blond"), chooseHair<3>),
             hair("tileHairBlack", QT_TRANSLATE_NOOP("Panel", "Black"), chooseHair<2>),
             hair("tileHairRed", QT_TRANSLATE_NOOP("Panel", "Red"), chooseHair<1>),
             hair("tileHairGray", QT_TRANSLATE_NOOP("Panel", "Grey"), chooseHair<5>)}};
}

}  // namespace

std::vector<TileSet> tileSetsOf(std::string_view group) {
    if (group == kSecondFrame) return {ofSecondFrame(frameSet(), 5), ofSecondFrame(frameFillSet(), 7)};
    if (group == kOverlayGroup) return {allOverlaySets()};
    std::vector<TileSet> sets;
    for (TileSet (*make)() : {shadowSet, frameSet, frameFillSet, lightingSet, cartoonSet, textureSet, hairSet})
        if (TileSet set = make(); set.group == group) sets.push_back(std::move(set));
    return sets;
}

SettingValues changesOf(const SystemInfo& present, const TileSet& set, const TileLook& look, SystemInfo& scratch) {
    SettingValues changes;
    for (const std::string& setting : set.settings) {
        changes.emplace_back(setting, fieldValue(present, setting).value_or(""));
        static_cast<void>(setField(scratch, setting, changes.back().second));
    }
    look.write(scratch);
    std::erase_if(changes, [&](const auto& one) { return fieldValue(scratch, one.first) == one.second; });
    for (auto& [setting, value] : changes)
        value = fieldValue(scratch, setting).value_or("");
    return changes;
}

}  // namespace tavrin
