#pragma once

#include "key/CombineParams.h"

namespace tavrin {

// Where the hair correction and the green guard join the key, in their order. They are not built yet: until then
// each leaves the key's result as it is.

/// Before the pixel loop: the guard's bitmap of a run, built when `iGreenProtectMode` is not 0.
inline void buildGreenGuard(const SystemInfo& /*info*/, CombineParams& /*params*/) {}

/// May explain a pixel as a mix of the screen and a hair colour. Not for hard background, nor when the foreground
/// is shown as it is.
inline void correctHair(const CombineParams& /*params*/, KeyedPixel& /*pixel*/, int /*x*/, int /*y*/) {}

/// Makes a protected pixel opaque, with the raw colour of the foreground.
inline void overrideByGuard(const CombineParams& /*params*/, KeyedPixel& /*pixel*/, int /*x*/, int /*y*/) {}

/// Shows the guard's bitmap in the subject's place: a finished foreground colour and alpha 1.
inline void showGuard(const CombineParams& /*params*/, Rgb& /*foreground*/, double& /*alpha*/, int /*x*/, int /*y*/) {
}

}  // namespace tavrin
