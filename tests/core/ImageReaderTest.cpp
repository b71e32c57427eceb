#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "core/image/ImageReader.h"
#include "support/MadePictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::expectRefused;
using test::MadePicture;
using test::TempFolder;

std::array<int, 4> pixel(const QImage& image, int x, int y) {
    const uchar* p = image.constScanLine(y) + 4 * x;
    return {p[0], p[1], p[2], p[3]};
}

void expectNear(const QImage& image, int x, int y, std::array<int, 4> wanted, int tolerance) {
    const auto got = pixel(image, x, y);
    for (int b = 0; b < 4; ++b)
        EXPECT_NEAR(got[b], wanted[b], tolerance) << "band " << b << " at " << x << "," << y;
}

void expectForm(const ReadPicture& picture, int width, int height) {
    ASSERT_EQ(picture.error, "");
    const QImage::Format format = picture.pixels.format();
    ASSERT_TRUE(format == QImage::Format_RGBX8888 || format == QImage::Format_RGBA8888_Premultiplied) << format;
    ASSERT_EQ(picture.pixels.width(), width);
    ASSERT_EQ(picture.pixels.height(), height);
    ASSERT_EQ(picture.pixels.bytesPerLine(), 4 * width);
}

TEST(ImageReader, EveryOrientationComesOutUpright) {
    const TempFolder folder;
    MadePicture made{.width = 7, .height = 5};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const std::string path = folder.file("o.tif");
        ASSERT_TRUE(
            made.save(path, "", [&](VipsImage* image) { vips_image_set_int(image, "orientation", orientation); }));
        const bool turned = orientation >= 5;
        const ReadPicture picture = readPicture(path);
        expectForm(picture, turned ? 5 : 7, turned ? 7 : 5);
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 7; ++x) {
                const int r = 6 - x, b = 4 - y;  // from the right, from the bottom
                const std::array<std::array<int, 2>, 8> places = {{{x, y},
                                                                   {r, y},
                                                                   {r, b},
                                                                   {x, b},  //
                                                                   {y, x},
                                                                   {b, x},
                                                                   {b, r},
                                                                   {y, r}}};
                const auto [u, v] = places[orientation - 1];
                const std::array<int, 4> wanted = {static_cast<int>(made.value(x, y, 0)),
                                                   static_cast<int>(made.value(x, y, 1)),
                                                   static_cast<int>(made.value(x, y, 2)), 255};
                ASSERT_EQ(pixel(picture.pixels, u, v), wanted) << orientation << " at " << x << "," << y;
            }
        }
        const PictureFacts facts = readPictureFacts(path);
        EXPECT_EQ(facts.orientation, orientation);
        EXPECT_EQ(facts.width, turned ? 5 : 7);
        EXPECT_EQ(facts.fileWidth, 7);
    }
}

TEST(ImageReader, DepthsComeDownToEightBits) {
    const TempFolder folder;
    const auto sixteen = [](int x, int, int b) { return (x * 30 + b) * 257.0; };
    for (const char* name : {"a.png", "a.tif"}) {
        MadePicture made{.format = VIPS_FORMAT_USHORT, .space = VIPS_INTERPRETATION_RGB16, .value = sixteen};
        ASSERT_TRUE(made.save(folder.file(name)));
        const ReadPicture picture = readPicture(folder.file(name));
        expectForm(picture, 8, 6);
        for (int x = 0; x < 8; ++x)
            expectNear(picture.pixels, x, 3, {x * 30, x * 30 + 1, x * 30 + 2, 255}, 0);
        EXPECT_EQ(readPictureFacts(folder.file(name)).bitsPerChannel, 16);
    }
    MadePicture grey{.bands = 1, .format = VIPS_FORMAT_USHORT, .space = VIPS_INTERPRETATION_GREY16, .value = sixteen};
    ASSERT_TRUE(grey.save(folder.file("g.png")));
    expectNear(readPicture(folder.file("g.png")).pixels, 5, 1, {150, 150, 150, 255}, 0);
}

TEST(ImageReader, FloatsAreLinearLight) {
    const TempFolder folder;
    MadePicture made{.format = VIPS_FORMAT_FLOAT, .space = VIPS_INTERPRETATION_scRGB, .value = [](int x, int, int) {
                         return x == 7 ? 4.0 : x == 6 ? std::nan("") : x / 5.0;
                     }};
    ASSERT_TRUE(made.save(folder.file("f.tif")));
    ReadPicture picture = readPicture(folder.file("f.tif"));
    expectForm(picture, 8, 6);
    expectNear(picture.pixels, 0, 0, {0, 0, 0, 255}, 0);
    expectNear(picture.pixels, 2, 2, {170, 170, 170, 255}, 1);  // 0.4 in the sRGB curve
    expectNear(picture.pixels, 7, 5, {255, 255, 255, 255}, 0);
    made.bands = 1;
    made.space = VIPS_INTERPRETATION_B_W;
    ASSERT_TRUE(made.save(folder.file("fg.tif")));
    picture = readPicture(folder.file("fg.tif"));
    expectForm(picture, 8, 6);
    expectNear(picture.pixels, 2, 2, {170, 170, 170, 255}, 1);
}

TEST(ImageReader, AlphaIsPremultiplied) {
    const TempFolder folder;
    const auto value = [](int x, int, int b) { return b == 3 ? x * 36.0 : 200.0; };
    for (const char* name : {"a.png", "a.tif"}) {
        ASSERT_TRUE((MadePicture{.bands = 4, .value = value}).save(folder.file(name)));
        const ReadPicture picture = readPicture(folder.file(name));
        expectForm(picture, 8, 6);
        for (int x = 0; x < 8; ++x) {
            const int alpha = x * 36, colour = static_cast<int>(std::lround(200 * alpha / 255.0));
            expectNear(picture.pixels, x, 2, {colour, colour, colour, alpha}, 1);
        }
        EXPECT_TRUE(readPictureFacts(folder.file(name)).hasAlpha);
    }
    const auto greyAlpha = [](int x, int, int b) { return b ? 255.0 : x * 30.0; };
    ASSERT_TRUE(
        (MadePicture{.bands = 2, .space = VIPS_INTERPRETATION_B_W, .value = greyAlpha}).save(folder.file("ga.png")));
    expectNear(readPicture(folder.file("ga.png")).pixels, 4, 0, {120, 120, 120, 255}, 0);
    const auto wide = [](int x, int, int b) { return b == 3 ? x * 36 * 257.0 : 200 * 257.0; };
    ASSERT_TRUE(
        (MadePicture{.bands = 4, .format = VIPS_FORMAT_USHORT, .space = VIPS_INTERPRETATION_RGB16, .value = wide})
            .save(folder.file("w.png")));
    expectNear(readPicture(folder.file("w.png")).pixels, 3, 0, {85, 85, 85, 108}, 1);
}

TEST(ImageReader, OtherFormsOfTheSamePicture) {
    const TempFolder folder;
    MadePicture made{.width = 200, .height = 150, .value = [](int x, int y, int b) { return b ? y : x; }};
    struct Form {
        const char *name, *options, *format;
        int tolerance;
    };
    for (const Form& form : {Form{"p.png", "[palette]", "PNG", 14}, Form{"i.png", "[interlace]", "PNG", 0},
                             Form{"t.tif", "[tile,tile_width=64,tile_height=64,compression=lzw]", "TIFF", 0},
                             Form{"s.tif", "[compression=deflate,predictor=horizontal]", "TIFF", 0},
                             Form{"b.tif", "[bigtiff]", "TIFF", 0}, Form{"p.jpg", "[Q=95,interlace]", "JPEG", 5},
                             Form{"w.webp", "[lossless]", "WebP", 0}, Form{"g.gif", "", "GIF", 24}}) {
        ASSERT_TRUE(made.save(folder.file(form.name), form.options)) << form.name;
        const ReadPicture picture = readPicture(folder.file(form.name));
        expectForm(picture, 200, 150);
        for (int y = 3; y < 150; y += 29)
            for (int x = 3; x < 200; x += 37)
                expectNear(picture.pixels, x, y, {x, y, y, 255}, form.tolerance);
        EXPECT_EQ(readPictureFacts(folder.file(form.name)).format, form.format);
    }
}

TEST(ImageReader, ColoursAreBroughtToSrgb) {
    const TempFolder folder;
    // Full cyan ink without a profile is no screen cyan: red is gone, green and blue are those of paper.
    const auto cyan = [](int, int, int b) { return b == 0 ? 255.0 : 0.0; };
    ASSERT_TRUE((MadePicture{.bands = 4, .space = VIPS_INTERPRETATION_CMYK, .value = cyan})
                    .save(folder.file("c.jpg"), "[Q=100]"));
    const ReadPicture ink = readPicture(folder.file("c.jpg"));
    expectForm(ink, 8, 6);
    expectNear(ink.pixels, 3, 3, {0, 160, 230, 255}, 30);
    EXPECT_EQ(readPictureFacts(folder.file("c.jpg")).colourSpace, "CMYK");
    // Pure green of a wide space lies outside sRGB; its red is 0 there, and grey stays grey.
    const auto profile = [](const char* name) {
        return [name](VipsImage* image) {
            VipsBlob* blob = nullptr;
            ASSERT_EQ(vips_profile_load(name, &blob, nullptr), 0);
            size_t size = 0;
            const void* data = vips_blob_get(blob, &size);
            vips_image_set_blob_copy(image, VIPS_META_ICC_NAME, data, size);
            vips_area_unref(VIPS_AREA(blob));
        };
    };
    MadePicture made{.value = [](int x, int, int b) {
        return x < 4 ? 120.0 : b == 0 ? 150.0 : b == 1 ? 180.0 : 60.0;
    }};
    ASSERT_TRUE(made.save(folder.file("p3.png"), "", profile("p3")));
    const QImage wide = readPicture(folder.file("p3.png")).pixels;
    expectNear(wide, 0, 0, {120, 120, 120, 255}, 1);
    EXPECT_LT(pixel(wide, 6, 0)[0], 148);  // the same colour needs less red in sRGB
    // A profile that is sRGB changes nothing, one that is rubbish is ignored.
    ASSERT_TRUE(made.save(folder.file("s.png"), "", profile("srgb")));
    expectNear(readPicture(folder.file("s.png")).pixels, 6, 0, {150, 180, 60, 255}, 0);
    const std::vector<std::uint8_t> rubbish(500, 0x41);
    ASSERT_TRUE(made.save(folder.file("bad.tif"), "", [&](VipsImage* image) {
        vips_image_set_blob_copy(image, VIPS_META_ICC_NAME, rubbish.data(), rubbish.size());
    }));
    testing::internal::CaptureStderr();
    expectNear(readPicture(folder.file("bad.tif")).pixels, 6, 0, {150, 180, 60, 255}, 0);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("colour profile"), std::string::npos);
    // As is one that is not made for such a picture.
    ASSERT_TRUE(made.save(folder.file("ink.tif"), "", profile("cmyk")));
    expectNear(readPicture(folder.file("ink.tif")).pixels, 6, 0, {150, 180, 60, 255}, 0);
}

TEST(ImageReader, ReadsOnManyThreadsAtOnce) {
    const TempFolder folder;
    ASSERT_TRUE((MadePicture{.width = 300, .height = 200}).save(folder.file("a.png")));
    const QImage wanted = readPicture(folder.file("a.png")).pixels;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 5; ++round)
                EXPECT_EQ(readPicture(folder.file("a.png")).pixels, wanted);
        });
    for (auto& thread : threads)
        thread.join();
}

TEST(ImageReader, RealFilesAreReadOrRefused) {
    TAVRIN_NEED_DATA(data);
    const std::vector<std::string> broken = {"corrupt_data.jpg", "corrupt_icc.jpg", "header_only.cr2",
                                             "header_only.nef",  "truncated.heic",  "huge_dimensions.png",
                                             "truncated.jpg",    "truncated.png"};
    for (const auto& entry : fs::directory_iterator(data / "formats")) {
        const std::string name = entry.path().filename().string();
        if (std::find(broken.begin(), broken.end(), name) != broken.end()) {
            expectRefused(entry.path().string());
            continue;
        }
        const PictureFacts facts = readPictureFacts(entry.path().string());
        EXPECT_EQ(facts.error, "") << name;
        SCOPED_TRACE(name);
        expectForm(readPicture(entry.path().string()), facts.width, facts.height);
    }
    const TempFolder folder;
    for (const char* name : {"formats/rgba_8bit.psd", "formats/rgb_16bit.psd", "formats/photo.heic",
                             "formats/colorchart.dng", "greenscreen/woman_red_hair.bmp"}) {
        const std::vector<std::uint8_t> bytes = test::readBytes((data / name).string());
        for (const std::size_t percent : {10, 60, 99}) {
            const std::string cut = folder.file(fs::path(name).filename().string());
            test::writeBytes(
                cut, {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() * percent / 100)});
            expectRefused(cut);
        }
    }
    const PictureFacts phone = readPictureFacts((data / "greenscreen/group_phone_exif6_12mp.jpg").string());
    EXPECT_EQ(phone.width, 3024);
    EXPECT_EQ(phone.orientation, 6);
    EXPECT_FALSE(phone.camera.empty());
    EXPECT_EQ(phone.taken, "2018:12:12 15:14:01");
}

}  // namespace
}  // namespace tavrin
