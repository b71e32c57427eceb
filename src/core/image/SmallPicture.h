#pragma once

#include <string>

#include "core/image/ImageReader.h"

namespace tavrin {

/// Reads a picture file at a small size, for lists of pictures: as `readPicture`, but the decoder leaves out what is
/// not needed, so that a JPEG of 12 megapixels takes a quarter of the time. All of it happens on the caller's thread.
/// @param side most pixels each way; a smaller picture is not enlarged
/// @return without camera data
ReadPicture readSmallPicture(const std::string& path, int side);

}  // namespace tavrin
