#include <array>
#include <atomic>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

#include "core/files/AtomicFile.h"
#include "core/image/Exif.h"
#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "support/MadePictures.h"
#include "support/SmallDisk.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::TempFolder;

/// Smooth colours, alpha from 0 to 255, with colour under transparent pixels too.
struct Sample {
    int width = 90, height = 70;
    std::vector<std::uint8_t> bytes;

    explicit Sample(bool opaque = false) {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (const int v : {x * 2, y * 3, x + y, opaque ? 255 : (x * 7 + y * 3) % 256})
                    bytes.push_back(static_cast<std::uint8_t>(v));
    }
    WriteRequest request(int fileType, std::vector<std::uint8_t> exif = {}) const {
        return {bytes.data(), width, height, fileType, 240, std::move(exif)};
    }
};

const char* const kNames[] = {"", "a.jpg", "a.png", "a.tif"};

/// The file's pixels as they stand, with no premultiplying between.
std::vector<std::uint8_t> storedBytes(const std::string& path) {
    VipsImage* image = vips_image_new_from_file(path.c_str(), nullptr);
    if (!image) return {};
    std::size_t size = 0;
    auto* memory = static_cast<std::uint8_t*>(vips_image_write_to_memory(image, &size));
    std::vector<std::uint8_t> bytes(memory, memory + size);
    g_free(memory);
    g_object_unref(image);
    return bytes;
}

std::size_t filesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(ImageWriter, PngAndTiffKeepEveryByte) {
    const TempFolder folder;
    for (const bool opaque : {false, true}) {
        const Sample sample(opaque);
        for (const int type : {kPngFile, kTiffFile}) {
            ASSERT_EQ(writePicture(folder.file(kNames[type]), sample.request(type)), "");
            EXPECT_EQ(storedBytes(folder.file(kNames[type])), sample.bytes) << kNames[type];
        }
    }
    EXPECT_EQ(filesIn(folder.path()), 2u) << "nothing is left beside the pictures";
}

TEST(ImageWriter, JpegDropsAlphaAndKeepsColours) {
    const TempFolder folder;
    const Sample sample;
    ASSERT_EQ(writePicture(folder.file("a.jpg"), sample.request(kJpegFile)), "");
    const ReadPicture back = readPicture(folder.file("a.jpg"));
    ASSERT_EQ(back.error, "");
    for (std::size_t i = 0; i < sample.bytes.size(); ++i) {
        if (i % 4 == 3) {
            ASSERT_EQ(back.pixels.constBits()[i], 255);
        } else {
            ASSERT_NEAR(back.pixels.constBits()[i], sample.bytes[i], 3) << i;
        }
    }
    EXPECT_EQ(readPictureFacts(folder.file("a.jpg")).channels, 3);
}

// PNG files are packed in parts, of which some are held at a time: as many as fit, one more, and one that is short.
TEST(ImageWriter, PartsOfAPngMakeOnePicture) {
    const TempFolder folder;
    for (const int height : {1, 128, 2048, 2049, 2300}) {
        std::vector<std::uint8_t> bytes(std::size_t{4} * 7 * height);
        std::uint32_t noise = 5;
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>((noise = noise * 1664525 + 1013904223) >> 24);
        ASSERT_EQ(writePicture(folder.file("a.png"), {bytes.data(), 7, height, kPngFile, 240, {}}), "");
        EXPECT_EQ(storedBytes(folder.file("a.png")), bytes) << height;
    }
}

// Pictures of several strips, the last one short; the widest has strips of fewer rows.
TEST(ImageWriter, StripsOfAJpegMakeOnePicture) {
    const TempFolder folder;
    const std::string strips = folder.file("strips.jpg"), whole = folder.file("whole.jpg");
    for (const auto& [width, height] : {std::pair{61, 517}, std::pair{40'003, 150}, std::pair{3, 128}}) {
        const test::MadePicture made{.width = width, .height = height};
        ASSERT_TRUE(made.save(whole, "[Q=100,subsample_mode=off]"));
        std::vector<std::uint8_t> bytes;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int b = 0; b < 4; ++b)
                    bytes.push_back(static_cast<std::uint8_t>(b < 3 ? made.value(x, y, b) : 99));
        ASSERT_EQ(writePicture(strips, {bytes.data(), width, height, kJpegFile, 240, {}}), "");
        EXPECT_EQ(storedBytes(strips), storedBytes(whole)) << width << " x " << height;
        EXPECT_EQ(readPicture(strips).pixels, readPicture(whole).pixels);
    }
}

TEST(ImageWriter, FilesNameResolutionProfileAndCamera) {
    const TempFolder folder;
    const Sample sample;
    CameraFacts camera{.maker = "Some Maker",
                       .model = "Model 7",
                       .lens = "50mm",
                       .taken = "2024:05:06 07:08:09",
                       .exposureSeconds = 1 / 125.0,
                       .aperture = 2.8,
                       .iso = 400,
                       .focalLength = 50};
    for (const int type : {kJpegFile, kPngFile, kTiffFile}) {
        const std::string path = folder.file(kNames[type]);
        ASSERT_EQ(writePicture(path, sample.request(type, makeExif(camera))), "");
        const PictureFacts facts = readPictureFacts(path);
        EXPECT_NEAR(facts.dpi, 240, 0.02) << path;
        EXPECT_TRUE(facts.hasProfile) << path;
        EXPECT_EQ(facts.orientation, 1);
        if (type == kTiffFile) continue;  // holds the same in directories of its own; see the bytes below
        EXPECT_EQ(facts.camera, "Some Maker Model 7") << path;
        EXPECT_EQ(facts.taken, camera.taken);
        const CameraFacts back = cameraFacts(readPicture(path).exif);
        EXPECT_EQ(back.lens, camera.lens);
        EXPECT_NEAR(back.exposureSeconds, camera.exposureSeconds, 1e-6);
        EXPECT_NEAR(back.aperture, 2.8, 1e-6);
        EXPECT_EQ(back.iso, 400);
        EXPECT_EQ(back.focalLength, 50);
    }
    const std::vector<std::uint8_t> tiff = test::readBytes(folder.file("a.tif"));
    const std::string text(tiff.begin(), tiff.end());
    for (const char* wanted : {"Some Maker", "Model 7", "50mm", "2024:05:06 07:08:09"})
        EXPECT_NE(text.find(wanted), std::string::npos) << wanted;
}

TEST(ImageWriter, CameraDataOfRealFilesAreCarriedOverWithoutStaleOnes) {
    TAVRIN_NEED_DATA(data);
    const TempFolder folder;
    const ReadPicture phone = readPicture((data / "greenscreen/group_phone_exif6_12mp.jpg").string());
    ASSERT_FALSE(phone.exif.empty());
    const Sample sample;
    for (const int type : {kJpegFile, kPngFile}) {
        ASSERT_EQ(writePicture(folder.file(kNames[type]), sample.request(type, phone.exif)), "");
        const PictureFacts facts = readPictureFacts(folder.file(kNames[type]));
        EXPECT_EQ(facts.orientation, 1);
        EXPECT_EQ(facts.width, sample.width);
        EXPECT_EQ(facts.taken, "2018:12:12 15:14:01");
        const ExifBlock exif = readPicture(folder.file(kNames[type])).exif;
        EXPECT_LT(exif.size(), 4000u) << "thumbnail and maker's notes are gone";
        for (const ExifValue& value : exifValues(exif)) {
            if (value.tag == 0xA002) {
                EXPECT_EQ(value.numbers.at(0), sample.width);
            }
            if (value.tag == 0x0112) {
                EXPECT_EQ(value.numbers.at(0), 1);
            }
        }
    }
}

TEST(ImageWriter, BrokenCameraDataDoNoHarm) {
    const TempFolder folder;
    const Sample sample;
    ExifBlock exif = makeExif({.maker = "M", .model = "N", .lens = "L", .taken = "2024:05:06 07:08:09"});
    for (std::size_t i = 0; i < exif.size(); ++i) {
        ExifBlock damaged = exif;
        damaged[i] = 0xFF;
        damaged.resize(i % 3 ? damaged.size() : i);
        const int type = i % 3 == 0 ? kJpegFile : i % 3 == 1 ? kPngFile : kTiffFile;
        ASSERT_EQ(writePicture(folder.file(kNames[type]), sample.request(type, damaged)), "");
        ASSERT_EQ(readPictureFacts(folder.file(kNames[type])).width, sample.width);
    }
}

TEST(ImageWriter, NamesOfAnyKindWork) {
    const TempFolder folder;
    const Sample sample;
    for (const char* name : {"Grüße 照片 [Q=1] %d.png", "no extension", "-.png", "a'b\"c.png"}) {
        ASSERT_EQ(writePicture(folder.file(name), sample.request(kPngFile)), "") << name;
        EXPECT_EQ(readPicture(folder.file(name)).error, "") << name;
    }
}

TEST(ImageWriter, SaysWhatIsWrongAndWritesNothing) {
    const TempFolder folder;
    const Sample sample;
    for (const int type : {0, 4, -1})
        EXPECT_NE(writePicture(folder.file("a.jpg"), sample.request(type)), "");
    WriteRequest empty = sample.request(kPngFile);
    empty.width = 0;
    EXPECT_NE(writePicture(folder.file("a.png"), empty), "");
    EXPECT_NE(writePicture("", sample.request(kPngFile)), "");
    EXPECT_NE(writePicture(folder.file("no/such/folder.png"), sample.request(kPngFile)).find("does not exist"),
              std::string::npos);
    EXPECT_NE(writePicture(folder.path().string(), sample.request(kPngFile)).find("folder"), std::string::npos);
    EXPECT_NE(writePicture("/dev/full", sample.request(kPngFile)), "");
    EXPECT_NE(writePicture(folder.file(std::string(300, 'x')), sample.request(kPngFile)), "");
    EXPECT_EQ(filesIn(folder.path()), 0u);
    if (geteuid() != 0) {
        fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_NE(writePicture(folder.file("a.png"), sample.request(kPngFile)).find("permission"), std::string::npos);
        fs::permissions(folder.path(), fs::perms::owner_all);
    }
}

TEST(ImageWriter, AFullDiskLeavesTheOldPictureAlone) {
    const TempFolder folder;
    const Sample sample;
    for (const int type : {kJpegFile, kPngFile, kTiffFile}) {
        const std::string path = folder.file(kNames[type]);
        ASSERT_EQ(writePicture(path, sample.request(type)), "");
        const std::vector<std::uint8_t> old = test::readBytes(path);
        Sample other(true);
        for (const rlim_t room : {rlim_t{0}, rlim_t{100}, rlim_t{2000}, static_cast<rlim_t>(old.size() / 2)}) {
            const test::SmallDisk disk(room);
            EXPECT_NE(writePicture(path, other.request(type)), "") << path << " in " << room;
        }
        EXPECT_EQ(test::readBytes(path), old);
    }
    EXPECT_EQ(filesIn(folder.path()), 3u);
}

TEST(ImageWriter, AFileThatNobodyWantsAnyLongerLeavesTheOldOne) {
    const TempFolder folder;
    const Sample sample, other(true);
    const std::atomic<bool> stop = true;
    for (const int type : {kJpegFile, kPngFile, kTiffFile}) {
        const std::string path = folder.file(kNames[type]);
        ASSERT_EQ(writePicture(path, sample.request(type)), "");
        const std::vector<std::uint8_t> old = test::readBytes(path);
        WriteRequest request = other.request(type);
        request.stop = &stop;
        EXPECT_EQ(writePicture(path, request), kWritingStopped);
        EXPECT_EQ(test::readBytes(path), old);
    }
    EXPECT_EQ(filesIn(folder.path()), 3u);
}

TEST(ImageWriter, LinksAndRightsOfTheOldFileStay) {
    const TempFolder folder;
    const Sample sample;
    test::writeText(folder.file("real.png"), "old");
    fs::permissions(folder.file("real.png"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.png", folder.file("link.png"));
    ASSERT_EQ(writePicture(folder.file("link.png"), sample.request(kPngFile)), "");
    EXPECT_TRUE(fs::is_symlink(folder.file("link.png")));
    EXPECT_EQ(readPicture(folder.file("real.png")).error, "");
    EXPECT_EQ(fs::status(folder.file("real.png")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
}  // namespace tavrin
