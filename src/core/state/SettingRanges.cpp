#include "core/state/SettingRanges.h"

#include <charconv>
#include <string_view>

namespace tavrin {

namespace {

struct Range {
    double low, high;
    std::string_view names;  // with a blank around each; the object's name before the full stop does not count
};

constexpr Range kRanges[] = {
    {0, 2, " iGreenProtectMode iBackgroundOutputMode iGlobalSmoothingMode iJustify "},
    {0, 4, " iForegroundOutputMode iLightingMode iCartoonEffectType "},
    {0, 5, " iHaveShadow "},
    {1, 6, " iMacroHairColor "},
    {1, 3, " iLightingApplyTo "},
    {0, 100,
     " iContrast iEnhanseShadows iReduceHighlights iBrightnessSharpen iSliderClipTop iSliderClipBottom "
     "iSliderClipLeft iSliderClipRight iBlendEdges iColorDelta iNumberOfSamples iRedRequired iMakeup "
     "iSliderlSilhouetteX iSliderlSilhouetteY iSliderReflectionTransparency iTextureBrightness iTextureContrast "
     "iTexturePercent iTextureOffsetPercent iFrameBlur iFrameThickness iFrameFeather iFrameTransparency "
     "iLightingSliderStartLight iLightingSliderEndLight iSliderCartoonEffectWidth iSliderCartoonEffectSmoothing "
     "iSliderProtectionRadius "},
    {-100, 100, " iBrightness iBrightnessSat "},
    {-200, 200, " iRedDelta iGreenDelta iBlueDelta "},
    {0, 200,
     " sliderAdjustBaseGreen sliderRemoveGreenAreas sliderRestoredDarkAreas sliderWhiteAdjust sliderGreenTintAreas "
     "sliderTransparentcyAdjustment sliderWhiteBalance iSliderBackgroundGreen iSliderShirtProtection "},
    {0, 255, " iCooling iWarming iSilhouetteRed iSilhouetteGreen iSilhouetteBlue "},
    {0, 1000,
     " iSliderShadowRightLeft iSliderShadowUpDown iSliderShadowBase iSliderFloorBaseAngle iSliderShadowBlack "
     "iSliderFloorSkew iSliderShadowScale iSliderShadowTransparency iSliderShadowBlur iSliderVRoomRight "
     "iSliderVRoomLeft iSliderVRoomTransparency "},
    {-90, 90, " fTilt "},
    {0, 360, " fRotate "},
    {0.01, 100, " fScale "},
    {0, 1, " dTransparency "},
    {-1000, 1000, " iOrgXoff iOrgYoff "},
};

std::string shown(double value) {
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

}  // namespace

std::string rangeProblem(const std::string& name, const std::string& value) {
    const std::string key = " " + name.substr(name.rfind('.') + 1) + " ";
    double number = 0.0;
    const char* const end = value.data() + value.size();
    if (std::from_chars(value.data(), end, number).ptr != end) return "";
    for (const Range& range : kRanges) {
        if (range.names.find(key) == std::string_view::npos) continue;
        if (number >= range.low && number <= range.high) return "";
        return name + " goes from " + shown(range.low) + " to " + shown(range.high) + "; " + value +
               " is taken as it is.";
    }
    return "";
}

}  // namespace tavrin
