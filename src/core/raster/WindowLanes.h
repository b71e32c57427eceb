#pragma once

#include <cstdint>
#include <vector>

#include "core/raster/QuadraticWindow.h"

namespace tavrin {

/// Writes the means of the window of `QuadraticWindow.h` over lines that lie side by side (`laneStep` 1), with the
/// vectors of this machine: the one of sample i of a line to `means[i * lines.lanes + lane]`. `reach` is from 1 to
/// kMaxWindowReach, `weights` from `windowWeightSums` for this count and reach.
void windowMeans(const SampleLines<std::uint8_t>& lines, int reach, const std::vector<std::uint64_t>& weights,
                 std::uint8_t* means);
void windowMeans(const SampleLines<std::uint16_t>& lines, int reach, const std::vector<std::uint64_t>& weights,
                 std::uint16_t* means);

}  // namespace tavrin
