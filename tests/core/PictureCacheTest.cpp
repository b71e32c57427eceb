#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

#include "core/image/PictureCache.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class PictureCacheTest : public ::testing::Test {
  protected:
    void save(QRgb colour, int size) const {
        QImage picture(size, size, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(picture.save(QString::fromStdString(path_)));
    }

    test::TempFolder folder_;
    const std::string path_ = folder_.file("plate.png");
};

TEST_F(PictureCacheTest, GivesTheSamePixelsUntilTheFileChanges) {
    save(qRgb(200, 10, 10), 8);
    const QImage first = readKeptPicture(path_);
    ASSERT_FALSE(first.isNull());
    EXPECT_EQ(readKeptPicture(path_).constBits(), first.constBits());
    const QImage small = readKeptPicture(path_, 4, 2);
    EXPECT_EQ(small.size(), QSize(4, 2));
    EXPECT_EQ(readKeptPicture(path_, 4, 2).constBits(), small.constBits());

    save(qRgb(10, 200, 10), 8);
    fs::last_write_time(path_, fs::last_write_time(path_) + std::chrono::seconds(2));
    EXPECT_EQ(readKeptPicture(path_).pixelColor(3, 3), QColor(10, 200, 10));
    EXPECT_EQ(readKeptPicture(path_, 4, 2).pixelColor(3, 1), QColor(10, 200, 10));
}

TEST_F(PictureCacheTest, KeepsNoFailureAndNoGoneFile) {
    EXPECT_TRUE(readKeptPicture(path_).isNull());
    save(qRgb(1, 2, 3), 4);
    EXPECT_FALSE(readKeptPicture(path_).isNull());
    fs::remove(path_);
    EXPECT_TRUE(readKeptPicture(path_).isNull());
}

TEST_F(PictureCacheTest, StaysWithinItsLimit) {
    save(qRgb(1, 2, 3), 16);
    setKeptPictureBytes(100);
    const QImage first = readKeptPicture(path_);
    ASSERT_FALSE(first.isNull());
    EXPECT_NE(readKeptPicture(path_).constBits(), first.constBits());
    setKeptPictureBytes(std::size_t{256} << 20);
}

}  // namespace
}  // namespace tavrin
