#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Makes the full-resolution result from the present paths and settings at once, on the caller's thread, for a
/// state that no loop serves: plain keyed pictures with text and overlays, without the loop's other effects.
/// A source that cannot be read has shown its alert; the picture is then made from what the buffers hold, but not to
/// be saved.
/// @return whether it is the picture of the present sources and settings (`whyNotFinished`)
bool loadAndCombineFiles(SystemInfo& info);

/// Turns the combined picture into the background, at both resolutions, and empties the foreground to a fixed
/// screen-like green. The background then stays as it is until `bBackgroundFrozen` is cleared.
void FreezeToBackground(SystemInfo& info);

}  // namespace tavrin
