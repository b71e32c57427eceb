#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// The names of all settings of a group.
/// @param owner what they begin with, such as "frame."
template <class Group>
std::vector<std::string> settingsOfGroup(const std::string& owner = "") {
    std::vector<std::string> settings;
    for (const auto& leaf : Group::leaves())
        settings.push_back(owner + leaf.key);
    return settings;
}

}  // namespace tavrin
