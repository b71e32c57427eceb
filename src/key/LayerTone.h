#pragma once

#include "key/FinishConstants.h"
#include "key/KeyedRun.h"

namespace tavrin {

/// Colours of a run's pixels, each channel in an array of its own.
struct LayerColors {
    alignas(64) double r[KeyedRun::kMaxPixels], g[KeyedRun::kMaxPixels], b[KeyedRun::kMaxPixels];
};

/// Gives the subject's colours in `run` their tone, or those of the silhouette's picture. Pixels without a share in
/// the result may be left out.
void adjustForeground(const FinishConstants& finish, KeyedRun& run);

/// Gives the background's colours, in real channels, their tone where the subject does not cover them. `gain` is the
/// light map's value of each pixel of the run, read only where there is a map.
void adjustBackground(const FinishConstants& finish, const KeyedRun& run, const std::int32_t* gain,
                      LayerColors& colors);

}  // namespace tavrin
