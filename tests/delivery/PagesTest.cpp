// Pages of results and of portraits: what stands in them, and that no file name can do anything there.
#include <atomic>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "core/files/Places.h"
#include "delivery/pages/ComparePage.h"
#include "delivery/pages/HtmlText.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class PagesTest : public testing::Test {
  protected:
    void SetUp() override {
        Places::current().setSharedFolder(folder_.file("data/Tavrin/"));
        fs::create_directories(Places::current().tempFilesFolder());
        fs::create_directories(out_);
    }
    void TearDown() override { Places::current().setSharedFolder(shared_); }
    void add(const std::string& name) { std::ofstream(fs::path(out_) / name) << "x"; }
    void add(int count) {
        for (int i = 0; i < count; ++i)
            add("p" + std::to_string(i) + ".jpg");
    }
    std::string page(int number) { return read((fs::path(out_) / reviewPageName(number)).string()); }
    static std::string read(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static int count(const std::string& text, const std::string& word) {
        int found = 0;
        for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
            ++found;
        return found;
    }

    test::TempFolder folder_;
    const std::string shared_ = Places::current().sharedFolder();
    const std::string out_ = folder_.file("out");
};

TEST_F(PagesTest, OneResultMakesThePageToTheLetter) {
    add("a.jpg");
    const WrittenPages written = setupReviewBatchOutput({out_, 1919});
    EXPECT_EQ(written.problem, "");
    EXPECT_EQ(written.count, 1);
    const std::string cell = "\"/><br/><a href=\"0\"><input type=\"button\" value=\"Select\" /></a></td>";
    EXPECT_EQ(page(1),
              "<html><head><script language=\"JavaScript\" type=\"text/javascript\">function gotoRow(){"
              "var rowLast=document.getElementById('rowlast');if(rowLast==null) return;"
              "var offset=-document.getElementById('rowlast').offsetTop*-1;window.scrollTo(0,offset)"
              "}</script></head><body onload=\"gotoRow();\">"
              "<div id=\"container\" style=\"position:relative;top:0px;overflow:auto;\"> <table border=3>"
              "<tr><td><img width=383 src=\"file:\\\\\\" +
                  out_ + "/a.jpg" + cell + "<td><img width=383 src=\"file:\\\\\\" + out_ + "/Thumbs/TQTQa.jpg" +
                  cell +
                  "</td></tr></table><table width='90%' height='30'><tr><td bgcolor='#999999'>"
                  "<font color='white' size='7'><b>Select Page:</b></body></html>");
}

TEST_F(PagesTest, ThirtyOneResultsMakeTwoPagesAndThirtyOneWithALinkTooMany) {
    add(31);
    EXPECT_EQ(setupReviewBatchOutput({out_, 1000}).count, 2);
    EXPECT_EQ(count(page(1), "<img "), 60);
    EXPECT_EQ(count(page(1), "<tr><td><img "), 15) << "two results in a row";
    EXPECT_EQ(count(page(2), "<img "), 2);
    EXPECT_EQ(count(page(2), "<a href=\"30\">"), 2) << "the index goes on";
    EXPECT_EQ(count(page(2), "/p9.jpg\""), 1) << "in the order of their names";
    EXPECT_EQ(count(page(1), "<a href='FilesInFolder1.htm'>[1]</a>"), 2) << "above and below";
    EXPECT_EQ(count(page(1), "<a href='FilesInFolder2.htm'>2</a>"), 2);
    EXPECT_EQ(count(page(2), "rowlast\">"), 0);
    fs::remove(fs::path(out_) / "p7.jpg");
    EXPECT_EQ(setupReviewBatchOutput({out_, 1000, 2}).count, 1);
    EXPECT_EQ(count(page(1), "<a href='FilesInFolder2.htm'>2</a>"), 2) << "a multiple of thirty";
    EXPECT_EQ(page(2), "") << "and no page of earlier behind it";
    setupReviewBatchOutput({out_, 1000, 1});
    EXPECT_EQ(count(page(1), "<tr><td id=\"rowlast\"><img "), 1);
}

TEST_F(PagesTest, ThePageThatIsWantedFirstStandsBeforeTheOthersAndWhatIsStoppedEnds) {
    add(100);
    std::atomic<bool> stop = false;
    int told = 0;
    const auto lookAndStop = [&](int first, const std::vector<std::string>& pictures) {
        ++told;
        EXPECT_EQ(first, 3);
        EXPECT_EQ(pictures.size(), 100u);
        EXPECT_EQ(count(page(3), "<a href=\"60\">"), 2);
        EXPECT_EQ(page(1) + page(2) + page(4), "");
        stop = true;
    };
    setupReviewBatchOutput({out_, 1000, 0, 3}, lookAndStop, &stop);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(page(1) + page(2) + page(4), "");
    EXPECT_EQ(setupReviewBatchOutput({out_, 1000, 0, 3}).count, 4);
    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(count(page(number), "<img "), number < 4 ? 60 : 20) << number;
    setupReviewBatchOutput({out_, 1000, 0, 99}, [](int first, const auto&) { EXPECT_EQ(first, 1); });
}

TEST_F(PagesTest, NamesOfFilesShowAndDoNothing) {
    const std::string evil = "\"><script>alert(1)<!-- '#?&\xc3\xbc\xf0\x9f\x98\x80.jpg";
    add(evil);
    add("\xff\xfe.png");
    setupReviewBatchOutput({out_, 1000});
    EXPECT_EQ(count(page(1), "<script"), 1) << "its own";
    EXPECT_EQ(count(page(1), "/%22%3E%3Cscript%3Ealert%281%29%3C%21--%20%27%23%3F%26%C3%BC%F0%9F%98%80.jpg\""), 1);
    EXPECT_EQ(count(page(1), "TQTQ%22%3E%3Cscript"), 1);
    EXPECT_EQ(count(page(1), "/%FF%FE.png\""), 1) << "the very bytes of the name";

    EXPECT_EQ(setupCompareFiles({out_, 1000}).problem, "");
    const std::string html = read(comparePagePath());
    EXPECT_EQ(count(html, "<script"), 1);
    EXPECT_EQ(count(html, "&#34;&#62;&#60;script&#62;alert(1)&#60;!-- &#39;#?&#38;&#252;&#128512;.jpg"), 1);
    for (const char byte : html)
        EXPECT_LT(static_cast<unsigned char>(byte), 0x80);  // so that no guess about the encoding is wrong
}

TEST_F(PagesTest, TheStripHasAThousandPicturesAndLeavesOutThoseWithPercent) {
    add(1003);
    add("100%.jpg");
    const WrittenPages written = setupCompareFiles({out_, 1001, 321});
    EXPECT_EQ(written.count, 1);
    const std::string html = read(comparePagePath());
    std::size_t index = 0;
    while (written.pictures[index].find('%') == std::string::npos)
        ++index;
    const int shown = index < 1000 ? 999 : 1000;
    EXPECT_EQ(count(html, "<img id='drag"), shown);
    EXPECT_EQ(count(html, "<img id='drag" + std::to_string(index) + "'"), 0) << "the numbers of the others stay";
    EXPECT_EQ(count(html, "i<1004;"), 1);
    EXPECT_EQ(count(html, ".scrollLeft=321;"), 1);
    EXPECT_EQ(count(html, "height:450px;width:900px;overflow-x: scroll;"), 1);
}

TEST_F(PagesTest, AFolderWithoutPicturesWritesNothingAndOneThatCannotBeWrittenIsTold) {
    EXPECT_EQ(setupReviewBatchOutput({out_, 1000}).count, 0);
    EXPECT_TRUE(fs::is_empty(out_));
    EXPECT_EQ(setupCompareFiles({folder_.file("gone"), 1000}).count, 0);
    EXPECT_EQ(read(comparePagePath()), "");
    add("a.jpg");
    fs::create_directories(fs::path(out_) / reviewPageName(1) / "in the way");
    EXPECT_NE(setupReviewBatchOutput({out_, 1000}).problem.find(reviewPageName(1)), std::string::npos);
}

}  // namespace
}  // namespace tavrin
