#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QImage>

#include "core/image/FileKind.h"
#include "core/image/Vips.h"

namespace tavrin {

/// A picture file whose header has been read and found sound; its pixels have not been decoded.
struct OpenPicture {
    std::vector<std::uint8_t> bytes;  ///< the file, for the decoders that want it whole
    VipsRef image;                    ///< null on failure
    std::string error;                ///< one plain line, empty on success
};

/// Opens a file of any kind but raw for one pass from top to bottom, with its size checked.
/// @param side of a square that the picture only has to fill: what its kind can leave out in decoding is left out.
///        0: it is wanted whole
OpenPicture openWithVips(const std::string& path, FileKind kind, int side = 0);

enum class DecodeOn {
    threadsOfLibrary,
    thisThread  ///< for small pictures, and where the library's threads would take over a low priority
};

/// Decodes an open picture: upright, sRGB, in the formats of `ReadPicture`. Beside the result only some rows are in
/// memory, but for interlaced and progressive files.
/// @return null on failure, with the reason in `error`
QImage decodeWithVips(VipsImage* image, std::string& error, DecodeOn on = DecodeOn::threadsOfLibrary);

/// A block of metadata of an open picture (VIPS_META_EXIF_NAME, VIPS_META_ICC_NAME); empty when there is none.
std::vector<std::uint8_t> vipsBlob(VipsImage* image, const char* name);

}  // namespace tavrin
