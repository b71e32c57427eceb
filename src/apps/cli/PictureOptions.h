#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/cli/EffectOptions.h"
#include "apps/cli/KeyOptions.h"
#include "apps/cli/PlaceOptions.h"
#include "apps/cli/Refusal.h"
#include "apps/cli/StartOptions.h"

namespace tavrin::cli {

/// What the commands that make pictures have in common: what they start from, the size of the output, effects, text,
/// overlays, and settings by name.
struct PictureOptions {
    StartOptions start;
    std::string sizeName, inches;
    int dpi = 0;
    EffectOptions effects;
    PlaceOptions place;
    std::string title, note;
    int titleSize = 0;  ///< points; 0: the usual size, or what fits
    std::string backgroundOverlay, foregroundOverlay, frameOverlay;
    std::vector<std::string> set;
    KeyOptions key;

    /// Whether the portrait may say which screen it has, since nobody else did.
    bool choosesScreen() const;
};

/// Tells of numbers that were set beyond their settings' bounds.
std::vector<PictureWarning> rangeWarnings(const PictureOptions& options);

void addPictureOptions(CLI::App& command, PictureOptions& options);

/// Puts the effects, the texts, then the settings into a state, and selects the output size.
/// @param loaded what came of the state's start or of its state file
Refusal applyPictureOptions(SystemInfo& info, const PictureOptions& options, const LoadedState& loaded);

}  // namespace tavrin::cli
