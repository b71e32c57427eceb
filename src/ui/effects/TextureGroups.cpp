// The four textures: on the picture, on each frame, on the reflection.
#include <QFileInfo>

#include "core/files/NameText.h"
#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

constexpr Handler kPicture{"effectsTextureSlider:"}, kFrame{"effectsTextureSliderFrame:"},
    kOverlay{"effectsTextureSliderFrameOverlay:"}, kReflection{"effectsTextureSliderReflection:"};
constexpr Handler kPictureRadio{"clickedEffectsTextureRadiobutton:"},
    kFrameRadio{"clickedEffectsTextureFrameRadiobutton:"},
    kOverlayRadio{"clickedEffectsTextureFrameOverlayRadiobutton:"},
    kReflectionRadio{"clickedEffectsTextureReflectionRadiobutton:"};
constexpr Handler kPictureReset{"effectsTextureReset:"}, kFrameReset{"effectsTextureFrameReset:"},
    kOverlayReset{"effectsTextureFrameOverlayReset:"}, kReflectionReset{"effectsTextureReflectionReset:"};

/// The name of a texture's file without its end.
QString nameOf(const ImageTexture& texture) {
    return QFileInfo(textOfName(texture.sTextureFileName)).completeBaseName();
}

/// What the texture groups differ in. A distortion of 0 as default is that of a frame, which has no slider for it.
struct Place {
    const char *end, *object;  ///< of the controls' names; what the settings' names begin with
    const Handler *sliders, *radio, *reset;
    bool distorts;
};

std::vector<Binding> bindingsOf(const Place& place) {
    const auto slider = [&](const char* control, const char* setting, double reset, const char* label,
                            const char* toolTip) {
        return plainSlider(joined(control, place.end), place.sliders, joined(place.object, setting), 100, reset,
                           label, toolTip);
    };
    std::vector<Binding> bindings = {
        slider("sliderTexturePercent", "iTexturePercent", 70, QT_TRANSLATE_NOOP("Panel", "Strength"),
               QT_TRANSLATE_NOOP("Panel", "How much of the texture is mixed in; to the right more.")),
        slider("sliderTextureBrightness", "iTextureBrightness", 60, QT_TRANSLATE_NOOP("Panel", "Brightness"),
               QT_TRANSLATE_NOOP("Panel", "Darker to the left, brighter to the right; 50 leaves it.")),
        slider("sliderTextureContrast", "iTextureContrast", 50, QT_TRANSLATE_NOOP("Panel", "Contrast"),
               QT_TRANSLATE_NOOP("Panel", "How deep the surface is; 50 leaves it as its picture is."))};
    if (place.distorts)
        bindings.push_back(slider("sliderTextureDistort", "iTextureOffsetPercent", 10,
                                  QT_TRANSLATE_NOOP("Panel", "Distortion"),
                                  QT_TRANSLATE_NOOP("Panel",
                                                    "How far the surface moves the picture about. Above 10 it tears "
                                                    "faces.")));
    bindings.push_back(
        radio(joined("radioTextureWhite", place.end), place.radio, joined(place.object, "bWhite"), 0,
              QT_TRANSLATE_NOOP("Panel", "Raised parts"),
              QT_TRANSLATE_NOOP("Panel", "Whether the dark or the light parts of the texture rise."),
              {{joined("buttonTextureDark", place.end), "1", 0, QT_TRANSLATE_NOOP("Panel", "Light")},
               {joined("buttonTextureWhite", place.end), "2", 1, QT_TRANSLATE_NOOP("Panel", "Dark")}}));
    return bindings;
}

}  // namespace

std::vector<BindingGroup> textureGroups() {
    static const PanelActs picture{"openEffectsTexturePanel:, closeEffectsTexturePanel:",
                                   "updateTextureEffectsUI",
                                   {{"texture.bHaveTexture"}},
                                   [](const SystemInfo& info) { return nameOf(*info.oImageTexture); }};
    static const PanelActs frame{"openEffectsTextureFramePanel:, closeEffectsTextureFramePanel:",
                                 "updateTextureEffectsFrameUI",
                                 {{"frame.texture.bHaveTexture"}},
                                 [](const SystemInfo& info) { return nameOf(info.oFrame->oTexture); }};
    static const PanelActs overlay{"openEffectsTextureFrameOverlayPanel:, closeEffectsTextureFrameOverlayPanel:",
                                   "updateTextureEffectsFrameUIOverlay",
                                   {{"frameOverlay.texture.bHaveTexture"}},
                                   [](const SystemInfo& info) { return nameOf(info.oFrameOverlay->oTexture); }};
    return {{"MyEffectsTexturePanel", QT_TRANSLATE_NOOP("Panel", "Texture"), &kPictureReset,
             bindingsOf({"", "texture.", &kPicture, &kPictureRadio, &kPictureReset, true}), true, &picture},
            {"MyEffectsTextureFramePanel", QT_TRANSLATE_NOOP("Panel", "Texture of the frame"), &kFrameReset,
             bindingsOf({"Frame", "frame.texture.", &kFrame, &kFrameRadio, &kFrameReset, false}), true, &frame},
            {"MyEffectsTextureFrameOverlayPanel", QT_TRANSLATE_NOOP("Panel", "Texture of the second frame"),
             &kOverlayReset,
             bindingsOf({"FrameOverlay", "frameOverlay.texture.", &kOverlay, &kOverlayRadio, &kOverlayReset, false}),
             true, &overlay}};
}

BindingGroup reflectionTextureGroup() {
    static const PanelActs acts{"openEffectsTextureReflectionPanel:, closeEffectsTextureReflectionPanel:",
                                "updateTextureEffectsReflectionUI",
                                {{"reflectionTexture.bHaveTexture"}},
                                [](const SystemInfo& info) { return nameOf(*info.oReflectionTexture); }};
    return {
        "MyEffectsTextureReflectionPanel",
        QT_TRANSLATE_NOOP("Panel", "Texture of the reflection"),
        &kReflectionReset,
        bindingsOf({"Reflection", "reflectionTexture.", &kReflection, &kReflectionRadio, &kReflectionReset, true}),
        true,
        &acts};
}

}  // namespace tavrin
