#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Makes the finished picture the background, of both resolutions, and turns off what would be baked in twice: skin
/// smoothing, texture, frames, light, silhouette, shadow, the background's tone. The portrait counts as empty until
/// it is drawn again. For the loop's thread (`CombineThread::edit`); the caller asks for the pass.
/// @return "" when done; otherwise one plain line, and nothing is changed
std::string freezeBackground(SystemInfo& info);

/// Lets the layers be what their sources are. The caller asks for the pass.
void clearFreeze(SystemInfo& info);

}  // namespace tavrin
