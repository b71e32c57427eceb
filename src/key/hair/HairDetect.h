#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Measures the subject's hair on the preview buffers: the skin, with `iMacroHairColor` 6 the hair colours
/// (`bFoundHair`, `iHairColorCount` and the bins, in roles), and always the map of fine detail `pHairDetectBitmap`
/// that tells strands from smooth shadow. The combined preview buffer holds the skin mask afterwards, until
/// `Combine` writes it.
///
/// A superseded run stops within a row, unless `bLightingForceCompute` is set, and leaves the colours as they are.
void ComputeHairColor(SystemInfo& info);

}  // namespace tavrin
