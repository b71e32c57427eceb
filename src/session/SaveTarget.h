#pragma once

#include <string>

namespace tavrin {

/// Where a picture goes that somebody gives a path: the first extension of a picture file in that path tells the
/// type, wherever it stands, and what lies before it is the stem.
struct SaveTarget {
    std::string stem;
    int type = 0;  ///< kJpegFile, kPngFile or kTiffFile

    /// The picture's own file, with the type's short extension, and the state file beside it.
    std::string picture() const;
    std::string state() const { return stem + ".qlx"; }
};

/// Looks for ".tiff", ".tif", ".png", ".jpeg" and ".jpg" in this order, capitals or not. A path without any is its
/// own stem, and a JPEG. One in the name of a folder counts too, and cuts the path there: saved names have always
/// come about like this.
SaveTarget saveTargetOf(const std::string& path);

}  // namespace tavrin
