#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/cli/EffectOptions.h"
#include "apps/cli/PlaceOptions.h"
#include "core/state/SystemInfo.h"
#include "pipeline/StateFile.h"

namespace tavrin::cli {

/// What the commands that make pictures have in common: the size of the output, effects, text, overlays, and settings
/// by name.
struct PictureOptions {
    std::string sizeName, inches;
    int dpi = 0;
    EffectOptions effects;
    PlaceOptions place;
    std::string title, note;
    int titleSize = 0;  ///< points; 0: the usual size, or what fits
    std::string backgroundOverlay, foregroundOverlay, frameOverlay;
    std::vector<std::string> set;
    bool blue = false;
};

/// Why a command cannot be carried out as it was given; `code` is the exit code.
struct Refusal {
    int code = 0;
    std::string line;
};

void addPictureOptions(CLI::App& command, PictureOptions& options);

/// Puts the effects, the texts, then the settings into a state, and selects the output size.
/// @param loaded what came of the state file that the state is from; null where it has all defaults
Refusal applyPictureOptions(SystemInfo& info, const PictureOptions& options, const LoadedStateFile* loaded);

}  // namespace tavrin::cli
