// Text and overlays at their places in a pass.
#include <gtest/gtest.h>

#include "pipeline/CombineThread.h"
#include "pipeline/WholePicture.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

class TextStagesTest : public testing::Test {
  protected:
    void SetUp() override {
        info_->pForegroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::discOnScreen(92, 92), folder_.file("fg.png"));
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = plain("bg.png", 92, 92, QColor(90, 90, 90));
    }
    std::string plain(const char* name, int width, int height, QColor color) const {
        QImage picture(width, height, QImage::Format_ARGB32);
        picture.fill(color);
        return test::savePng(picture, folder_.file(name));
    }
    // A stripe across the picture, over the disc and over the background beside it.
    void addStripe(const char* level, double inchesFromTop, QColor color) {
        FontObject& item = info_->oFontObject.push_back();
        item.isImage = true;
        item.sText = plain((std::string("stripe") + level + ".png").c_str(), 92, 8, color);
        item.imageSizeWidth = 92.0;
        item.imageSizeHeight = 8.0;
        item.yPos = 1.0 - inchesFromTop - 8.0 / 92.0;  // of its lower edge, from the picture's
        item.sLevel = level;
    }
    QColor at(int res, double x, double y) const {
        const PassGeometry g = info_->geometry(fullIf(res == 1));
        const BitmapInfo& combined = *info_->pCombinedBitmapInfo;
        const std::uint8_t* p = (res == 1 ? combined.pBitmapData : combined.pBitmapDataLowRes) +
                                pixelOffset(g.width, static_cast<int>(x * g.width), static_cast<int>(y * g.height));
        return {p[0], p[1], p[2]};
    }
    static bool isNear(QColor a, QColor b) {
        return std::abs(a.red() - b.red()) < 12 && std::abs(a.green() - b.green()) < 12 &&
               std::abs(a.blue() - b.blue()) < 12;
    }

    const QColor red_{250, 0, 0}, blue_{0, 0, 250}, yellow_{250, 250, 0}, disc_{200, 60, 50};
    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(92, 92);
};

TEST_F(TextStagesTest, TheSubjectCoversWhatLiesOnTheBackground) {
    addStripe("Background", 0.40, red_);
    addStripe("Background Layer", 0.55, blue_);
    addStripe("Foreground", 0.70, yellow_);
    const auto check = [&](int res) {
        EXPECT_TRUE(isNear(at(res, 0.05, 0.44), red_));
        EXPECT_TRUE(isNear(at(res, 0.05, 0.59), blue_));
        EXPECT_TRUE(isNear(at(res, 0.50, 0.44), disc_));
        EXPECT_TRUE(isNear(at(res, 0.50, 0.59), disc_));
        EXPECT_TRUE(isNear(at(res, 0.50, 0.74), yellow_));
        EXPECT_TRUE(isNear(at(res, 0.05, 0.90), QColor(90, 90, 90)));
    };
    CombineThread(*info_).runUntilIdle();
    check(0);
    check(1);
    loadAndCombineFiles(*info_);
    check(1);
}

TEST_F(TextStagesTest, EachLevelLiesOverTheOverlayBeforeIt) {
    info_->bHaveBackgroundOverlay = info_->bHaveForegroundOverlay = info_->bHaveFrameOverlay = true;
    info_->sBackgroundOverlay = plain("bgo.png", 4, 4, QColor(0, 120, 0));
    addStripe("Background", 0.1, red_);        // below the overlay
    addStripe("Background Layer", 0.2, red_);  // above it
    info_->sForegroundOverlay = plain("fgo.png", 4, 4, QColor(0, 0, 120, 0));
    info_->sFrameOverlay = info_->sForegroundOverlay;
    CombineThread(*info_).runUntilIdle();
    for (const int res : {0, 1}) {
        EXPECT_TRUE(isNear(at(res, 0.05, 0.14), QColor(0, 120, 0)));
        EXPECT_TRUE(isNear(at(res, 0.05, 0.24), red_));
    }
    info_->sForegroundOverlay = plain("fgo2.png", 4, 4, QColor(0, 0, 120));
    addStripe("Foreground", 0.3, red_);
    addStripe("Foreground Layer", 0.4, yellow_);
    info_->StartUpdate();
    CombineThread(*info_).runUntilIdle();
    for (const int res : {0, 1}) {
        EXPECT_TRUE(isNear(at(res, 0.5, 0.34), QColor(0, 0, 120)));
        EXPECT_TRUE(isNear(at(res, 0.5, 0.44), yellow_));
    }
    info_->sFrameOverlay = plain("fro.png", 4, 4, QColor(120, 0, 120));
    addStripe("Frame Layer", 0.6, blue_);
    info_->StartUpdate();
    CombineThread(*info_).runUntilIdle();
    for (const int res : {0, 1}) {
        EXPECT_TRUE(isNear(at(res, 0.5, 0.44), QColor(120, 0, 120)));
        EXPECT_TRUE(isNear(at(res, 0.5, 0.64), blue_));
    }
}

}  // namespace
}  // namespace tavrin
