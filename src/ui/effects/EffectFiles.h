#pragma once

#include <vector>

#include "ui/bind/ColourRow.h"
#include "ui/effects/PictureRow.h"

namespace tavrin {

/// The picture files and colours of the effect groups, each with the name of its group.
struct GroupPicture {
    const char* group;
    PictureSetting setting;
};
struct GroupColour {
    const char* group;
    ColourSetting setting;
};

const std::vector<GroupPicture>& effectPictures();
const std::vector<GroupColour>& effectColours();
/// The slots for overlays, from the lowest.
const std::vector<PictureSetting>& overlaySlots();

}  // namespace tavrin
