#pragma once

#include "core/files/AtomicFile.h"
#include "core/image/ImageWriter.h"

namespace tavrin {

/// Writes a picture as TIFF into an open file: RGBA, straight alpha, deflate with predictor, camera data in the
/// places that the format has for them.
/// @return an empty string when done, else one plain line (the file's own error where it has one)
std::string writeTiff(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile);

}  // namespace tavrin
