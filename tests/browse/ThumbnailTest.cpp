// Small pictures: their size and colours, and the cache that is shared with other programs.
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <gtest/gtest.h>
#include <mutex>
#include <set>

#include <QCryptographicHash>

#include "browse/Thumbnail.h"
#include "browse/ThumbnailLoader.h"
#include "core/image/SmallPicture.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

/// A cache of its own for every test.
class ThumbnailTest : public testing::Test {
  protected:
    void SetUp() override { qputenv("XDG_CACHE_HOME", folder_.file("cache").c_str()); }
    void TearDown() override { qputenv("XDG_CACHE_HOME", before_); }

    std::vector<fs::path> filesIn(const std::string& name) const {
        std::vector<fs::path> files;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(folder_.file("cache/thumbnails/" + name), none))
            files.push_back(entry.path());
        return files;
    }
    std::string makeJpeg(const std::string& name, int width, int height, QColor colour = Qt::red) const {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(colour);
        EXPECT_TRUE(image.save(QString::fromStdString(folder_.file(name)), "jpg", 95));
        return folder_.file(name);
    }

    const QByteArray before_ = qgetenv("XDG_CACHE_HOME");
    test::TempFolder folder_;
};

TEST_F(ThumbnailTest, IsKeptAsOtherProgramsExpectIt) {
    const std::string path = makeJpeg("M\xc3\xb6we, no 1.jpg", 1200, 900);
    const Thumbnail made = thumbnailOf(path, ThumbnailSize::normal);
    EXPECT_EQ(made.pixels.size(), QSize(128, 96));
    const std::string uri = "file://" + folder_.path().string() + "/M%C3%B6we,%20no%201.jpg";
    const QByteArray digest = QCryptographicHash::hash(uri.c_str(), QCryptographicHash::Md5).toHex();
    const std::string kept = folder_.file("cache/thumbnails/normal/" + digest.toStdString() + ".png");
    const QImage image(QString::fromStdString(kept));
    EXPECT_EQ(image.text("Thumb::URI").toStdString(), uri);
    const auto time = std::chrono::file_clock::to_sys(fs::last_write_time(path)).time_since_epoch();
    EXPECT_EQ(image.text("Thumb::MTime").toLongLong(), std::chrono::floor<std::chrono::seconds>(time).count());
    EXPECT_EQ(fs::status(kept).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(folder_.file("cache/thumbnails")).permissions(), fs::perms::owner_all);
    EXPECT_EQ(filesIn("normal").size(), 1u) << "nothing temporary is left";
    EXPECT_EQ(thumbnailOf(path, ThumbnailSize::large).pixels.size(), QSize(256, 192));
    EXPECT_EQ(filesIn("large").size(), 1u);
}

TEST_F(ThumbnailTest, IsTakenFromTheCacheUntilTheFileChanges) {
    const std::string path = makeJpeg("a.jpg", 400, 400, Qt::red);
    thumbnailOf(path, ThumbnailSize::normal);
    // What another program put there is taken as it is, so nothing is decoded.
    QImage other(QString::fromStdString(filesIn("normal").front()));
    other.fill(Qt::blue);
    ASSERT_TRUE(other.save(QString::fromStdString(filesIn("normal").front())));
    EXPECT_EQ(thumbnailOf(path, ThumbnailSize::normal).pixels.pixelColor(64, 64), QColor(Qt::blue));
    makeJpeg("a.jpg", 400, 400, Qt::green);
    fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(5));
    EXPECT_GT(thumbnailOf(path, ThumbnailSize::normal).pixels.pixelColor(64, 64).green(), 200);
    EXPECT_EQ(filesIn("normal").size(), 1u);

    test::writeFile(filesIn("normal").front(), "torn");
    EXPECT_GT(thumbnailOf(path, ThumbnailSize::normal).pixels.pixelColor(64, 64).green(), 200);
}

TEST_F(ThumbnailTest, AFileThatCannotBeReadIsNotTriedAgainBeforeItChanges) {
    const std::string path = folder_.file("broken.jpg");
    test::writeFile(path, "\xff\xd8\xff\xe0 no picture at all");
    const Thumbnail first = thumbnailOf(path, ThumbnailSize::normal);
    EXPECT_TRUE(first.pixels.isNull());
    EXPECT_FALSE(first.error.empty());
    ASSERT_EQ(filesIn("fail/tavrin-1").size(), 1u);
    EXPECT_TRUE(filesIn("normal").empty());
    const auto time = fs::last_write_time(path);
    const auto size = fs::file_size(path);
    // The same size and time: as far as anybody can tell it is the same file.
    makeJpeg("whole.jpg", 40, 40);
    std::string whole = test::readFile(folder_.file("whole.jpg"));
    test::writeFile(path, whole.substr(0, size));
    fs::last_write_time(path, time);
    EXPECT_EQ(thumbnailOf(path, ThumbnailSize::normal).error, first.error);
    test::writeFile(path, whole);
    EXPECT_EQ(thumbnailOf(path, ThumbnailSize::normal).pixels.size(), QSize(40, 40)) << "not enlarged";
    EXPECT_EQ(thumbnailOf(folder_.file("gone.jpg"), ThumbnailSize::normal).error, "the file is not there");
}

TEST_F(ThumbnailTest, PicturesOfTheCacheItselfLeaveNothingInIt) {
    thumbnailOf(makeJpeg("a.jpg", 400, 300), ThumbnailSize::large);
    const Thumbnail small = thumbnailOf(filesIn("large").front().string(), ThumbnailSize::normal);
    EXPECT_EQ(small.pixels.size(), QSize(128, 96));
    EXPECT_TRUE(filesIn("normal").empty());
}

TEST_F(ThumbnailTest, EveryKindOfFileComesUprightAndInItsColours) {
    TAVRIN_NEED_DATA(data);
    for (const char* name : {"exif_orientation_3.jpg", "exif_orientation_5_mirror.jpg", "exif_orientation_6.jpg",
                             "exif_orientation_8.jpg", "icc_adobe_rgb.jpg", "icc_display_p3.jpg",
                             "cmyk_swop_profile.jpg", "progressive_orientation_6.jpg", "rgb_16bit.png",
                             "adobe_rgb_16bit.tiff", "rgba_8bit.psd", "photo.heic", "icc_gray_gamma.jpg"}) {
        SCOPED_TRACE(name);
        const std::string path = (data / "formats" / name).string();
        const ReadPicture small = readSmallPicture(path, 96), whole = readPicture(path);
        ASSERT_EQ(small.error, "");
        EXPECT_EQ(std::max(small.pixels.width(), small.pixels.height()),
                  std::min(96, std::max(whole.pixels.width(), whole.pixels.height())));
        const QImage expected =
            whole.pixels.scaled(small.pixels.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        double error = 0.0;
        for (int y = 4; y < expected.height() - 4; ++y)
            for (int x = 4; x < expected.width() - 4; ++x)
                for (const int shift : {0, 8, 16})
                    error += std::abs(static_cast<int>(expected.pixel(x, y) >> shift & 255) -
                                      static_cast<int>(small.pixels.pixel(x, y) >> shift & 255));
        EXPECT_LT(error / (3.0 * expected.width() * expected.height()), 6.0);
    }
    EXPECT_EQ(readSmallPicture((data / "formats/truncated.jpg").string(), 96).error.substr(0, 29),
              "it is damaged or cut short af");
    EXPECT_EQ(readSmallPicture((data / "formats/colorchart.dng").string(), 96).error, "");
}

TEST_F(ThumbnailTest, WhatScrolledAwayIsNotMadeAnyMoreAndTheFirstComesFirst) {
    constexpr int kOthers = 4;
    std::vector<std::string> paths;
    for (int i = 0; i < 24; ++i)
        paths.push_back(makeJpeg("n" + std::to_string(i) + ".jpg", 1200, 1200));
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::string> made;
    {
        ThumbnailLoader loader([&](const std::string& path, Thumbnail thumbnail) {
            std::lock_guard lock(mutex);
            EXPECT_FALSE(thumbnail.pixels.isNull());
            made.push_back(path);
            changed.notify_all();
        });
        loader.want(paths, 4, ThumbnailSize::normal);
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return made.size() >= 2; });
        lock.unlock();
        const std::vector<std::string> others(paths.end() - kOthers, paths.end());
        loader.want(others, others.size(), ThumbnailSize::normal);
        lock.lock();
        changed.wait(lock, [&] {
            return std::ranges::all_of(others,
                                       [&](const std::string& path) { return std::ranges::count(made, path) == 1; });
        });
    }
    EXPECT_LT(made.size(), 16u);
    // They are taken in their order, and a slow one may be overtaken: what was made is the list's beginning.
    const std::size_t before = made.size() - kOthers;
    for (std::size_t i = 0; i < before; ++i)
        EXPECT_EQ(std::ranges::count(made, paths[i]), 1) << i;
}

}  // namespace
}  // namespace tavrin
