#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// The kinds of picture file that are read. Nothing else is handed to any decoder.
enum class FileKind { unknown, jpeg, png, tiff, gif, webp, heif, bmp, psd, raw };

/// What can be said about a file before any decoder sees it.
struct FileProbe {
    FileKind kind = FileKind::unknown;
    int width = 0, height = 0;  ///< BMP and PSD only: the size that the header declares
    std::string error;          ///< one plain line; empty when the file is of a known kind
};

/// Pictures with more pixels than this are refused from their header, before any of them is decoded: 400 megapixels,
/// that is 1.6 GB as RGBA.
inline constexpr double kMaxPicturePixels = 400e6;

/// Looks at a file's first bytes. The name counts only to tell camera raw files that are TIFF files by their first
/// bytes from other TIFF files.
FileProbe probeFile(const std::string& path);

/// Extensions of camera raw files, in capitals and without the dot.
const std::vector<std::string>& rawExtensions();

/// Why a picture of this size is refused, or an empty string.
std::string sizeError(double width, double height);

/// "JPEG", "PNG" ...
const char* kindName(FileKind kind);

}  // namespace tavrin
