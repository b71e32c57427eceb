#include <gtest/gtest.h>

#include "folders/BatchListFile.h"
#include "folders/ListText.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

class BatchListTest : public testing::Test {
  protected:
    ParsedBatchList parse(const std::string& text, std::size_t limit = 500) {
        return parseBatchList(text, defaults_, number_, limit,
                              [this](const std::string& folder) { folders_.push_back(folder); });
    }
    BatchElement job(const std::string& lines) {
        const ParsedBatchList list = parse("<image>\n" + lines + "\n</image>\n");
        EXPECT_EQ(list.jobs.size(), 1u);
        return list.jobs.empty() ? BatchElement() : list.jobs[0];
    }

    BatchListDefaults defaults_ = {"/now/f.jpg", "/now/b.png", "/out", 3, kCombineNames, true, false, true, ""};
    int number_ = 7;
    std::vector<std::string> folders_;
};

TEST_F(BatchListTest, AJobWithoutLinesTakesWhatIsInForce) {
    const BatchElement empty = job("");
    EXPECT_EQ(empty.sForegroundFile, "/now/f.jpg");
    EXPECT_EQ(empty.sBackgroundFile, "/now/b.png");
    EXPECT_EQ(empty.sQLXFile, "/now/b.png");
    EXPECT_EQ(empty.iOutputFileType, 3);
    EXPECT_TRUE(empty.OutputTransparency && !empty.NoGreenScreenProcessing && empty.BlueScreenProcessing);
    EXPECT_EQ(empty.sOutputFile, "/out/");  // no stem at all
}

TEST_F(BatchListTest, LinesSetOneValueEach) {
    const BatchElement full = job(
        "  before <qlxfile>Soft.Focus.qlx</qlxfile> behind\n<foreground>/p/Anna B.jpg</foreground>\n"
        "<background>/q/sea.png</background>\n<outputtransparency>Yes</outputtransparency>\n"
        "<nogreenscreenprocessing>yes</nogreenscreenprocessing>\n<bluescreenprocessing>NO</bluescreenprocessing>\n"
        "<outputfiletype>outputtiff</outputfiletype>\n<unknown>x</unknown>\n> turned <\n<open\n</foreground>\n"
        "<foreground>no end\n<a><b>nested</b></a>");
    EXPECT_EQ(full.sQLXFile, "Soft.Focus.qlx");
    EXPECT_EQ(full.sForegroundFile, "/p/Anna B.jpg");
    EXPECT_TRUE(!full.OutputTransparency && full.NoGreenScreenProcessing && !full.BlueScreenProcessing);
    EXPECT_EQ(full.iOutputFileType, 3);
    EXPECT_EQ(full.sOutputFile, "/out/Anna BseaSoft.Focus");
    EXPECT_EQ(job("<outputfiletype>gif</outputfiletype>").iOutputFileType, 1);
    EXPECT_EQ(job("<outputfiletype>outputpng</outputfiletype>").iOutputFileType, 2);
}

TEST_F(BatchListTest, NamesByStyle) {
    const std::string files = "<foreground>/p/anna.jpg</foreground>\n<background>/q/sea.png</background>\n";
    EXPECT_EQ(job(files + "<outputnamestyle>numberfiles</outputnamestyle>").sOutputFile, "/out/BatchFile7");
    EXPECT_EQ(number_, 8);
    EXPECT_EQ(job(files + "<outputnamestyle>createsubfolders</outputnamestyle>").sOutputFile, "/out/sea/anna");
    EXPECT_EQ(job("<outputnamestyle>createsubfolders</outputnamestyle>").sOutputFile, "/out/b/f");
    EXPECT_EQ(folders_, (std::vector<std::string>{"/out/sea", "/out/b"}));
    folders_.clear();
    EXPECT_EQ(
        job("<outputfolder>/x/y.z/name.jpg</outputfolder>\n<outputnamestyle>outputfolderhasname</outputnamestyle>")
            .sOutputFile,
        "/x/y.z/name");
    EXPECT_EQ(job("<outputfolder>/x/plain</outputfolder>\n" + files).sOutputFile, "/x/plain/annasea");
    EXPECT_EQ(folders_, (std::vector<std::string>{"/x/y.z", "/x/plain"}));
    defaults_.outputStyle = kNumberFiles;
    EXPECT_EQ(job("").sOutputFile, "/out/BatchFile8");
    EXPECT_EQ(job("<outputnamestyle>other</outputnamestyle>\n" + files).sOutputFile, "/out/annasea");
}

TEST_F(BatchListTest, LinesOutsideJobsAndUnclosedJobsDoNotCount) {
    const ParsedBatchList list = parse(
        "<foreground>/x.jpg</foreground>\n<image>\n<foreground>/lost.jpg</foreground>\n<image>\n</image>\n"
        "</image>\n<image> <!-- third --> \n</image> end\n<image>\n<foreground>/y.jpg</foreground>");
    ASSERT_EQ(list.jobs.size(), 2u);
    EXPECT_EQ(list.jobs[0].sForegroundFile, "/now/f.jpg");
    EXPECT_EQ(parse("<image>\n</image>\n<image>\n</image>\n<image>\n</image>", 1).refused, 2);
    EXPECT_TRUE(parse("").jobs.empty());
}

TEST_F(BatchListTest, TheTextIsUtf8OrNothing) {
    const test::TempFolder folder;
    test::writeFile(folder.file("a.xml"), "<foreground>/\xC3\xA4.jpg</foreground>");
    EXPECT_EQ(readListText(folder.file("a.xml")).text, "<foreground>/\xC3\xA4.jpg</foreground>");
    test::writeFile(folder.file("b.xml"), "<image>\n\xE4\n</image>");
    EXPECT_EQ(readListText(folder.file("b.xml")).text, "");
    EXPECT_EQ(readListText(folder.file("missing.xml")).text, "");
}

TEST_F(BatchListTest, ElementsAreEqualByWhatTheyReadAndWrite) {
    BatchElement one = job("<foreground>/p/anna.jpg</foreground>"), two;
    two.CopyElement(one);
    EXPECT_TRUE(one.Equals(two));
    EXPECT_EQ(two.iOutputFileType, 0);
    two.iOutputFileType = 2;
    two.OutputTransparency = !two.OutputTransparency;
    EXPECT_TRUE(one.Equals(two));
    two.sOutputFile += "x";
    EXPECT_FALSE(one.Equals(two));
}

}  // namespace
}  // namespace tavrin
