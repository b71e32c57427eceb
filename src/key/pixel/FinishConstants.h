#pragma once

#include <cstdint>
#include <vector>

#include "core/raster/ColorMath.h"
#include "key/pixel/ToneChain.h"

namespace tavrin {

/// Colour treatment of a layer, with the numbers of the settings; any other number is plain colour.
inline constexpr int kModeGrey = 1, kModeSepia = 2, kModeSilhouette = 4;

/// What takes the subject's place when it is shown as a silhouette: a flat colour, or a picture.
struct SilhouetteFill {
    bool on = false;
    Rgb color{0.0, 0.0, 0.0};              ///< real channels
    const std::uint8_t* pixels = nullptr;  ///< RGBA, rows packed; null for the flat colour
    int width = 0, height = 0;
    double scale = 1.0;  ///< picture pixels for an output pixel
    std::int64_t rowShift = 0, columnShift = 0;
};

/// Near-white colours are pulled to neutral.
struct WhiteAdjust {
    bool on = true;
    double near = 0.0, wide = 0.0;    ///< distances from neutral within which the two rules work
    double mix = 0.0, keep = 2000.0;  ///< fixed part of the wide rule, keep in 2000ths
};

/// The light over the picture.
struct LightMap {
    const std::int32_t* values = nullptr;  ///< one for each pixel, gain in thousandths; null is no light
    bool onBackground = false;             ///< the background takes the light, and nothing else
    bool byAlpha = false;                  ///< the light falls on the subject alone
};

/// What happens to a keyed pixel until it is written, the same for every pixel of a run.
struct FinishConstants {
    bool blueLogic = false;
    ToneConstants foregroundTone, backgroundTone;
    /// What the background's curve makes of each level from 0 to 255; empty where that tone is off.
    std::vector<double> backgroundLevels;
    WhiteAdjust white;
    int foregroundMode = 0, backgroundMode = 0;
    SilhouetteFill silhouette;
    Rgb foregroundDelta{0.0, 0.0, 0.0};  ///< in roles: the green delta goes to the green role
    Rgb backgroundDelta{0.0, 0.0, 0.0};  ///< real channels
    LightMap light;
    bool plainBackground = false;  ///< the background goes through as it is, byte for byte
    bool transparent = false;      ///< write the subject alone, with its alpha
    bool showOrgImage = false;     ///< the written alpha stays opaque
};

}  // namespace tavrin
