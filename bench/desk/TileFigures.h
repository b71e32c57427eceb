#pragma once

#include <functional>
#include <string>

#include "desk/StripFigures.h"

namespace tavrin::bench {

/// Tiles in figures: the previews that a held slider gets with no tile in view and with all of them, how long the
/// tiles take, how long panels take to open, and all rows to be shown anew beside 200 text items.
/// @param drag drags the slider of that name and tells of it
void measureTiles(const Desk& desk, const std::function<void(const char*)>& drag);

/// The sample over 20 backgrounds at 512 pixels, whose files are made in `folder`, as the grid of all backgrounds
/// does.
void measureBackgrounds(const SystemInfo& info, const std::string& folder);

}  // namespace tavrin::bench
