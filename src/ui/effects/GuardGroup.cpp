// The green guard: clothes that have nearly the colour of the screen.
#include <QtGlobal>

#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

constexpr Handler kMode{"radioGreenGuardChanged:"};
constexpr Handler kShirt{"clickedShirtSelectionSlider:"};
constexpr Handler kRadius{"clickedProtectInsideGreenSlider:"};
constexpr Handler kBackground{"clickedBackgroundGreenSlider:"};
constexpr Handler kInside{"removeInsideGreenChecked:"};
constexpr Handler kShow{"checkedShowProtectedAreas:"};
constexpr Handler kReset{"greenGuardReset:"};

void hideProtection(SettingEditor& editor) {
    editor.set("bShowGreenProtection", "0");
}

}  // namespace

BindingGroup guardGroup() {
    static const PanelActs acts{"clickedGreenGuardSettingButton:, clickedGreenGuardSettingsDone:",
                                "clickedGreenGuardSettingButton",
                                {{"iGreenProtectMode"}},
                                nullptr,
                                hideProtection};
    return {
        "myGreenGuardPanel",
        QT_TRANSLATE_NOOP("Panel", "Green guard"),
        &kReset,
        {radio("radioGreenGuard", &kMode, "iGreenProtectMode", 0, QT_TRANSLATE_NOOP("Panel", "Protect"),
               QT_TRANSLATE_NOOP("Panel",
                                 "Keeps green that the subject wears: all that the screen does not reach, or "
                                 "clothes of one colour."),
               {{"buttonGuardOff", "1", 0, QT_TRANSLATE_NOOP("Panel", "Nothing")},
                {"buttonGuardInside", "2", 1, QT_TRANSLATE_NOOP("Panel", "Inside")},
                {"buttonGuardShirt", "3", 2, QT_TRANSLATE_NOOP("Panel", "Clothes")}}),
         plainSlider("sliderBackgroundGreen", &kBackground, "iSliderBackgroundGreen", 100, 30,
                     QT_TRANSLATE_NOOP("Panel", "Counts as screen"),
                     QT_TRANSLATE_NOOP("Panel",
                                       "How far a green may be from the screen and still count as screen. To "
                                       "the left more is protected.")),
         plainSlider(
             "sliderProtectInsideGreen", &kRadius, "iSliderProtectionRadius", 60, 30,
             QT_TRANSLATE_NOOP("Panel", "Free edge"),
             QT_TRANSLATE_NOOP("Panel", "Along the outline the guard leaves a band of this width to the key.")),
         plainSlider("sliderShirtSelection", &kShirt, "iSliderShirtProtection", 100, 50,
                     QT_TRANSLATE_NOOP("Panel", "Counts as clothes"),
                     QT_TRANSLATE_NOOP("Panel",
                                       "How far a colour may be from the clothes and still be protected. To the "
                                       "right more is.")),
         plainBox("removeInsideGreen", &kInside, "bRemoveInsideBaseGreen", 1,
                  QT_TRANSLATE_NOOP("Panel", "Key holes in the subject"),
                  QT_TRANSLATE_NOOP("Panel", "Screen that is seen between an arm and the body goes all the same.")),
         plainBox("showProtectedAreas", &kShow, "bShowGreenProtection", 1,
                  QT_TRANSLATE_NOOP("Panel", "Show what is protected"),
                  QT_TRANSLATE_NOOP("Panel", "Shows the guard in place of the picture until the panel is closed."))},
        true,
        &acts};
}

}  // namespace tavrin
