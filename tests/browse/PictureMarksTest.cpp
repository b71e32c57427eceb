#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "browse/PictureMarks.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using enum PictureMark;

struct PictureMarksTest : testing::Test {
    std::string onlyFile() const {
        std::string found;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.file("marks"))) {
            EXPECT_EQ(found, "");
            found = entry.path().string();
        }
        return found;
    }
    test::TempFolder folder_;
    PictureMarks marks_{folder_.file("marks")};
};

TEST_F(PictureMarksTest, AreThereInTheNextProgramWithoutBeingSaved) {
    const std::string odd = "/p/M\xf6we\\n and\nmore.jpg";
    EXPECT_EQ(marks_.mark("/p/a.jpg"), none);
    EXPECT_EQ(marks_.setMark("/p/a.jpg", keep), "");
    EXPECT_EQ(marks_.setMark(odd, reject), "");
    EXPECT_EQ(marks_.setMark("/p/b.jpg", lookAgain), "");
    EXPECT_EQ(marks_.setMark("/p/b.jpg", none), "");
    EXPECT_EQ(marks_.setMark("/other/a.jpg", lookAgain), "");
    PictureMarks next(folder_.file("marks"));
    for (PictureMarks* marks : {&marks_, &next}) {
        EXPECT_EQ(marks->mark("/p/a.jpg"), keep);
        EXPECT_EQ(marks->mark(odd), reject);
        EXPECT_EQ(marks->mark("/p/b.jpg"), none);
        EXPECT_EQ(marks->mark("/other/a.jpg"), lookAgain);
        EXPECT_EQ(marks->mark("/p/more.jpg"), none);
    }
}

TEST_F(PictureMarksTest, OfTwoProgramsAreBothKept) {
    PictureMarks other(folder_.file("marks"));
    EXPECT_EQ(other.mark("/p/a.jpg"), none);
    marks_.setMark("/p/a.jpg", keep);
    other.setMark("/p/b.jpg", reject);
    PictureMarks next(folder_.file("marks"));
    EXPECT_EQ(next.mark("/p/a.jpg"), keep);
    EXPECT_EQ(next.mark("/p/b.jpg"), reject);
}

TEST_F(PictureMarksTest, ATornLineCostsOnlyItself) {
    marks_.setMark("/p/a.jpg", keep);
    std::ofstream(onlyFile(), std::ios::app) << "what\nk \nz x.jpg\nr a.jp";
    PictureMarks next(folder_.file("marks"));
    EXPECT_EQ(next.mark("/p/a.jpg"), keep);
    EXPECT_EQ(next.mark("/p/x.jpg"), none);
    // What is written behind it is no part of it.
    next.setMark("/p/b.jpg", keep);
    PictureMarks last(folder_.file("marks"));
    EXPECT_EQ(last.mark("/p/a.jpg"), keep);
    EXPECT_EQ(last.mark("/p/b.jpg"), keep);
}

TEST_F(PictureMarksTest, AFileOfManyChangesIsWrittenAnew) {
    for (int i = 0; i < 3000; ++i)
        marks_.setMark("/p/" + std::to_string(i % 7) + ".jpg", i % 2 ? keep : reject);
    const auto before = std::filesystem::file_size(onlyFile());
    PictureMarks next(folder_.file("marks"));
    EXPECT_EQ(next.mark("/p/3.jpg"), marks_.mark("/p/3.jpg"));
    EXPECT_LT(std::filesystem::file_size(onlyFile()), before / 100);
    PictureMarks last(folder_.file("marks"));
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(last.mark("/p/" + std::to_string(i) + ".jpg"), marks_.mark("/p/" + std::to_string(i) + ".jpg"));
}

TEST_F(PictureMarksTest, ThatCannotBeWrittenAreToldAndHold) {
    test::writeFile(folder_.file("file"), "");
    PictureMarks nowhere(folder_.file("file/marks"));
    const std::string problem = nowhere.setMark("/p/a.jpg", keep);
    EXPECT_NE(problem.find("a.jpg"), std::string::npos) << problem;
    EXPECT_EQ(nowhere.mark("/p/a.jpg"), keep);
}

}  // namespace
}  // namespace tavrin
