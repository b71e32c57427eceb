#include <atomic>
#include <cstring>
#include <gtest/gtest.h>
#include <thread>

#include "effects/Presets.h"
#include "pipeline/CombineThread.h"
#include "pipeline/Stages.h"
#include "pipeline/WholePicture.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

/// Counts what the loop asks for.
class CountingInterface : public Interface {
  public:
    void enableControls(bool enabled, bool) override { ++(enabled ? enabled_ : disabled_); }
    void repaint(const PublishedRows& rows) override {
        if (rows.isPreview()) {
            ++previews_;
        } else if (rows.rowCount == rows.height) {
            ++fulls_;
        } else {
            ++parts_;
        }
        if (onRepaint) onRepaint(rows);
    }
    void showAlert(const std::string& message, const std::string&) override { lastAlert = message; }
    bool mouseDown() const override { return mouse; }
    int eventMouseMode() const override { return mouseMode; }

    int passes() const { return disabled_; }
    std::atomic<int> enabled_ = 0, disabled_ = 0, previews_ = 0, fulls_ = 0, parts_ = 0;
    std::atomic<bool> mouse = false;
    std::atomic<int> mouseMode = 1;
    std::string lastAlert;
    std::function<void(const PublishedRows&)> onRepaint;
};

struct IdleTurns : IdleJob {
    bool isOn() const override { return true; }
    void step() override { ++turns; }
    std::atomic<int> turns = 0;
};

class CombineThreadTest : public testing::Test {
  protected:
    void SetUp() override {
        info_->pInterface = &view_;
        useSources(*info_);
    }
    void TearDown() override { info_->pInterface = nullptr; }

    void useSources(SystemInfo& info) {
        info.pForegroundBitmapInfo->sSourceImageFullPath = foreground_;
        info.pBackgroundBitmapInfo->sSourceImageFullPath = background_;
    }
    std::vector<std::uint8_t> fullBytes(const SystemInfo& info) {
        const std::uint8_t* p = info.pCombinedBitmapInfo->pBitmapData;
        return {p, p + pixelBytes(info.iOutputPixelWidth, info.iOutputPixelHeight)};
    }
    void runOnce() {
        info_->StartUpdate();
        CombineThread(*info_).runUntilIdle();
    }

    test::TempFolder folder_;
    const std::string foreground_ = test::savePng(test::discOnScreen(240, 300), folder_.file("fg.png"));
    const std::string background_ = test::savePng(test::noisePicture(240, 300, 9), folder_.file("bg.png"));
    CountingInterface view_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(240, 300);
};

TEST_F(CombineThreadTest, FirstPassMakesPreviewAndFullPicture) {
    CombineThread(*info_).runUntilIdle();
    EXPECT_EQ(view_.passes(), 1);
    EXPECT_EQ(view_.previews_, 1);
    EXPECT_EQ(view_.fulls_, 1);
    EXPECT_EQ(view_.enabled_, 1);
    EXPECT_GE(view_.parts_, 9);
    EXPECT_FALSE(info_->bShowLowRes);

    // The disc stays, the screen gives way to the background, untouched as it has the size of the output.
    const std::vector<std::uint8_t> full = fullBytes(*info_);
    const std::uint8_t* corner = info_->pBackgroundBitmapInfo->orgBitmapData;
    EXPECT_EQ(std::memcmp(full.data(), corner, 3), 0);
    const std::uint8_t* middle = &full[pixelOffset(240, 120, 150)];
    EXPECT_GT(middle[0], 180);
    EXPECT_LT(middle[1], 80);
}

TEST_F(CombineThreadTest, LoopAndFastPathGiveTheSameBytesWithoutTheLoopsOwnStages) {
    info_->iBlendEdges = 0;
    CombineThread(*info_).runUntilIdle();
    const auto other = test::stateForOutput(240, 300);
    useSources(*other);
    ASSERT_TRUE(loadAndCombineFiles(*other));
    EXPECT_EQ(fullBytes(*info_), fullBytes(*other));
}

TEST_F(CombineThreadTest, AnyNumberOfUpdatesCostsOnePass) {
    CombineThread loop(*info_);
    loop.runUntilIdle();
    const int before = view_.passes();
    info_->StartUpdate();
    loop.runUntilIdle();
    EXPECT_EQ(view_.passes(), before + 1);
    for (int i = 0; i < 10; ++i)
        info_->StartUpdate();
    loop.runUntilIdle();
    EXPECT_EQ(view_.passes(), before + 2);
}

TEST_F(CombineThreadTest, ANewerRequestStopsTheFullPicture) {
    CombineThread loop(*info_);
    loop.runUntilIdle();
    const int fulls = view_.fulls_;
    bool asked = false;
    view_.onRepaint = [&](const PublishedRows& rows) {
        if (rows.isPreview() || asked) return;
        asked = true;
        info_->StartUpdate();
    };
    info_->pCombinedBitmapInfo->sliderWhiteAdjust = 45;
    info_->StartUpdate();
    EXPECT_EQ(loop.iterate(), CombineThread::Turn::worked);
    EXPECT_EQ(view_.fulls_, fulls);
    loop.runUntilIdle();
    EXPECT_EQ(view_.fulls_, fulls + 1);
}

TEST_F(CombineThreadTest, SkippingHiResLeavesTheFullBufferAlone) {
    info_->bSkipHiRes = true;
    std::memset(info_->pCombinedBitmapInfo->pBitmapData, 77, pixelBytes(240, 300));
    CombineThread(*info_).runUntilIdle();
    EXPECT_TRUE(info_->bShowLowRes);
    EXPECT_EQ(view_.enabled_, 0);
    for (const std::uint8_t byte : fullBytes(*info_))
        ASSERT_EQ(byte, 77);
}

TEST_F(CombineThreadTest, WhileTheMouseIsHeldThePreviewIsAMixOfTheLayers) {
    CombineThread(*info_).runUntilIdle();
    for (const int mode : {1, 0}) {
        view_.mouse = true;
        view_.mouseMode = mode;
        info_->pForegroundBitmapInfo->bScaleChange = true;
        info_->StartUpdate();
        CombineThread loop(*info_);
        EXPECT_EQ(loop.iterate(), CombineThread::Turn::dragging);
        EXPECT_EQ(loop.iterate(), CombineThread::Turn::dragging);
        EXPECT_FALSE(info_->pCombinedBitmapInfo->bHaveBaseGreen);
        const double share = mode == 1 ? 0.75 : 0.25;
        const std::uint8_t* f = info_->pForegroundBitmapInfo->pBitmapDataLowRes;
        const std::uint8_t* b = info_->pBackgroundBitmapInfo->pBitmapDataLowRes;
        const std::uint8_t* c = info_->pCombinedBitmapInfo->pBitmapDataLowRes;
        for (int i = 0; i < 4000; ++i) {
            if (i % 4 == 3) continue;
            ASSERT_EQ(c[i], static_cast<int>(share * f[i] + (1 - share) * b[i])) << i;
        }
        view_.mouse = false;
        loop.runUntilIdle();
    }
}

TEST_F(CombineThreadTest, PresetHairWinsOverWhatWasDetected) {
    info_->bAdvancedHairDetectionON = true;
    info_->iMacroHairColor = 2;
    CombineThread(*info_).runUntilIdle();
    EXPECT_TRUE(info_->bFoundHair);
    EXPECT_EQ(info_->iHairColorBinRed[0], 30);
    EXPECT_EQ(info_->iHairColorBinGreen[0], 30);
    EXPECT_EQ(info_->iHairColorBinBlue[0], 30);
    EXPECT_EQ(info_->iHairColorCount, 1);
}

TEST_F(CombineThreadTest, ANewSizeReloadsBothSourcesAndMeasuresTheScreenAgain) {
    CombineThread(*info_).runUntilIdle();
    chooseOwnSize(*info_, "other", 100 / 92.0, 200 / 92.0, 92);
    info_->pForegroundBitmapInfo->orgImage = QImage();
    info_->pBackgroundBitmapInfo->orgImage = QImage();
    info_->baseGreen = 1.0;
    runOnce();
    EXPECT_EQ(info_->iOutputPixelWidth, 100);
    EXPECT_FALSE(info_->pForegroundBitmapInfo->orgImage.isNull());
    EXPECT_FALSE(info_->pBackgroundBitmapInfo->orgImage.isNull());
    EXPECT_NEAR(info_->baseGreen, 160.0, 2.0);
}

// A layer that is scaled shows in the preview first. Whoever comes between the preview and the full picture, a newer
// request or a job, must not find the layer's full buffer as it was.
TEST_F(CombineThreadTest, AScaledLayerIsWholeBeforeAnybodyElseLooks) {
    const auto bytesOf = [](const BitmapInfo& record) {
        return std::vector<std::uint8_t>(record.pBitmapData, record.pBitmapData + pixelBytes(240, 300));
    };
    const auto place = [](SystemInfo& info) {
        info.pForegroundBitmapInfo->fScale = 0.6;
        info.pBackgroundBitmapInfo->iOrgXoff = 120;
        info.pForegroundBitmapInfo->bScaleChange = info.pBackgroundBitmapInfo->bScaleChange = true;
        info.StartUpdate();
    };
    const auto whole = test::stateForOutput(240, 300);
    useSources(*whole);
    CombineThread(*whole).runUntilIdle();
    place(*whole);
    CombineThread(*whole).runUntilIdle();

    CombineThread loop(*info_);
    loop.runUntilIdle();
    const std::vector<std::uint8_t> before = bytesOf(*info_->pForegroundBitmapInfo);
    std::vector<std::uint8_t> atPreview, inJob;
    view_.onRepaint = [&](const PublishedRows&) {
        if (!atPreview.empty()) return;
        atPreview = bytesOf(*info_->pForegroundBitmapInfo);
        loop.post([&] { inJob = bytesOf(*info_->pForegroundBitmapInfo); });
    };
    place(*info_);
    loop.runUntilIdle();
    EXPECT_EQ(atPreview, before);
    EXPECT_EQ(inJob, bytesOf(*whole->pForegroundBitmapInfo));

    atPreview.clear();
    view_.onRepaint = [&](const PublishedRows&) {
        if (atPreview.empty()) info_->StartUpdate();
        atPreview.assign(1, 1);
    };
    info_->pForegroundBitmapInfo->fScale = 1.0;
    info_->pForegroundBitmapInfo->bScaleChange = true;
    info_->StartUpdate();
    loop.runUntilIdle();
    place(*info_);
    loop.runUntilIdle();
    EXPECT_EQ(bytesOf(*info_->pForegroundBitmapInfo), bytesOf(*whole->pForegroundBitmapInfo));
    EXPECT_EQ(fullBytes(*info_), fullBytes(*whole));
}

// What a newer request cuts short is made whole by the pass that follows.
TEST_F(CombineThreadTest, ANewerRequestAtAnyMomentLosesNothing) {
    const auto place = [](SystemInfo& info, double scale) {
        info.pForegroundBitmapInfo->fScale = info.pBackgroundBitmapInfo->fScale = scale;
        info.pForegroundBitmapInfo->bScaleChange = info.pBackgroundBitmapInfo->bScaleChange = true;
        info.StartUpdate();
    };
    const auto pause = [](int microseconds) { std::this_thread::sleep_for(std::chrono::microseconds(microseconds)); };
    for (const int smoothing : {0, 1}) {
        const auto whole = test::stateForOutput(240, 300);
        useSources(*whole);
        whole->iGlobalSmoothingMode = smoothing;
        place(*whole, 0.7);
        CombineThread(*whole).runUntilIdle();

        info_->iGlobalSmoothingMode = smoothing;
        IdleTurns idle;
        CombineThread loop(*info_);
        loop.addIdleJob(idle);
        loop.StartMainThread();
        for (int moment = 0; moment < 30; moment += test::kSanitized ? 7 : 1) {
            place(*info_, 1.3);
            pause(moment * 200);
            place(*info_, 0.7);
            pause(moment * 150);
            moment % 2 ? info_->StartUpdate() : loop.post([] {});
            pause(moment % 5 * 100);
            info_->StartUpdate();
            const int before = idle.turns;
            for (int wait = 0; wait < 30'000 && idle.turns == before; ++wait)
                pause(1000);
            ASSERT_GT(idle.turns, before);
            ASSERT_EQ(fullBytes(*info_), fullBytes(*whole)) << moment << ", smoothing " << smoothing;
        }
    }
}

// A hand that moves on must not wait for the full picture, whatever effect is on.
TEST_F(CombineThreadTest, EveryStageOfTheFullPictureGivesUpForANewerRequest) {
    info_->iSmoothMode = 1;
    info_->iBlendEdges = 30;
    info_->oFontLabelObject[0].sText = "Title";
    info_->iGreenProtectMode = 2;
    info_->bShowGreenProtection = false;
    info_->dSliderForegroundBlur = 0.05;
    info_->iSliderForegroundThreshold = 10'000;
    CombineThread(*info_).runUntilIdle();
    const QImage noise = test::noisePicture(240, 300, 3).convertToFormat(QImage::Format_RGBA8888);
    std::copy_n(noise.constBits(), pixelBytes(240, 300), info_->pCombinedBitmapInfo->pBitmapData);
    const std::vector<std::uint8_t> before = fullBytes(*info_);
    int looks = 0;
    for (const PresetGroup& group : presetGroups()) {
        for (const Preset& look : group.presets) {
            if (!applyPreset(*info_, group, look.name).empty()) continue;
            ++looks;
            for (const auto& stages : {fullStages().key, fullStages().finish}) {
                for (const Stage& stage : stages) {
                    if (!stage.when(*info_)) continue;
                    info_->iCurrentThreadCount = info_->iNewThreadCount - 1;
                    stage.run(*info_, Resolution::full);
                    ASSERT_EQ(fullBytes(*info_), before) << group.name << ' ' << look.name << ": " << stage.name;
                }
            }
        }
    }
    EXPECT_GT(looks, 20);
}

TEST_F(CombineThreadTest, WhileALayerIsDraggedItsFullBufferHoldsTheScreenAlone) {
    CombineThread loop(*info_);
    loop.runUntilIdle();
    view_.mouse = true;
    info_->pForegroundBitmapInfo->bScaleChange = true;
    info_->StartUpdate();
    EXPECT_EQ(loop.iterate(), CombineThread::Turn::dragging);
    const std::uint8_t* full = info_->pForegroundBitmapInfo->pBitmapData;
    EXPECT_EQ(std::memcmp(full + pixelOffset(240, 120, 150), full, 3), 0);
    view_.mouse = false;
    loop.runUntilIdle();
    EXPECT_EQ(std::memcmp(full + pixelOffset(240, 120, 150), full, 3), 0) << "letting go scales nothing by itself";
}

TEST_F(CombineThreadTest, AFrozenBackgroundStaysAndTheSubjectIsGone) {
    CombineThread(*info_).runUntilIdle();
    const std::vector<std::uint8_t> before = fullBytes(*info_);
    FreezeToBackground(*info_);
    info_->pBackgroundBitmapInfo->bScaleChange = true;
    runOnce();
    runOnce();
    EXPECT_TRUE(info_->pBackgroundBitmapInfo->bScaleChange);
    EXPECT_EQ(fullBytes(*info_), before);
}

TEST_F(CombineThreadTest, AMissingSourceIsToldAndTheOldPictureStays) {
    CombineThread(*info_).runUntilIdle();
    const std::vector<std::uint8_t> before = fullBytes(*info_);
    info_->pForegroundBitmapInfo->sSourceImageFullPath = folder_.file("gone.jpg");
    info_->pForegroundBitmapInfo->bOrgFileChange = true;
    runOnce();
    EXPECT_EQ(view_.lastAlert, "Cound not load file: gone.jpg, check your file permissions");
    EXPECT_EQ(fullBytes(*info_), before);
}

TEST_F(CombineThreadTest, APassThatCannotBeMadeLeavesNothingToSaveAndIsToldOnce) {
    CombineThread loop(*info_);
    loop.runUntilIdle();
    EXPECT_EQ(info_->whyNotFinished(Resolution::preview) + info_->whyNotFinished(Resolution::full), "");
    const auto pass = [&] {
        info_->StartUpdate();
        loop.runUntilIdle();
    };
    const int fulls = view_.fulls_;
    info_->pCombinedBitmapInfo->takeFullPixels();  // as where memory is refused
    pass();
    EXPECT_EQ(info_->whyNotFinished(Resolution::full), "there is not enough memory for the key");
    EXPECT_EQ(info_->whyNotFinished(Resolution::preview), info_->whyNotFinished(Resolution::full));
    EXPECT_EQ(view_.lastAlert, "The picture cannot be made.");
    EXPECT_EQ(view_.fulls_, fulls);
    view_.lastAlert = "";
    pass();
    EXPECT_EQ(view_.lastAlert, "") << "told before";

    const int size = info_->iSelecteImageSize;
    for (const int selected : {999, size}) {
        info_->iSelecteImageSize = selected;
        info_->bChangeImageSize = selected != size || info_->bChangeImageSize;
        pass();
        EXPECT_EQ(info_->whyNotFinished(Resolution::full).empty(), selected == size);
        pass();
        EXPECT_EQ(info_->whyNotFinished(Resolution::full).empty(), selected == size);
    }
    EXPECT_EQ(view_.fulls_, fulls + 2);
    info_->bSkipHiRes = true;
    pass();
    EXPECT_EQ(info_->whyNotFinished(Resolution::preview), "");
    EXPECT_NE(info_->whyNotFinished(Resolution::full), "");
}

// For the thread sanitizer above all: settings change from another thread while passes run.
TEST_F(CombineThreadTest, SettingsMayChangeWhilePassesRun) {
    IdleTurns idle;
    {
        CombineThread loop(*info_);
        loop.addIdleJob(idle);
        loop.StartMainThread();
        for (int i = 0; i < 60; ++i) {
            info_->pForegroundBitmapInfo->iBrightness = i - 30;
            info_->pCombinedBitmapInfo->sliderWhiteAdjust = i;
            info_->sSilhouetteFileName = i % 2 ? "" : "x";
            if (i % 7 == 0) info_->pForegroundBitmapInfo->bScaleChange = true;
            if (i % 11 == 0) info_->pBackgroundBitmapInfo->bOrgFileChange = true;
            info_->StartUpdate();
            std::this_thread::sleep_for(std::chrono::milliseconds(i % 5));
        }
        info_->sSilhouetteFileName = "";
        info_->StartUpdate();
        const int before = idle.turns;
        for (int wait = 0; wait < 3000 && idle.turns == before; ++wait) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_GT(idle.turns, before);
    }
    EXPECT_GE(view_.passes(), 1);
}

}  // namespace
}  // namespace tavrin
