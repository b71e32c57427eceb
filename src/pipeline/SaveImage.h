#pragma once

#include <string>

#include "core/files/FileIdentity.h"
#include "core/image/ImageWriter.h"
#include "core/state/SystemInfo.h"

namespace tavrin {

/// File type for a path by its extension (jpg, jpeg, png, tif, tiff); 0 for any other.
int fileTypeForPath(const std::string& path);

/// Writes the combined picture as it stands: `myRes` 1 the full picture, any other value the preview. The file
/// carries the resolution, an sRGB profile and the foreground's camera data; JPEG goes out at quality 100 without
/// chroma subsampling. The target is replaced only by a whole file, only by a finished picture of the present sources
/// and settings (`whyNotFinished`), and not at all when that is made from it.
/// @param sources files that must stay beside those that the state names, for a save that waited for its turn
/// @param stop is set when nobody wants the file any longer: then the old one stays and nothing is said
/// @return false after an alert with the reason
bool saveImageToDisk(SystemInfo& info, const std::string& path, int theFileType, int myRes,
                     const KnownFiles& sources = {}, const std::atomic<bool>* stop = nullptr);

/// Writes the key's alpha, which a run of `Combine` left with the background, as a grey PNG (white is subject).
/// @return false after an alert with the reason
bool saveMatteToDisk(SystemInfo& info, const std::string& path, int myRes);

}  // namespace tavrin
