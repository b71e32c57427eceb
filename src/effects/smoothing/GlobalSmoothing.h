#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Smooths a picture and keeps its edges: the fast global smoother, weighted least squares solved along lines (D.
/// Min, S. Choi, J. Lu, B. Ham, K. Sohn, M. N. Do, "Fast global image smoothing based on weighted least squares",
/// 2014).
///
/// `rgba` has the geometry of the resolution (`hiRes` 0 preview, otherwise full) and is changed in place; alpha
/// stays. `iGlobalSmoothingLambda` is the strength: it sets how much of a step still counts as texture, and with the
/// DPI how far the smoothing reaches, so that both resolutions look alike. 0 changes nothing. A superseded run ends
/// within eight lines of each core and writes what it has got.
void FastGlobalImageSmoothing(SystemInfo& info, int ignored, std::uint8_t* rgba, int hiRes);

/// The smoother on a picture from `memAllocFloat3(height, width, 3)`, channels on the 0 to 255 scale, in place.
/// Each iteration solves all rows, then all columns; `sigma` is the colour distance at which a step counts as an edge
/// (0 or less counts as 1), `lambda` the reach, of which every further iteration has 1 / `attenuation`.
void FGS(SystemInfo& info, float*** image, int width, int height, int iterations, double sigma, double lambda,
         double attenuation);

}  // namespace tavrin
