#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/raster/ColorMath.h"
#include "key/AlphaSearch.h"

namespace tavrin {

/// The grid of local screen colours has this many cells along each side of the picture.
inline constexpr int kGridSide = 20;

/// How much the edges of the key are steepened.
inline constexpr double kEdgeGain = 1.4;

/// Where a pixel's row or column lies between two cells of the grid of local screen colours.
struct GridStep {
    int low = 0, high = 0;  ///< the two cells, 0 to 19
    double part = 0.0;      ///< share of the higher one
};

/// The screen colour over the picture, in roles.
struct ScreenField {
    bool local = false;             ///< measured against the grid, not the global colour
    Rgb global{1.0, 1.0, 1.0};      ///< scaled and white balanced, ready for use
    std::array<Rgb, 400> cells{};   ///< as measured; row * 20 + column
    std::vector<GridStep> columns;  ///< one for each column of the picture when `local`
    double scale = 1.0;             ///< the slider that scales the screen colour
};

/// The part of the picture that is cut away, in pixels from each side.
struct ClipMargins {
    std::int64_t left = 0, right = 0, top = 0, bottom = 0;
};

/// What the key's decision depends on, the same for every pixel of a run. Fields named as the sliders.
struct KeyConstants {
    int width = 0, height = 0;
    bool blueLogic = false;
    bool showOrgImage = false, showBright = false, showSelectedAreas = false;
    double whiteBalanceU = 0.0, whiteBalanceV = 0.0;  ///< added to the colour differences
    double k = 1.0;                                   ///< tolerance of the red and blue bounds, 1 to 2
    double darkChroma = 0.0, darkLimit = 0.0;
    double transShift = 0.0;  ///< added to the alpha of the edges
    double removeGain = 1.0;  ///< steepness of the alpha that the hair correction finds
    SearchConstants search;
    bool colorOfClear = true;  ///< recover the colour of clear pixels too; only the hair correction asks for it
    ClipMargins clip;
    ScreenField screen;
    /// First pixel, counted in scan order, that lowers the mix of all pixels after it: see `findBrightGrey`.
    std::int64_t firstBrightGrey = std::numeric_limits<std::int64_t>::max();
};

/// A pixel after the key has decided on it. Colours in roles.
struct KeyedPixel {
    Rgb raw;                      ///< the foreground's bytes
    Rgb screen;                   ///< screen colour here, scaled and white balanced
    Rgb color;                    ///< recovered colour of the subject; may exceed 255
    double alpha = 0.0;           ///< 0 to 1
    double largest = 0.0;         ///< largest channel of the white balanced pixel
    double lift = 0.0;            ///< how far a pixel is from dark and grey
    bool hardBackground = false;  ///< so near the screen colour that nothing may bring it back
    bool inClipMargin = false;
};

/// The grid step of position `position` (0 to size - 1).
GridStep gridStep(int position, int size);

/// Scales a screen colour and sends it through the white balance.
Rgb balanceScreen(const KeyConstants& key, const Rgb& measured);

/// Decides on pixel (x, y) with the bytes `foreground` (red, green, blue, alpha); `row` is the grid step of y.
KeyedPixel decidePixel(const KeyConstants& key, const std::uint8_t* foreground, int x, int y, const GridStep& row);

/// When the foreground is shown as it is, the first bright grey pixel turns the unmixing on for itself and all
/// pixels after it in scan order. Finds it in a row of pixels.
/// @return its column, or the width when there is none
int findBrightGrey(const KeyConstants& key, const std::uint8_t* row);

}  // namespace tavrin
