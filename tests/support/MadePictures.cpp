#include "support/MadePictures.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "core/image/ImageReader.h"

namespace tavrin::test {

bool MadePicture::save(const std::string& path, const std::string& options,
                       const std::function<void(VipsImage*)>& describe) const {
    vips_init("tests");
    std::vector<double> values;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int b = 0; b < bands; ++b)
                values.push_back(value(x, y, b));
    VipsImage* doubles = vips_image_new_from_memory(values.data(), values.size() * sizeof(double), width, height,
                                                    bands, VIPS_FORMAT_DOUBLE);
    VipsImage *cast = nullptr, *out = nullptr;
    bool done = vips_cast(doubles, &cast, format, nullptr) == 0 &&
                vips_copy(cast, &out, "interpretation", space, nullptr) == 0;
    if (done && describe) describe(out);
    done = done && vips_image_write_to_file(out, (path + options).c_str(), nullptr) == 0;
    for (VipsImage* image : {doubles, cast, out})
        if (image) g_object_unref(image);
    return done;
}

std::vector<std::uint8_t> readBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeBytes(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void writeText(const std::string& path, const std::string& text) {
    writeBytes(path, {text.begin(), text.end()});
}

void expectRefused(const std::string& path) {
    const ReadPicture picture = readPicture(path);
    EXPECT_NE(picture.error, "") << path;
    EXPECT_EQ(picture.error.find('\n'), std::string::npos) << picture.error;
    EXPECT_TRUE(picture.pixels.isNull()) << path;
}

}  // namespace tavrin::test
