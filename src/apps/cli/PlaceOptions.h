#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin::cli {

/// Where the portrait stands in the picture.
struct PlaceOptions {
    std::string rule, move;  ///< empty where they were not given
    double scale = 1.0;
    /// One place for all portraits of a batch (`--place same`), once it is known; scale and moves are in it.
    std::optional<LayerPlace> common;

    void addTo(CLI::App& command);
    bool isSame() const { return rule == "same"; }

    /// Asks the loop for the place that is wanted, after all settings are in the state.
    /// @param set the settings by name; one of them that places the portrait wins over the rule that nobody chose
    /// @param isPlaced a state places the portrait, or the picture starts from the fields' own defaults
    /// @return "" or what is wrong with the options, as one plain line
    std::string apply(SystemInfo& info, const std::vector<std::string>& set, bool isPlaced) const;
};

}  // namespace tavrin::cli
