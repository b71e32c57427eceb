// The sorter: which photo goes where, and that no sort harms what is there.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "booth/ImageSorter.h"
#include "support/Files.h"
#include "support/MadePictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class ImageSorterTest : public testing::Test {
  protected:
    std::string photo(const std::string& name, int width, int height, int orientation = 1) {
        const std::string path = folder_.file(name);
        const test::MadePicture made{.width = width, .height = height};
        EXPECT_TRUE(
            made.save(path, "", [&](VipsImage* image) { vips_image_set_int(image, "orientation", orientation); }));
        return path;
    }
    SortedImages sort() {
        sorter_.selectImagerSortFolder(folder_.path().string());
        return sorter_.sortImagesInFolder();
    }
    bool isIn(const char* side, const char* name) const { return fs::exists(folder_.path() / side / name); }

    test::TempFolder folder_;
    ImageSorter sorter_;
};

TEST_F(ImageSorterTest, ShapeAndHowTheCameraWasHeldDecide) {
    photo("wide.jpg", 60, 40);
    photo("high.png", 40, 60);
    photo("square.jpg", 50, 50);
    photo("turned.jpg", 60, 40, 6);
    photo("turnedBack.jpg", 60, 40, 8);
    photo("odd.jpg", 40, 60, 6);
    photo("down.jpg", 60, 40, 3);
    test::writeFile(folder_.file("broken.jpg"), "no picture");
    test::writeFile(folder_.file("notes.txt"), "none");
    int calls = 0;
    EXPECT_EQ(sorter_.selectImagerSortFolder(folder_.path().string()), 8);
    const SortedImages sorted =
        sorter_.sortImagesInFolder([&](int landscape, int portrait) { EXPECT_EQ(landscape + portrait, ++calls); });
    EXPECT_EQ(sorted.landscape, 2);
    EXPECT_EQ(sorted.portrait, 6);
    EXPECT_EQ(sorted.copied, 8);
    for (const char* name : {"wide.jpg", "down.jpg"})
        EXPECT_TRUE(isIn("Landscape", name) && !isIn("Portrait", name)) << name;
    for (const char* name : {"high.png", "square.jpg", "turned.jpg", "turnedBack.jpg", "broken.jpg"})
        EXPECT_TRUE(isIn("Portrait", name) && !isIn("Landscape", name)) << name;
    EXPECT_TRUE(isIn("Portrait", "odd.jpg")) << "which would show wide";
    EXPECT_THAT(sorted.failures, testing::ElementsAre(testing::HasSubstr("broken.jpg")));
    EXPECT_EQ(test::readFile(folder_.file("Landscape/wide.jpg")), test::readFile(folder_.file("wide.jpg")));
    EXPECT_FALSE(fs::exists(folder_.file("HistorySort.dat")));
}

TEST_F(ImageSorterTest, NothingIsWrittenOverAndASecondSortCopiesNothing) {
    photo("a.jpg", 60, 40);
    photo("b.jpg", 60, 40);
    fs::create_directory(folder_.file("Landscape"));
    test::writeFile(folder_.file("Landscape/a.jpg"), "of somebody");
    SortedImages sorted = sort();
    EXPECT_EQ(sorted.copied, 1);
    EXPECT_THAT(sorted.failures, testing::ElementsAre(testing::HasSubstr("a.jpg is there already")));
    EXPECT_EQ(test::readFile(folder_.file("Landscape/a.jpg")), "of somebody");
    sorted = sort();
    EXPECT_EQ(sorted.copied, 0);
    EXPECT_EQ(sorted.alreadyThere, 1);
    EXPECT_EQ(sorted.landscape, 2) << "counted all the same";
    // What a kill left of a copy is no photo, and is not in the way.
    fs::remove(folder_.file("Landscape/b.jpg"));
    test::writeFile(folder_.file("Landscape/.b.jpg.part"), "half");
    sorted = sort();
    EXPECT_EQ(test::readFile(folder_.file("Landscape/b.jpg")), test::readFile(folder_.file("b.jpg")));
    EXPECT_FALSE(fs::exists(folder_.file("Landscape/.b.jpg.part")));
}

TEST_F(ImageSorterTest, WhatCannotBeDoneIsSaid) {
    EXPECT_NE(sorter_.sortImagesInFolder().problem, "");
    sorter_.selectImagerSortFolder(folder_.file("gone"));
    EXPECT_THAT(sorter_.sortImagesInFolder().problem, testing::HasSubstr("gone is not there"));
    photo("a.jpg", 60, 40);
    const std::string vanished = photo("b.jpg", 60, 40);
    sorter_.selectImagerSortFolder(folder_.path().string());
    fs::remove(vanished);
    SortedImages sorted = sorter_.sortImagesInFolder();
    EXPECT_EQ(sorted.copied, 1);
    EXPECT_FALSE(sorted.failures.empty());
    std::atomic<bool> stop = true;
    EXPECT_TRUE(sorter_.sortImagesInFolder({}, &stop).stopped);
    fs::remove_all(folder_.file("Landscape"));
    test::writeFile(folder_.file("Landscape"), "in the way");
    EXPECT_THAT(sort().problem, testing::HasSubstr("Landscape cannot be made"));
}

}  // namespace
}  // namespace tavrin
