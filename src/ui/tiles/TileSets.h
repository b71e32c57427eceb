#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "session/Recipe.h"

namespace tavrin {

/// A look to pick by eye. Texts are translated in the context "Panel".
struct TileLook {
    std::string control;  ///< name of its button
    std::string handler;  ///< of the button of the system that it is, or of the set
    std::string label, toolTip;
    std::function<void(SystemInfo& info)> write;
};

/// Looks of one kind, of which each takes the place of the others.
struct TileSet {
    std::string group;  ///< name of the group of controls that it stands in
    std::string name;
    const char* title;                  ///< what a step of the history is called, with the look's label
    std::vector<std::string> settings;  ///< all that its looks read and write
    std::vector<TileLook> looks;
};

/// The sets of a group of controls. Those of overlays are looked for among the user's pictures each time.
std::vector<TileSet> tileSetsOf(std::string_view group);

/// What a look would change of the present settings; empty where it is in force.
/// @param scratch any state; nothing but settings of the set is read or written
SettingValues changesOf(const SystemInfo& present, const TileSet& set, const TileLook& look, SystemInfo& scratch);

}  // namespace tavrin
