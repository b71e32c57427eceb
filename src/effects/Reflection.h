#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Mirrors the keyed subject below a base line, as on a polished floor or on water, with `oReflectionTexture` over
/// it and a ripple along the line. All three buffers are RGBA of the run's size, rows packed. Below the line the
/// combined picture becomes the adjusted background with the mirrored subject over it; alpha stays everywhere. A
/// preview shows the line in red, in the background too. Negative clip sliders are set to 0.
///
/// A stale state stops the run before it has changed a picture. A texture that cannot be read is left out; without
/// buffers, or when the silhouette's picture cannot be read, nothing is done.
/// @param hiRes 0: preview, otherwise full picture
/// @param layer not read
void AddReflection(SystemInfo& info, int hiRes, const BitmapInfo& layer, const std::uint8_t* foreground,
                   std::uint8_t* background, std::uint8_t* combined);

}  // namespace tavrin
