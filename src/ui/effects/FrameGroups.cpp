// The two frames, which have the same controls.
#include <QtGlobal>

#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

/// What the two differ in.
struct FrameNames {
    const char *end, *object;  ///< of the controls' names; what the settings' names begin with
    const Handler *sliders, *radio, *arch;
};

Binding typeRadio(const FrameNames& names) {
    const auto named = [&](const char* name) { return joined(name, names.end); };
    return radio(named("radioFrameType"), names.radio, joined(names.object, "iFrameType"), 0,
                 QT_TRANSLATE_NOOP("Panel", "Shape"),
                 QT_TRANSLATE_NOOP("Panel", "The opening in which the picture is seen."),
                 {{named("buttonFrameNone"), "1", 0, QT_TRANSLATE_NOOP("Panel", "None")},
                  {named("buttonFrameSquare"), "2", 1, QT_TRANSLATE_NOOP("Panel", "Square")},
                  {named("buttonFrameOval"), "3", 2, QT_TRANSLATE_NOOP("Panel", "Oval")},
                  {named("buttonFrameHeart"), "4", 3, QT_TRANSLATE_NOOP("Panel", "Heart")},
                  {named("buttonFrameJagged"), "5", 4, QT_TRANSLATE_NOOP("Panel", "Jagged")}});
}

Binding modeRadio(const FrameNames& names) {
    const auto named = [&](const char* name) { return joined(name, names.end); };
    return radio(named("radioFrameMode"), names.radio, joined(names.object, "iFrameMode"), 1,
                 QT_TRANSLATE_NOOP("Panel", "Filled with"),
                 QT_TRANSLATE_NOOP("Panel",
                                   "What the frame is made of: a colour, the picture blurred, the background, or a "
                                   "picture of your own."),
                 {{named("buttonFrameColor"), "6", 1, QT_TRANSLATE_NOOP("Panel", "Colour")},
                  {named("buttonFrameBlur"), "7", 2, QT_TRANSLATE_NOOP("Panel", "Blur")},
                  {named("buttonFrameBG"), "8", 3, QT_TRANSLATE_NOOP("Panel", "Backgr.")},
                  {named("buttonFrameImage"), "9", 4, QT_TRANSLATE_NOOP("Panel", "Picture")}});
}

std::vector<Binding> bindingsOf(const FrameNames& names) {
    const auto slider = [&](const char* control, const char* setting, double maximum, double reset, const char* label,
                            const char* toolTip) {
        return plainSlider(joined(control, names.end), names.sliders, joined(names.object, setting), maximum, reset,
                           label, toolTip);
    };
    return {typeRadio(names),
            modeRadio(names),
            slider("sliderFrameFrameThickness", "iFrameThickness", 50, 10, QT_TRANSLATE_NOOP("Panel", "Thickness"),
                   QT_TRANSLATE_NOOP("Panel", "How wide the frame is, in percent of the shorter side.")),
            slider("sliderFrameAmountofFeathering", "iFrameFeather", 100, 25, QT_TRANSLATE_NOOP("Panel", "Soft edge"),
                   QT_TRANSLATE_NOOP("Panel", "To the right the inner edge of the frame grows softer.")),
            slider("sliderFrameTransparency", "iFrameTransparency", 100, 0, QT_TRANSLATE_NOOP("Panel", "See-through"),
                   QT_TRANSLATE_NOOP("Panel", "To the right more of the picture shows through the frame.")),
            slider("sliderFrameAmountOfBlur", "iFrameBlur", 100, 20, QT_TRANSLATE_NOOP("Panel", "Blur"),
                   QT_TRANSLATE_NOOP("Panel", "How blurred the picture is in a frame that is filled with it.")),
            plainBox(joined("checkboxFrameArch", names.end), names.arch, joined(names.object, "bFrameArch"), 0,
                     QT_TRANSLATE_NOOP("Panel", "Arch"),
                     QT_TRANSLATE_NOOP("Panel", "Leaves the lower side of a square or an oval open, like a door."))};
}

constexpr Handler kSliders{"effectsFrameSlider:"}, kOverlaySliders{"effectsFrameSliderOverlay:"};
constexpr Handler kRadio{"clickedEffectsFrameRadiobutton:"}, kOverlayRadio{"clickedEffectsFrameRadiobuttonOverlay:"};
constexpr Handler kArch{"clickedEffectsArchStyle:"}, kOverlayArch{"clickedEffectsArchStyleOverlay:"};
constexpr Handler kReset{"effectsFrameReset:"}, kOverlayReset{"effectsFrameOverlayReset:"};

}  // namespace

std::vector<BindingGroup> frameGroups() {
    static const PanelActs frame{
        "openEffectsFrame1Panel:, closeEffectsFrame1Panel:", "updateFrameEffectsUI", {{"frame.iFrameType"}}};
    static const PanelActs overlay{"openEffectsFrame2Panel:, closeEffectsFrame2Panel:",
                                   "updateFrameEffectsUIOverlay",
                                   {{"frameOverlay.iFrameType"}}};
    return {
        {"MyEffectsFrame2Panel", QT_TRANSLATE_NOOP("Panel", "Second frame"), &kOverlayReset,
         bindingsOf({"Overlay", "frameOverlay.", &kOverlaySliders, &kOverlayRadio, &kOverlayArch}), true, &overlay},
        {"MyEffectsFrame1Panel", QT_TRANSLATE_NOOP("Panel", "Frame"), &kReset,
         bindingsOf({"", "frame.", &kSliders, &kRadio, &kArch}), false, &frame}};
}

}  // namespace tavrin
