// Batch print: every photo of a folder once, whatever the printer and the disk do meanwhile.
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "batch/BatchPrint.h"
#include "core/files/Places.h"
#include "folders/HistoryFile.h"
#include "support/FakePrinters.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class BatchPrintTest : public testing::Test, public BatchPrintInterface {
  protected:
    BatchPrintTest() {
        places_.setSharedFolder(folder_.file("home/"));
        fs::create_directories(places_.xmlFolder());
        fs::create_directory(folder_.file("photos"));
        PrinterPage page;
        PrinterPageImage slot;
        page.sPageTitle = "Pair";
        page.iPageWidth = page.iPageHeight = 200;
        slot.iWidth = slot.iHeight = 100;
        page.oPrinterPageImages = {slot};
        info_->oPrinterPages = {page};
        info_->iEventPrintCount = 1;
        info_->oQLXInfo->sBatchPrintFolder = folder_.file("photos");
        info_->oQLXInfo->bWatchPrintFolder = false;
        info_->oQLXInfo->sSelectedBatchPrinterName = "studio";
    }
    ~BatchPrintTest() override { places_.setSharedFolder(home_); }

    void showBatchPrintCounts(const std::string& files, const std::string& processed) override {
        const std::lock_guard lock(mutex_);
        counts_ = files + "/" + processed;
    }
    void showBatchPrintState(BatchPrintState state, const std::string& detail) override {
        const std::lock_guard lock(mutex_);
        state_ = state;
        detail_ = detail;
    }
    void enableBatchPrint(bool start, bool stop) override {
        const std::lock_guard lock(mutex_);
        buttons_ = std::string(start ? "start" : "") + (stop ? "stop" : "");
    }
    void batchPrintFailed(const std::string& line) override {
        const std::lock_guard lock(mutex_);
        failures_.push_back(line);
    }

    std::string photo(const std::string& name) {
        const std::string path = folder_.file("photos/" + name);
        test::noisePicture(40, 60, 5).save(QString::fromStdString(path));
        return path;
    }
    BatchPrint& engine() {
        if (!engine_) {
            engine_ = std::make_unique<BatchPrint>(*info_, this);
            engine_->updateBatchPrintUI({"studio"});
        }
        return *engine_;
    }
    void start() {
        BatchPrintTools tools;
        tools.service = [this] { return std::make_unique<test::FakePrinters>(room_); };
        tools.queue = folder_.file("queue/");
        engine().clickedButtonStartBatchPrint(std::move(tools));
    }
    void run() {
        start();
        engine().join();
    }
    Names printed() {
        const std::lock_guard lock(room_.mutex);
        return room_.printed;
    }
    Names history() const { return readHistory(folder_.file("photos/History.dat")).value_or(Names{}); }
    template <class Condition>
    bool eventually(const Condition& holds) {
        for (int wait = 0; wait < 2000; ++wait) {
            {
                const std::lock_guard lock(mutex_);
                if (holds()) return true;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }
    void setTrouble(const std::string& trouble) {
        const std::lock_guard lock(room_.mutex);
        room_.trouble = trouble;
    }

    test::TempFolder folder_;
    Places& places_ = Places::current();
    const std::string home_ = places_.sharedFolder();
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(60, 40);
    test::PrintRoom room_;
    std::mutex mutex_;
    std::string counts_, buttons_, detail_;
    BatchPrintState state_ = BatchPrintState::held;
    Names failures_;
    std::unique_ptr<BatchPrint> engine_;
};

TEST_F(BatchPrintTest, EveryPhotoIsPrintedOnceAsOftenAsTheStateSays) {
    for (const char* name : {"b.png", "a.JPG", "c.jpeg"})
        photo(name);
    test::writeFile(folder_.file("photos/notes.txt"), "none");
    info_->iEventPrintCount = 2;
    run();
    EXPECT_EQ(printed(), (Names{"a.JPG, Pair on A4", "a.JPG, Pair on A4", "b.png, Pair on A4", "b.png, Pair on A4",
                                "c.jpeg, Pair on A4", "c.jpeg, Pair on A4"}));
    EXPECT_EQ(history(), (Names{"a.JPG", "b.png", "c.jpeg"}));
    EXPECT_EQ(counts_, "3/3");
    EXPECT_EQ(buttons_, "start");
    EXPECT_EQ(state_, BatchPrintState::stopped);
    EXPECT_TRUE(failures_.empty());
    run();
    EXPECT_EQ(printed().size(), 6u) << "all of them stand in the history";
    engine().clickedButtonClearHistory();
    EXPECT_EQ(counts_, "3/0");
    info_->iEventPrintCount = 0;
    run();
    EXPECT_EQ(printed().size(), 9u);
    EXPECT_EQ(info_->iEventPrintCount, 1);
}

TEST_F(BatchPrintTest, WithoutPrintersOrPhotosNothingHappensAndStartIsThereAgain) {
    engine().updateBatchPrintUI({});
    photo("a.jpg");
    run();
    EXPECT_TRUE(printed().empty());
    EXPECT_EQ(buttons_, "") << "nothing is said and nothing begins";
    engine().updateBatchPrintUI({"hall", "studio"});
    EXPECT_EQ(info_->oQLXInfo->sSelectedBatchPrinterName.load(), "studio");
    engine().updateBatchPrintUI({"hall", "office"});
    EXPECT_EQ(info_->oQLXInfo->sSelectedBatchPrinterName.load(), "hall") << "the first where it is gone";
    engine().setFolder("");
    run();
    EXPECT_EQ(buttons_, "start");
    EXPECT_EQ(counts_, "0/0");
    EXPECT_TRUE(printed().empty());
}

TEST_F(BatchPrintTest, WatchedItPrintsWhatArrivesUntilItIsStopped) {
    info_->oQLXInfo->bWatchPrintFolder = true;
    start();
    ASSERT_TRUE(eventually([&] { return state_ == BatchPrintState::watching; }));
    photo("a.jpg");
    ASSERT_TRUE(eventually([&] { return counts_ == "1/1"; }));
    // One that a camera is still writing is looked at again before it is printed.
    const std::string whole = test::readFile(photo("../b.jpg"));
    test::writeFile(folder_.file("photos/b.jpg"), whole.substr(0, whole.size() / 2));
    std::this_thread::sleep_for(std::chrono::milliseconds(700));
    EXPECT_EQ(printed().size(), 1u);
    test::writeFile(folder_.file("photos/b.jpg"), whole);
    ASSERT_TRUE(eventually([&] { return counts_ == "2/2" && buttons_ == "stop"; }));
    engine().clickedButtonStopBatchPrint();
    engine().join();
    EXPECT_EQ(buttons_, "start");
    EXPECT_EQ(printed(), (Names{"a.jpg, Pair on A4", "b.jpg, Pair on A4"}));
    EXPECT_TRUE(failures_.empty());
}

TEST_F(BatchPrintTest, APrinterThatStandsStillIsSaidOnceAndThePhotosWaitInOrder) {
    photo("a.jpg");
    photo("b.jpg");
    setTrouble("The printer is out of paper.");
    start();
    ASSERT_TRUE(
        eventually([&] { return state_ == BatchPrintState::held && detail_ == "The printer is out of paper."; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));  // several looks, in which nothing may come
    EXPECT_TRUE(printed().empty());
    {
        const std::lock_guard lock(mutex_);
        EXPECT_EQ(failures_, Names{"The printer is out of paper."});
        EXPECT_EQ(counts_, "2/1") << "one waits in the queue, and the others in their folder";
    }
    setTrouble("");
    engine().join();
    EXPECT_EQ(printed(), (Names{"a.jpg, Pair on A4", "b.jpg, Pair on A4"}));
}

TEST_F(BatchPrintTest, WhatCannotBeReadIsToldAndLeftOutAndWhatVanishedToo) {
    const std::string broken = folder_.file("photos/b.jpg");
    test::writeFile(broken, "no picture");
    fs::last_write_time(broken, fs::file_time_type::clock::now() - std::chrono::hours(1));
    fs::create_symlink(folder_.file("gone.jpg"), folder_.file("photos/c.jpg"));
    photo("a.jpg");
    photo("d.jpg");
    run();
    EXPECT_EQ(printed(), (Names{"a.jpg, Pair on A4", "d.jpg, Pair on A4"}));
    ASSERT_GE(failures_.size(), 1u);
    EXPECT_NE(failures_[0].find("b.jpg"), std::string::npos);
    EXPECT_EQ(buttons_, "start");
}

TEST_F(BatchPrintTest, AfterAKillBeforeTheHistoryAPhotoIsNotPrintedAgain) {
    const std::string path = photo("a.jpg");
    setTrouble("The printer is stopped.");
    start();
    ASSERT_TRUE(eventually([&] { return state_ == BatchPrintState::held; }));
    engine().clickedButtonStopBatchPrint();
    engine().join();
    fs::remove(folder_.file("photos/History.dat"));
    setTrouble("");
    photo("b.jpg");
    run();
    EXPECT_EQ(printed(), Names{"b.jpg, Pair on A4"}) << "the other one's sheet still waits in the queue";
    EXPECT_EQ(history(), (Names{"a.jpg", "b.jpg"}));
    EXPECT_EQ(PrintQueue(folder_.file("queue/")).sheets().front().picture, path);
}

TEST_F(BatchPrintTest, WhereNothingCanBeNotedNoPhotoIsPrintedTwice) {
    photo("a.jpg");
    photo("b.jpg");
    fs::create_directories(folder_.file("photos/History.dat/in the way"));
    info_->oQLXInfo->bWatchPrintFolder = true;
    run();
    EXPECT_EQ(printed(), Names{"a.jpg, Pair on A4"});
    ASSERT_EQ(failures_.size(), 1u);
    EXPECT_NE(failures_[0].find("History.dat"), std::string::npos);
}

}  // namespace
}  // namespace tavrin
