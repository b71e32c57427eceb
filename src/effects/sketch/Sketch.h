#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Turns a picture (RGBA, `width` * `height`) into a drawing, in place; alpha stays. A grey picture with posterised
/// flat areas is dodged against its blurred negative, so that lines stay where it changes. `iCartoonEffectType`:
/// 1 cartoon, black lines and the picture's colours; 2 grey pencil; 3 drawn with the pencil pictures of
/// `StartUpPictures`, `PencilCross` (middle tones) and `PencilCross2` (darks); 4 the same on `LightParchment`.
///
/// `iSliderCartoonEffectWidth` is the width of the lines: the negative is blurred over width * dpi / 200 pixels to
/// each side. `iSliderCartoonEffectSmoothing` is the flatness in sixteenths of a grey level. A dpi below 20 counts
/// as 300. Where a pencil or parchment picture is missing one line says so, and it is drawn without.
/// A superseded run stops, unless `bLightingForceCompute` is set, and leaves what it has got.
void Sketch(SystemInfo& info, int ignored, std::uint8_t* picture, int width, int height, int dpi);

}  // namespace tavrin
