#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Smooths skin and lays make-up on `picture`, in place, alpha left alone. `foreground` is the layer at the size of
/// the run (full for `hiRes` 1, otherwise preview); `foregroundLowRes` at preview size feeds the measurement.
/// `ignored` is ignored. A run that is superseded while the skin is searched leaves the picture as it was; what `run`
/// stops may leave a part of it smoothed.
void SoftenMac(SystemInfo& info, int ignored, const std::uint8_t* foreground, const std::uint8_t* foregroundLowRes,
               std::uint8_t* picture, int hiRes, const RunContext& run = {});

}  // namespace tavrin
