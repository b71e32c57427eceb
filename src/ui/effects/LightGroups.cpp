// What light does: shadow, reflection, light laid over the picture.
#include <QCoreApplication>

#include "ui/effects/EffectGroups.h"
#include "ui/effects/ShadowKind.h"

namespace tavrin {

namespace {

constexpr Handler kShadow{"shadowEffectsSliders:"};
constexpr Handler kShadowBehind{"buttonShadowBehindClicked:"};
constexpr Handler kShadowReset{"effectsShadowReset:"};
constexpr Handler kReflection{"effectsReflectionSlider:"};
constexpr Handler kReflectionBox{"clickedEffectsReflectionCheckbox:"};
constexpr Handler kReflectionReset{"effectsReflectionReset:"};
constexpr Handler kLighting{"effectsLightingSlider:"};
constexpr Handler kLightingMode{"clickedEffectsLightingModeRadiobutton:"};
constexpr Handler kLightingApply{"clickedEffectsLightingApplyRadiobutton:"};
constexpr Handler kLightingReset{"effectsLightingReset:"};

/// Back it goes to where most of the start positions have it.
Binding shadow(const char* stem, double reset, const char* label, const char* toolTip) {
    Binding binding =
        plainSlider(joined("slider", stem), &kShadow, joined("iSlider", stem), 1000, reset, label, toolTip);
    binding.enabledWhen = hasShadow;
    return binding;
}

Binding reflection(const char* control, const char* setting, double maximum, double reset, const char* label,
                   const char* toolTip) {
    return plainSlider(control, &kReflection, setting, maximum, reset, label, toolTip);
}

Binding lighting(const char* stem, double maximum, double reset, const char* label, const char* toolTip) {
    return plainSlider(joined("sliderLighting", stem), &kLighting, joined("iLightingSlider", stem), maximum, reset,
                       label, toolTip);
}

}  // namespace

BindingGroup shadowGroup() {
    static const PanelActs acts{"fold", "updateShadowEffectsUI", {{"iHaveShadow", "1"}}, shadowWord};
    Binding behind =
        plainBox("buttonShadowBehind", &kShadowBehind, "iCheckShadowBehind", 0,
                 QT_TRANSLATE_NOOP("Panel", "Behind the subject"),
                 QT_TRANSLATE_NOOP("Panel", "The shadow falls away from the viewer and not towards him."));
    behind.enabledWhen = hasShadow;
    return {
        "groupShadow",
        QT_TRANSLATE_NOOP("Panel", "Shadow"),
        &kShadowReset,
        {shadow("ShadowRightLeft", 500, QT_TRANSLATE_NOOP("Panel", "Left, right"),
                QT_TRANSLATE_NOOP("Panel", "Moves the shadow; 500 leaves it behind the subject.")),
         shadow("ShadowUpDown", 500, QT_TRANSLATE_NOOP("Panel", "Up, down"),
                QT_TRANSLATE_NOOP("Panel", "Moves the shadow; 500 leaves it where the subject is.")),
         shadow("ShadowScale", 500, QT_TRANSLATE_NOOP("Panel", "Size"),
                QT_TRANSLATE_NOOP("Panel", "500 is as large as the subject; to the right it grows.")),
         shadow("ShadowBlur", 250, QT_TRANSLATE_NOOP("Panel", "Softness"),
                QT_TRANSLATE_NOOP("Panel", "To the right the shadow's edge grows softer.")),
         shadow("ShadowTransparency", 500, QT_TRANSLATE_NOOP("Panel", "Strength"),
                QT_TRANSLATE_NOOP("Panel", "To the right the shadow grows darker.")),
         behind,
         shadow("FloorSkew", 500, QT_TRANSLATE_NOOP("Panel", "Slant"),
                QT_TRANSLATE_NOOP("Panel", "Lays a shadow on the floor over to one side; 500 is straight.")),
         shadow("ShadowBase", 500, QT_TRANSLATE_NOOP("Panel", "Foot line"),
                QT_TRANSLATE_NOOP("Panel",
                                  "The line on which the subject stands, red in the preview. To the right it "
                                  "rises.")),
         shadow("FloorBaseAngle", 500, QT_TRANSLATE_NOOP("Panel", "Tilt of the line"),
                QT_TRANSLATE_NOOP("Panel", "Turns the foot line; 500 is level.")),
         shadow("VRoomRight", 0, QT_TRANSLATE_NOOP("Panel", "Wall, right"),
                QT_TRANSLATE_NOOP("Panel", "Where the wall meets the floor at the right edge. 0 and 0: no wall.")),
         shadow("VRoomLeft", 0, QT_TRANSLATE_NOOP("Panel", "Wall, left"),
                QT_TRANSLATE_NOOP("Panel", "Where the wall meets the floor at the left edge. 0 and 0: no wall.")),
         shadow(
             "VRoomTransparency", 0, QT_TRANSLATE_NOOP("Panel", "Show the room"),
             QT_TRANSLATE_NOOP("Panel", "Shows wall and floor in grey to place the shadow by; only in the preview.")),
         shadow("ShadowBlack", 20, QT_TRANSLATE_NOOP("Panel", "Dark limit"),
                QT_TRANSLATE_NOOP("Panel",
                                  "What is darker than this counts as the subject, too. To the right more "
                                  "does."))},
        false,
        &acts};
}

BindingGroup reflectionGroup() {
    static const PanelActs acts{"openEffectsReflectionsPanel:, closeEffectsReflectionsPanel:",
                                "updateReflectionEffectsUI",
                                {{"bHaveReflection"}}};
    return {
        "MyEffectsReflectionsPanel",
        QT_TRANSLATE_NOOP("Panel", "Reflection"),
        &kReflectionReset,
        {plainBox("checkboxReflection", &kReflectionBox, "bHaveReflection", 0,
                  QT_TRANSLATE_NOOP("Panel", "Show a reflection"),
                  QT_TRANSLATE_NOOP("Panel", "Mirrors the subject below a line, as on water or a polished floor.")),
         reflection(
             "sliderReflectionsReflectionBase", "iSliderReflectionSkewBase", 100, 30,
             QT_TRANSLATE_NOOP("Panel", "Water line"),
             QT_TRANSLATE_NOOP("Panel", "Where the mirror begins, in percent from the bottom; red in the preview.")),
         reflection("sliderReflectionsScale", "iSliderReflectionScale", 200, 75, QT_TRANSLATE_NOOP("Panel", "Length"),
                    QT_TRANSLATE_NOOP("Panel", "100 is as long as the subject; to the left it is shorter.")),
         reflection("sliderReflectionsSkew", "iSliderReflectionSkew", 100, 75, QT_TRANSLATE_NOOP("Panel", "Slant"),
                    QT_TRANSLATE_NOOP("Panel", "Lays the reflection over to one side; 50 is straight.")),
         reflection("sliderReflectionsRippleHeight", "iSliderReflectionRippleHeight", 100, 20,
                    QT_TRANSLATE_NOOP("Panel", "Ripples"),
                    QT_TRANSLATE_NOOP("Panel", "To the right the water line moves more; 0 is a floor.")),
         reflection("sliderReflectionsTransparency", "iSliderReflectionTransparency", 100, 60,
                    QT_TRANSLATE_NOOP("Panel", "Strength"),
                    QT_TRANSLATE_NOOP("Panel", "To the right the reflection grows clearer."))},
        true,
        &acts};
}

BindingGroup lightingGroup() {
    static const PanelActs acts{
        "openEffectsLightingPanel:, closeEffectsLightingPanel:", "updateLightingEffectsUI", {{"iLightingMode"}}};
    return {
        "MyEffectsLightingPanel",
        QT_TRANSLATE_NOOP("Panel", "Lighting"),
        &kLightingReset,
        {radio("radioLightingMode", &kLightingMode, "iLightingMode", 0, QT_TRANSLATE_NOOP("Panel", "Shape"),
               QT_TRANSLATE_NOOP("Panel", "A graded sheet, a spot, a beam, or a halo around the subject."),
               {{"buttonLightingNone", "1", 0, QT_TRANSLATE_NOOP("Panel", "None")},
                {"buttonLightingSheet", "2", 1, QT_TRANSLATE_NOOP("Panel", "Sheet")},
                {"buttonLightingCircle", "3", 2, QT_TRANSLATE_NOOP("Panel", "Circle")},
                {"buttonLightingCone", "4", 3, QT_TRANSLATE_NOOP("Panel", "Cone")},
                {"buttonLightingGlow", "5", 4, QT_TRANSLATE_NOOP("Panel", "Glow")}}),
         radio("radioLightingApply", &kLightingApply, "iLightingApplyTo", 3, QT_TRANSLATE_NOOP("Panel", "Falls on"),
               QT_TRANSLATE_NOOP("Panel", "What the light changes."),
               {{"buttonLightingForeground", "1", 1, QT_TRANSLATE_NOOP("Panel", "Portrait")},
                {"buttonLightingBackground", "2", 2, QT_TRANSLATE_NOOP("Panel", "Background")},
                {"buttonLightingBoth", "3", 3, QT_TRANSLATE_NOOP("Panel", "Both")}}),
         lighting("StartLight", 100, 70, QT_TRANSLATE_NOOP("Panel", "Light, inside"),
                  QT_TRANSLATE_NOOP("Panel", "Where the light begins. 50 changes nothing; to the left it darkens.")),
         lighting("EndLight", 100, 0, QT_TRANSLATE_NOOP("Panel", "Light, outside"),
                  QT_TRANSLATE_NOOP("Panel", "Where the light ends. 50 changes nothing; to the left it darkens.")),
         lighting("XLoc", 400, 100, QT_TRANSLATE_NOOP("Panel", "Left, right"),
                  QT_TRANSLATE_NOOP("Panel", "Moves the light. 200 is the middle for a circle, 50 for a cone.")),
         lighting("YLoc", 400, 100, QT_TRANSLATE_NOOP("Panel", "Up, down"),
                  QT_TRANSLATE_NOOP("Panel", "Moves the light. 200 is the middle for a circle, 50 for a cone.")),
         lighting("Size", 200, 100, QT_TRANSLATE_NOOP("Panel", "Size"),
                  QT_TRANSLATE_NOOP("Panel", "To the right the light grows.")),
         lighting("Angle", 360, 0, QT_TRANSLATE_NOOP("Panel", "Direction"),
                  QT_TRANSLATE_NOOP("Panel", "Turns a sheet or a cone, in degrees."))},
        true,
        &acts};
}

}  // namespace tavrin
