// The folder of portraits as the strip of the booth sees it.
#include <atomic>
#include <fstream>

#include "booth/Booth.h"
#include "booth/NewPortraits.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class NewPortraitsTest : public testing::Test {
  protected:
    NewPortraitsTest() { fs::create_directory(in_); }

    test::TempFolder folder_;
    const std::string in_ = folder_.file("in");
    std::atomic<int> changes_ = 0;
};

TEST_F(NewPortraitsTest, APortraitIsToldWhenItIsWholeAndNotBefore) {
    test::writeFile(in_ + "/old.jpg", "x");
    NewPortraits portraits(in_, [this] { ++changes_; });
    EXPECT_TRUE(test::comes([&] { return changes_ > 0; }));

    std::ofstream slow(in_ + "/slow.jpg");
    slow << "a part" << std::flush;
    EXPECT_TRUE(test::comes([&] { return !portraits.isWhole(in_ + "/slow.jpg"); }));
    const int before = changes_;
    slow << " and the rest";
    slow.close();
    EXPECT_TRUE(test::comes([&] { return changes_ > before && portraits.isWhole(in_ + "/slow.jpg"); }));

    test::writeFile(folder_.file("moved.jpg"), "x");
    const int then = changes_;
    fs::rename(folder_.file("moved.jpg"), in_ + "/moved.jpg");
    EXPECT_TRUE(test::comes([&] { return changes_ > then; }));
    const int last = changes_;
    fs::remove(in_ + "/moved.jpg");
    EXPECT_TRUE(test::comes([&] { return changes_ > last; })) << "one that goes away";
}

TEST_F(NewPortraitsTest, AFolderMayGoAndComeBack) {
    NewPortraits portraits(in_, [this] { ++changes_; });
    test::writeFile(in_ + "/anna.jpg", "x");
    EXPECT_TRUE(test::comes([&] { return changes_ == 1; }));
    fs::rename(in_, folder_.file("away"));
    EXPECT_TRUE(test::comes([&] { return changes_ == 2; }));
    fs::rename(folder_.file("away"), in_);
    test::writeFile(in_ + "/ben.jpg", "x");
    EXPECT_TRUE(test::comes([&] { return changes_ >= 3 && portraits.isWhole(in_ + "/ben.jpg"); }));
}

}  // namespace
}  // namespace tavrin
