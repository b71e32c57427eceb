#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <vector>

#include "formats/SafeFile.h"
#include "support/Files.h"
#include "support/SmallDisk.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::readFile;
using test::writeFile;
namespace fs = std::filesystem;

class SafeFileTest : public testing::Test {
  protected:
    bool save(const std::string& text) {
        SafeSave save;
        save.begin(path, Readers::everyone);
        save.write(text);
        return save.commit();
    }
    std::size_t filesThere() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
    }
    static unsigned mode(const std::string& file) {
        struct stat info {};
        return stat(file.c_str(), &info) == 0 ? info.st_mode & 0777U : 0U;
    }

    test::TempFolder folder;
    const std::string path = folder.file("a.xml"), temporary = path + "tmp", aside = path + ".set-aside";
};

// What a program leaves that was killed between making its lock and writing its name into it.
TEST_F(SafeFileTest, AnEmptyLockHoldsNobodyUpForLong) {
    writeFile(path + ".lock", "");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(save("new"));
    EXPECT_EQ(readFile(path), "new");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
}

TEST_F(SafeFileTest, OldFileIsAsideWhileTheNewOneIsOnItsWay) {
    ASSERT_TRUE(save("old"));
    SafeSave save;
    ASSERT_TRUE(save.begin(path, Readers::everyone)) << save.problem();
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::exists(temporary));
    EXPECT_EQ(readFile(aside), "old");
    EXPECT_EQ(readSafeFile(path, 100).bytes, "old");
    EXPECT_FALSE(fs::exists(path)) << "a reader does not meddle with a save under way";
    save.write("new");
    ASSERT_TRUE(save.commit());
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(SafeFileTest, SaveThatIsGivenUpOrFailsPutsTheOldFileBack) {
    ASSERT_TRUE(save("old"));
    {
        SafeSave save;
        ASSERT_TRUE(save.begin(path, Readers::everyone));
        save.write("half");
    }
    EXPECT_EQ(readFile(path), "old");

    {
        const test::SmallDisk disk(100'000);
        EXPECT_FALSE(save(std::string(1'000'000, 'x')));
    }
    EXPECT_EQ(readFile(path), "old");
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(SafeFileTest, WhatAKillLeavesBehindIsSettled) {
    writeFile(aside, "old");
    writeFile(temporary, "half of the n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(readSafeFile(path, 100).bytes, "old");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::HasSubstr(path + " is missing"));
    EXPECT_EQ(readFile(path), "old") << "it comes back by itself";
    EXPECT_FALSE(fs::exists(aside));

    writeFile(aside, "older");  // killed after the new file had arrived
    EXPECT_EQ(readSafeFile(path, 100).bytes, "old");
    EXPECT_TRUE(save("new"));
    EXPECT_EQ(filesThere(), 1U);

    fs::rename(path, aside);  // a save finds the file aside as well, and fails
    SafeSave failing;
    ASSERT_TRUE(failing.begin(path, Readers::everyone));
    failing.giveUp();
    EXPECT_EQ(readFile(path), "new");
}

TEST_F(SafeFileTest, NobodyElseReadsAPrivateFileAtAnyMoment) {
    writeFile(path, "old");
    writeFile(temporary, "leftover that anybody may read");
    fs::permissions(path, fs::perms(0644));
    fs::permissions(temporary, fs::perms(0666));
    const mode_t mask = umask(0);
    SafeSave save;
    ASSERT_TRUE(save.begin(path, Readers::ownerOnly));
    umask(mask);
    save.write("secret");
    EXPECT_EQ(mode(temporary), 0600U);
    EXPECT_EQ(mode(aside), 0600U);
    ASSERT_TRUE(save.commit());
    EXPECT_EQ(mode(path), 0600U);
}

TEST_F(SafeFileTest, AnExistingFileHandsOnItsPermissions) {
    ASSERT_TRUE(save("old"));
    fs::permissions(path, fs::perms(0640));
    ASSERT_TRUE(save("new"));
    EXPECT_EQ(mode(path), 0640U);
}

TEST_F(SafeFileTest, RefusesFoldersAndMissingFolders) {
    fs::create_directory(path);
    writeFile(path + "/inside", "x");
    EXPECT_FALSE(save("new"));
    EXPECT_TRUE(fs::exists(path + "/inside"));
    EXPECT_NE(readSafeFile(path, 100).problem, "");
    SafeSave elsewhere;
    EXPECT_FALSE(elsewhere.begin(folder.file("no/such/a.xml"), Readers::everyone));
    EXPECT_NE(elsewhere.problem(), "");
    EXPECT_FALSE(elsewhere.begin("", Readers::everyone));
    writeFile(folder.file("big"), std::string(101, 'x'));
    EXPECT_NE(readSafeFile(folder.file("big"), 100).problem, "");
}

TEST_F(SafeFileTest, SaversAndReadersAtOnceNeverMeetHalfAFile) {
    const auto text = [](int who) { return std::string(50'000, static_cast<char>('a' + who)); };
    ASSERT_TRUE(save(text(0)));
    testing::internal::CaptureStderr();  // readers tell of the file set aside
    std::vector<std::thread> savers;
    std::atomic<int> failures = 0, running = 2;
    for (int who = 0; who < 2; ++who) {
        savers.emplace_back([&, who] {
            for (int i = 0; i < 15; ++i)
                failures += save(text(who)) ? 0 : 1;
            --running;
        });
    }
    while (running > 0) {
        const FileBytes file = readSafeFile(path, 100'000);
        if (file.bytes != text(0) && file.bytes != text(1)) ++failures;
    }
    for (std::thread& saver : savers)
        saver.join();
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(filesThere(), 1U);
}

}  // namespace
}  // namespace tavrin
