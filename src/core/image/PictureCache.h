#pragma once

#include <cstddef>
#include <string>

#include <QImage>

namespace tavrin {

/// A picture file decoded as by `readPicture`, kept from one pass to the next for overlays, textures and frames: it
/// is read again when the file's size or time has changed on disk. Null when it cannot be read, with the reason on
/// the error stream; a failure is not kept. Safe on any thread; pictures that were not asked for the longest make
/// room.
QImage readKeptPicture(const std::string& path);

/// As above, stretched to `width` x `height` with smooth scaling; the stretched picture is kept too.
QImage readKeptPicture(const std::string& path, int width, int height);

/// Most bytes of pixels that are kept; a picture beyond it is decoded at each call. 256 MB at the start.
void setKeptPictureBytes(std::size_t bytes);

}  // namespace tavrin
