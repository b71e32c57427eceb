#include "ui/effects/EffectActions.h"

#include "effects/Presets.h"

namespace tavrin {

namespace {

template <class Group>
std::vector<std::string> settingsOf() {
    std::vector<std::string> settings;
    for (const auto& leaf : Group::leaves())
        settings.emplace_back(leaf.key);
    return settings;
}

void startLook(SystemInfo& info, const char* group, const char* look) {
    applyPreset(info, *findPresetGroup(group), look);
}

EffectActionRow shadowStarts() {
    const auto start = [](const char* control, const char* handler, const char* label, const char* toolTip,
                          void (*write)(SystemInfo&), bool (*inForce)(const SystemInfo&)) {
        return EffectAction{control, handler, label, toolTip, settingsOf<ShadowSettings>(), write, inForce};
    };
    return {"groupShadow",
            "shadowStarts",
            {start("removeShadow", "removeShadow:", QT_TRANSLATE_NOOP("Panel", "None"),
                   QT_TRANSLATE_NOOP("Panel", "Takes the shadow away."), removeShadow,
                   [](const SystemInfo& info) { return info.iHaveShadow <= 1; }),
             start("buttonWall", "buttonWall:", QT_TRANSLATE_NOOP("Panel", "Wall"),
                   QT_TRANSLATE_NOOP("Panel", "A shadow on a wall behind the subject, at its starting position."),
                   buttonWall, [](const SystemInfo& info) { return info.iHaveShadow == 5; }),
             start("buttonFloor", "buttonFloor:", QT_TRANSLATE_NOOP("Panel", "Floor"),
                   QT_TRANSLATE_NOOP("Panel", "A shadow on the floor, at its starting position."), buttonFloor,
                   [](const SystemInfo& info) { return info.iHaveShadow == 2; }),
             start("buttonFloorAndWall", "buttonFloorAndWall:", QT_TRANSLATE_NOOP("Panel", "Floor and wall"),
                   QT_TRANSLATE_NOOP("Panel", "A shadow over the floor and up a wall, at its starting position."),
                   buttonFloorAndWall, [](const SystemInfo& info) { return info.iHaveShadow == 3; })}};
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
                         settingsOf<SkinSettings>(), [](SystemInfo& info) {
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
                settingsOf<LightingSettings>(), [](SystemInfo& info) {
                    constexpr const char* kLooks[] = {"circle", "sheet", "circle", "cone", "glow"};
                    const int mode = info.iLightingMode;
                    startLook(info, "lighting", kLooks[mode < 0 || mode > 4 ? 0 : mode]);
                })}};
}

EffectActionRow starStart() {
    return {"myStarFilterPanel",
            "starStarts",
            {startValues("startStars", QT_TRANSLATE_NOOP("Panel", "Six slender arms on each small light."),
                         settingsOf<StarFilterSettings>(), [](SystemInfo& info) { startLook(info, "star", "on"); })}};
}

EffectActionRow smoothingStart() {
    return {
        "myGlobalSmoothingPanel",
        "smoothingStarts",
        {startValues("startGlobalSmoothing", QT_TRANSLATE_NOOP("Panel", "The finished picture, smoothed a little."),
                     settingsOf<GlobalSmoothingSettings>(),
                     [](SystemInfo& info) { startLook(info, "smooth", "result"); })}};
}

EffectActionRow reflectionStart() {
    return {
        "MyEffectsReflectionsPanel",
        "reflectionStarts",
        {startValues("startReflection", QT_TRANSLATE_NOOP("Panel", "As on calm water; the line stays where it is."),
                     settingsOf<ReflectionSettings>(), [](SystemInfo& info) {
                         startLook(info, "reflection", "on");
                         info.bReflectAtSubject = false;  // the loop would move the line outside of the step
                     })}};
}

}  // namespace

const std::vector<EffectActionRow>& effectActions() {
    static const std::vector<EffectActionRow> rows = {shadowStarts(), skinStart(),      lightStart(),
                                                      starStart(),    smoothingStart(), reflectionStart()};
    return rows;
}

void runEffectAction(Binder& binder, const EffectAction& action) {
    binder.run(ControlRow::translated(action.label),
               [&](SettingEditor& editor) { editor.apply(action.settings, action.write); });
}

}  // namespace tavrin
