#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Casts the subject's shadow onto the background layer, before the key lays the subject over it: keys the foreground
/// roughly, projects that onto a flat wall, a floor, or a room's floor and wall, blurs it and darkens the
/// background's buffer with it. The preview also shows the room and, in red, the line that the subject stands on.
///
/// Reads the shadow sliders, the clip sliders (negative ones are set to 0), `sliderRemoveGreenAreas` and the screen's
/// colour; whether a shadow is wanted (`iHaveShadow`) is the caller's question. Without buffers, or with a shadow of
/// size 0, nothing is done. A full-resolution run stops at the next row when the state is stale, which leaves a
/// partly shadowed background; a preview run always ends.
/// @param hiRes 0: the preview buffers; otherwise the full ones
void AddShadow(SystemInfo& info, int ignored, int hiRes);

}  // namespace tavrin
