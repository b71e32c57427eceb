#pragma once

#include <string>

#include <QImage>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Reads a picture that a setting names beside those of the layers (overlay, texture, picture item ...), kept from
/// one pass to the next. The picture is made without one that cannot be read, so that is told in an alert with the
/// file's name: once for each file, until it was read or no setting names it any more. For the thread that makes the
/// picture.
/// @param leftOut what is missing then, as the end of the alert's reason: "the texture is left out"
/// @param width,height to stretch it to; 0 x 0: as decoded
/// @return null when it cannot be read
QImage readNamedPicture(SystemInfo& info, const std::string& path, const char* leftOut, int width = 0,
                        int height = 0);

/// A pass begins: what was told about files that no setting names any more is forgotten.
void forgetUnnamedPictures(SystemInfo& info);

}  // namespace tavrin
