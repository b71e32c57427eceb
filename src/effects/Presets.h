#pragma once

#include <span>
#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// A look of an effect: it writes the fields that make it. `takeLook` of the session flags what must be made anew for
/// it.
struct Preset {
    const char* name;  ///< one lower-case word, as typed on the command line
    const char* description;
    void (*apply)(SystemInfo& info);
};

/// The looks of one effect. The first one is "none", which takes the effect away, unless the group only says how
/// another one looks.
struct PresetGroup {
    const char* name;
    const char* description;
    std::span<const Preset> presets;
    /// For groups that also take a picture file of the user's own; null for the others.
    void (*applyFile)(SystemInfo& info, const std::string& path) = nullptr;
    bool inPreview = true;     ///< the preview shows it, not the full picture alone
    bool inShortPath = false;  ///< `loadAndCombineFiles` draws it
};

// What the buttons of the shadow panel and the types of the cartoon panel write; the presets rest on them. The
// shadow's flag that the background must be made anew.

void buttonWall(SystemInfo& info);
void buttonFloor(SystemInfo& info);
void buttonFloorAndWall(SystemInfo& info);
void removeShadow(SystemInfo& info);
/// 0 none, 1 cartoon, 2 grey, 3 pencil, 4 pencil on parchment.
void chooseCartoon(SystemInfo& info, int type);

/// Lays pictures over the layers; "" leaves a layer bare. A pass may meet half of it, and never finds an overlay that
/// has no name yet.
void layOverlays(SystemInfo& info, const std::string& frame, const std::string& foreground,
                 const std::string& background);

/// Every group, in the order in which people read about them.
std::span<const PresetGroup> presetGroups();

/// The group of that name; null when there is none.
const PresetGroup* findPresetGroup(const std::string& name);

/// Applies the look of that name, or the picture file where the group takes one.
/// @return "" when done; otherwise one plain line that names what there is, and nothing is changed
std::string applyPreset(SystemInfo& info, const PresetGroup& group, const std::string& name);

}  // namespace tavrin
