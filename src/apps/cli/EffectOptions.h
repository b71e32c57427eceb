#pragma once

#include <CLI/CLI.hpp>
#include <list>
#include <string>

#include "effects/Presets.h"

namespace tavrin::cli {

/// The short options of the effects, one for each group of presets: --shadow floor, --texture FILE, --star.
class EffectOptions {
  public:
    /// Adds the options to a command; they write into this object, which has to stay where it is.
    void addTo(CLI::App& command);

    /// Applies what was chosen.
    /// @return "" or one line that says what is wrong with the choice
    std::string apply(SystemInfo& info) const;

    /// A line that names the chosen effects which the short path, or the preview, does not draw; "" when there are
    /// none.
    std::string leftOut(bool shortPath, bool preview) const;

  private:
    struct Choice {
        const PresetGroup* group;
        std::string name;  // empty: nothing was chosen
    };
    std::list<Choice> choices_;  // the options point into it
};

/// Adds `effects`, which lists every effect and its looks.
void addEffectsCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli
