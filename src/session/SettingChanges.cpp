#include "session/SettingChanges.h"

#include "core/state/ChangeFlags.h"
#include "core/state/SettingNames.h"

namespace tavrin {

namespace {

using Fields = std::vector<std::pair<std::string, std::string>>;

/// What follows from all settings in which the state differs from `before`.
unsigned redoSince(const SystemInfo& info, const Fields& before) {
    unsigned redo = kRedoNothing;
    const Fields now = listFields(info);
    for (std::size_t i = 0; i < now.size() && i < before.size(); ++i) {
        if (now[i].second != before[i].second) redo |= redoOf(info, now[i].first);
    }
    return redo;
}

}  // namespace

std::string changeSetting(SystemInfo& info, const std::string& name, const std::string& value) {
    const unsigned before = redoOf(info, name);
    std::string problem = setField(info, name, value);
    if (problem.empty()) raiseFlags(info, before | redoOf(info, name));
    return problem;
}

// A look sets any number of fields, so what it changed is found by comparing. None adds an item to a list.
std::string takeLook(SystemInfo& info, const PresetGroup& group, const std::string& name) {
    const Fields before = listFields(info);
    std::string problem = applyPreset(info, group, name);
    if (problem.empty()) raiseFlags(info, redoSince(info, before));
    return problem;
}

void useSwitches(SystemInfo& info, const KeySwitches& switches) {
    info.bOutputTransparency = switches.outputTransparency;
    info.bShowOrgImage = switches.noGreenScreenProcessing;
    // The portrait may be the one before, for which the screen was measured in the other channel.
    if (info.bUseBlueLogic.exchange(switches.blueScreenProcessing) != switches.blueScreenProcessing)
        raiseFlags(info, redoOf(info, "bUseBlueLogic"));
}

}  // namespace tavrin
