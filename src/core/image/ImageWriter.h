#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrin {

/// File types by number, everywhere.
inline constexpr int kJpegFile = 1, kPngFile = 2, kTiffFile = 3;

/// A picture to be written: 4 * width * height bytes, red, green, blue, alpha, the first row at the top.
struct WriteRequest {
    const std::uint8_t* pixels = nullptr;
    int width = 0, height = 0;
    int fileType = 0;                         ///< 1 JPEG, 2 PNG, 3 TIFF
    int dpi = 0;                              ///< dots per inch that the file names
    std::vector<std::uint8_t> exif;           ///< camera data of the source, as `ReadPicture` gives it; may be empty
    const std::atomic<bool>* stop = nullptr;  ///< is set when nobody wants the file any longer
};

/// Writes a picture with its resolution, an sRGB profile and the source's camera data and dates.
///
/// The bytes go out as they stand. PNG and TIFF (deflate with predictor) are lossless and keep all 4 channels, also
/// when the picture is opaque, the fourth as straight alpha; JPEG (quality 100, full colour resolution) drops it.
/// The file appears under its name only when it is complete, see `AtomicFile`.
/// @return an empty string when done, else what is wrong as one plain line; `kWritingStopped` when it was stopped
std::string writePicture(const std::string& path, const WriteRequest& request);

}  // namespace tavrin
