#pragma once

#include "core/image/Vips.h"

namespace tavrin {

/// The picture in sRGB with 8 bits a channel: 1 band (grey) or 3, and one more where there is alpha. Nothing is
/// computed yet; the rows pass through when the result is read. An embedded profile that is broken or does not fit
/// the picture is ignored with a line on the error stream, one that is sRGB in effect costs nothing.
/// @return null on failure, the reason is the image library's last error
VipsRef toSrgb(VipsImage* image);

/// Whether the three channels of a picture of 8 bits are sRGB as they stand, so that `toSrgb` would change nothing.
bool isSrgb(VipsImage* image);

}  // namespace tavrin
