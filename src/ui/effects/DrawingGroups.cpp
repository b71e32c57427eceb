// Drawings and stars.
#include <QtGlobal>

#include "effects/Presets.h"
#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

void startCartoon(SettingEditor& editor, const std::string&) {
    editor.apply({"iSliderCartoonEffectWidth", "iSliderCartoonEffectSmoothing"},
                 [](SystemInfo& info) { chooseCartoon(info, info.iCartoonEffectType); });
}

bool isDrawn(const SystemInfo& info) {
    return info.iCartoonEffectType >= 1;
}

constexpr Handler kCartoon{"clickedCartoonRadioButton:", startCartoon};
constexpr Handler kCartoonWidth{"sliderEffectsWidthChanged:", nullptr, isDrawn};
constexpr Handler kCartoonSmoothing{"sliderEffectsSmoothingChanged:", nullptr, isDrawn};
constexpr Handler kCartoonReset{"effectsCartoonReset:"};
constexpr Handler kStarOn{"clickedTurnOnStarFilter:"};
constexpr Handler kStarShow{"clickedShowSelectedBrightLights:"};
constexpr Handler kStarPoints{"editNumberOfPointsChanged:"};
constexpr Handler kStarAngle{"editStartingAngle:"};
constexpr Handler kStarArea{"sliderSelectedMaximumLightAreaChanged:"};
constexpr Handler kStarSize{"sliderSizeOfStarChanged:"};
constexpr Handler kStarWidth{"sliderWidthOfStarChanged:"};
constexpr Handler kStarLight{"sliderBrightLightSourceChanged:"};
constexpr Handler kStarReset{"starFilterReset:"};

BindingGroup cartoonGroup() {
    static const PanelActs acts{
        "openEffectsCartoonPanel:, closeEffectsCartoonPanel:", "updateEffectsUI", {{"iCartoonEffectType"}}};
    return {"MyEffectsCartoonPanel",
            QT_TRANSLATE_NOOP("Panel", "Cartoon and pencil"),
            &kCartoonReset,
            {radio("radioCartoon", &kCartoon, "iCartoonEffectType", 0, QT_TRANSLATE_NOOP("Panel", "Drawn as"),
                   QT_TRANSLATE_NOOP("Panel",
                                     "Makes a drawing of the full picture; the preview shows none of it. Each kind "
                                     "starts with lines that suit it."),
                   {{"buttonCartoonNone", "0", 0, QT_TRANSLATE_NOOP("Panel", "None")},
                    {"buttonCartoon", "1", 1, QT_TRANSLATE_NOOP("Panel", "Cartoon")},
                    {"buttonCartoonGray", "2", 2, QT_TRANSLATE_NOOP("Panel", "Grey")},
                    {"buttonCartoonPencil", "3", 3, QT_TRANSLATE_NOOP("Panel", "Pencil")},
                    {"buttonCartoonParchment", "4", 4, QT_TRANSLATE_NOOP("Panel", "Old paper")}}),
             plainSlider("sliderEffectsWidth", &kCartoonWidth, "iSliderCartoonEffectWidth", 100, 0,
                         QT_TRANSLATE_NOOP("Panel", "Line width"),
                         QT_TRANSLATE_NOOP("Panel", "To the right lines grow broader.")),
             plainSlider("sliderEffectsSmoothing", &kCartoonSmoothing, "iSliderCartoonEffectSmoothing", 100, 0,
                         QT_TRANSLATE_NOOP("Panel", "Flat areas"),
                         QT_TRANSLATE_NOOP("Panel", "To the right fine detail becomes one tone."))},
            true,
            &acts};
}

BindingGroup starGroup() {
    static const PanelActs acts{"clickedStarFilter:, clickedDone:", "clickedStarFilter", {{"bStarFilerTurnOn"}}};
    return {
        "myStarFilterPanel",
        QT_TRANSLATE_NOOP("Panel", "Stars"),
        &kStarReset,
        {plainBox("turnOnStarFilter", &kStarOn, "bStarFilerTurnOn", 0, QT_TRANSLATE_NOOP("Panel", "Show stars"),
                  QT_TRANSLATE_NOOP("Panel", "Draws a star on each small bright light, as a filter on a lens does.")),
         plainSlider("sliderBrightLightSource", &kStarLight, "iStarFilterBrightLightThreshold", 255, 0,
                     QT_TRANSLATE_NOOP("Panel", "Brightness"),
                     QT_TRANSLATE_NOOP("Panel", "How bright a light must be. To the left more count.")),
         plainSlider("sliderSelectedMaximumLightArea", &kStarArea, "iStarFilterMaxArea", 50, 0,
                     QT_TRANSLATE_NOOP("Panel", "Largest light"),
                     QT_TRANSLATE_NOOP("Panel", "How large a light may be; 50 is a hundredth of the picture.")),
         plainSlider("sliderSizeOfStar", &kStarSize, "iStarFilterSize", 120, 0, QT_TRANSLATE_NOOP("Panel", "Length"),
                     QT_TRANSLATE_NOOP("Panel", "To the right the arms grow longer.")),
         plainSlider("sliderWidthOfStar", &kStarWidth, "iStarFilterWidth", 100, 0,
                     QT_TRANSLATE_NOOP("Panel", "Width"),
                     QT_TRANSLATE_NOOP("Panel", "To the right the arms grow broader.")),
         plainSlider("editboxNumberOfPoints", &kStarPoints, "iStarFilterNumberOfPoints", 16, 0,
                     QT_TRANSLATE_NOOP("Panel", "Arms"), QT_TRANSLATE_NOOP("Panel", "How many arms a star has.")),
         plainSlider("editboxStartingAngle", &kStarAngle, "iStarFilterStartingAngle", 360, 0,
                     QT_TRANSLATE_NOOP("Panel", "Turn"), QT_TRANSLATE_NOOP("Panel", "Turns the star, in degrees.")),
         plainBox("showSelectedBrightLights", &kStarShow, "bStarFilterShowSelected", 0,
                  QT_TRANSLATE_NOOP("Panel", "Show the lights that count"),
                  QT_TRANSLATE_NOOP("Panel", "Marks the lights in place of the stars, to set the controls by."))},
        true,
        &acts};
}

}  // namespace

std::vector<BindingGroup> drawingGroups() {
    return {cartoonGroup(), starGroup()};
}

}  // namespace tavrin
