#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Starting positions of the shadow. Each sets the kind and the sliders that the kind needs, leaves the others as
/// they are, and raises the background's `bScaleChange`, as the shadow lies in its buffers. The caller asks for the
/// picture.
void setWallShadow(SystemInfo& info);
void setFloorShadow(SystemInfo& info);
void setFloorAndWallShadow(SystemInfo& info);

/// No shadow any more; the sliders stay for the next one.
void removeShadow(SystemInfo& info);

}  // namespace tavrin
