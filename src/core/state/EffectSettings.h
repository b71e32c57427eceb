#pragma once

#include "core/state/Leaf.h"

namespace tavrin {

/// Global smoothing: mode 1 smooths the foreground when it is scaled, mode 2 the result.
struct GlobalSmoothingSettings {
    Field<std::int32_t> iGlobalSmoothingLambda = 0;
    Field<std::int32_t> iGlobalSmoothingMode = 0;

    static std::span<const Leaf<GlobalSmoothingSettings>> leaves();
};

/// Stars on bright lights.
struct StarFilterSettings {
    Field<bool> bStarFilerTurnOn = false;
    Field<bool> bStarFilterShowSelected = false;
    Field<std::int32_t> iStarFilterBrightLightThreshold = 0;
    Field<std::int32_t> iStarFilterMaxArea = 0;
    Field<std::int32_t> iStarFilterWidth = 0;
    Field<std::int32_t> iStarFilterSize = 0;
    Field<std::int32_t> iStarFilterNumberOfPoints = 0;
    Field<std::int32_t> iStarFilterStartingAngle = 0;

    static std::span<const Leaf<StarFilterSettings>> leaves();
};

/// The subject's shadow on floor and wall. Sliders run 0 to 1000 and are neutral at 500.
struct ShadowSettings {
    Field<std::int32_t> iHaveShadow = 1;  ///< 1 none, 2 floor, 3 floor and wall, 5 wall; 0 counts as on
    Field<std::int32_t> iSliderShadowRightLeft = 0;
    Field<std::int32_t> iSliderShadowUpDown = 0;
    Field<std::int32_t> iSliderShadowBase = 0;
    Field<std::int32_t> iSliderFloorBaseAngle = 0;
    Field<std::int32_t> iSliderShadowBlack = 0;
    Field<std::int32_t> iSliderFloorSkew = 0;
    Field<std::int32_t> iSliderShadowScale = 0;
    Field<std::int32_t> iSliderShadowTransparency = 0;
    Field<std::int32_t> iSliderShadowBlur = 0;
    Field<std::int32_t> iSliderVRoomRight = 0;
    Field<std::int32_t> iSliderVRoomLeft = 0;
    Field<std::int32_t> iSliderVRoomTransparency = 0;
    Field<std::int32_t> bCheckShowBaseline = 0;  ///< a number in spite of its prefix
    Field<std::int32_t> iCheckShadowBehind = 0;
    Field<std::int32_t> iShadowMode = 0;

    static std::span<const Leaf<ShadowSettings>> leaves();
};

/// Sketch and cartoon.
struct CartoonSettings {
    Field<std::int32_t> iCartoonEffectType = 0;
    Field<std::int32_t> iSliderCartoonEffectWidth = 0;
    Field<std::int32_t> iSliderCartoonEffectSmoothing = 0;

    static std::span<const Leaf<CartoonSettings>> leaves();
};

/// Skin detection, smoothing and make-up.
struct SkinSettings {
    Field<std::int32_t> iSmoothMode = 0;       ///< 0 off
    Field<std::int32_t> iColorDelta = 0;       ///< blur strength, percent
    Field<std::int32_t> iNumberOfSamples = 0;  ///< smoothing strength: 80 is full
    Field<std::int32_t> iRedRequired = 0;      ///< tolerance of the skin test
    Field<std::int32_t> iSmoothNoise = 0;
    Field<std::int32_t> iMakeup = 0;             ///< percent
    Field<std::int32_t> bShowSkinSelection = 0;  ///< a number in spite of its prefix
    Field<bool> bComputeSkinColor = false;       ///< measure the picture instead of taking the defaults
    Field<std::int32_t> bSmoothBlendOrg = 0;     ///< a number in spite of its prefix

    static std::span<const Leaf<SkinSettings>> leaves();
};

/// Light laid over the picture. A light slider is neutral at 50.
struct LightingSettings {
    Field<std::int32_t> iLightingMode = 0;  ///< 0 off, 1 sheet, 2 circle, 3 cone, 4 glow
    Field<std::int32_t> iLightingSliderXLoc = 100;
    Field<std::int32_t> iLightingSliderYLoc = 100;
    Field<std::int32_t> iLightingSliderAngle = 0;
    Field<std::int32_t> iLightingSliderSize = 100;
    Field<std::int32_t> iLightingSliderStartLight = 70;
    Field<std::int32_t> iLightingSliderEndLight = 0;
    Field<std::int32_t> iLightingApplyTo = 3;  ///< 1 foreground, 2 background, 3 both

    static std::span<const Leaf<LightingSettings>> leaves();
};

/// The subject mirrored on the floor.
struct ReflectionSettings {
    Field<bool> bHaveReflection = false;
    Field<std::int32_t> iSliderReflectionScale = 75;
    Field<std::int32_t> iSliderReflectionSkew = 75;
    Field<std::int32_t> iSliderReflectionSkewBase = 30;
    Field<std::int32_t> iSliderReflectionRippleHeight = 20;
    Field<std::int32_t> iSliderReflectionTransparency = 60;

    static std::span<const Leaf<ReflectionSettings>> leaves();
};

}  // namespace tavrin
