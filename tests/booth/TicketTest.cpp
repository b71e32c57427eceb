// Presses at the booth: the tickets that they leave, and the words when they cannot.
#include <atomic>
#include <gmock/gmock.h>
#include <set>

#include <QDateTime>

#include "booth/Booth.h"
#include "formats/ImageState.h"
#include "support/SmallDisk.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using TicketTest = test::BoothTest;

TEST_F(TicketTest, TellsTheTimeInItsNameAndHasTheWholeRecipe) {
    EXPECT_EQ(ticketStem("/event", "/in/Anna B.v2.jpeg", 51234), "/event/Anna B.v2_51234");
    const long long begin = QDateTime::fromString("2010-01-01T04:00:00+09:00", Qt::ISODate).toMSecsSinceEpoch();
    const auto seconds = static_cast<double>(QDateTime::currentMSecsSinceEpoch() - begin) / 1000.0;
    EXPECT_NEAR(static_cast<double>(eventTicks()), 100 * seconds, 6000);

    const std::string stem = press(kEventSaveAndPrint, 3, "anna@example.org");
    EXPECT_TRUE(stem.starts_with("anna_"));
    SystemInfo info;
    ASSERT_EQ(LoadImageStateFromXML(info, out_ + "/" + stem + ".qlx", kLoadAll), "");
    EXPECT_EQ(info.iEventSaveMode, kEventSaveAndPrint);
    EXPECT_EQ(info.iEventPrintCount, 3);
    EXPECT_EQ(info.sEventEmail.load(), "anna@example.org");
    EXPECT_EQ(info.pForegroundBitmapInfo->sSourceImageFullPath.load(), portrait_);
    EXPECT_TRUE(leftovers().empty());
}

TEST_F(TicketTest, PressesInOneHundredthOfASecondGetNamesOfTheirOwn) {
    constexpr int kThreads = 4, kEach = 15;
    std::mutex mutex;
    std::set<std::string> stems;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&] {
            for (int k = 0; k < kEach; ++k) {
                const std::string stem = press();
                const std::lock_guard lock(mutex);
                stems.insert(stem);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(stems.size(), static_cast<std::size_t>(kThreads * kEach));
    for (const std::string& stem : stems) {
        SystemInfo info;
        EXPECT_EQ(LoadImageStateFromXML(info, out_ + "/" + stem + ".qlx", kLoadAll), "");
    }
}

TEST_F(TicketTest, TakesNoNameThatAPhotoHasSinceItWouldCountAsDone) {
    const long long now = eventTicks();
    for (long long ticks = now - 1; ticks < now + 6000; ++ticks)  // a minute
        test::writeFile(ticketStem(out_, portrait_, ticks) + (ticks % 2 ? ".Jpg" : ".TIFF"), "x");
    const std::string stem = press();
    EXPECT_EQ(std::stoll(stem.substr(5)), now + 6000);
}

TEST_F(TicketTest, AVeryLongNameOfAPortraitLeavesRoomForTheTicks) {
    const std::string longest = std::string(246, 'a') + "\xc3\xa4.png";
    fs::copy_file(portrait_, folder_.file(longest));
    portrait_ = folder_.file(longest);
    runOnce(setup());
    const std::string stem = press();
    runOnce(setup());
    EXPECT_TRUE(isMade(stem));
}

TEST_F(TicketTest, SaysWhyThereIsNone) {
    SystemInfo info;
    EXPECT_THAT(eventModeSaveNow(info).problem, testing::HasSubstr("no state files are saved"));
    info.oQLXInfo->bAutoQLXSave = true;
    EXPECT_EQ(eventModeSaveNow(info).problem, "There is no portrait to save.");
    setForeground(info, portrait_);
    EXPECT_EQ(eventModeSaveNow(info).problem, "No folder is chosen for the event's pictures.");
    info.oQLXInfo->sEventModeOutputFolder = folder_.file("gone");
    EXPECT_EQ(eventModeSaveNow(info).problem, "The output folder " + folder_.file("gone") + "/ is not there.");
    info.oQLXInfo->sEventModeOutputFolder = out_;
    EXPECT_TRUE(eventModeSaveNow(info).isDone());
    {
        const test::SmallDisk full(1000);
        const Press press = eventModeSaveNow(info);
        EXPECT_FALSE(press.isDone());
        EXPECT_NE(press.problem, "");
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(out_), {}), 2) << "the one ticket, and the hidden folder";
    EXPECT_TRUE(leftovers().empty());
}

TEST_F(TicketTest, GoesNowhereElseWhileTheFoldersDiskIsNotConnected) {
    press();
    fs::rename(out_, folder_.file("disk"));
    fs::create_directory(out_);  // where the disk was mounted
    SystemInfo info;
    setForeground(info, portrait_);
    EXPECT_THAT(writeTicket(info, out_).problem, testing::HasSubstr("a disk may not be connected"));
    EXPECT_TRUE(fs::is_empty(out_));
    fs::remove(out_);
    fs::rename(folder_.file("disk"), out_);
    EXPECT_TRUE(writeTicket(info, out_).isDone());
}

}  // namespace
}  // namespace tavrin
