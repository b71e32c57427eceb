#pragma once

#include <vector>

#include "ui/bind/Binding.h"

namespace tavrin {

/// The groups of the Adjust panel from top to bottom. The first ones belong to the key and the picture, those after
/// `kFirstLayerGroup` to the layer that is being edited.
const std::vector<BindingGroup>& adjustGroups();
inline constexpr const char* kFirstLayerGroup = "groupLight";

/// The groups of `adjustGroups`, by subject.
std::vector<BindingGroup> keyGroups();
std::vector<BindingGroup> layerGroups();

/// The hair colour (`iMacroHairColor`) that a key equivalent stands for; 0 for any other key, which keeps the value.
/// The keys do not run in the order of the numbers.
int hairOfKey(char key);

}  // namespace tavrin
