#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace tavrin {

/// Where a line goes: the place of its begin, and how many of its pixels become one.
struct LinePlace {
    double begin = 0.0, scale = 1.0;
};

/// Which pixels of a line go into each pixel of the resampled line, and with what weight: as many for each, so that
/// some that lie outside have no weight.
struct LineShares {
    int taps = 0;
    std::vector<int> first;        ///< the first pixel of the line that goes in
    std::vector<float> weights;    ///< `taps` for each, adding up to 1 but for rounding, and for what is uncovered
    std::vector<float> uncovered;  ///< how much of each the line leaves free; above 0 at its ends only

    const float* weightsOf(std::size_t at) const { return weights.data() + at * static_cast<std::size_t>(taps); }
};

/// The share of a pixel that is left free, with what is only a rounding error counted as covered.
inline float uncoveredBy(double covered) {
    constexpr double kRounding = 1e-6;
    return covered > 1.0 - kRounding ? 0.0F : static_cast<float>(1.0 - covered);
}

/// For the pixels [from, to) that a reduced line of `length` pixels covers, wholly or in part.
inline LineShares shareReduced(int length, const LinePlace& place, int from, int to) {
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
        shares.uncovered.push_back(uncoveredBy(covered));
    }
    return shares;
}

/// As above for an enlarged line: each pixel lies between the middles of two, or beyond the last one.
inline LineShares shareEnlarged(int length, const LinePlace& place, int from, int to) {
    LineShares shares;
    shares.taps = std::min(2, length);
    const double last = length - 1.0, end = place.begin + length / place.scale;
    for (int i = from; i < to; ++i) {
        const double middle = std::clamp((i + 0.5 - place.begin) * place.scale - 0.5, 0.0, last);
        const double first = std::min(std::floor(middle), static_cast<double>(length - shares.taps));
        const double covered = std::clamp(std::min(end, i + 1.0) - std::max(place.begin, i + 0.0), 0.0, 1.0);
        const float uncovered = uncoveredBy(covered);
        const double second = (middle - first) * (1.0 - uncovered);
        shares.first.push_back(static_cast<int>(first));
        shares.weights.push_back(static_cast<float>(1.0 - uncovered - second));
        if (shares.taps > 1) shares.weights.push_back(static_cast<float>(second));
        shares.uncovered.push_back(uncovered);
    }
    return shares;
}

inline LineShares shareLine(int length, const LinePlace& place, int from, int to) {
    return place.scale < 1.0 ? shareEnlarged(length, place, from, to) : shareReduced(length, place, from, to);
}

}  // namespace tavrin
