#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Settings of the key that the gallery of adjustments offers.
inline constexpr int kGalleryPresets = 12;

/// The settings that a preset writes.
const std::vector<std::string>& galleryPresetSettings();

/// Gives the key the settings of one item of the gallery of adjustments, from 0 on. Every item begins from a common
/// ground; any other number gives that alone. `sliderTransparentcyAdjustment` does not belong to it, so what item 8
/// sets stays until something else sets it. The caller asks for the pass.
void SelectAdjustGallerSettings(SystemInfo& info, int item);

}  // namespace tavrin
