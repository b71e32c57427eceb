#pragma once

#include <array>

#include "core/state/Leaf.h"

namespace tavrin {

/// Hair detection and the green guard.
struct GuardSettings {
    Field<bool> bAdvancedHairDetectionON = false;  ///< run `ComputeHairColor` before the key
    Field<bool> bAVPShadowRemoval = true;          ///< clear green shadow that lies on the screen
    Field<std::int32_t> iGreenProtectMode = 0;     ///< 0 off, 1 green not connected to the border, 2 one shirt colour
    Field<std::int32_t> iSliderBackgroundGreen = 30;   ///< distance within which a pixel counts as screen green
    Field<std::int32_t> iSliderProtectionRadius = 30;  ///< band along the edge, in 200ths of the width
    Field<std::int32_t> iSliderShirtProtection = 50;   ///< distance within which a pixel counts as shirt colour
    Field<bool> bRemoveInsideBaseGreen = true;         ///< key green inside the outline all the same
    Field<bool> bShowGreenProtection = true;           ///< show the guard's bitmap instead of the picture
    /// Measure the key against the local screen colour of the 20 x 20 grid instead of the global one.
    Field<bool> bUseAdaptiveBackgroundGreen = true;

    static std::span<const Leaf<GuardSettings>> leaves();
};

/// The estimated screen colour, in roles: with blue logic "green" is the third byte and "blue" the second.
/// Written by `ComputeBaseGreen`, scale 0 to 255, each channel at least 1.
struct ScreenColor {
    Field<double> baseRed = 40.0, baseGreen = 135.0, baseBlue = 20.0;
    /// Local estimates, a grid of 20 x 20 cells; the cell of row i and column j is i * 20 + j.
    std::array<double, 400> iBaseRedArray{}, iBaseGreenArray{}, iBaseBlueArray{};
    std::array<std::int32_t, 400> iBaseArrayCount{};  ///< screen pixels counted in each cell
};

/// Hair colours, measured or preset, in roles.
struct HairColors {
    Field<bool> bFoundHair = false;
    Field<std::int32_t> iHairColorCount = 0;
    std::array<std::int32_t, 10> iHairColorBinRed{}, iHairColorBinGreen{}, iHairColorBinBlue{};
};

/// The simple key panel, from which `UpdateEZCombineSettings` derives the key sliders.
struct EasySettings {
    Field<bool> bEZCombine = true;
    Field<std::int32_t> iMacroHairColor = 4;  ///< 1 red, 2 black, 3 blond, 4 brown, 5 gray, 6 automatic
    Field<std::int32_t> iMacroTransparency = 2;
    Field<std::int32_t> iMacroShadows = 1;
    Field<bool> bMacroRemoveBackgroundGreen = false;
    Field<bool> bMacroRemoveGreenTint = false;
    Field<bool> bMacroRestoreGreen = false;
    Field<bool> bMacroRestoreMoreGreen = false;

    static std::span<const Leaf<EasySettings>> leaves();
};

/// What the key shows and writes.
struct KeyOutputSettings {
    Field<bool> bShowOrgImage = false;  ///< no key: the foreground with its own alpha
    Field<bool> bShowBright = false;    ///< keep bright, near-grey pixels from being treated as solid
    Field<bool> bAdvancedBlending = true;
    Field<bool> bOutputTransparency = false;  ///< the result is the foreground with alpha, not a composite
    Field<bool> bUseBlueLogic = false;        ///< the screen is blue
    Field<std::int32_t> iBlendEdges = 20;     ///< edge smoothing at full resolution; 0 skips it

    static std::span<const Leaf<KeyOutputSettings>> leaves();
};

/// The second look at the key's alpha. Numbers run from -100 to 100 and are neutral at 0, which is also what a state
/// file that does not name them gives.
struct RefineSettings {
    Field<bool> bRefineKey = false;
    Field<std::int32_t> iSliderRefineSoftness = 0;  ///< edges: -100 hard, 100 blurred
    Field<std::int32_t> iSliderRefineDetail = 0;    ///< fine detail from the brightness: -100 none, 100 twice as much
    Field<std::int32_t> iSliderRefineOwnGreen = 0;  ///< the subject's own green: -100 none is kept, 100 twice as much

    static std::span<const Leaf<RefineSettings>> leaves();
};

/// Colour treatment of a layer: 0 colour, 1 grey, 2 sepia; the foreground also 4, silhouette with transparency.
struct OutputModeSettings {
    Field<std::int32_t> iBackgroundOutputMode = 0;
    Field<std::int32_t> iForegroundOutputMode = 0;

    static std::span<const Leaf<OutputModeSettings>> leaves();
};

/// The foreground replaced by a flat colour or by a picture.
struct SilhouetteSettings {
    Field<bool> bOutputSilhouette = false;
    Field<std::int32_t> iSilhouetteRed = 0, iSilhouetteGreen = 0, iSilhouetteBlue = 0;
    Field<std::string> sSilhouetteFileName;
    Field<std::int32_t> iSliderlSilhouetteX = 50, iSliderlSilhouetteY = 50;  ///< 50 is neutral

    static std::span<const Leaf<SilhouetteSettings>> leaves();
};

}  // namespace tavrin
