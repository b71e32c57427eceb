#pragma once

#include <cstddef>
#include <string>

#include <QImage>

namespace tavrin {

/// A picture file decoded as by `readPicture`, kept from one pass to the next for overlays, textures and frames: it
/// is read again when the file's size or time has changed on disk. Null when it cannot be read; a failure is not
/// kept. Safe on any thread; pictures that were not asked for the longest make room.
/// @param width,height to stretch it to with smooth scaling, and the stretched picture is kept too; 0 x 0: as decoded
/// @param problem takes the reason of a failure, if it is given
QImage readKeptPicture(const std::string& path, int width = 0, int height = 0, std::string* problem = nullptr);

/// Most bytes of pixels that are kept; a picture beyond it is decoded at each call. 256 MB at the start.
void setKeptPictureBytes(std::size_t bytes);

}  // namespace tavrin
