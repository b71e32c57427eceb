#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <new>
#include <thread>

#include "core/raster/Pixels.h"
#include "pipeline/CombineThread.h"
#include "pipeline/SaveImage.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Rows = std::vector<ChangedRows>;

struct View : Interface {
    void repaint(const PublishedRows& part) override {
        all.push_back(part);
        if (onRepaint) onRepaint();
    }
    void showAlert(const std::string& message, const std::string& reason) override {
        alerts.push_back(message + "|" + reason);
    }
    std::vector<PublishedRows> all;
    std::vector<std::string> alerts;
    std::function<void()> onRepaint;
};

/// An idle job of so many steps.
struct Steps : IdleJob {
    bool isOn() const override { return left > 0; }
    void step() override {
        --left;
        if (onStep) onStep();
    }
    int left = 0;
    std::function<void()> onStep;
};

class LoopJobsTest : public testing::Test {
  protected:
    LoopJobsTest() {
        info_->pInterface = &view_;
        info_->pForegroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::discOnScreen(240, 300), folder_.file("fg.png"));
        info_->pBackgroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::noisePicture(240, 300, 9), folder_.file("bg.png"));
        loop_->runUntilIdle();
        view_.all.clear();
    }
    /// A job that saves the picture; its name joins `saved_` when it was.
    CombineThread::Edit save(const std::string& name) {
        return [this, name]() -> Rows {
            if (saveImageToDisk(*info_, folder_.file(name), kPngFile, 1)) saved_.push_back(name);
            return {};
        };
    }

    test::TempFolder folder_;
    View view_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(240, 300);
    std::unique_ptr<CombineThread> loop_ = std::make_unique<CombineThread>(*info_);
    std::vector<std::string> saved_;
};

TEST_F(LoopJobsTest, AnEditRunsWithoutAPassAndShowsItsRowsAlone) {
    std::uint8_t* full = info_->pCombinedBitmapInfo->pBitmapData;
    loop_->edit([&]() -> Rows {
        std::fill_n(full + pixelOffset(240, 0, 40), pixelBytes(240, 3), std::uint8_t{77});
        return {{Resolution::full, 40, 43},
                {Resolution::preview, -5, 2},
                {Resolution::full, 299, 400},
                {Resolution::full, 300, 310}};
    });
    EXPECT_EQ(loop_->iterate(), CombineThread::Turn::idle);
    ASSERT_EQ(view_.all.size(), 3u) << "no pass, and nothing for rows that are not there";
    const PublishedRows& rows = view_.all[0];
    EXPECT_TRUE(rows.edited && !rows.isPreview());
    EXPECT_EQ(rows.firstRow, 40);
    EXPECT_EQ(rows.height, 300);
    EXPECT_EQ(rows.pixels.size(), QSize(240, 3));
    EXPECT_EQ(rows.pixels.pixelColor(239, 2), QColor(77, 77, 77, 77));
    EXPECT_TRUE(view_.all[1].edited && view_.all[1].isPreview());
    EXPECT_EQ(view_.all[1].firstRow, 0);
    EXPECT_EQ(view_.all[1].rowCount, 2);
    EXPECT_EQ(view_.all[2].rowCount, 1);
    EXPECT_EQ(info_->whyNotFinished(Resolution::full), "");
}

// The picture after the key is kept from pass to pass: what was painted into a layer must not be lost with it.
TEST_F(LoopJobsTest, APassAfterAnEditStartsFromWhatTheEditLeft) {
    info_->StartUpdate();
    loop_->runUntilIdle();
    const std::uint8_t* middle = info_->pCombinedBitmapInfo->pBitmapData + pixelOffset(240, 120, 150);
    const std::uint8_t before = middle[0];
    loop_->edit([this]() -> Rows {
        BitmapInfo& portrait = *info_->pForegroundBitmapInfo;
        for (int x = 110; x < 130; ++x)
            portrait.pBitmapData[pixelOffset(240, x, 150)] = 90;
        return {{Resolution::full, 150, 151}};
    });
    info_->StartUpdate();
    loop_->runUntilIdle();
    EXPECT_GT(before, 180);
    EXPECT_LT(middle[0], 120);
}

TEST_F(LoopJobsTest, EditsKeepTheirOrderAndComeBeforeRequestsMadeAfterThem) {
    loop_->edit(save("first.png"));
    loop_->edit([this]() -> Rows {
        loop_->edit([this]() -> Rows {  // while others are run, and the picture is about to go
            saved_.push_back(view_.all.empty() ? "third" : "third, of another picture");
            return {};
        });
        saved_.push_back("second");
        return {};
    });
    info_->StartUpdate();
    loop_->runUntilIdle();
    EXPECT_EQ(saved_, (std::vector<std::string>{"first.png", "second", "third"}));
    EXPECT_TRUE(view_.alerts.empty());
}

TEST_F(LoopJobsTest, ASaveThatFailsIsToldAndTheNextOneIsDone) {
    loop_->edit(save("no/folder.png"));
    loop_->edit([]() -> Rows { throw std::bad_alloc(); });
    loop_->edit(save("good.png"));
    loop_->runUntilIdle();
    EXPECT_EQ(saved_, std::vector<std::string>{"good.png"});
    ASSERT_EQ(view_.alerts.size(), 2u);
    EXPECT_TRUE(view_.alerts[0].starts_with("You cannot save an image to selected location"));
    EXPECT_TRUE(view_.alerts[1].starts_with("There is not enough memory."));
}

TEST_F(LoopJobsTest, AnEditWakesTheSleepingLoopAtOnce) {
    loop_->StartMainThread();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) {
        std::promise<void> done;
        loop_->edit([&done]() -> Rows {
            done.set_value();
            return {};
        });
        done.get_future().wait();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1)) << "asleep it would take two";
}

TEST_F(LoopJobsTest, WhatWaitsWhenTheLoopIsCancelledIsDone) {
    std::promise<void> inPass;
    view_.onRepaint = [&] {
        if (!view_.all.empty() && view_.all.size() > 1) return;
        loop_->edit([this]() -> Rows {
            saved_.push_back("kept");
            return {};
        });
        inPass.set_value();
        while (!info_->isStale())  // until the loop is cancelled
            std::this_thread::yield();
    };
    info_->StartUpdate();
    loop_->StartMainThread();
    inPass.get_future().wait();
    loop_.reset();
    EXPECT_EQ(saved_, std::vector<std::string>{"kept"});
}

TEST_F(LoopJobsTest, OneIdleJobRunsAtATimeAndARequestComesBetweenItsSteps) {
    Steps first, second;
    loop_->addIdleJob(first);
    loop_->addIdleJob(second);
    first.left = second.left = 2;
    std::string order;
    first.onStep = [&] {
        order += '1';
        EXPECT_EQ(info_->whyNotFinished(Resolution::full), "");
        if (first.left == 1) info_->StartUpdate();
    };
    second.onStep = [&] { order += '2'; };
    view_.onRepaint = [&] {
        if (view_.all.back().isPreview()) order += 'p';
    };
    for (int i = 0; i < 8; ++i)
        loop_->iterate();
    EXPECT_EQ(order, "1p122");
}

}  // namespace
}  // namespace tavrin
