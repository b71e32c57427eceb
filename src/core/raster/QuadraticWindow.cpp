#include "core/raster/QuadraticWindow.h"

namespace tavrin {

int windowReach(int dpi, double inches) {
    const double reach = dpi * inches;
    if (!(reach >= 1.0)) return 1;
    return reach < kMaxWindowReach ? static_cast<int>(reach) : kMaxWindowReach;
}

std::vector<std::uint64_t> windowWeightSums(int count, int reach) {
    // The window over ones, with nothing divided.
    const std::vector<std::uint64_t> ones(static_cast<std::size_t>(count), 1);
    std::vector<std::uint64_t> sums(static_cast<std::size_t>(count));
    const SampleLines<std::uint64_t> line = {ones.data(), 1, 0, 1, count};
    QuadraticWindow<std::uint64_t>().run(line, reach, ones, [&](int x, int, std::uint64_t sum) { sums[x] = sum; });
    return sums;
}

}  // namespace tavrin
