#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "core/image/ImageReader.h"
#include "support/MadePictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

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

void expectRefused(const std::string& path) {
    const ReadPicture picture = readPicture(path);
    EXPECT_NE(picture.error, "") << path;
    EXPECT_EQ(picture.error.find('\n'), std::string::npos) << picture.error;
    EXPECT_TRUE(picture.pixels.isNull()) << path;
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

TEST(ImageReader, RefusesWhatIsNoPicture) {
    const TempFolder folder;
    const std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><rect width=\"9\" height=\"9\"/></svg>";
    const std::string script =
        "push graphic-context\nviewbox 0 0 640 480\nimage over 0,0 0,0 '/etc/hostname'\npop graphic-context\n";
    for (const char* name : {"a.jpg", "a.psd", "a.bmp", "a.mvg", "a.nef", "a.tif"}) {
        for (const std::string& text :
             {svg, script, std::string("hello\n"), std::string(), std::string("BM"), "8BPS" + script, "BM" + script,
              std::string("P3 2 2 255 1 1 1 1 1 1 1 1 1 1 1 1"), std::string("%PDF-1.4")}) {
            test::writeText(folder.file(name), text);
            expectRefused(folder.file(name));
        }
    }
    expectRefused(folder.path().string());
    expectRefused(folder.file("missing.jpg"));
    expectRefused("/dev/zero");
    expectRefused("");
    EXPECT_TRUE(myCreateImageUsingImageSourceFromFile(folder.file("missing.jpg")).isNull());
    EXPECT_NE(readPictureFacts(folder.file("missing.jpg")).error, "");
}

void put(std::vector<std::uint8_t>& bytes, std::size_t at, std::uint32_t value, bool big) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * (big ? 3 - i : i));
}

TEST(ImageReader, RefusesSizesBeyondTheLimitFromTheHeader) {
    const TempFolder folder;
    ASSERT_TRUE(MadePicture().save(folder.file("a.png")));
    std::vector<std::uint8_t> png = test::readBytes(folder.file("a.png"));
    put(png, 16, 65536, true);
    put(png, 20, 65536, true);
    test::writeBytes(folder.file("a.png"), png);
    expectRefused(folder.file("a.png"));

    std::vector<std::uint8_t> bmp(200, 0);
    bmp[0] = 'B', bmp[1] = 'M', bmp[10] = 54, bmp[14] = 40, bmp[26] = 1, bmp[28] = 24;
    for (const std::uint32_t side : {100000u, 0u, 0xFFFFFFFFu, 0x80000000u, 18000u}) {
        put(bmp, 18, side, false);
        put(bmp, 22, side, false);
        test::writeBytes(folder.file("a.bmp"), bmp);  // the last size is allowed, but the pixels are not there
        expectRefused(folder.file("a.bmp"));
    }
    std::vector<std::uint8_t> psd(200, 0);
    psd[0] = '8', psd[1] = 'B', psd[2] = 'P', psd[3] = 'S', psd[5] = 1, psd[13] = 3, psd[23] = 8, psd[25] = 3;
    for (const std::uint32_t side : {100000u, 0u, 0xFFFFFFFFu, 10000u}) {
        put(psd, 14, side, true);
        put(psd, 18, side, true);
        test::writeBytes(folder.file("a.psd"), psd);
        expectRefused(folder.file("a.psd"));
    }
}

std::vector<std::uint8_t> pngChunk(const std::string& kind, const std::string& data, std::uint32_t length) {
    std::vector<std::uint8_t> chunk(4);
    put(chunk, 0, length, true);
    chunk.insert(chunk.end(), kind.begin(), kind.end());
    chunk.insert(chunk.end(), data.begin(), data.end());
    chunk.insert(chunk.end(), 4, 0);  // a checksum that nobody comes to
    return chunk;
}

TEST(ImageReader, BlocksLongerThanTheirFileAreNotMadeRoomFor) {
    const TempFolder folder;
    ASSERT_TRUE(MadePicture().save(folder.file("a.png")));
    const std::vector<std::uint8_t> png = test::readBytes(folder.file("a.png"));
    constexpr std::size_t kHeaderEnd = 33;
    for (const char* kind : {"tEXt", "zTXt", "iTXt", "sPLT", "iCCP", "eXIf"}) {
        const auto chunk = pngChunk(kind, "some words", 0x7fffffff);
        std::vector<std::uint8_t> bytes = png;
        bytes.insert(bytes.begin() + kHeaderEnd, chunk.begin(), chunk.end());
        test::writeBytes(folder.file("long.png"), bytes);
        EXPECT_EQ(readPictureFacts(folder.file("long.png")).error, "it is damaged or cut short") << kind;
        expectRefused(folder.file("long.png"));
        put(bytes, kHeaderEnd, 0x3fffffff, true);
        test::writeBytes(folder.file("long.png"), bytes);
        fs::resize_file(folder.file("long.png"), std::uintmax_t{3} << 29);  // now it is there, of zeros
        EXPECT_NE(readPictureFacts(folder.file("long.png")).error.find("at most 64 MB"), std::string::npos) << kind;
        fs::remove(folder.file("long.png"));
    }
}

/// Camera data whose directory refers to itself `count` times.
std::string endlessExif(unsigned count) {
    std::vector<std::uint8_t> tiff = {'I', 'I', '*', 0, 8, 0, 0, 0, 0, 0};
    tiff[8] = static_cast<std::uint8_t>(count), tiff[9] = static_cast<std::uint8_t>(count >> 8);
    for (unsigned i = 0; i < count; ++i)
        tiff.insert(tiff.end(), {0x69, 0x87, 4, 0, 1, 0, 0, 0, 8, 0, 0, 0});
    tiff.insert(tiff.end(), 4, 0);
    return {tiff.begin(), tiff.end()};
}

TEST(ImageReader, CameraDataThatReferToThemselvesAreNotFollowed) {
    const TempFolder folder;
    const std::string exif = endlessExif(5000), marked = std::string("Exif\0\0", 6) + exif;
    ASSERT_TRUE(MadePicture().save(folder.file("a.jpg")) && MadePicture().save(folder.file("a.png")));
    std::vector<std::uint8_t> jpeg = test::readBytes(folder.file("a.jpg")),
                              png = test::readBytes(folder.file("a.png"));
    const std::size_t length = marked.size() + 2;
    std::string segment = {'\xff', '\xe1', static_cast<char>(length >> 8), static_cast<char>(length)};
    segment += marked;
    jpeg.insert(jpeg.begin() + 2, segment.begin(), segment.end());
    test::writeBytes(folder.file("a.jpg"), jpeg);
    const auto chunk = pngChunk("eXIf", exif, static_cast<std::uint32_t>(exif.size()));
    png.insert(png.begin() + 33, chunk.begin(), chunk.end());
    test::writeBytes(folder.file("a.png"), png);
    std::string psd("8BPS\0\1\0\0\0\0\0\0\0\3\0\0\0\12\0\0\0\12\0\10\0\3\0\0\0\0", 30);
    std::vector<std::uint8_t> lengths(8);
    put(lengths, 0, static_cast<std::uint32_t>(exif.size() + 12), true);
    put(lengths, 4, static_cast<std::uint32_t>(exif.size()), true);
    psd += std::string(lengths.begin(), lengths.begin() + 4) + std::string("8BIM\4\42\0\0", 8);
    psd += std::string(lengths.begin() + 4, lengths.end()) + exif + std::string(4 + 2 + 300, '\0');
    test::writeText(folder.file("a.psd"), psd);
    ASSERT_TRUE(MadePicture().save(folder.file("a.webp")));
    const std::vector<std::uint8_t> webp = test::readBytes(folder.file("a.webp"));
    std::vector<std::uint8_t> size(4);
    put(size, 0, static_cast<std::uint32_t>(exif.size()), false);
    test::writeText(folder.file("a.webp"),
                    std::string(webp.begin(), webp.end()) + "EXIF" + std::string(size.begin(), size.end()) + exif);
    test::writeText(folder.file("a.heic"), std::string("\0\0\0\20ftypheic\0\0\0\0", 16) + exif);
    expectRefused(folder.file("a.psd"));
    for (const char* name : {"a.jpg", "a.png", "a.webp", "a.heic"}) {
        expectRefused(folder.file(name));
        EXPECT_EQ(readPictureFacts(folder.file(name)).error, "its camera data are damaged") << name;
    }
}

// Cut at any place a file is refused, or read whole where only bytes after the last row are missing.
TEST(ImageReader, CutFilesAreRefusedOrWhole) {
    const TempFolder folder;
    const MadePicture made{.width = 64, .height = 48};
    for (const char* name : {"a.jpg", "a.png", "a.tif", "a.gif", "a.webp"}) {
        ASSERT_TRUE(made.save(folder.file(name)));
        const QImage whole = readPicture(folder.file(name)).pixels;
        const std::vector<std::uint8_t> bytes = test::readBytes(folder.file(name));
        const std::string cut = folder.file(std::string("cut-") + name);
        int refused = 0, tries = 0;
        for (std::size_t size = 0; size < bytes.size(); size += 1 + bytes.size() / 60, ++tries) {
            test::writeBytes(cut, {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)});
            const ReadPicture picture = readPicture(cut);
            if (picture.error.empty()) {
                EXPECT_EQ(picture.pixels, whole) << name << " cut to " << size << " of " << bytes.size();
            } else {
                ++refused;
            }
        }
        EXPECT_GT(refused, tries * 9 / 10) << name;
    }
}

TEST(ImageReader, DamagedFilesDoNoHarm) {
    const TempFolder folder;
    std::mt19937 random(7);
    const std::string path = folder.file("damaged");
    for (const char* name : {"a.jpg", "a.png", "a.tif", "a.gif", "a.webp"}) {
        ASSERT_TRUE((MadePicture{.width = 64, .height = 48}).save(folder.file(name)));
        const std::vector<std::uint8_t> bytes = test::readBytes(folder.file(name));
        for (int round = 0; round < 60; ++round) {
            std::vector<std::uint8_t> damaged = bytes;
            for (int i = 0; i < 5; ++i)
                damaged[random() % damaged.size()] = static_cast<std::uint8_t>(random());
            test::writeBytes(path, damaged);
            const ReadPicture picture = readPicture(path);
            EXPECT_EQ(picture.error.empty(), !picture.pixels.isNull());
        }
    }
    std::vector<std::uint8_t> garbage(3000);
    for (const int first : {0x00, 0x42, 0xFF}) {
        for (auto& byte : garbage)
            byte = static_cast<std::uint8_t>(random());
        garbage[0] = static_cast<std::uint8_t>(first);
        test::writeBytes(path, garbage);
        expectRefused(path);
    }
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
