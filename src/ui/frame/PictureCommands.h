#pragma once

#include <vector>

#include "ui/frame/Commands.h"
#include "ui/picture/PictureTools.h"

namespace tavrin {

/// What the picture's own tools do from menus, keys and the bar below the picture.
/// @param finished whether a full picture stands
std::vector<Command> pictureCommands(PictureTools& tools, Binder& binder, const std::function<bool()>& finished);

}  // namespace tavrin
