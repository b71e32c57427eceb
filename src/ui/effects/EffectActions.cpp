#include "ui/effects/EffectActions.h"

#include "effects/Presets.h"
#include "ui/bind/GroupSettings.h"

namespace tavrin {

namespace {

void startLook(SystemInfo& info, const char* group, const char* look) {
    applyPreset(info, *findPresetGroup(group), look);
}

/// Values that suit most portraits, where the defaults change nothing or too much.
EffectAction startValues(const char* control, const char* toolTip, std::vector<std::string> settings,
                         void (*write)(SystemInfo&)) {
    return {control, control, QT_TRANSLATE_NOOP("Panel", "Start with usual values"), toolTip, std::move(settings),
            write};
}

EffectActionRow skinStart() {
    return {"MyEffectsSmoothPanel",
            "skinStarts",
            {startValues("startSkin", QT_TRANSLATE_NOOP("Panel", "Skin is smoothed a little, as suits most faces."),
                         settingsOfGroup<SkinSettings>(), [](SystemInfo& info) {
                             info.iSmoothMode = 1;
                             info.iColorDelta = 40;
                             info.iNumberOfSamples = 50;
                             info.iRedRequired = 60;
                             info.bComputeSkinColor = true;
                         })}};
}

EffectActionRow lightStart() {
    return {"MyEffectsLightingPanel",
            "lightStarts",
            {startValues(
                "startLighting",
                QT_TRANSLATE_NOOP("Panel", "The chosen shape at a usual place and strength; a circle if none is."),
                settingsOfGroup<LightingSettings>(), [](SystemInfo& info) {
                    constexpr const char* kLooks[] = {"circle", "sheet", "circle", "cone", "glow"};
                    const int mode = info.iLightingMode;
                    startLook(info, "lighting", kLooks[mode < 0 || mode > 4 ? 0 : mode]);
                })}};
}

EffectActionRow starStart() {
    return {"myStarFilterPanel",
            "starStarts",
            {startValues("startStars", QT_TRANSLATE_NOOP("Panel", "Six slender arms on each small light."),
                         settingsOfGroup<StarFilterSettings>(),
                         [](SystemInfo& info) { startLook(info, "star", "on"); })}};
}

EffectActionRow smoothingStart() {
    return {
        "myGlobalSmoothingPanel",
        "smoothingStarts",
        {startValues("startGlobalSmoothing", QT_TRANSLATE_NOOP("Panel", "The finished picture, smoothed a little."),
                     settingsOfGroup<GlobalSmoothingSettings>(),
                     [](SystemInfo& info) { startLook(info, "smooth", "result"); })}};
}

EffectActionRow reflectionStart() {
    return {
        "MyEffectsReflectionsPanel",
        "reflectionStarts",
        {startValues("startReflection", QT_TRANSLATE_NOOP("Panel", "As on calm water; the line stays where it is."),
                     settingsOfGroup<ReflectionSettings>(), [](SystemInfo& info) {
                         startLook(info, "reflection", "on");
                         info.bReflectAtSubject = false;  // the loop would move the line outside of the step
                     })}};
}

}  // namespace

const std::vector<EffectActionRow>& effectActions() {
    static const std::vector<EffectActionRow> rows = {skinStart(), lightStart(), starStart(), smoothingStart(),
                                                      reflectionStart()};
    return rows;
}

void runEffectAction(Binder& binder, const EffectAction& action) {
    binder.run(ControlRow::translated(action.label),
               [&](SettingEditor& editor) { editor.apply(action.settings, action.write); });
}

}  // namespace tavrin
