#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavrin {

using ExifBlock = std::vector<std::uint8_t>;  ///< "Exif", two zero bytes and the tags, as a JPEG file carries them

/// What the camera noted about a shot. Empty or 0 where it is not known.
struct CameraFacts {
    std::string maker, model, lens;
    std::string taken;  ///< "YYYY:MM:DD HH:MM:SS"
    double exposureSeconds = 0, aperture = 0, iso = 0, focalLength = 0;
};

/// What a block says; all empty for a broken one.
CameraFacts cameraFacts(const ExifBlock& exif);

/// A block with these facts, for files whose own block cannot be had; empty when there are none.
ExifBlock makeExif(const CameraFacts& facts);

/// The block for a picture made from the one that `exif` came with: camera data and dates stay; the orientation is
/// upright, and the thumbnail, the pixel sizes and resolution of the old picture and the maker's private notes (whose
/// inner offsets do not survive a move) go.
/// @param keepLocation whether the place on earth stays, too
/// @return empty when nothing is left or the block is broken
ExifBlock carryOverExif(const ExifBlock& exif, int width, int height, int dpi, bool keepLocation = true);

/// One entry of a block, for formats that keep their own tables.
struct ExifValue {
    int tag = 0;
    bool aboutShot = false;           ///< it stands with the exposure, not with maker and model
    std::string text;                 ///< of a text entry
    std::vector<double> numbers;      ///< of a number entry
    std::vector<std::uint8_t> bytes;  ///< of an entry of undefined type
};

/// The entries of a block but those about the place on earth.
std::vector<ExifValue> exifValues(const ExifBlock& exif);

}  // namespace tavrin
