#pragma once

#include "core/files/AtomicFile.h"
#include "core/image/ImageWriter.h"

namespace tavrin {

/// Writes a picture as PNG into an open file: RGBA, straight alpha. The camera data of the request stand as
/// `carryOverExif` gives them.
/// @return an empty string when done, else one plain line (the file's own error where it has one)
std::string writePng(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile);

}  // namespace tavrin
