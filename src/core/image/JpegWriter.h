#pragma once

#include "core/files/AtomicFile.h"
#include "core/image/ImageWriter.h"

namespace tavrin {

/// Writes a picture as JPEG into an open file: quality 100, full colour resolution, no alpha. Strips of the picture
/// are encoded on all cores; between them the file has restart markers, as many cameras write them. The camera data
/// of the request stand as `carryOverExif` gives them.
/// @return an empty string when done, else one plain line (the file's own error where it has one)
std::string writeJpeg(AtomicFile& file, const WriteRequest& request, const std::vector<std::uint8_t>& profile);

}  // namespace tavrin
