#pragma once

#include "core/state/Leaf.h"

namespace tavrin {

/// The settings of one layer. Lengths and neutral values are told at the fields that a stage reads; the others are
/// kept in the state file only.
struct LayerSettings {
    Field<std::string> sSourceImageFullPath;  ///< file of the layer
    Field<double> dOrgScale = 0.0;
    Field<std::int32_t> dOrgXOrg = 0;
    Field<std::int32_t> dOrgYOrg = 0;
    Field<double> dImageScale = 0.0;
    Field<std::int32_t> dImageXOrg = 0;
    Field<std::int32_t> dImageYOrg = 0;
    Field<std::int32_t> iOrgXoff = 0;    ///< placement, thousandths of the output width
    Field<std::int32_t> iOrgYoff = 0;    ///< placement, thousandths of the output height, upward
    Field<std::int32_t> iOrgHeight = 0;  ///< size of `orgImage`
    Field<std::int32_t> iOrgWidth = 0;
    Field<double> fOrgScale = 1.0;  ///< fits the source to the full output
    Field<double> fScale = 1.0;     ///< user's scale
    Field<std::int32_t> iOrgScaleSlider = 0;
    Field<std::int32_t> iScaleViewScale = 0;
    Field<std::int32_t> iContrast = 50;          ///< 50 is neutral
    Field<std::int32_t> iBrightness = 0;         ///< -100 to 100
    Field<std::int32_t> iBrightnessSat = 0;      ///< saturation
    Field<std::int32_t> iEnhanseShadows = 0;     ///< shadow lift
    Field<std::int32_t> iReduceHighlights = 0;   ///< percent
    Field<std::int32_t> iBrightnessSharpen = 0;  ///< sharpening
    Field<bool> bLimitBloom = false;
    Field<bool> bDynamicColors = false;
    Field<std::int32_t> iExpScaleSlider = 0;
    Field<bool> bHaveColorChange = false;  ///< one of the six brightness values is away from neutral
    Field<std::int32_t> iRedDelta = 0;
    Field<std::int32_t> iGreenDelta = 0;
    Field<std::int32_t> iBlueDelta = 0;
    Field<std::int32_t> iCooling = 0;  ///< 0 to 255
    Field<std::int32_t> iWarming = 0;  ///< 0 to 255
    Field<std::int32_t> iSaturationDelta = 0;
    Field<std::int32_t> iIntensityDelta = 0;
    Field<std::int32_t> iHueDelta = 0;
    Field<bool> bBlackAndWhite = false;
    Field<bool> bPreserveLuminosity = true;
    Field<std::int32_t> iColorScaleSlider = 100;
    Field<std::int32_t> iComboXoff = 0;
    Field<std::int32_t> iComboYoff = 0;
    Field<std::int32_t> iComboZoom = 250;
    Field<double> fComboScale = 1.0;
    Field<double> iComboScaleSlider = 100.0;
    Field<std::int32_t> sliderAdjustBaseGreen = 100;
    Field<std::int32_t> sliderRemoveGreenAreas = 40;
    Field<std::int32_t> sliderRestoredDarkAreas = 60;
    Field<std::int32_t> sliderWhiteAdjust = 40;
    Field<std::int32_t> sliderGreenTintAreas = 100;
    Field<std::int32_t> sliderTransparentcyAdjustment = 100;
    Field<std::int32_t> sliderWhiteBalance = 100;
    Field<std::int32_t> sliderSolidColor = 0;
    Field<std::int32_t> sliderAlphaAdd = 0;
    Field<std::int32_t> sliderAlphaRemove = 0;
    Field<bool> bFlipHorz = false;  ///< mirror left to right on load
    Field<bool> bFlipVert = false;
    Field<double> fTilt = 0.0;               ///< degrees
    Field<double> fRotate = 0.0;             ///< degrees: 0, 90, 180 or 270
    Field<bool> bShowSelectedAreas = false;  ///< show the key's selection

    static std::span<const Leaf<LayerSettings>> leaves();
};

}  // namespace tavrin
