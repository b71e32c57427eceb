#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>
#include <vips/vips.h>

namespace tavrin::test {

/// Makes picture files of many kinds for the reader's tests. Pixel (x, y), band b holds `value(x, y, b)`.
struct MadePicture {
    int width = 8, height = 6, bands = 3;
    VipsBandFormat format = VIPS_FORMAT_UCHAR;
    VipsInterpretation space = VIPS_INTERPRETATION_sRGB;
    std::function<double(int x, int y, int b)> value = [](int x, int y, int b) {
        return (x * 31 + y * 17 + b * 71) % 256;
    };

    /// Saves to `path` with the saver's options as they stand in brackets behind a name ("[Q=90]").
    /// `describe` may set metadata. Returns whether that worked.
    bool save(const std::string& path, const std::string& options = "",
              const std::function<void(VipsImage*)>& describe = {}) const;
};

std::vector<std::uint8_t> readBytes(const std::string& path);
void writeBytes(const std::string& path, const std::vector<std::uint8_t>& bytes);
void writeText(const std::string& path, const std::string& text);

/// The file is refused with one line, and without pixels.
void expectRefused(const std::string& path);

}  // namespace tavrin::test
