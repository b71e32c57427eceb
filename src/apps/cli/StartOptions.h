#pragma once

#include <CLI/CLI.hpp>

#include "core/state/SystemInfo.h"
#include "session/States.h"

namespace tavrin::cli {

/// What a picture without a state file starts from; without any of these from the state that the program ships.
struct StartOptions {
    bool bare = false;        ///< the fields' own defaults
    bool myDefaults = false;  ///< the default state of the user's account
    std::string recipe;       ///< file with a recipe, as the window keeps them
};

void addStartOptions(CLI::App& command, StartOptions& options);

/// Gives a state that has all defaults the settings to start from, and selects their output size.
LoadedState startSettings(SystemInfo& info, const StartOptions& options);

}  // namespace tavrin::cli
