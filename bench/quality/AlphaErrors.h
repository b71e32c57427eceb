#pragma once

#include <cstdint>
#include <vector>

#include <QImage>

namespace tavrin::quality {

/// Distance in pixels, measured along the longer axis, within which a pixel counts as near an edge.
inline constexpr int kEdgeReach = 5;

/// How far a key's alpha is from the truth. Alphas are 0 to 1.
struct AlphaErrors {
    double sad = 0.0;      ///< sum of the absolute differences, in thousands
    double mean = 0.0;     ///< mean absolute difference over the picture
    double edges = 0.0;    ///< the same over the pixels near an edge
    double holes = 0.0;    ///< the same where the truth is solid subject (above 0.98)
    double residue = 0.0;  ///< the same where the truth is pure screen (below 0.02)
};

/// The true alpha of a scene as 8-bit grey; null when the file is not such a picture.
QImage readTruth(const std::string& path);

/// One byte a pixel, 1 near an edge: within `kEdgeReach` of a pixel whose true alpha is strictly between 0.02 and
/// 0.98.
std::vector<std::uint8_t> nearEdges(const QImage& truth);

/// How much softer or harder the edges are than the true ones: the sum of the squared differences of the lengths of
/// both gradients, in thousands. A gradient is what the derivatives of a Gaussian of 1.4 pixels give, as kernels of
/// 9 x 9 whose squares add up to 1; beyond the picture its last pixels go on.
/// @param rgba  as below
double gradientError(const std::uint8_t* rgba, const QImage& truth);

/// @param rgba  buffer of the truth's size whose fourth bytes are the key's alpha
AlphaErrors measureAlpha(const std::uint8_t* rgba, const QImage& truth);

}  // namespace tavrin::quality
