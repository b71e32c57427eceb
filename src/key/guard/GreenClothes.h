#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// How much of the foreground's preview is of the screen's hue and yet not of the screen's colour, in patches too
/// wide for an edge and away from the picture's upper and side edges: clothes that the key may thin. 0 to 1; for the
/// thread that made the preview, after the screen was measured.
double greenClothes(const SystemInfo& info);

}  // namespace tavrin
