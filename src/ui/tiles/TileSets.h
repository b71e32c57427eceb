#pragma once

#include <string>
#include <vector>

#include "session/Recipe.h"

namespace tavrin {

/// A look to pick by eye. Texts are translated in the context "Panel".
struct TileLook {
    const char* control;  ///< name of its button
    const char* handler;  ///< of the button of the system that it is, or of the set
    const char *label, *toolTip;
    void (*write)(SystemInfo& info);
};

/// Looks of one kind, of which each takes the place of the others.
struct TileSet {
    const char* group;  ///< name of the group of controls that it stands in
    const char* name;
    const char* title;                  ///< what a step of the history is called, with the look's label
    std::vector<std::string> settings;  ///< all that its looks read and write
    std::vector<TileLook> looks;
};

const std::vector<TileSet>& tileSets();

/// What a look would change of the present settings; empty where it is in force.
/// @param scratch any state; nothing but settings of the set is read or written
SettingValues changesOf(const SystemInfo& present, const TileSet& set, const TileLook& look, SystemInfo& scratch);

}  // namespace tavrin
