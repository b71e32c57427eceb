#pragma once

#include <string>
#include <vector>

#include "core/image/FileKind.h"

namespace tavrin {

/// A type of picture file, as people know it.
struct PictureType {
    FileKind kind;
    const char* name;                     ///< "JPEG" ...
    std::vector<std::string> extensions;  ///< without the dot, in small letters; a new file gets the first
    int fileType = 0;                     ///< the number by which it is written (`kJpegFile` ...); 0: it is read only
};

/// Every type that is read, those that are also written first. Dialogs offer all of them to open and the written ones
/// to save; folders are searched for the written ones.
const std::vector<PictureType>& pictureTypes();

/// The type whose extension, in whatever letters, a path has; null for none of them.
const PictureType* typeOfName(const std::string& path);

}  // namespace tavrin
