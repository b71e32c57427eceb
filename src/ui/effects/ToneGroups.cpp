// Colour, blur and the silhouette: how the two layers come out.
#include <QtGlobal>

#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

constexpr Handler kModes{"clickedEffectsRadiobutton:"};
constexpr Handler kBackgroundBlur{"effectsBackgroundSlider:"};
constexpr Handler kForegroundBlur{"effectsForegroundSlider:"};
constexpr Handler kSilhouette{"effectsSilhouetteSlider:"};
constexpr Handler kSilhouetteBox{"clickedEffectsSilhouetteCheckbox:"};
constexpr Handler kBlackAndWhiteReset{"effectsBWReset:"};
constexpr Handler kBlurReset{"effectsBlurReset:"};
constexpr Handler kSilhouetteReset{"effectsSilhouetteReset:"};

/// The settings are inches; people get thousandths of one.
constexpr Mapping kThousandths{"value / 1000", [](double v) { return v / 1000.0; },
                               [](double s) { return s * 1000.0; }, 1, 1000.0};

BindingGroup blackAndWhiteGroup() {
    static const PanelActs acts{"openEffectsBWPanel:, closeEffectsBWPanel:",
                                "updateEffectsUI",
                                {{"iForegroundOutputMode"}, {"iBackgroundOutputMode"}}};
    return {
        "MyEffectsBWPanel",
        QT_TRANSLATE_NOOP("Panel", "Black and white, sepia"),
        &kBlackAndWhiteReset,
        {radio("radioForegroundMode", &kModes, "iForegroundOutputMode", 0, QT_TRANSLATE_NOOP("Panel", "Portrait"),
               QT_TRANSLATE_NOOP("Panel",
                                 "The colours of the portrait. Shape is kept with the picture and leaves its "
                                 "colours; the panel of silhouettes makes one."),
               {{"buttonFGColor", "1", 0, QT_TRANSLATE_NOOP("Panel", "Colour")},
                {"buttonFGBW", "2", 1, QT_TRANSLATE_NOOP("Panel", "B & W")},
                {"buttonFGSEPIA", "3", 2, QT_TRANSLATE_NOOP("Panel", "Sepia")},
                {"buttonFGSIL", "4", 3, QT_TRANSLATE_NOOP("Panel", "Shape")}}),
         radio("radioBackgroundMode", &kModes, "iBackgroundOutputMode", 0, QT_TRANSLATE_NOOP("Panel", "Background"),
               QT_TRANSLATE_NOOP("Panel", "The colours of the background."),
               {{"buttonBGColor", "5", 0, QT_TRANSLATE_NOOP("Panel", "Colour")},
                {"buttonBGBW", "6", 1, QT_TRANSLATE_NOOP("Panel", "B & W")},
                {"buttonBGSEPIA", "7", 2, QT_TRANSLATE_NOOP("Panel", "Sepia")}})},
        true,
        &acts};
}

BindingGroup blurGroup() {
    static const PanelActs acts{"fold", "updateEffectsUI", {{"dSliderBlur"}, {"dSliderForegroundBlur"}}};
    const auto inches = [](const char* control, const Handler* handler, const char* setting, const char* label,
                           const char* toolTip) {
        return Binding{control, handler, Owner::state, setting, &kThousandths, 0, 200, 0, label, toolTip};
    };
    return {"groupBlur",
            QT_TRANSLATE_NOOP("Panel", "Blur"),
            &kBlurReset,
            {inches("sliderBackgroundBlur", &kBackgroundBlur, "dSliderBlur", QT_TRANSLATE_NOOP("Panel", "Background"),
                    QT_TRANSLATE_NOOP("Panel",
                                      "Puts the background out of focus, in thousandths of an inch on paper. To the "
                                      "right it grows softer.")),
             inches("sliderForegroundBlur", &kForegroundBlur, "dSliderForegroundBlur",
                    QT_TRANSLATE_NOOP("Panel", "Whole picture"),
                    QT_TRANSLATE_NOOP("Panel",
                                      "Softens the finished picture, in thousandths of an inch on paper. It wants a "
                                      "range above 0.")),
             plainSlider("sliderForegroundThreshold", &kForegroundBlur, "iSliderForegroundThreshold", 200, 0,
                         QT_TRANSLATE_NOOP("Panel", "Range"),
                         QT_TRANSLATE_NOOP("Panel",
                                           "How strong a detail may be and still be softened. To the left edges stay "
                                           "sharp."))},
            true,
            &acts};
}

}  // namespace

std::vector<BindingGroup> toneGroups() {
    return {blackAndWhiteGroup(), blurGroup()};
}

BindingGroup silhouetteGroup() {
    static const PanelActs acts{"openEffectsSilhouettePanel:, closeEffectsSilhouettePanel:",
                                "updateSilhouetteEffectsUI",
                                {{"bOutputSilhouette"}}};
    return {
        "MyEffectsSilhouettePanel",
        QT_TRANSLATE_NOOP("Panel", "Silhouette"),
        &kSilhouetteReset,
        {plainBox("checkboxSilhouette", &kSilhouetteBox, "bOutputSilhouette", 0,
                  QT_TRANSLATE_NOOP("Panel", "Show a silhouette"),
                  QT_TRANSLATE_NOOP("Panel", "The portrait becomes a shape in one colour, or cut out of a picture.")),
         plainSlider("sliderSilhouetteX", &kSilhouette, "iSliderlSilhouetteX", 100, 50,
                     QT_TRANSLATE_NOOP("Panel", "Left, right"),
                     QT_TRANSLATE_NOOP("Panel", "Moves the picture inside the shape; 50 leaves it in place.")),
         plainSlider("sliderSilhouetteY", &kSilhouette, "iSliderlSilhouetteY", 100, 50,
                     QT_TRANSLATE_NOOP("Panel", "Up, down"),
                     QT_TRANSLATE_NOOP("Panel", "Moves the picture inside the shape; 50 leaves it in place."))},
        true,
        &acts};
}

}  // namespace tavrin
