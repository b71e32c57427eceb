#pragma once

#include <string>

namespace tavrin {

/// The bytes of a JPEG file that can be shown as they stand: upright, three channels in the usual way, sRGB. What is
/// not needed to show them is left out: camera data with the place, small pictures, remarks, what follows the end.
/// @return "" for any other file
std::string plainJpeg(const std::string& path);

}  // namespace tavrin
