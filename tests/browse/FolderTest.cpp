// What lies in a folder of pictures, and what is read ahead of it.
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

#include "browse/FolderFollower.h"
#include "browse/ReadAhead.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using namespace std::chrono_literals;

class FolderFollowerTest : public testing::Test {
  protected:
    /// The names of the list that comes next and passes.
    bool waitFor(const std::function<bool(const FolderPictures&)>& passes) {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, 10s, [&] { return told_ && passes(*told_); });
    }
    bool waitForNames(const std::vector<std::string>& names) {
        return waitFor([&](const FolderPictures& pictures) {
            std::vector<std::string> found;
            for (const std::string& path : pictures.paths)
                found.push_back(std::filesystem::path(path).lexically_relative(folder_.path()).string());
            return found == names;
        });
    }
    void touch(const std::string& name) { test::writeFile(folder_.file(name), "x"); }

    test::TempFolder folder_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<FolderPictures> told_;
    int lists_ = 0;
    FolderFollower follower_{[this](FolderPictures pictures) {
        std::lock_guard lock(mutex_);
        told_ = std::move(pictures);
        ++lists_;
        changed_.notify_all();
    }};
};

TEST_F(FolderFollowerTest, ListsPicturesAndWhatBecomesOfThem) {
    for (const char* name : {"b.JPG", "A.png", "c.nef", "note.txt", ".hidden.jpg", "d"})
        touch(name);
    follower_.follow(folder_.path().string());
    EXPECT_TRUE(waitForNames({"A.png", "b.JPG", "c.nef"}));
    touch("aa.tif");
    EXPECT_TRUE(waitForNames({"A.png", "aa.tif", "b.JPG", "c.nef"}));
    std::filesystem::remove(folder_.file("b.JPG"));
    std::filesystem::rename(folder_.file("c.nef"), folder_.file("0.nef"));
    EXPECT_TRUE(waitForNames({"0.nef", "A.png", "aa.tif"}));
    const int before = lists_;
    touch("A.png");  // the same name with other bytes
    EXPECT_TRUE(waitFor([&](const FolderPictures&) { return lists_ > before; }));
    std::filesystem::create_directory(folder_.file("sub"));
    touch("sub/x.jpg");
    follower_.follow(folder_.file("sub"));
    EXPECT_TRUE(waitForNames({"sub/x.jpg"}));
}

TEST_F(FolderFollowerTest, TellsAFolderThatCannotBeReadAndNoticesWhenItComes) {
    follower_.follow(folder_.file("later"));
    EXPECT_TRUE(waitFor([&](const FolderPictures& pictures) {
        return pictures.problem.find(folder_.file("later")) != std::string::npos;
    }));
    std::filesystem::create_directory(folder_.file("later"));
    touch("later/x.jpg");
    EXPECT_TRUE(waitForNames({"later/x.jpg"}));
}

class ReadAheadTest : public testing::Test {
  protected:
    std::string make(const std::string& name, unsigned seed) {
        return test::savePng(test::noisePicture(64, 48, seed), folder_.file(name));
    }
    bool waitFor(const std::string& path) {
        for (int i = 0; i < 1000 && !ahead_.has(path); ++i)
            std::this_thread::sleep_for(10ms);
        return ahead_.has(path);
    }
    test::TempFolder folder_;
    ReadAhead ahead_;
};

TEST_F(ReadAheadTest, HandsOutTheFileAsItStands) {
    const std::string a = make("a.png", 1), b = make("b.png", 2);
    EXPECT_FALSE(ahead_.has(a));
    ahead_.want({a, b});
    ASSERT_TRUE(waitFor(b));
    const QImage read = ahead_.read(a).pixels;
    EXPECT_EQ(read, readPicture(a).pixels);
    EXPECT_EQ(ahead_.read(a).pixels.constBits(), read.constBits()) << "decoded once";
    make("a.png", 3);
    std::filesystem::last_write_time(a, std::filesystem::last_write_time(a) + 2s);
    EXPECT_EQ(ahead_.read(a).pixels, readPicture(a).pixels);
    EXPECT_NE(ahead_.read(a).pixels, read);
    std::filesystem::remove(b);
    EXPECT_FALSE(ahead_.read(b).error.empty());
}

TEST_F(ReadAheadTest, RemembersWhatWasAskedForAndForgetsWhatIsNotWanted) {
    const std::string a = make("a.png", 1), b = make("b.png", 2), broken = folder_.file("c.png");
    test::writeFile(broken, "no picture");
    const QImage shown = ahead_.read(a).pixels;
    ahead_.want({a, broken, b});  // the broken one holds nothing up
    ASSERT_TRUE(waitFor(b));
    EXPECT_EQ(ahead_.read(a).pixels.constBits(), shown.constBits()) << "not decoded a second time";
    EXPECT_EQ(ahead_.read(broken).error, readPicture(broken).error);
    ahead_.want({b});
    EXPECT_FALSE(ahead_.has(a));
    EXPECT_TRUE(ahead_.has(b));
}

}  // namespace
}  // namespace tavrin
