#pragma once

#include <cstdint>

#include <QImage>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Lays a frame (`oFrame` or `oFrameOverlay`) over a finished picture: `buffer` is RGBA, rows packed, of the size of
/// `res`; alpha stays. A frame picture or a texture that cannot be read gives no frame, with an alert. A superseded
/// run stops at the next row, unless `bLightingForceCompute` is set.
/// @param res 1: full picture, otherwise preview
void AddFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* buffer, int res);

/// Blends the frame's filling into `buffer` through a mask as the shapes paint it (FrameShapes.h), which is softened
/// in place first.
/// @param picture the frame picture of mode 4; null leaves the pixels, so that only a texture shows
void CombineFrame(SystemInfo& info, const ImageFrame& frame, const QImage& picture, const std::uint8_t* mask,
                  std::uint8_t* buffer, Resolution resolution);

}  // namespace tavrin
