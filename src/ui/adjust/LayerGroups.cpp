// The controls of the layer that is being edited: its light, colour, place and turn. Clipping is the picture's.
#include <array>

#include <QtGlobal>

#include "ui/adjust/AdjustGroups.h"

namespace tavrin {

namespace {

struct Neutral {
    const char* setting;
    const char* value;
};
constexpr std::array<Neutral, 6> kNeutralLight{{{"iBrightness", "0"},
                                                {"iContrast", "50"},
                                                {"iBrightnessSat", "0"},
                                                {"iEnhanseShadows", "0"},
                                                {"iReduceHighlights", "0"},
                                                {"iBrightnessSharpen", "0"}}};

void noteColorChange(SettingEditor& editor, const std::string& owner) {
    bool neutral = true;
    for (const auto& [setting, value] : kNeutralLight)
        neutral = neutral && editor.value(owner + setting) == value;
    editor.set(owner + "bHaveColorChange", neutral ? "0" : "1");
}

void readSourceAnew(SettingEditor& editor, const std::string& owner) {
    SystemInfo& info = editor.info();
    (owner == "foreground." ? info.pForegroundBitmapInfo : info.pBackgroundBitmapInfo)->bOrgFileChange = true;
}

constexpr Handler kBrightness{"brightnessSliders:", noteColorChange};
constexpr Handler kBrightnessReset{"brightnessReset:", noteColorChange};
constexpr Handler kColor{"colorSliders:"};
constexpr Handler kColorReset{"colorReset:"};
constexpr Handler kScaleSliders{"scaleSliders:"};
constexpr Handler kScaleReset{"scaleReset:"};
constexpr Handler kTilt{"tiltSlider:"};
constexpr Handler kFlip{"clickedFlipButton:"};
constexpr Handler kRotation{"clickedRotationRadiobutton:", readSourceAnew};
constexpr Handler kRotationReset{"rotationReset:", readSourceAnew};
constexpr Handler kClip{"clipSliders:"};
constexpr Handler kClipReset{"clipReset:"};

BindingGroup lightGroup() {
    constexpr auto kLayer = Owner::active;
    return {kFirstLayerGroup,
            QT_TRANSLATE_NOOP("Panel", "Light"),
            &kBrightnessReset,
            {{"sliderBrightness", &kBrightness, kLayer, "iBrightness", &kLess100, 0, 200, 0,
              QT_TRANSLATE_NOOP("Panel", "Brightness"),
              QT_TRANSLATE_NOOP("Panel", "Makes the layer darker to the left, brighter to the right.")},
             {"sliderContrast", &kBrightness, kLayer, "iContrast", &kPlain, 0, 100, 50,
              QT_TRANSLATE_NOOP("Panel", "Contrast"),
              QT_TRANSLATE_NOOP("Panel", "The distance of light and dark. 50 leaves it as it is.")},
             {"sliderBrightnessSat", &kBrightness, kLayer, "iBrightnessSat", &kLess100, 0, 200, 0,
              QT_TRANSLATE_NOOP("Panel", "Saturation"),
              QT_TRANSLATE_NOOP("Panel", "Paler colours to the left, stronger ones to the right.")},
             {"sliderEnhanseShadows", &kBrightness, kLayer, "iEnhanseShadows", &kPlain, 0, 100, 0,
              QT_TRANSLATE_NOOP("Panel", "Lift shadows"),
              QT_TRANSLATE_NOOP("Panel", "Brightens the dark parts and leaves the light ones.")},
             {"sliderReduceHighlights", &kBrightness, kLayer, "iReduceHighlights", &kPlain, 0, 100, 0,
              QT_TRANSLATE_NOOP("Panel", "Lower highlights"),
              QT_TRANSLATE_NOOP("Panel", "Darkens the brightest parts, such as shiny skin.")},
             {"sliderBrightnessSharpen", &kBrightness, kLayer, "iBrightnessSharpen", &kPlain, 0, 100, 0,
              QT_TRANSLATE_NOOP("Panel", "Sharpen"), QT_TRANSLATE_NOOP("Panel", "Makes fine detail crisper.")}}};
}

Binding delta(const char* control, const char* setting, const char* label, const char* toolTip) {
    return {control, &kColor, Owner::active, setting, &kLess200, 0, 400, 0, label, toolTip};
}

BindingGroup colourGroup() {
    return {"groupColour",
            QT_TRANSLATE_NOOP("Panel", "Colour"),
            &kColorReset,
            {delta("sliderRedDelta", "iRedDelta", QT_TRANSLATE_NOOP("Panel", "Red"),
                   QT_TRANSLATE_NOOP("Panel", "Less red to the left, more to the right.")),
             delta("sliderGreenDelta", "iGreenDelta", QT_TRANSLATE_NOOP("Panel", "Green"),
                   QT_TRANSLATE_NOOP("Panel", "Less green to the left, more to the right.")),
             delta("sliderBlueDelta", "iBlueDelta", QT_TRANSLATE_NOOP("Panel", "Blue"),
                   QT_TRANSLATE_NOOP("Panel", "Less blue to the left, more to the right.")),
             {"sliderCooling", &kColor, Owner::active, "iCooling", &kPlain, 0, 255, 0,
              QT_TRANSLATE_NOOP("Panel", "Cooler"), QT_TRANSLATE_NOOP("Panel", "Takes warmth out of the light.")},
             {"sliderWarming", &kColor, Owner::active, "iWarming", &kPlain, 0, 255, 0,
              QT_TRANSLATE_NOOP("Panel", "Warmer"), QT_TRANSLATE_NOOP("Panel", "Puts warmth into the light.")}},
            true};
}

BindingGroup placeGroup() {
    constexpr auto kLayer = Owner::active;
    return {"groupPlace",
            QT_TRANSLATE_NOOP("Panel", "Place and size"),
            &kScaleReset,
            {{"sliderScale", &kScaleSliders, kLayer, "fScale", &kScale, 100, 420, 1.0,
              QT_TRANSLATE_NOOP("Panel", "Size, percent"),
              QT_TRANSLATE_NOOP("Panel", "100 percent fits the layer to the picture. To the right it grows.")},
             {"sliderOffsetX", &kScaleSliders, kLayer, "iOrgXoff", &kPlain, -1000, 1000, 0,
              QT_TRANSLATE_NOOP("Panel", "Left, right"),
              QT_TRANSLATE_NOOP("Panel", "Moves the layer, in thousandths of the picture's width.")},
             {"sliderOffsetY", &kScaleSliders, kLayer, "iOrgYoff", &kPlain, -1000, 1000, 0,
              QT_TRANSLATE_NOOP("Panel", "Down, up"),
              QT_TRANSLATE_NOOP("Panel", "Moves the layer, in thousandths of the picture's height.")}},
            true};
}

BindingGroup turnGroup() {
    constexpr auto kLayer = Owner::active;
    return {"groupTurn",
            QT_TRANSLATE_NOOP("Panel", "Rotate and flip"),
            &kRotationReset,
            {{"radioRotation",
              &kRotation,
              kLayer,
              "fRotate",
              &kPlain,
              0,
              270,
              0,
              QT_TRANSLATE_NOOP("Panel", "Rotate"),
              QT_TRANSLATE_NOOP("Panel", "Turns the layer by quarters."),
              {{"radioRotate0", "7", 0, "0\302\260"},
               {"radioRotate90", "8", 90, "90\302\260"},
               {"radioRotate180", "9", 180, "180\302\260"},
               {"radioRotate270", "a", 270, "270\302\260"}}},
             {"sliderTilt", &kTilt, kLayer, "fTilt", &kDegrees, 0, 180, 0, QT_TRANSLATE_NOOP("Panel", "Straighten"),
              QT_TRANSLATE_NOOP("Panel", "Tilts the layer by degrees. The number takes tenths.")},
             {"buttonFlip", &kFlip, kLayer, "bFlipHorz", &kState, 0, 1, 0, QT_TRANSLATE_NOOP("Panel", "Flip"),
              QT_TRANSLATE_NOOP("Panel", "Left and right change places.")}},
            true};
}

Binding clip(const char* control, const char* setting, const char* label) {
    return {control,
            &kClip,
            Owner::state,
            setting,
            &kPlain,
            0,
            100,
            0,
            label,
            QT_TRANSLATE_NOOP("Panel",
                              "Cuts this much of the portrait off, in percent, such as the edge of the screen.")};
}

BindingGroup clipGroup() {
    return {"groupClip",
            QT_TRANSLATE_NOOP("Panel", "Clip the portrait"),
            &kClipReset,
            {clip("sliderClipTop", "iSliderClipTop", QT_TRANSLATE_NOOP("Panel", "Top")),
             clip("sliderClipBottom", "iSliderClipBottom", QT_TRANSLATE_NOOP("Panel", "Bottom")),
             clip("sliderClipLeft", "iSliderClipLeft", QT_TRANSLATE_NOOP("Panel", "Left")),
             clip("sliderClipRight", "iSliderClipRight", QT_TRANSLATE_NOOP("Panel", "Right"))},
            true};
}

}  // namespace

std::vector<BindingGroup> layerGroups() {
    return {lightGroup(), colourGroup(), placeGroup(), turnGroup(), clipGroup()};
}

const std::vector<BindingGroup>& adjustGroups() {
    static const std::vector<BindingGroup> groups = [] {
        std::vector<BindingGroup> all = keyGroups();
        for (BindingGroup& group : layerGroups())
            all.push_back(std::move(group));
        return all;
    }();
    return groups;
}

}  // namespace tavrin
