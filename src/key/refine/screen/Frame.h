#pragma once

#include "key/refine/grid/Mask.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// What lies beside a source that does not fill the picture: columns and rows at the sides of one single colour that
/// the key made clear, up to where another begins. It is screen, but says nothing of how the screen looks where the
/// source ends.
/// @param screen what is surely screen
/// @return empty (width 0) where the source fills the picture, or next to no screen would be left
Mask findFrame(const Shot& shot, const Mask& screen);

}  // namespace tavrin::refine
