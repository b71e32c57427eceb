#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QImage>

namespace tavrin {

/// The blocks of camera data in the header of a JPEG file, as far as it can be read, as the decoders find them.
std::vector<std::vector<std::uint8_t>> jpegCameraBlocks(const std::string& path);

/// Decodes an ordinary JPEG file straight into a picture (RGBX, upright), without the copies that the image library
/// makes on the way. Ordinary is what cameras write: three channels, one scan, nothing to complain about.
/// @param width,height of the stored picture, as its header was read
/// @param damaged set when it is such a file but for damage to its pixels
/// @return null for any other file, which the image library then decodes or refuses with its reason
QImage decodeOrdinaryJpeg(const std::string& path, int orientation, int width, int height, bool* damaged = nullptr);

}  // namespace tavrin
