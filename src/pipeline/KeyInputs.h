#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// All settings that the stages of the key may read, and the places of their buffers, as bytes: equal bytes, equal
/// settings. Every setting counts but those that the tables of stages leave to what comes later (`Stage::reads`).
std::string keyInputs(const SystemInfo& info);

/// What the stages of the key find out for themselves and hand on: colours of the screen and of the hair, as bytes.
std::string keyFindings(const SystemInfo& info);

}  // namespace tavrin
