#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Rewrites the key sliders of `pCombinedBitmapInfo` from the simple key panel's choices: hair colour, shadows,
/// transparency and the green boxes of `EasySettings`. It does not ask for a new picture.
void UpdateEZCombineSettings(SystemInfo& info);

}  // namespace tavrin
