// Files that are no pictures, want too much or are damaged: refused with one line, and nothing else happens.
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

#include "core/image/ImageReader.h"
#include "support/MadePictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::expectRefused;
using test::MadePicture;
using test::TempFolder;

TEST(BadPictures, RefusesWhatIsNoPicture) {
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

TEST(BadPictures, RefusesSizesBeyondTheLimitFromTheHeader) {
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

TEST(BadPictures, BlocksLongerThanTheirFileAreNotMadeRoomFor) {
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

TEST(BadPictures, CameraDataThatReferToThemselvesAreNotFollowed) {
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
TEST(BadPictures, CutFilesAreRefusedOrWhole) {
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

TEST(BadPictures, DamagedFilesDoNoHarm) {
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

}  // namespace
}  // namespace tavrin
