#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

#include <QImage>

#include "core/files/TempFiles.h"
#include "core/image/ImageReader.h"
#include "folders/PictureFolder.h"
#include "pipeline/SaveImage.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

void touch(const fs::path& path) {
    std::ofstream(path) << "x";
}

TEST(Files, ListsPicturesOfAFolderOnlyAndByExtension) {
    test::TempFolder folder;
    for (const char* name : {"a.jpg", "b.JPEG", "c.Png", "d.tif", "e.TIFF", "f.gif", "noextension", "g.jpg.txt"}) {
        touch(folder.path() / name);
    }
    fs::create_directory(folder.path() / "sub.jpg");
    touch(folder.path() / "sub.jpg" / "inner.jpg");
    SystemInfo info;
    info.myFileNames = {"old"};
    CreateListOfFilesInFolder(info.myFileNames, folder.path());
    std::vector<std::string> names;
    for (const std::string& path : info.myFileNames)
        names.push_back(fs::path(path).filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"a.jpg", "b.JPEG", "c.Png", "d.tif", "e.TIFF"}));
    CreateListOfFilesInFolder(info.myFileNames, folder.path() / "missing");
    EXPECT_TRUE(info.myFileNames.empty());
}

TEST(Files, ClearingRemovesEverythingInsideAndBearsAMissingFolder) {
    test::TempFolder folder;
    touch(folder.path() / "saved.qlx");
    fs::create_directory(folder.path() / "deep");
    touch(folder.path() / "deep" / "x");
    ClearTempFiles(folder.path());
    EXPECT_TRUE(fs::exists(folder.path()));
    EXPECT_TRUE(fs::is_empty(folder.path()));
    ClearTempFiles(folder.path() / "missing");
}

TEST(SaveImage, WritesWhatTheBufferHoldsWithItsResolution) {
    test::TempFolder folder;
    const auto info = test::stateForOutput(100, 140, 200);
    for (const int y : {0, 139}) {
        for (int x = 0; x < 100; ++x) {
            std::uint8_t* p = info->pCombinedBitmapInfo->pBitmapData + pixelOffset(100, x, y);
            p[0] = static_cast<std::uint8_t>(x), p[1] = static_cast<std::uint8_t>(y), p[2] = 30, p[3] = 128;
        }
    }
    const std::string path = folder.file("out.png");
    EXPECT_FALSE(saveImageToDisk(*info, path, kPngFile, 1)) << "nobody said that the picture is finished";
    info->pictures.finish(Resolution::full);
    ASSERT_TRUE(saveImageToDisk(*info, path, kPngFile, 1));
    const QImage back = QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_RGBA8888);
    ASSERT_EQ(back.size(), QSize(100, 140));
    EXPECT_EQ(back.pixel(7, 139), qRgba(7, 139, 30, 128));
    EXPECT_NEAR(readPictureFacts(path).dpi, 200.0, 0.1);
}

TEST(SaveImage, RefusesUnknownTypesAndMissingFoldersAndWritesNothing) {
    test::TempFolder folder;
    const auto info = test::stateForOutput(20, 20);
    info->pictures.finish(Resolution::full);
    SystemInfo empty;
    for (const int type : {0, 4, -1})
        EXPECT_FALSE(saveImageToDisk(*info, folder.file("a.jpg"), type, 1));
    EXPECT_FALSE(saveImageToDisk(*info, folder.file("none/a.jpg"), kJpegFile, 1));
    EXPECT_FALSE(saveImageToDisk(empty, folder.file("a.jpg"), kJpegFile, 1));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace tavrin
