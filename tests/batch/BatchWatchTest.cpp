#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "batch/BatchScene.h"
#include "folders/HistoryFile.h"
#include "formats/ImageState.h"
#include "pipeline/SaveImage.h"
#include "session/OutputSizes.h"
#include "support/Files.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::Names;

class BatchWatchTest : public test::BatchScene {
  protected:
    void twoPortraitsOfWhichTheSecondIsShown() {
        portrait("fg/a.png");
        portrait("fg/b.png");
        background("bg/sea.png", QColor(20, 60, 200));
        info_->pForegroundBitmapInfo->sSourceImageFullPath = folder_.file("fg/b.png");
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("bg/sea.png");
    }
};

TEST_F(BatchWatchTest, WatchTakesWhatArrivesAndAStopSavesWhatIsPending) {
    settings_.bLastBatchCheckForNewFiles = true;
    background("bg/sea.png", QColor(20, 60, 200));
    background("bg/wood.png", QColor(120, 90, 40));
    portrait("fg/anna.png");
    engine().clickedButtonStartBatch();
    turn(50);
    EXPECT_EQ(made().size(), 2u);
    EXPECT_FALSE(engine().bBatchProcessingStopped);
    EXPECT_TRUE(!panel_.start && panel_.stop);
    portrait("fg/ben.png");
    for (int i = 0; i < 50 && !engine().bSaveNextImage; ++i)
        loop_.iterate();
    engine().clickedButtonStopBatch();  // while the first picture of the two is under work
    turn();
    EXPECT_TRUE(engine().bBatchProcessingStopped);
    EXPECT_EQ(made().size(), 3u);
    EXPECT_EQ(readHistory(folder_.file("out/ForegroundHistory.dat"))->size(), 3u);
}

TEST_F(BatchWatchTest, AGrowingFileIsLookedAtUntilItRestsForASecond) {
    test::writeFile(folder_.file("fg/a.png"), "1");
    portrait("fg/b.png");
    portrait("fg/c.png");
    background("bg/sea.png", QColor(20, 60, 200));
    int milliseconds = 0;
    engine().now = [&] { return BatchEngine::Time(std::chrono::milliseconds(milliseconds)); };
    engine().clickedButtonStartBatch();
    const auto isTakenAfter = [&](int wait) {
        milliseconds += wait;
        loop_.iterate();
        return engine().bSaveNextImage.load();
    };
    for (int i = 0; i < 10; ++i)
        EXPECT_FALSE(isTakenAfter(99)) << "a rest of less than a second";
    for (std::size_t i = 2; i < 5; ++i) {
        test::writeFile(folder_.file("fg/a.png"), std::string(10 * i, 'x'));
        EXPECT_FALSE(isTakenAfter(1000)) << "it has grown";
    }
    fs::remove(folder_.path() / "fg" / "a.png");  // gone: keeps its last size
    EXPECT_FALSE(isTakenAfter(999));
    EXPECT_TRUE(isTakenAfter(1));
    engine().now = [&] { return BatchEngine::Time(std::chrono::seconds(++milliseconds)); };
    turn();
    EXPECT_EQ(made(), (Names{"bsea.png", "csea.png"})) << "the one that is gone has no picture";
}

TEST_F(BatchWatchTest, WhileAFileGrowsTheLoopIsFreeAndAStopStillMakesTheJob) {
    twoPortraitsOfWhichTheSecondIsShown();
    BatchEngine::Time time;
    engine().now = [&] { return time; };
    engine().clickedButtonStartBatch();
    std::vector<double> steps;
    for (int i = 0; i < 21; ++i) {
        info_->pBackgroundBitmapInfo->iBrightness = i;
        info_->StartUpdate();
        while (info_->iCurrentThreadCount <= info_->iNewThreadCount && loop_.iterate() != CombineThread::Turn::idle) {
        }
        EXPECT_EQ(info_->whyNotFinished(Resolution::full), "") << "a moved slider has its picture";
        const auto start = std::chrono::steady_clock::now();
        engine().step();
        steps.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::nth_element(steps.begin(), steps.begin() + 10, steps.end());
    EXPECT_LT(steps[10], 5.0) << "milliseconds of a step that only looks";
    EXPECT_FALSE(engine().bSaveNextImage);
    engine().clickedButtonStopBatch();
    turn(5);
    EXPECT_FALSE(engine().bBatchProcessingStopped) << "the job was taken before the stop";
    time += std::chrono::seconds(1);
    turn();
    EXPECT_TRUE(engine().bBatchProcessingStopped);
    EXPECT_EQ(made(), Names{"asea.png"});
}

TEST_F(BatchWatchTest, NoPictureIsSavedAsOfANewSizeBeforeThereIsOne) {
    twoPortraitsOfWhichTheSecondIsShown();
    const auto other = test::stateForOutput(60, 40, 40);
    chooseOwnSize(*other, "mine", 0.75, 0.5, 120);
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("qlx/mine.qlx")), "");
    BatchEngine::Time time;
    engine().now = [&] { return time; };
    engine().clickedButtonStartBatch();
    loop_.iterate();
    ASSERT_TRUE(info_->bChangeImageSize);
    loop_.edit([this]() -> std::vector<ChangedRows> {
        EXPECT_FALSE(saveImageToDisk(*info_, folder_.file("byHand.png"), 2, 1));
        return {};
    });
    loop_.iterate();
    EXPECT_FALSE(fs::exists(folder_.path() / "byHand.png"));
    ASSERT_EQ(alerts_.all.size(), 1u);
    EXPECT_TRUE(alerts_.all[0].starts_with("The picture is not saved."));
    engine().now = [this] { return BatchEngine::Time(std::chrono::hours(++looks_)); };
    turn();
    EXPECT_EQ(made().size(), 2u);
}

TEST_F(BatchWatchTest, TheStatusOfALargeFolderIsQuickAndRight) {
    for (int i = 0; i < 3000; ++i)
        test::writeFile(folder_.file("fg/" + std::to_string(i) + ".jpg"), "");
    Names keys;
    for (int i = 0; i < 1500; ++i)
        keys.push_back(std::to_string(i) + ".jpgUseCurrentUseCurrent");
    ASSERT_EQ(writeHistory(folder_.file("out/ForegroundHistory.dat"), keys), "");
    engine().ShowBatchStatus();
    EXPECT_EQ(panel_.counts, "3000/1500");
}

TEST_F(BatchWatchTest, AWatchThatHasDoneItsManyCombinationsLooksQuicklyAndStillSeesWhatIsNew) {
    const auto name = [](const char* stem, int i, const char* extension) {
        return stem + std::to_string(i) + extension;
    };
    Names keys;
    for (int f = 0; f < 200; ++f) {
        test::writeFile(folder_.file("fg/" + name("f", f, ".jpg")), "");
        for (int b = 0; b < 20; ++b) {
            for (int q = 0; q < 5; ++q)
                keys.push_back(name("f", f, ".jpg") + name("b", b, ".jpg") + name("q", q, ".qlx"));
        }
    }
    for (int b = 0; b < 20; ++b)
        test::writeFile(folder_.file("bg/" + name("b", b, ".jpg")), "");
    for (int q = 0; q < 5; ++q)
        test::writeFile(folder_.file("qlx/" + name("q", q, ".qlx")), "");
    const std::string history = folder_.file("out/ForegroundHistory.dat");
    const auto writeOldHistory = [&] {
        ASSERT_EQ(writeHistory(history, keys), "");
        fs::last_write_time(history, fs::last_write_time(history) - std::chrono::minutes(1));
    };
    writeOldHistory();
    settings_.bLastBatchCheckForNewFiles = true;
    engine().clickedButtonStartBatch();
    const auto step = [this] {
        const auto start = std::chrono::steady_clock::now();
        engine().step();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    const double first = step();
    std::vector<double> later(11);
    std::generate(later.begin(), later.end(), step);
    std::nth_element(later.begin(), later.begin() + 5, later.end());
    EXPECT_LT(later[5], first / 3) << "20,000 combinations are searched in vain once";
    EXPECT_EQ(looks_, 0);

    keys.front() = "other.jpgb0.jpgq0.qlx";  // another program's doing
    writeOldHistory();
    step();
    EXPECT_EQ(looks_, 1) << "f0 over b0 with q0 is taken";
}

TEST_F(BatchWatchTest, StatusMayBeAskedForWhileARunIsOn) {
    for (const char* name : {"fg/a.png", "fg/b.png", "fg/c.png"})
        portrait(name);
    background("bg/sea.png", QColor(20, 60, 200));
    engine().clickedButtonStartBatch();
    std::thread main([this] {
        while (!engine_->bBatchProcessingStopped)
            engine_->ShowBatchStatus();
    });
    turn();
    main.join();
    EXPECT_EQ(made().size(), 3u);
}

}  // namespace
}  // namespace tavrin
