#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"
#include "key/pixel/FinishConstants.h"
#include "key/pixel/KeyDecision.h"

namespace tavrin {

/// The size of a run's buffers.
struct RunSize {
    int width = 0, height = 0;
};

/// Everything that a row of the key reads, fixed for a run.
struct CombineParams {
    RunSize size;
    const std::uint8_t* foreground = nullptr;  ///< the three buffers: RGBA, rows packed, `size` each
    std::uint8_t* background = nullptr;        ///< only its alpha bytes are written
    std::uint8_t* combined = nullptr;
    /// The combined buffer holds the subject's colours (real channels) and alpha already, and no pixel is decided on.
    bool refined = false;
    KeyConstants key;
    FinishConstants finish;
};

/// The key gets a second look (`bRefineKey`) where its result is shown: not while the foreground, the selected areas
/// or the guard are shown instead.
bool refinesKey(const SystemInfo& info);

/// The settings of the key. `localScreen`: measured against the grid of local screen colours, not the global one.
KeyConstants makeKeyConstants(const SystemInfo& info, RunSize size, bool localScreen);

/// The settings of the white adjustment, which is off while the foreground is shown as it is.
WhiteAdjust makeWhiteAdjust(const SystemInfo& info);

/// Reads the state once; the silhouette reads from the state's picture, which must stay as it is for the run. The map
/// of the light is not worked out and `firstBrightGrey` not searched here.
CombineParams makeCombineParams(const SystemInfo& info, Resolution resolution);

}  // namespace tavrin
