// What a booth counts, whatever ends it.
#include <filesystem>
#include <gmock/gmock.h>
#include <thread>

#include <QDate>

#include "booth/EventCounts.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class EventCountsTest : public testing::Test {
  protected:
    EventCountsTest() { fs::create_directories(hidden_); }

    test::TempFolder folder_;
    const std::string out_ = folder_.file(""), hidden_ = folder_.file(".tavrin-booth");
};

TEST_F(EventCountsTest, WhatWasToldTwiceCountsOnceAndOthersCountToo) {
    EventCounts counts(out_, "here");
    counts.addPicture("anna_1");
    counts.addPicture("anna_1");  // by the start after a kill
    counts.addPrints("anna_1", 2);
    counts.addPicture("ben_2");
    counts.addMail("ben_2");
    EventCounts other(out_, "there");
    other.addPrints("anna_1", 2);
    other.addPicture("cleo_3");
    other.addFailure("dora_4");
    counts.refresh();
    for (const EventTally& tally : {counts.today(), other.today()}) {
        EXPECT_EQ(tally.pictures, 3);
        EXPECT_EQ(tally.prints, 2);
        EXPECT_EQ(tally.mails, 1);
        EXPECT_EQ(tally.failed, 1);
    }
    EXPECT_EQ(counts.csv(), "day,pictures,prints,mails,failed\n" +
                                QDate::currentDate().toString(Qt::ISODate).toStdString() + ",3,2,1,1\n");
}

TEST_F(EventCountsTest, LinesThatAKillToreAndOldDaysAreRead) {
    test::writeFile(hidden_ + "/counts-old-1.jsonl",
                    "\n{\"at\":1700000000000,\"number\":1,\"ticket\":\"a_1\",\"what\":\"picture\"}\n"
                    "\n{\"at\":1700000000000,\"number\":3,\"ticket\":\"a_1\",\"what\":\"prints\"}\n"
                    "\n{\"at\":17000000000");
    EventCounts counts(out_, "old");
    counts.addPicture("b_2");
    EXPECT_THAT(counts.csv(), testing::MatchesRegex("day.*\n2023-11-1[45],1,3,0,0\n20[^\n]*,1,0,0,0\n"));
    std::ofstream(hidden_ + "/counts-old-1.jsonl", std::ios::app)
        << "\n{\"at\":1700000000000,\"number\":1,\"ticket\":\"c_3\",\"what\":\"picture\"}\n";
    counts.refresh();
    EXPECT_THAT(counts.csv(), testing::HasSubstr(",2,3,0,0\n")) << "what comes behind a torn line begins anew";
}

TEST_F(EventCountsTest, ThePackCountsDownFromItsLastRefill) {
    EventCounts counts(out_, "here");
    counts.addPrints("a_1", 4);
    EXPECT_EQ(counts.printsLeft(), -1);
    std::this_thread::sleep_for(std::chrono::milliseconds(2));  // the clock of the lines
    EventCounts(out_, "cli").refill(10);
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    counts.addPrints("b_2", 3);
    EXPECT_EQ(counts.printsLeft(), 7);
    counts.addPrints("c_3", 9);
    EXPECT_EQ(counts.printsLeft(), 0);
    counts.refill(-1);
    EXPECT_EQ(counts.printsLeft(), -1);
}

TEST_F(EventCountsTest, AGuestGetsOneCopyAtLeastAndNoMoreThanTheLimit) {
    EXPECT_EQ(allowedCopies(0, 0), 1);
    EXPECT_EQ(allowedCopies(7, 0), 7);
    EXPECT_EQ(allowedCopies(7, 3), 3);
    EXPECT_EQ(allowedCopies(-1, 3), 1);
}

}  // namespace
}  // namespace tavrin
