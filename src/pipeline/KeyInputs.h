#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// All settings that the stages of the key may read, and the places of their buffers, as bytes: equal bytes, equal
/// settings. Every setting counts that is not known to be read by other stages only, so one that was forgotten costs
/// time and never a wrong picture.
std::string keyInputs(const SystemInfo& info);

/// What the stages of the key find out for themselves and hand on: colours of the screen and of the hair, as bytes.
std::string keyFindings(const SystemInfo& info);

}  // namespace tavrin
