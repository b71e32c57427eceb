#pragma once

#include <string>

#include <QByteArray>

namespace tavrin {

/// From here on no picture that this process writes says where on earth its portrait was taken.
void leaveLocationsOut();
bool areLocationsLeftOut();

/// A picture file without the place on earth, for whatever leaves the house: JPEG, PNG, TIFF, WebP and
/// HEIF. What stands outside
/// of the camera data and names coordinates goes as a whole. The pixels stay byte for byte, and so does any other
/// file.
QByteArray fileWithoutLocation(QByteArray file);

/// The same on the disk. The file stays as it was where that fails.
/// @return "" or why it failed, as one plain line
std::string takeLocationOut(const std::string& path);

}  // namespace tavrin
