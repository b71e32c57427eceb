// The controls of the key, of hair and edges.
#include <QtGlobal>

#include "key/EasySettings.h"
#include "ui/adjust/AdjustGroups.h"

namespace tavrin {

namespace {

void leaveEasySettings(SettingEditor& editor, const std::string&) {
    editor.set("bEZCombine", "0");
}

void returnToEasySettings(SettingEditor& editor, const std::string&) {
    editor.set("bEZCombine", "1");
}

void measureScreenAnew(SettingEditor& editor, const std::string&) {
    editor.info().pCombinedBitmapInfo->bHaveBaseGreen = false;
}

void useEasySettings(SettingEditor& editor, const std::string&) {
    editor.apply({"combined.sliderRemoveGreenAreas", "combined.sliderRestoredDarkAreas", "combined.sliderWhiteAdjust",
                  "combined.sliderGreenTintAreas", "combined.sliderTransparentcyAdjustment",
                  "combined.sliderWhiteBalance", "combined.sliderAdjustBaseGreen"},
                 UpdateEZCombineSettings);
}

constexpr Handler kHair{"clickedHairRadiobutton:", useEasySettings};
constexpr Handler kTransparency{"clickedTransparentRadiobutton:", useEasySettings};
constexpr Handler kShadows{"clickedShadowRadiobutton:", useEasySettings};
constexpr Handler kGreenRemoval{"clickedGreenRemovalCheckbox:", useEasySettings};
constexpr Handler kEasyReset{"ezCombineReset:", returnToEasySettings};
constexpr Handler kCombine{"combineSliders:", leaveEasySettings};
constexpr Handler kCombineReset{"combineReset:", returnToEasySettings};
constexpr Handler kMainCheckbox{"mainCheckboxChange:", measureScreenAnew};
constexpr Handler kQuality{"fastProcessingRadio:, highQualityRadio:"};
constexpr Handler kBlendEdges{"sliderBlendEdgesChange:"};
constexpr Handler kMainReset{"mainReset:"};
constexpr Handler kNoGreenScreen{"notGreenScreenProcessingChange:"};
constexpr Handler kShadowRemoval{"AVPShadowRemovalClicked:"};
constexpr Handler kAdvancedHair{"AdvancedHairProcessingClicked:"};
constexpr Handler kRefine{"refineSliders:"};
constexpr Handler kRefineReset{"refineReset:"};

Choice hair(const char* control, const char* key, const char* label) {
    return {control, key, static_cast<double>(hairOfKey(*key)), label};
}

BindingGroup easyGroup() {
    constexpr auto kState_ = Owner::state;
    return {"groupEasy",
            QT_TRANSLATE_NOOP("Panel", "Quick settings"),
            &kEasyReset,
            {{"radioHair",
              &kHair,
              kState_,
              "iMacroHairColor",
              &kPlain,
              1,
              6,
              6,
              QT_TRANSLATE_NOOP("Panel", "Hair"),
              QT_TRANSLATE_NOOP("Panel", "Sets the key for this colour of hair. Auto suits most portraits."),
              {hair("buttonHairAuto", "6", QT_TRANSLATE_NOOP("Panel", "Auto")),
               hair("buttonHairBrown", "1", QT_TRANSLATE_NOOP("Panel", "Brown")),
               hair("buttonHairBlond", "2", QT_TRANSLATE_NOOP("Panel", "Blond")),
               hair("buttonHairBlack", "3", QT_TRANSLATE_NOOP("Panel", "Black")),
               hair("buttonHairRed", "4", QT_TRANSLATE_NOOP("Panel", "Red")),
               hair("buttonHairGray", "5", QT_TRANSLATE_NOOP("Panel", "Grey"))}},
             {"radioTransparency",
              &kTransparency,
              kState_,
              "iMacroTransparency",
              &kPlain,
              1,
              3,
              2,
              QT_TRANSLATE_NOOP("Panel", "Transparency"),
              QT_TRANSLATE_NOOP("Panel", "How much of the background shows through veils, glasses and fine hair."),
              {{"buttonTransparencyLess", "1", 1, QT_TRANSLATE_NOOP("Panel", "Less")},
               {"buttonTransparencyNormal", "2", 2, QT_TRANSLATE_NOOP("Panel", "Normal")},
               {"buttonTransparencyMore", "3", 3, QT_TRANSLATE_NOOP("Panel", "More")}}},
             {"radioShadows",
              &kShadows,
              kState_,
              "iMacroShadows",
              &kPlain,
              1,
              3,
              1,
              QT_TRANSLATE_NOOP("Panel", "Screen shadows"),
              QT_TRANSLATE_NOOP("Panel", "How much shadow lies on the screen behind the subject."),
              {{"buttonShadowsNone", "1", 1, QT_TRANSLATE_NOOP("Panel", "None")},
               {"buttonShadowsSome", "2", 2, QT_TRANSLATE_NOOP("Panel", "Some")},
               {"buttonShadowsDark", "3", 3, QT_TRANSLATE_NOOP("Panel", "Dark")}}},
             {"bMacroRemoveBackgroundGreen", &kGreenRemoval, kState_, "bMacroRemoveBackgroundGreen", &kState, 0, 1, 0,
              QT_TRANSLATE_NOOP("Panel", "Remove green of the background"),
              QT_TRANSLATE_NOOP("Panel", "Is kept with the picture; it changes no slider.")},
             {"bMacroRemoveGreenTint", &kGreenRemoval, kState_, "bMacroRemoveGreenTint", &kState, 0, 1, 0,
              QT_TRANSLATE_NOOP("Panel", "Remove a green tint"),
              QT_TRANSLATE_NOOP("Panel", "Takes more of the screen's light off skin and hair.")},
             {"bMacroRestoreGreen", &kGreenRemoval, kState_, "bMacroRestoreGreen", &kState, 0, 1, 0,
              QT_TRANSLATE_NOOP("Panel", "Bring green back"),
              QT_TRANSLATE_NOOP("Panel", "Keeps some of the green of clothes.")},
             {"bMacroRestoreMoreGreen", &kGreenRemoval, kState_, "bMacroRestoreMoreGreen", &kState, 0, 1, 0,
              QT_TRANSLATE_NOOP("Panel", "Bring more green back"),
              QT_TRANSLATE_NOOP("Panel", "Keeps most of the green of clothes.")}}};
}

Binding combineSlider(const char* name, double reset, const char* label, const char* toolTip) {
    return {name, &kCombine, Owner::combined, name, &kPlain, 0, 200, reset, label, toolTip};
}

BindingGroup keyGroup() {
    return {
        "groupKey",
        QT_TRANSLATE_NOOP("Panel", "Key"),
        &kCombineReset,
        {combineSlider("sliderRemoveGreenAreas", 100, QT_TRANSLATE_NOOP("Panel", "Remove green"),
                       QT_TRANSLATE_NOOP("Panel", "How much green goes from hair. To the right more goes.")),
         combineSlider("sliderRestoredDarkAreas", 60, QT_TRANSLATE_NOOP("Panel", "Dark areas"),
                       QT_TRANSLATE_NOOP("Panel",
                                         "Brings dark hair and clothes back. To the right more comes back; to "
                                         "the left shadows on the screen go.")),
         combineSlider("sliderWhiteAdjust", 40, QT_TRANSLATE_NOOP("Panel", "White areas"),
                       QT_TRANSLATE_NOOP("Panel",
                                         "Keeps white and light clothes clean. To the right it acts on more of "
                                         "the light tones.")),
         combineSlider("sliderGreenTintAreas", 100, QT_TRANSLATE_NOOP("Panel", "Green tint"),
                       QT_TRANSLATE_NOOP("Panel",
                                         "The screen's green light on the subject. To the left more of it is "
                                         "taken off, to the right more is kept.")),
         combineSlider("sliderTransparentcyAdjustment", 100, QT_TRANSLATE_NOOP("Panel", "Transparency"),
                       QT_TRANSLATE_NOOP("Panel",
                                         "How solid veils, glasses and edges are. To the right they become more "
                                         "solid.")),
         combineSlider("sliderWhiteBalance", 100, QT_TRANSLATE_NOOP("Panel", "White balance"),
                       QT_TRANSLATE_NOOP("Panel",
                                         "Shifts the subject between green and magenta where the screen shines "
                                         "through.")),
         combineSlider("sliderAdjustBaseGreen", 100, QT_TRANSLATE_NOOP("Panel", "Screen brightness"),
                       QT_TRANSLATE_NOOP("Panel", "Takes the screen for brighter or darker than it was measured.")),
         {"bShowOrgImage", &kCombine, Owner::state, "bShowOrgImage", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Show the portrait without a key"),
          QT_TRANSLATE_NOOP("Panel", "The portrait as it was taken, over the background.")},
         {"bShowBright", &kCombine, Owner::state, "bShowBright", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Keep bright greys see-through"),
          QT_TRANSLATE_NOOP("Panel", "Bright, nearly grey parts such as glass are not taken for solid.")},
         {"bShowSelectedAreas", &kCombine, Owner::combined, "bShowSelectedAreas", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Show what the key takes"),
          QT_TRANSLATE_NOOP("Panel", "Marks the parts of the picture that the key removes.")}}};
}

BindingGroup edgeGroup() {
    return {
        "groupEdges",
        QT_TRANSLATE_NOOP("Panel", "Screen and edges"),
        &kMainReset,
        {{"sliderBlendEdges", &kBlendEdges, Owner::state, "iBlendEdges", &kPlain, 0, 100, 30,
          QT_TRANSLATE_NOOP("Panel", "Smooth edges"),
          QT_TRANSLATE_NOOP("Panel", "Softens the outline in the full picture. 0 leaves it as the key made it.")},
         {"radioQuality",
          &kQuality,
          Owner::state,
          "bAdvancedBlending",
          &kPlain,
          0,
          1,
          1,
          QT_TRANSLATE_NOOP("Panel", "Blending"),
          QT_TRANSLATE_NOOP("Panel", "Best is slower and cleaner in fine hair."),
          {{"buttonHighSpeed", "1", 0, QT_TRANSLATE_NOOP("Panel", "Fast")},
           {"buttonHighQuility", "2", 1, QT_TRANSLATE_NOOP("Panel", "Best")}}},
         {"checkboxBlueLogic", &kMainCheckbox, Owner::state, "bUseBlueLogic", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Blue screen"), QT_TRANSLATE_NOOP("Panel", "The screen is blue and not green.")},
         {"checkboxOutputTransparency", &kMainCheckbox, Owner::state, "bOutputTransparency", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Transparent picture"),
          QT_TRANSLATE_NOOP("Panel", "Saves the subject alone, without a background. It wants PNG or TIFF.")}}};
}

BindingGroup hairGroup() {
    constexpr auto kState_ = Owner::state;
    return {
        "groupHair",
        QT_TRANSLATE_NOOP("Panel", "Hair and fine detail"),
        &kRefineReset,
        {{"checkboxAdvancedHairProcessing", &kAdvancedHair, kState_, "bAdvancedHairDetectionON", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Look for hair"),
          QT_TRANSLATE_NOOP("Panel", "Finds the colour of the hair in the picture and keys it with care.")},
         {"checkboxAVPShadowRemoval", &kShadowRemoval, kState_, "bAVPShadowRemoval", &kState, 0, 1, 1,
          QT_TRANSLATE_NOOP("Panel", "Remove shadows on the screen"),
          QT_TRANSLATE_NOOP("Panel", "Clears green shadows that the subject throws on the screen.")},
         {"checkboxNoGreenScreenProcessing", &kNoGreenScreen, kState_, "bShowOrgImage", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "No green screen"),
          QT_TRANSLATE_NOOP("Panel", "The portrait has no screen; nothing is keyed.")},
         {"checkboxRefineKey", &kRefine, kState_, "bRefineKey", &kState, 0, 1, 0,
          QT_TRANSLATE_NOOP("Panel", "Refined key"),
          QT_TRANSLATE_NOOP("Panel", "A second look at hair and edges. Takes a little longer.")},
         {"sliderRefineSoftness", &kRefine, kState_, "iSliderRefineSoftness", &kPlain, -100, 100, 0,
          QT_TRANSLATE_NOOP("Panel", "Soft edges"),
          QT_TRANSLATE_NOOP("Panel", "Edges of the refined key. To the left they are hard, to the right soft.")},
         {"sliderRefineDetail", &kRefine, kState_, "iSliderRefineDetail", &kPlain, -100, 100, 0,
          QT_TRANSLATE_NOOP("Panel", "Fine hair"),
          QT_TRANSLATE_NOOP("Panel", "Fine detail of the refined key. To the right more single hairs come back.")},
         {"sliderRefineOwnGreen", &kRefine, kState_, "iSliderRefineOwnGreen", &kPlain, -100, 100, 0,
          QT_TRANSLATE_NOOP("Panel", "Green of its own"),
          QT_TRANSLATE_NOOP("Panel",
                            "Green that belongs to the subject. To the right the refined key keeps more.")}}};
}

}  // namespace

int hairOfKey(char key) {
    switch (key) {
        case '1':
            return 4;
        case '2':
            return 3;
        case '3':
            return 2;
        case '4':
            return 1;
        case '5':
            return 5;
        case '6':
            return 6;
        default:
            return 0;
    }
}

std::vector<BindingGroup> keyGroups() {
    return {easyGroup(), keyGroup(), edgeGroup(), hairGroup()};
}

}  // namespace tavrin
