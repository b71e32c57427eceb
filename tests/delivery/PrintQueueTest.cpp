// Sheets on their way to a printer: each is printed once, whatever ends the program or the line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLockFile>

#include "delivery/print/PrintMe.h"
#include "delivery/print/PrintRunner.h"
#include "support/FakePrinters.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Stage = QueuedSheet::Stage;
using Fault = test::PrintRoom::Fault;
using News = JobNews::State;

class PrintQueueTest : public testing::Test {
  protected:
    PrintOrder order(int copies = 1) const {
        PrintOrder order;
        order.plan.page.sPageTitle = "Pair";
        order.plan.page.iPageWidth = order.plan.page.iPageHeight = 400;
        PrinterPageImage slot;
        slot.iWidth = slot.iHeight = 100;
        order.plan.page.oPrinterPageImages = {slot, slot};
        order.plan.paper = paperOf("A4");
        order.printer = "studio";
        order.copies = copies;
        return order;
    }
    std::string queueOne() {
        std::vector<std::string> ids;
        EXPECT_EQ(queueSheets(queue_, order(), {test::noisePicture(40, 60, 3), "", "/home/x/anna.jpg"}, ids), "");
        return ids.empty() ? "" : ids.front();
    }
    Stage stageOf(const std::string& id) const { return queue_.sheet(id).stage; }

    test::TempFolder folder_;
    PrintQueue queue_{folder_.file("PrintQueue/")};
    test::PrintRoom room_;
    test::FakePrinters printers_{room_};
    PrintRunner runner_{queue_, printers_};
};

TEST_F(PrintQueueTest, CopiesAreJobsOfTheirOwnAndACountBelowOneBecomesOneAndStays) {
    SystemInfo info;
    std::vector<std::string> ids;
    const SheetPicture picture{test::noisePicture(40, 60, 3), "", "/home/x/anna.jpg"};
    for (const int wanted : {-3, 0, 1, 3}) {
        info.iEventPrintCount = wanted;
        ids.clear();
        EXPECT_EQ(PrintMe(info, order(9), picture, queue_, ids), "");
        EXPECT_EQ(ids.size(), static_cast<std::size_t>(std::max(1, wanted)));
        EXPECT_EQ(info.iEventPrintCount, std::max(1, wanted));
    }
    EXPECT_EQ(queue_.sheets().size(), 6u);
    for (const std::string& id : ids)
        EXPECT_EQ(runner_.send(id).stage, Stage::atPrinter);
    EXPECT_EQ(room_.printed, std::vector<std::string>(3, "anna.jpg, Pair on A4"));
    EXPECT_EQ(room_.made.size(), 3u);
}

TEST_F(PrintQueueTest, WhatWaitsIsKeptFromOthersAndFoundByTheNextStart) {
    room_.trouble = "The printer \"studio\" is stopped.";
    const std::string id = queueOne();
    EXPECT_EQ(runner_.send(id).reason, room_.trouble);
    EXPECT_TRUE(room_.made.empty());
    const auto others = fs::perms::group_all | fs::perms::others_all;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path()))
        EXPECT_EQ(entry.status().permissions() & others, fs::perms::none) << entry.path();
    const PrintQueue later(folder_.file("PrintQueue/"));
    ASSERT_EQ(later.sheets().size(), 1u);
    EXPECT_EQ(later.sheets()[0].reason, room_.trouble);
    EXPECT_NEAR(later.sheets()[0].job.paper.height, 842, 1);
    room_.trouble.clear();
    EXPECT_EQ(runner_.sendAgain(id).stage, Stage::atPrinter);
    EXPECT_TRUE(runner_.followUp().empty()) << "it is printed";
    EXPECT_TRUE(fs::is_empty(folder_.file("PrintQueue"))) << "and so is nobody's any more";
}

TEST_F(PrintQueueTest, AfterAKillEachSheetIsPrintedOrWaitsAndIsNeverSentBlindly) {
    const auto killedWith = [&](int number, bool hasDocument) {
        QueuedSheet sheet = queue_.sheet(queueOne());
        sheet.stage = Stage::sending;
        sheet.number = number;
        if (number > 0 && number < 100) room_.made[number] = hasDocument;
        EXPECT_EQ(queue_.note(sheet), "");
        return sheet.id;
    };
    const std::string unmade = killedWith(0, false), empty = killedWith(1, false), gone = killedWith(2, true),
                      forgotten = killedWith(100, false);
    EXPECT_EQ(runner_.send(forgotten).stage, Stage::sending) << "only what waits is sent";
    room_.answers = false;
    runner_.followUp();
    EXPECT_EQ(stageOf(unmade), Stage::waiting) << "nothing can have been printed";
    EXPECT_EQ(stageOf(gone), Stage::unsure) << "nobody can tell yet";
    room_.answers = true;
    runner_.followUp();
    EXPECT_EQ(stageOf(empty), Stage::waiting);
    EXPECT_THAT(room_.cancelled, testing::Contains(1)) << "so that it does not print an empty job";
    EXPECT_TRUE(queue_.sheet(gone).id.empty()) << "it was printed";
    EXPECT_EQ(stageOf(forgotten), Stage::unsure);
    EXPECT_NE(queue_.sheet(forgotten).reason.find("may have been printed"), std::string::npos);
    EXPECT_TRUE(room_.printed.empty());
    EXPECT_EQ(runner_.sendAgain(forgotten).stage, Stage::atPrinter) << "a person wants it";
    EXPECT_EQ(room_.printed.size(), 1u);
}

TEST_F(PrintQueueTest, ABrokenLineNeitherLosesASheetNorPrintsItTwice) {
    const std::string first = queueOne(), second = queueOne(), third = queueOne();
    room_.fault = Fault::whenMade;
    EXPECT_EQ(runner_.send(first).reason, "It takes no job.");
    room_.fault = Fault::beforeDocument;
    EXPECT_EQ(runner_.send(second).stage, Stage::waiting);
    EXPECT_EQ(queue_.sheet(second).reason, "The line broke.");
    room_.gives = false;
    EXPECT_EQ(runner_.send(queueOne()).stage, Stage::unsure) << "its document may still arrive";
    EXPECT_EQ(runner_.discard(queue_.sheets().back().id), "");
    room_.gives = true;
    room_.fault = Fault::afterDocument;
    EXPECT_TRUE(runner_.send(third).id.empty()) << "the printer knows that it was printed";
    room_.fault = Fault::none;
    for (const QueuedSheet& sheet : queue_.sheets())
        runner_.sendAgain(sheet.id);
    EXPECT_TRUE(runner_.followUp().empty());
    EXPECT_EQ(room_.printed.size(), 3u);
}

TEST_F(PrintQueueTest, WhatIsAtThePrinterIsTakenBackBeforeItIsSentAgainOrDiscarded) {
    room_.jobs = News::waiting;
    room_.reason = "out of paper";
    const std::string first = queueOne(), second = queueOne();
    runner_.send(first);
    runner_.send(second);
    EXPECT_NE(runner_.followUp().at(0).reason.find("out of paper"), std::string::npos);
    EXPECT_EQ(runner_.sendAgain(first).stage, Stage::atPrinter);
    EXPECT_EQ(room_.cancelled, std::vector<int>{1});
    EXPECT_EQ(runner_.discard(second), "");
    EXPECT_EQ(room_.cancelled, (std::vector<int>{1, 2}));
    EXPECT_EQ(queue_.sheets().size(), 1u);
    room_.jobs = News::givenUp;
    EXPECT_EQ(runner_.followUp().at(0).stage, Stage::waiting) << "to be sent again";
    room_.answers = false;
    EXPECT_EQ(runner_.sendAgain(first).reason, "Nobody answers.");
}

TEST_F(PrintQueueTest, AProgramLeavesASheetAloneThatAnotherOneWorksWith) {
    const std::string id = queueOne();
    const auto other = queue_.hold(id);
    ASSERT_TRUE(other);
    EXPECT_NE(runner_.send(id).reason.find("Another program"), std::string::npos);
    EXPECT_NE(runner_.discard(id), "");
    EXPECT_TRUE(room_.made.empty());
    EXPECT_EQ(stageOf(id), Stage::waiting);
}

TEST_F(PrintQueueTest, DamagedEntriesAndAFolderThatCannotBeMadeAreToldAndKeepNothingElse) {
    const std::string id = queueOne();
    test::writeFile(folder_.file("PrintQueue/0.json"), "{\"printer\": 3");
    ASSERT_EQ(queue_.sheets().size(), 1u);
    EXPECT_EQ(queue_.sheets()[0].id, id);
    test::writeFile(folder_.file("taken"), "");
    PrintQueue nowhere(folder_.file("taken/PrintQueue/"));
    std::vector<std::string> ids;
    const std::string problem = queueSheets(nowhere, order(), {test::noisePicture(8, 8, 1), "", "a.jpg"}, ids);
    EXPECT_NE(problem.find("taken"), std::string::npos) << problem;
    EXPECT_TRUE(ids.empty());
}

TEST_F(PrintQueueTest, AFileIsPrintedOnTheEventsPageTurnedAsTheOutputIs) {
    SystemInfo info;
    info.oPrinterPages = {order().plan.page, order().plan.page};
    info.oPrinterPages[1].sPageTitle = "Event";
    info.oQLXInfo->iEventModeSelectedTemplate = 1;
    const std::string file = test::savePng(test::noisePicture(40, 60, 2), folder_.file("ben.png"));
    std::vector<std::string> ids;
    EXPECT_EQ(printEventFile(info, file, order(), queue_, ids), "");
    ASSERT_EQ(ids.size(), 1u);
    EXPECT_EQ(queue_.sheet(ids[0]).job.title, "ben.png, Event");
    EXPECT_NE(printEventFile(info, folder_.file("gone.png"), order(), queue_, ids).find("gone.png"),
              std::string::npos);
    info.oQLXInfo->iEventModeSelectedTemplate = 7;
    EXPECT_NE(printEventFile(info, file, order(), queue_, ids), "");
    EXPECT_EQ(ids.size(), 1u);
}

}  // namespace
}  // namespace tavrin
