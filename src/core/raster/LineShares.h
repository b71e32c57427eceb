#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace tavrin {

/// Which pixels of a line go into each pixel of the reduced line, and with what weight: as many for each, so that
/// some that lie outside have no weight.
struct LineShares {
    int taps = 0;
    std::vector<int> first;      ///< the first pixel of the line that goes in
    std::vector<float> weights;  ///< `taps` for each, adding up to 1 but for rounding

    const float* weightsOf(std::size_t at) const { return weights.data() + at * static_cast<std::size_t>(taps); }
};

/// For the pixels [from, to) of a line of `length` pixels reduced to `reduced`, 1 up to `length`.
inline LineShares shareLine(int length, int reduced, int from, int to) {
    const double scale = static_cast<double>(length) / reduced;
    LineShares shares;
    shares.taps = std::min(static_cast<int>(std::ceil(scale)) + 1, length);
    for (int i = from; i < to; ++i) {
        const double begin = i * scale, end = (i + 1) * scale;
        const int first = std::clamp(static_cast<int>(begin), 0, length - shares.taps);
        shares.first.push_back(first);
        for (int pixel = first; pixel < first + shares.taps; ++pixel) {
            const double inside = std::min(end, pixel + 1.0) - std::max(begin, static_cast<double>(pixel));
            shares.weights.push_back(static_cast<float>(std::max(inside, 0.0) / scale));
        }
    }
    return shares;
}

}  // namespace tavrin
