#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tavrin::refine {

/// The middle one of some numbers, which it puts into another order; 0 of none.
inline float middleOf(std::vector<float>& values) {
    if (values.empty()) return 0.0f;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace tavrin::refine
