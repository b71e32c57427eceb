#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/raster/ColorMath.h"
#include "key/pixel/SearchConstants.h"

namespace tavrin {

/// When bright greys are to be unmixed a little: the subject's share in them.
inline constexpr double kBrightGreyMix = 0.97;

/// A colour is the screen's when it is nearer than this to the line of black through the screen's colour, or to that
/// colour itself; on the scale of 0 to 255.
inline constexpr double kScreenLine = 80.0, kScreenNear = 8.0;

/// How much the edges of the key are steepened.
inline constexpr double kEdgeGain = 1.4;

/// Where a pixel's row or column lies between two cells of the grid of local screen colours.
struct GridStep {
    int low = 0, high = 0;  ///< the two cells, 0 to 19
    double part = 0.0;      ///< share of the higher one
};

/// Pixels side by side that lie between the same two columns of the grid; as many as fit a `KeyedRun`.
struct ColumnRun {
    int x = 0, count = 0;
};

/// The screen colour over the picture, in roles, as measured.
struct ScreenField {
    bool local = false;               ///< measured against the grid, not the global colour
    Rgb global{1.0, 1.0, 1.0};        ///< the colour of the whole screen
    std::array<Rgb, 400> cells{};     ///< row * 20 + column
    std::vector<double> columnParts;  ///< `GridStep::part` of each column of the picture, and a vector of padding
    std::vector<ColumnRun> runs;      ///< the columns of the picture from left to right
    double scale = 1.0;               ///< the slider that scales the screen colour
};

/// The four cells around a run of pixels.
struct ScreenCells {
    Rgb topLeft{}, topRight{}, bottomLeft{}, bottomRight{};
    double rowPart = 0.0;  ///< share of the lower two
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
    /// First pixel, counted in scan order, that lowers the mix of all pixels after it: see `findBrightGrey` of
    /// PixelSteps.h.
    std::int64_t firstBrightGrey = std::numeric_limits<std::int64_t>::max();
};

/// The grid step of position `position` (0 to size - 1).
GridStep gridStep(int position, int size);

/// Fills `runs` and `columnParts` for a picture of `width` pixels.
void layOutColumns(ScreenField& screen, int width);

/// The cells around the run that begins at (x, y) in a picture of width x height; zeros where there is no grid.
ScreenCells screenCells(const ScreenField& screen, int x, int y, int width, int height);

}  // namespace tavrin
