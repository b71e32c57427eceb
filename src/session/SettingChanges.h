#pragma once

#include <string>

#include "core/state/SystemInfo.h"
#include "effects/Presets.h"

namespace tavrin {

// Changes of settings with the flags that follow (ChangeFlags.h). The caller asks for the pass.

/// Gives a setting a new value by its name, as `setField` does.
/// @return "" when done; otherwise one plain line, and nothing is changed
std::string changeSetting(SystemInfo& info, const std::string& name, const std::string& value);

/// Takes over a look of an effect, or a picture file where the group takes one.
/// @return "" when done; otherwise one line that names what there is, and nothing is changed
std::string takeLook(SystemInfo& info, const PresetGroup& group, const std::string& name);

/// What a batch list says about the key of each of its pictures.
struct KeySwitches {
    bool outputTransparency = false, noGreenScreenProcessing = false, blueScreenProcessing = false;
    bool operator==(const KeySwitches&) const = default;
};
void useSwitches(SystemInfo& info, const KeySwitches& switches);

}  // namespace tavrin
