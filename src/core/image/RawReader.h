#pragma once

#include <string>

#include <QImage>

#include "core/image/Exif.h"

namespace tavrin {

/// What a camera raw file's header says.
struct RawFacts {
    int width = 0, height = 0;  ///< upright
    int bits = 0;               ///< of a sensor value
    CameraFacts camera;
    std::string error;  ///< one plain line, empty on success
};

RawFacts readRawFacts(const std::string& path);

/// A developed raw file.
struct RawPicture {
    QImage pixels;  ///< as for `ReadPicture`
    CameraFacts camera;
    std::string error;
};

/// Develops a raw file with the camera's white balance to sRGB with 8 bits a channel.
RawPicture readRaw(const std::string& path);

/// The small picture that the camera put into a raw file, upright, at most `side` pixels each way; where there is
/// none of that size, the file is developed at half its size.
RawPicture readRawPreview(const std::string& path, int side);

}  // namespace tavrin
