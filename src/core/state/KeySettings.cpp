#include "core/state/KeySettings.h"

namespace tavrin {

std::span<const Leaf<GuardSettings>> GuardSettings::leaves() {
    using G = GuardSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bAdvancedHairDetectionON),
        TAVRIN_LEAF(G, bAVPShadowRemoval),
        TAVRIN_LEAF(G, iGreenProtectMode),
        TAVRIN_LEAF(G, iSliderBackgroundGreen),
        TAVRIN_LEAF(G, iSliderProtectionRadius),
        TAVRIN_LEAF(G, iSliderShirtProtection),
        TAVRIN_LEAF(G, bRemoveInsideBaseGreen),
        TAVRIN_LEAF(G, bShowGreenProtection),
        TAVRIN_LEAF_NOT_STORED(G, bUseAdaptiveBackgroundGreen),
    };
    return table;
}

std::span<const Leaf<EasySettings>> EasySettings::leaves() {
    using G = EasySettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF_NOT_STORED(G, bEZCombine),       TAVRIN_LEAF(G, iMacroHairColor),
        TAVRIN_LEAF(G, iMacroTransparency),          TAVRIN_LEAF(G, iMacroShadows),
        TAVRIN_LEAF(G, bMacroRemoveBackgroundGreen), TAVRIN_LEAF(G, bMacroRemoveGreenTint),
        TAVRIN_LEAF(G, bMacroRestoreGreen),          TAVRIN_LEAF(G, bMacroRestoreMoreGreen),
    };
    return table;
}

std::span<const Leaf<KeyOutputSettings>> KeyOutputSettings::leaves() {
    using G = KeyOutputSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bShowOrgImage),       TAVRIN_LEAF(G, bShowBright),   TAVRIN_LEAF(G, bAdvancedBlending),
        TAVRIN_LEAF(G, bOutputTransparency), TAVRIN_LEAF(G, bUseBlueLogic), TAVRIN_LEAF(G, iBlendEdges),
    };
    return table;
}

std::span<const Leaf<RefineSettings>> RefineSettings::leaves() {
    using G = RefineSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bRefineKey),
        TAVRIN_LEAF(G, iSliderRefineSoftness),
        TAVRIN_LEAF(G, iSliderRefineDetail),
        TAVRIN_LEAF(G, iSliderRefineOwnGreen),
    };
    return table;
}

std::span<const Leaf<OutputModeSettings>> OutputModeSettings::leaves() {
    using G = OutputModeSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iBackgroundOutputMode),
        TAVRIN_LEAF(G, iForegroundOutputMode),
    };
    return table;
}

std::span<const Leaf<SilhouetteSettings>> SilhouetteSettings::leaves() {
    using G = SilhouetteSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bOutputSilhouette),   TAVRIN_LEAF(G, iSilhouetteRed),      TAVRIN_LEAF(G, iSilhouetteGreen),
        TAVRIN_LEAF(G, iSilhouetteBlue),     TAVRIN_LEAF(G, sSilhouetteFileName), TAVRIN_LEAF(G, iSliderlSilhouetteX),
        TAVRIN_LEAF(G, iSliderlSilhouetteY),
    };
    return table;
}

}  // namespace tavrin
