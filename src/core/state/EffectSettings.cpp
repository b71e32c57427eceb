#include "core/state/EffectSettings.h"

namespace tavrin {

std::span<const Leaf<GlobalSmoothingSettings>> GlobalSmoothingSettings::leaves() {
    using G = GlobalSmoothingSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iGlobalSmoothingLambda),
        TAVRIN_LEAF(G, iGlobalSmoothingMode),
    };
    return table;
}

std::span<const Leaf<StarFilterSettings>> StarFilterSettings::leaves() {
    using G = StarFilterSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bStarFilerTurnOn),
        TAVRIN_LEAF(G, bStarFilterShowSelected),
        TAVRIN_LEAF(G, iStarFilterBrightLightThreshold),
        TAVRIN_LEAF(G, iStarFilterMaxArea),
        TAVRIN_LEAF(G, iStarFilterWidth),
        TAVRIN_LEAF(G, iStarFilterSize),
        TAVRIN_LEAF(G, iStarFilterNumberOfPoints),
        TAVRIN_LEAF(G, iStarFilterStartingAngle),
    };
    return table;
}

std::span<const Leaf<ShadowSettings>> ShadowSettings::leaves() {
    using G = ShadowSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iHaveShadow),
        TAVRIN_LEAF(G, iSliderShadowRightLeft),
        TAVRIN_LEAF(G, iSliderShadowUpDown),
        TAVRIN_LEAF(G, iSliderShadowBase),
        TAVRIN_LEAF(G, iSliderFloorBaseAngle),
        TAVRIN_LEAF(G, iSliderShadowBlack),
        TAVRIN_LEAF(G, iSliderFloorSkew),
        TAVRIN_LEAF(G, iSliderShadowScale),
        TAVRIN_LEAF(G, iSliderShadowTransparency),
        TAVRIN_LEAF(G, iSliderShadowBlur),
        TAVRIN_LEAF(G, iSliderVRoomRight),
        TAVRIN_LEAF(G, iSliderVRoomLeft),
        TAVRIN_LEAF(G, iSliderVRoomTransparency),
        TAVRIN_LEAF(G, bCheckShowBaseline),
        TAVRIN_LEAF(G, iCheckShadowBehind),
        TAVRIN_LEAF(G, iShadowMode),
    };
    return table;
}

std::span<const Leaf<CartoonSettings>> CartoonSettings::leaves() {
    using G = CartoonSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iCartoonEffectType),
        TAVRIN_LEAF(G, iSliderCartoonEffectWidth),
        TAVRIN_LEAF(G, iSliderCartoonEffectSmoothing),
    };
    return table;
}

std::span<const Leaf<SkinSettings>> SkinSettings::leaves() {
    using G = SkinSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iSmoothMode),
        TAVRIN_LEAF(G, iColorDelta),
        TAVRIN_LEAF(G, iNumberOfSamples),
        TAVRIN_LEAF(G, iRedRequired),
        TAVRIN_LEAF(G, iSmoothNoise),
        TAVRIN_LEAF(G, iMakeup),
        TAVRIN_LEAF(G, bShowSkinSelection),
        TAVRIN_LEAF(G, bComputeSkinColor),
        TAVRIN_LEAF_NOT_STORED(G, bSmoothBlendOrg),
    };
    return table;
}

std::span<const Leaf<LightingSettings>> LightingSettings::leaves() {
    using G = LightingSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iLightingMode),           TAVRIN_LEAF(G, iLightingSliderXLoc),
        TAVRIN_LEAF(G, iLightingSliderYLoc),     TAVRIN_LEAF(G, iLightingSliderAngle),
        TAVRIN_LEAF(G, iLightingSliderSize),     TAVRIN_LEAF(G, iLightingSliderStartLight),
        TAVRIN_LEAF(G, iLightingSliderEndLight), TAVRIN_LEAF(G, iLightingApplyTo),
    };
    return table;
}

std::span<const Leaf<ReflectionSettings>> ReflectionSettings::leaves() {
    using G = ReflectionSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bHaveReflection),
        TAVRIN_LEAF(G, iSliderReflectionScale),
        TAVRIN_LEAF(G, iSliderReflectionSkew),
        TAVRIN_LEAF(G, iSliderReflectionSkewBase),
        TAVRIN_LEAF(G, iSliderReflectionRippleHeight),
        TAVRIN_LEAF(G, iSliderReflectionTransparency),
    };
    return table;
}

}  // namespace tavrin
