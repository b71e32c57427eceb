#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace tavrin {

/// Where a line goes that is reduced: the place of its begin, and how many of its pixels become one, at least 1.
struct LinePlace {
    double begin = 0.0, scale = 1.0;
};

/// Which pixels of a line go into each pixel of the reduced line, and with what weight: as many for each, so that
/// some that lie outside have no weight.
struct LineShares {
    int taps = 0;
    std::vector<int> first;        ///< the first pixel of the line that goes in
    std::vector<float> weights;    ///< `taps` for each, adding up to 1 but for rounding, and for what is uncovered
    std::vector<float> uncovered;  ///< how much of each the line leaves free; above 0 at its ends only

    const float* weightsOf(std::size_t at) const { return weights.data() + at * static_cast<std::size_t>(taps); }
};

/// For the pixels [from, to) that a line of `length` pixels covers, wholly or in part.
inline LineShares shareLine(int length, const LinePlace& place, int from, int to) {
    constexpr double kRounding = 1e-6;
    LineShares shares;
    shares.taps = static_cast<int>(std::min(std::ceil(place.scale) + 1.0, static_cast<double>(length)));
    for (int i = from; i < to; ++i) {
        const double begin = (i - place.begin) * place.scale, end = (i + 1 - place.begin) * place.scale;
        const int first =
            static_cast<int>(std::clamp(std::floor(begin), 0.0, static_cast<double>(length - shares.taps)));
        shares.first.push_back(first);
        double covered = 0.0;
        for (int pixel = first; pixel < first + shares.taps; ++pixel) {
            const double inside = std::min(end, pixel + 1.0) - std::max(begin, static_cast<double>(pixel));
            shares.weights.push_back(static_cast<float>(std::max(inside, 0.0) / place.scale));
            covered += std::max(inside, 0.0) / place.scale;
        }
        shares.uncovered.push_back(covered > 1.0 - kRounding ? 0.0F : static_cast<float>(1.0 - covered));
    }
    return shares;
}

}  // namespace tavrin
