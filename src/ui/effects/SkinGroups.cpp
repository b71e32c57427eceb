// What makes skin and surfaces smooth.
#include <QtGlobal>

#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

constexpr Handler kSkin{"effectsSmoothingSlider:"};
constexpr Handler kSkinMode{"clickedEffectsSmoothingRadiobutton:"};
constexpr Handler kNoise{"checkButtonSmoothingAddNoiseClicked:"};
constexpr Handler kBlend{"checkButtonSmoothingBlendImageClicked:"};
constexpr Handler kShowSkin{"showSkinClicked:"};
constexpr Handler kComputeSkin{"computeSkinColorClicked:"};
constexpr Handler kSkinReset{"effectsSmoothReset:"};
constexpr Handler kGlobalSlider{"sliderGlobalSmoothing:"};
constexpr Handler kGlobalRadio{"clickedRadioGlobalSmoothing:"};
constexpr Handler kGlobalReset{"globalSmoothingReset:"};

}  // namespace

BindingGroup skinGroup() {
    static const PanelActs acts{
        "openEffectsSmoothPanel:, closeEffectsSmoothPanel:", "updateSmoothEffectsUI", {{"iSmoothMode"}}};
    return {
        "MyEffectsSmoothPanel",
        QT_TRANSLATE_NOOP("Panel", "Skin and make-up"),
        &kSkinReset,
        {radio("radioSmoothMode", &kSkinMode, "iSmoothMode", 0, QT_TRANSLATE_NOOP("Panel", "Smooth skin"),
               QT_TRANSLATE_NOOP("Panel", "Smooths skin in the full picture; the preview shows none of it."),
               {{"buttonSmoothOff", "1", 0, QT_TRANSLATE_NOOP("Panel", "Off")},
                {"buttonSmoothOn", "2", 1, QT_TRANSLATE_NOOP("Panel", "On")}}),
         plainSlider("sliderSmoothColorDelta", &kSkin, "iColorDelta", 100, 0, QT_TRANSLATE_NOOP("Panel", "Softness"),
                     QT_TRANSLATE_NOOP("Panel", "How widely skin is blurred. To the right pores and spots go.")),
         plainSlider("sliderSmoothNumberOfSamples", &kSkin, "iNumberOfSamples", 100, 0,
                     QT_TRANSLATE_NOOP("Panel", "Strength"),
                     QT_TRANSLATE_NOOP("Panel", "How much of the smooth skin is mixed in; 80 is all of it.")),
         plainSlider("sliderSmoothRedRequired", &kSkin, "iRedRequired", 120, 0,
                     QT_TRANSLATE_NOOP("Panel", "Counts as skin"),
                     QT_TRANSLATE_NOOP("Panel",
                                       "How far a colour may be from the skin and still count. 60 suits most "
                                       "faces.")),
         plainSlider("sliderSmoothMakeup", &kSkin, "iMakeup", 100, 0, QT_TRANSLATE_NOOP("Panel", "Make-up"),
                     QT_TRANSLATE_NOOP("Panel", "Evens the colour of the skin. To the right more is laid on.")),
         plainBox("checkButtonSmoothingAddNoise", &kNoise, "iSmoothNoise", 0,
                  QT_TRANSLATE_NOOP("Panel", "Keep a little grain"),
                  QT_TRANSLATE_NOOP("Panel", "Smooths unevenly, so that skin does not look like plastic.")),
         plainBox("checkButtonSmoothingBlendImage", &kBlend, "bSmoothBlendOrg", 0,
                  QT_TRANSLATE_NOOP("Panel", "Blend with the original"),
                  QT_TRANSLATE_NOOP("Panel", "Is kept while the program runs; it changes no picture.")),
         plainBox("checkButtonComputeSkinColor", &kComputeSkin, "bComputeSkinColor", 0,
                  QT_TRANSLATE_NOOP("Panel", "Measure the skin"),
                  QT_TRANSLATE_NOOP("Panel", "Takes the colour of the skin from this portrait and not an average.")),
         plainBox("checkButtonShowSkin", &kShowSkin, "bShowSkinSelection", 0,
                  QT_TRANSLATE_NOOP("Panel", "Show what counts as skin"),
                  QT_TRANSLATE_NOOP("Panel", "Shows the skin in white, to set the controls by."))},
        true,
        &acts};
}

BindingGroup globalSmoothingGroup() {
    static const PanelActs acts{
        "clickedGlobalSmoothing:, clickedGlobalSmoothingDone:", "clickedGlobalSmoothing", {{"iGlobalSmoothingMode"}}};
    return {
        "myGlobalSmoothingPanel",
        QT_TRANSLATE_NOOP("Panel", "Smoothing"),
        &kGlobalReset,
        {radio("radioGlobalSmoothing", &kGlobalRadio, "iGlobalSmoothingMode", 0, QT_TRANSLATE_NOOP("Panel", "Smooth"),
               QT_TRANSLATE_NOOP("Panel",
                                 "Smooths surfaces and leaves edges: the portrait before the key, or the "
                                 "finished picture."),
               {{"buttonGlobalSmoothingOff", "1", 0, QT_TRANSLATE_NOOP("Panel", "Nothing")},
                {"buttonGlobalSmoothingForeground", "2", 1, QT_TRANSLATE_NOOP("Panel", "Portrait")},
                {"buttonGlobalSmoothingOutput", "3", 2, QT_TRANSLATE_NOOP("Panel", "Picture")}}),
         plainSlider("sliderGlobalSmoothing", &kGlobalSlider, "iGlobalSmoothingLambda", 150, 0,
                     QT_TRANSLATE_NOOP("Panel", "Strength"),
                     QT_TRANSLATE_NOOP("Panel", "To the right surfaces grow smoother; 0 changes nothing."))},
        true,
        &acts};
}

}  // namespace tavrin
