#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Loads the source of a layer and turns it: flip, rotation, tilt. A foreground also gets its screen colour
/// estimated from the source. Corners that a turn leaves empty get a fixed screen-like green, to be keyed away.
/// A file that cannot be read shows an alert and leaves the old picture in place.
/// @return false when the old picture stayed
bool ChangeOrgBitmap(SystemInfo& info, BitmapInfo& record);

/// Draws the source of a layer into both its buffers: fitted to the output, scaled and shifted by the user's
/// settings, over the colour of the screen. While the mouse is held in the view only the preview is drawn.
void ChangeBitmapScale(SystemInfo& info, BitmapInfo& record);

}  // namespace tavrin
