// The output size of a state file, on machines whose lists differ.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/ImageState.h"
#include "session/OutputSizes.h"
#include "session/States.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using testing::HasSubstr;

class StatesTest : public testing::Test {
  protected:
    /// A state file whose size is told in ways that need not agree.
    std::string stateOf(const std::string& name, int index, double width, double height, int dpi) {
        SystemInfo info;
        info.sImageSizeName = name;
        info.iSelecteImageSize = index;
        info.dOutputImageWidthInInches = width;
        info.dOutputImageHeightInInches = height;
        info.iOutputImageDPI = dpi;
        info.iOutputPixelWidth = 77777;
        const std::string path = folder_.file("a.qlx");
        EXPECT_EQ(saveImageStateToXML(info, path), "");
        return path;
    }
    /// The pixels of the size that a load and a change of the size give, "" where the file's cannot be had.
    std::string sizeAfter(const std::string& path) {
        const LoadedState loaded = loadState(*info_, path);
        EXPECT_EQ(loaded.problem, "");
        problem_ = loaded.sizeProblem;
        if (!problem_.empty()) return "";
        EXPECT_EQ(useChosenSize(*info_), "");
        return std::to_string(info_->iOutputPixelWidth) + "x" + std::to_string(info_->iOutputPixelHeight) + " " +
               std::to_string(info_->iSelecteImageSize);
    }
    bool asksForSize(const std::string& path) {
        EXPECT_EQ(loadState(*info_, path).problem, "");
        return info_->bChangeImageSize;
    }
    void SetUp() override {
        test::addSize(*info_, "small", 2, 3, 10);
        test::addSize(*info_, "large", 4, 6, 10);
        test::addSize(*info_, "small", 2, 3, 20);
        chooseSizeByName(*info_, "test");
    }

    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(60, 40, 40);
    std::string problem_;
};

TEST_F(StatesTest, TheNameCountsThenTheInchesThenTheSizeIsThePicturesOwn) {
    EXPECT_EQ(sizeAfter(stateOf("small", 2, 9, 9, 9)), "40x60 3") << "the last of that name";
    EXPECT_EQ(sizeAfter(stateOf("other", 0, 4, 6, 10)), "40x60 2");
    EXPECT_EQ(info_->sImageSizeName.load(), "large");
    EXPECT_EQ(sizeAfter(stateOf("other", 2, 4, 6, 11)), "44x66 -1");
    EXPECT_EQ(info_->sImageSizeName.load(), "other");
    EXPECT_EQ(sizeAfter(stateOf("old", 2, 0, 0, 0)), "40x60 2") << "a file that tells no inches";
}

TEST_F(StatesTest, OwnSizesEnterNoListAndComeBack) {
    for (int dpi = 100; dpi < 250; ++dpi)
        ASSERT_NE(sizeAfter(stateOf("mine", 52, 1.0 / 3.0, 0.5, dpi)), "");
    EXPECT_EQ(info_->iImageSizeCount(), 4);
    ASSERT_EQ(saveImageStateToXML(*info_, folder_.file("own.qlx")), "");
    ASSERT_TRUE(chooseSizeByName(*info_, "test") && useChosenSize(*info_).empty());
    EXPECT_TRUE(asksForSize(folder_.file("own.qlx")));
    EXPECT_EQ(sizeAfter(folder_.file("own.qlx")), "83x125 -1");
    EXPECT_FALSE(asksForSize(folder_.file("own.qlx")));
    EXPECT_TRUE(asksForSize(stateOf("mine", -1, 1.0 / 3.0, 0.5, 250))) << "of the same name";
}

TEST_F(StatesTest, ASizeThatCannotBeHadLeavesTheOldOneAndIsTold) {
    const std::int32_t before = info_->iSelecteImageSize;
    EXPECT_EQ(sizeAfter(stateOf("nobody's", 99, 0, 0, 0)), "");
    EXPECT_THAT(problem_, HasSubstr("a.qlx: The output size \"nobody's\" is not in the list"));
    EXPECT_EQ(sizeAfter(stateOf("wall", 99, 600, 600, 1)), "");
    EXPECT_THAT(problem_, HasSubstr("preview would have 0 dots an inch"));
    EXPECT_EQ(sizeAfter(stateOf("huge", 99, 1e6, 1e6, 300)), "");
    EXPECT_EQ(info_->iSelecteImageSize, before);
    EXPECT_EQ(info_->sImageSizeName.load(), "test");
    EXPECT_EQ(info_->iOutputPixelWidth, 60);
    EXPECT_EQ(info_->dOutputImageWidthInInches, 1.5);
    // Nonsense in the height, which the settings leave out, refuses no file.
    const std::string path = stateOf("small", 2, 9, 9, 9);
    test::writeFile(path, test::replaced(test::readFile(path), "HeightInInches>9.000000", "HeightInInches>tall"));
    EXPECT_EQ(sizeAfter(path), "40x60 3");
}

}  // namespace
}  // namespace tavrin
