#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QImage>

namespace tavrin {

/// A picture file as pixels.
struct ReadPicture {
    QImage pixels;  ///< upright, sRGB, rows packed (4 * width): RGBX8888, or RGBA8888_Premultiplied with
                    ///< alpha; null on failure
    std::vector<std::uint8_t> exif;  ///< the file's camera data as it stands (may be empty), for carrying over
    std::string error;               ///< what is wrong, as one plain line; empty when the picture was read
    std::string damage;              ///< what was mended in it, as one plain line; empty for a file that is whole
};

/// The `error` that says nothing about the file: it may be read another time.
inline constexpr const char* kNoMemory = "there is not enough memory for it";

/// Reads the first picture of a JPEG, PNG, TIFF, GIF, WebP, HEIF, BMP, PSD or camera raw file. Safe on any thread.
///
/// The orientation told by the camera is applied. Colours are brought to sRGB: from the embedded profile, or as sRGB
/// where there is none (CMYK then as a common printing ink set); a profile that is broken or does not fit the picture
/// is ignored with a line on the error stream. 16 bits and floats come down to 8, raw files are developed with the
/// camera's white balance.
///
/// What a file is, is told by its first bytes and never by its name, and decoders are picked from a fixed list, so
/// that a script dressed as a picture is not run. A file of more than 400 megapixels is refused from its header.
/// A file that ends before its last row is refused, since it would leave a grey band in the picture; a complete
/// file with a damaged place in its data is read as far as its decoder can mend it; whoever asked tells of that.
ReadPicture readPicture(const std::string& path);

/// What a file says about itself.
struct PictureFacts {
    std::string format;                 ///< "JPEG", "PNG" ...
    int width = 0, height = 0;          ///< as displayed, orientation applied
    int fileWidth = 0, fileHeight = 0;  ///< as stored
    int channels = 0;                   ///< alpha included
    int bitsPerChannel = 0;
    int orientation = 1;  ///< 1 to 8; other than 1: the reader turns or mirrors the stored picture
    bool hasProfile = false;
    std::string profileName;  ///< empty where the profile has none
    std::string colourSpace;  ///< "RGB", "grey", "CMYK" ...
    double dpi = 0;           ///< 0 where the file names none
    bool hasAlpha = false;
    std::string camera;  ///< maker and model
    std::string taken;   ///< "YYYY:MM:DD HH:MM:SS"
    std::string error;   ///< as for `ReadPicture`
};

/// Reads the header of a picture file only.
PictureFacts readPictureFacts(const std::string& path);

/// Decodes a file into a picture as `readPicture` does; null on failure, with the reason on the error stream.
QImage myCreateImageUsingImageSourceFromFile(const std::string& path);

}  // namespace tavrin
