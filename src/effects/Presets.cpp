#include "effects/Presets.h"

#include <filesystem>

#include "core/NearestName.h"
#include "core/state/ChangeFlags.h"
#include "effects/Reflection.h"
#include "formats/Installation.h"

namespace tavrin {

namespace {

// A button asks for what follows by itself; a whole look is compared with what was before (`takeLook`).
void setShadow(SystemInfo& info, int kind) {
    info.iHaveShadow = kind;
    raiseFlags(info, redoOf(info, "iHaveShadow"));
}

void placeShadow(SystemInfo& info, int rightLeft, int upDown, int scale, int blur) {
    info.iSliderShadowRightLeft = rightLeft;
    info.iSliderShadowUpDown = upDown;
    info.iSliderShadowScale = scale;
    info.iSliderShadowBlur = blur;
    info.iSliderShadowTransparency = 500;
    info.iSliderShadowBlack = 20;
}

void setRoom(SystemInfo& info, int wallFoot, int transparency) {
    info.iSliderVRoomRight = wallFoot;
    info.iSliderVRoomLeft = wallFoot;
    info.iSliderVRoomTransparency = transparency;
}

void placeFloor(SystemInfo& info, int base, int skew) {
    info.iSliderShadowBase = base;
    info.iSliderFloorBaseAngle = 500;
    info.iSliderFloorSkew = skew;
}

// The buttons leave it to the panel on which side a floor shadow falls; in front of the subject most of it would lie
// outside the picture.
constexpr Preset kShadows[] = {
    {"none", "no shadow", removeShadow},
    {"wall", "on a wall behind the subject, a little to the side", buttonWall},
    {"floor", "on the floor, from the feet away from the viewer",
     [](SystemInfo& info) {
         buttonFloor(info);
         info.iCheckShadowBehind = 1;
     }},
    {"floor-wall", "over the floor and up a wall",
     [](SystemInfo& info) {
         buttonFloorAndWall(info);
         info.iCheckShadowBehind = 1;
     }},
};

constexpr Preset kReflections[] = {
    {"none", "no reflection",
     [](SystemInfo& info) {
         info.bHaveReflection = false;
         info.bReflectAtSubject = false;
     }},
    {"on", "as on calm water",
     [](SystemInfo& info) {
         info.bHaveReflection = true;
         info.iSliderReflectionScale = 75;
         info.iSliderReflectionSkew = 50;
         info.bReflectAtSubject = true;
         info.iSliderReflectionRippleHeight = 20;
         info.iSliderReflectionTransparency = 60;
     }},
};

struct Light {
    int mode, x, y, angle, size, start, end, applyTo;
};

void setLight(SystemInfo& info, const Light& light) {
    info.iLightingMode = light.mode;
    info.iLightingSliderXLoc = light.x;
    info.iLightingSliderYLoc = light.y;
    info.iLightingSliderAngle = light.angle;
    info.iLightingSliderSize = light.size;
    info.iLightingSliderStartLight = light.start;
    info.iLightingSliderEndLight = light.end;
    info.iLightingApplyTo = light.applyTo;
}

constexpr int kForegroundOnly = 1, kBackgroundOnly = 2, kBoth = 3;

constexpr Preset kLights[] = {
    {"none", "no light", [](SystemInfo& info) { info.iLightingMode = 0; }},
    {"sheet", "brighter at one side, darker at the other",
     [](SystemInfo& info) {
         setLight(info, {1, 100, 100, 30, 100, 57, 42, kBoth});
     }},
    {"circle", "a spot of light behind the head",
     [](SystemInfo& info) {
         setLight(info, {2, 200, 130, 0, 120, 62, 50, kBackgroundOnly});
     }},
    {"cone", "a beam from above",
     [](SystemInfo& info) {
         setLight(info, {3, 50, 0, 90, 180, 55, 50, kBoth});
     }},
    {"glow", "a halo around the subject",
     [](SystemInfo& info) {
         setLight(info, {4, 100, 100, 0, 60, 50, 95, kBoth});
     }},
};

constexpr Preset kStars[] = {
    {"none", "no stars", [](SystemInfo& info) { info.bStarFilerTurnOn = false; }},
    {"on", "six slender arms on each light",
     [](SystemInfo& info) {
         info.bStarFilerTurnOn = true;
         info.bStarFilterShowSelected = false;
         info.iStarFilterBrightLightThreshold = 225;
         info.iStarFilterMaxArea = 3;
         info.iStarFilterWidth = 35;
         info.iStarFilterSize = 60;
         info.iStarFilterNumberOfPoints = 6;
         info.iStarFilterStartingAngle = 15;
     }},
};

void setSmoothing(SystemInfo& info, int mode) {
    info.iGlobalSmoothingMode = mode;
    if (mode != 0) info.iGlobalSmoothingLambda = 60;
}

constexpr Preset kSmoothings[] = {
    {"none", "no smoothing", [](SystemInfo& info) { setSmoothing(info, 0); }},
    {"foreground", "the subject, before the key", [](SystemInfo& info) { setSmoothing(info, 1); }},
    {"result", "the finished picture", [](SystemInfo& info) { setSmoothing(info, 2); }},
};

void useTexture(SystemInfo& info, const std::string& path) {
    info.oImageTexture->sTextureFileName = path;
    info.oImageTexture->bHaveTexture = true;
}

/// Fine enough for a face: what a texture moves about tears eyes and teeth, and at full strength it bruises skin.
void useSurface(SystemInfo& info, const std::string& file, int percent) {
    useTexture(info, shippedPicture("Texture/" + file));
    info.oImageTexture->iTexturePercent = percent;
    info.oImageTexture->iTextureOffsetPercent = 1;
}

constexpr Preset kTextures[] = {
    {"none", "no texture",
     [](SystemInfo& info) {
         info.oImageTexture->bHaveTexture = false;
         info.oImageTexture->sTextureFileName = "";
     }},
    {"canvas", "a painter's canvas", [](SystemInfo& info) { useSurface(info, "Canvas.jpg", 50); }},
    {"linen", "finely woven linen", [](SystemInfo& info) { useSurface(info, "Linen.jpg", 50); }},
    {"paper", "rough drawing paper", [](SystemInfo& info) { useSurface(info, "Paper.jpg", 30); }},
};

/// The panel starts a sketch with broad grey shapes; finer lines leave a face its features.
void sketch(SystemInfo& info, int type) {
    chooseCartoon(info, type);
    info.iSliderCartoonEffectWidth = 15;
    info.iSliderCartoonEffectSmoothing = 60;
}

constexpr Preset kCartoons[] = {
    {"none", "no drawing", [](SystemInfo& info) { chooseCartoon(info, 0); }},
    {"cartoon", "black lines and strong colours", [](SystemInfo& info) { chooseCartoon(info, 1); }},
    {"grey", "a soft pencil sketch", [](SystemInfo& info) { sketch(info, 2); }},
    {"pencil", "hatched with a pencil", [](SystemInfo& info) { sketch(info, 3); }},
    {"parchment", "hatched on old parchment", [](SystemInfo& info) { sketch(info, 4); }},
};

constexpr Preset kFrames[] = {
    {"none", "no frame", [](SystemInfo& info) { info.oFrame->iFrameType = 0; }},
    {"square", "along the four sides", [](SystemInfo& info) { info.oFrame->iFrameType = 1; }},
    {"oval", "around an oval", [](SystemInfo& info) { info.oFrame->iFrameType = 2; }},
    {"heart", "around a heart", [](SystemInfo& info) { info.oFrame->iFrameType = 3; }},
    {"jagged", "with teeth like torn paper",
     [](SystemInfo& info) {
         info.oFrame->iFrameType = 4;
         info.oFrame->iFrameFeather = 1;  // softer ones would blur the teeth away
     }},
};

void useFramePicture(SystemInfo& info, const std::string& path) {
    info.oFrame->iFrameMode = 4;
    info.oFrame->sFrameImagePath = path;
}

void useMaterial(SystemInfo& info, const std::string& file) {
    useFramePicture(info, shippedPicture("FrameAndSilhouetteBackgrounds/" + file));
}

constexpr Preset kFrameFills[] = {
    {"colour", "one colour, black unless it is set", [](SystemInfo& info) { info.oFrame->iFrameMode = 1; }},
    {"blur", "the picture itself, blurred",
     [](SystemInfo& info) {
         info.oFrame->iFrameMode = 2;
         info.oFrame->iFrameBlur = 100;
     }},
    {"background", "the background without the subject", [](SystemInfo& info) { info.oFrame->iFrameMode = 3; }},
    {"walnut", "dark wood", [](SystemInfo& info) { useMaterial(info, "Walnut.jpg"); }},
    {"gold", "brushed gold", [](SystemInfo& info) { useMaterial(info, "BrushedGold.jpg"); }},
    {"marble", "pale marble", [](SystemInfo& info) { useMaterial(info, "Marble.jpg"); }},
    {"velvet", "red velvet", [](SystemInfo& info) { useMaterial(info, "Velvet.jpg"); }},
};

/// Pictures of a shipped set; a set without one for a layer leaves that layer bare.
void setOverlays(SystemInfo& info, const std::string& frame, const std::string& foreground,
                 const std::string& background) {
    const auto shipped = [](const std::string& name) {
        return name.empty() ? std::string() : shippedPicture("Overlays/" + name);
    };
    layOverlays(info, shipped(frame), shipped(foreground), shipped(background));
}

void setOverlaySet(SystemInfo& info, const std::string& name) {
    setOverlays(info, "FR_" + name + ".png", "FG_" + name + ".png", "BG_" + name + ".png");
}

constexpr Preset kOverlays[] = {
    {"none", "no overlays", [](SystemInfo& info) { setOverlays(info, "", "", ""); }},
    {"gold", "a thin golden frame", [](SystemInfo& info) { setOverlays(info, "FR_Gold.png", "", ""); }},
    {"graduation", "a set for graduations", [](SystemInfo& info) { setOverlaySet(info, "Graduation"); }},
    {"winter", "a set for winter", [](SystemInfo& info) { setOverlaySet(info, "Winter"); }},
    {"party", "a set for parties", [](SystemInfo& info) { setOverlaySet(info, "Party"); }},
};

constexpr PresetGroup kGroups[] = {
    {"shadow", "The subject's shadow on the background", kShadows, nullptr, true, true},
    {"reflection", "The subject mirrored below a line", kReflections},
    {"lighting", "Light laid over the picture", kLights, nullptr, true, true},
    {"star", "Stars on small bright lights", kStars},
    {"smooth", "Smoothing that keeps the edges", kSmoothings},
    {"texture", "The surface that the picture seems to be on", kTextures, useTexture},
    {"cartoon", "The picture as a drawing", kCartoons, nullptr, false},
    {"frame", "A border around the picture", kFrames},
    {"frame-fill", "What the frame is filled with", kFrameFills, useFramePicture},
    {"overlays", "Pictures laid over the background, the subject and the whole", kOverlays, nullptr, true, true},
};

std::string unknownLook(const PresetGroup& group, const std::string& name) {
    std::vector<std::string> names;
    std::string all;
    for (const Preset& preset : group.presets) {
        names.push_back(preset.name);
        all += (all.empty() ? "" : ", ") + names.back();
    }
    const bool isFile = group.applyFile && name.find_first_of("./") != std::string::npos;
    return "There is no " + std::string(group.name) + " \"" + name + "\"" +
           (isFile ? ". " : "; did you mean " + nearestName(name, names) + "? ") + "It takes " + all +
           (group.applyFile ? ", or a picture file." : ".");
}

}  // namespace

void layOverlays(SystemInfo& info, const std::string& frame, const std::string& foreground,
                 const std::string& background) {
    const auto lay = [](Field<bool>& have, Field<std::string>& overlay, const std::string& file) {
        if (file.empty()) have = false;
        overlay = file;
        have = !file.empty();
    };
    lay(info.bHaveFrameOverlay, info.sFrameOverlay, frame);
    lay(info.bHaveForegroundOverlay, info.sForegroundOverlay, foreground);
    lay(info.bHaveBackgroundOverlay, info.sBackgroundOverlay, background);
}

void buttonWall(SystemInfo& info) {
    setShadow(info, 5);
    placeShadow(info, 550, 480, 520, 300);
    setRoom(info, 0, 0);
    info.iCheckShadowBehind = 1;
}

void buttonFloor(SystemInfo& info) {
    setShadow(info, 2);
    placeShadow(info, 500, 500, 300, 250);
    placeFloor(info, 520, 525);
    setRoom(info, 1000, 0);
}

void buttonFloorAndWall(SystemInfo& info) {
    setShadow(info, 3);
    placeShadow(info, 500, 500, 500, 250);
    placeFloor(info, 600, 700);
    setRoom(info, 300, 800);
    info.bCheckShowBaseline = 1;
}

void removeShadow(SystemInfo& info) {
    setShadow(info, 1);
}

void chooseCartoon(SystemInfo& info, int type) {
    info.iCartoonEffectType = type;
    if (type < 1 || type > 4) return;
    info.iSliderCartoonEffectWidth = type == 1 ? 15 : 40;
    info.iSliderCartoonEffectSmoothing = type == 1 ? 95 : 20;
}

std::span<const PresetGroup> presetGroups() {
    return kGroups;
}

const PresetGroup* findPresetGroup(const std::string& name) {
    for (const PresetGroup& group : kGroups) {
        if (name == group.name) return &group;
    }
    return nullptr;
}

std::string applyPreset(SystemInfo& info, const PresetGroup& group, const std::string& name) {
    for (const Preset& preset : group.presets) {
        if (name != preset.name) continue;
        preset.apply(info);
        return "";
    }
    std::error_code ignored;
    if (group.applyFile && std::filesystem::is_regular_file(name, ignored)) {
        group.applyFile(info, name);
        return "";
    }
    return unknownLook(group, name);
}

}  // namespace tavrin
