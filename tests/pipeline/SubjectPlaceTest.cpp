#include <gtest/gtest.h>

#include "effects/Presets.h"
#include "pipeline/CombineThread.h"
#include "pipeline/SubjectPlace.h"
#include "pipeline/WholePicture.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

LayerFit landscapeInPortrait() {
    return {1000, 1400, 2100.0, 1400.0, 1.0};  // a source of 3 : 2, covering
}

/// Where a point of the source comes to lie, in fractions of the picture from its lower left corner.
QPointF placed(const LayerPlace& place, const LayerFit& fit, double x, double y) {
    const QRectF rect = placedRect(place, fit);
    return {(rect.left() + x * rect.width()) / fit.outputWidth,
            (rect.bottom() - y * rect.height()) / fit.outputHeight};
}

TEST(SubjectPlaceTest, ABustStandsOnTheLowerEdgeInTheMiddleWithRoomAboveTheHead) {
    SubjectBounds bust{0.6, 0.3, 0.9, 1.0};
    bust.cutBottom = true;
    const LayerFit fit = landscapeInPortrait();
    const LayerPlace place = placeAround(bust, fit);
    const QPointF head = placed(place, fit, 0.75, 0.3), foot = placed(place, fit, 0.75, 1.0);
    EXPECT_NEAR(head.x(), 0.5, 0.002);
    EXPECT_NEAR(head.y(), 0.92, 0.003);
    EXPECT_NEAR(foot.y(), 0.0, 0.003);
    EXPECT_LE(foot.y(), 0.0) << "the source's edge shows";
}

TEST(SubjectPlaceTest, AWholeFigureIsShownWholeAlsoWhenItIsWide) {
    const LayerFit fit = landscapeInPortrait();
    for (const SubjectBounds& whole : {SubjectBounds{0.4, 0.2, 0.6, 0.9}, SubjectBounds{0.05, 0.5, 0.9, 0.8}}) {
        const LayerPlace place = placeAround(whole, fit);
        const QPointF topLeft = placed(place, fit, whole.left, whole.top);
        const QPointF bottomRight = placed(place, fit, whole.right, whole.bottom);
        EXPECT_GE(topLeft.x(), 0.03);
        EXPECT_LE(bottomRight.x(), 0.97);
        EXPECT_LE(topLeft.y(), 0.922);
        EXPECT_GE(bottomRight.y(), 0.03);
        EXPECT_NEAR(topLeft.x() + bottomRight.x(), 1.0, 0.004);
    }
}

TEST(SubjectPlaceTest, NoEdgeOfTheSourceShowsThatCutsTheSubject) {
    const LayerFit fits[] = {landscapeInPortrait(), {1400, 1000, 1400.0, 2100.0, 1.0}, {640, 480, 301.0, 480.0, 0.7}};
    for (const LayerFit& fit : fits) {
        for (int sides = 0; sides < 16; ++sides) {
            SubjectBounds cut{0.2, 0.25, 0.7, 0.8};
            if ((cut.cutLeft = sides & 1)) cut.left = 0.0;
            if ((cut.cutTop = sides & 2)) cut.top = 0.0;
            if ((cut.cutRight = sides & 4)) cut.right = 1.0;
            if ((cut.cutBottom = sides & 8)) cut.bottom = 1.0;
            const LayerPlace place = placeAround(cut, fit);
            const QRectF rect = placedRect(place, fit);
            EXPECT_TRUE(!cut.cutLeft || rect.left() <= 0.0) << sides;
            EXPECT_TRUE(!cut.cutRight || rect.right() >= fit.outputWidth) << sides;
            EXPECT_TRUE(!cut.cutTop || rect.bottom() >= fit.outputHeight) << sides;
            EXPECT_TRUE(!cut.cutBottom || rect.top() <= 0.0) << sides;
            EXPECT_TRUE(cut.cutTop || placed(place, fit, 0.5, cut.top).y() <= 0.922) << sides;
            EXPECT_NEAR(placed(place, fit, (cut.left + cut.right) / 2.0, 0.5).x(), 0.5, 0.01) << sides;
        }
    }
}

TEST(SubjectPlaceTest, OfAGroupThatReachesTheEdgeOfTheSourceNoHeadIsLost) {
    const LayerFit fit{1000, 1400, 1050.0, 1400.0, 1.0};
    SubjectBounds group{0.0, 0.36, 0.95, 0.97};
    group.cutLeft = true;
    group.headLeft = 0.1;
    group.headRight = 0.9;
    const LayerPlace place = placeAround(group, fit);
    EXPECT_GE(placed(place, fit, 0.1, 0.5).x(), 0.02);
    EXPECT_LE(placed(place, fit, 0.9, 0.5).x(), 0.98);
    SubjectBounds bust = group;  // of one person whose shoulders are cut the face may fill the picture
    bust.headLeft = 0.35;
    bust.headRight = 0.6;
    EXPECT_GT(placeAround(bust, fit).scale, 1.3 * place.scale);
}

TEST(SubjectPlaceTest, APersonWhomAGreenShirtPartsCountsBesideAnother) {
    constexpr int kWidth = 200, kHeight = 150;
    std::vector<std::uint8_t> pixels(pixelBytes(kWidth, kHeight), 0);
    const auto fill = [&pixels](int left, int top, int right, int bottom) {
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                pixels[pixelOffset(kWidth, x, y) + 3] = 255;
    };
    fill(40, 50, 90, 150);
    fill(135, 20, 165, 55);  // a head
    const QRect all(0, 0, kWidth, kHeight);
    EXPECT_DOUBLE_EQ(findSubject(pixels.data(), kWidth, all)->right, 90.0 / kWidth);
    fill(132, 110, 168, 150);  // and the legs below it
    EXPECT_DOUBLE_EQ(findSubject(pixels.data(), kWidth, all)->right, 168.0 / kWidth);
    EXPECT_DOUBLE_EQ(findSubject(pixels.data(), kWidth, all)->top, 20.0 / kHeight);
}

TEST(SubjectPlaceTest, SpecksStandsAndStrandsAreNotTheSubject) {
    constexpr int kWidth = 200, kHeight = 150;
    std::vector<std::uint8_t> pixels(pixelBytes(kWidth, kHeight), 0);
    const auto fill = [&pixels](int left, int top, int right, int bottom, int alpha) {
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                pixels[pixelOffset(kWidth, x, y) + 3] = static_cast<std::uint8_t>(alpha);
    };
    EXPECT_FALSE(findSubject(pixels.data(), kWidth, QRect(0, 0, kWidth, kHeight)));
    fill(80, 40, 120, 150, 255);
    fill(100, 20, 101, 40, 255);  // a strand
    fill(30, 30, 33, 33, 255);    // a speck
    fill(0, 0, 12, 150, 255);     // the end of the cloth
    fill(60, 90, 80, 150, 120);   // not above a half
    const auto found = findSubject(pixels.data(), kWidth, QRect(0, 0, kWidth, kHeight));
    ASSERT_TRUE(found);
    EXPECT_DOUBLE_EQ(found->left, 80.0 / kWidth);
    EXPECT_DOUBLE_EQ(found->right, 120.0 / kWidth);
    EXPECT_DOUBLE_EQ(found->top, 40.0 / kHeight);
    EXPECT_TRUE(found->cutBottom);
    EXPECT_FALSE(found->cutTop || found->cutLeft || found->cutRight);
}

/// A disc at the right end of a wide picture, which an upright output would lose.
class PlacedPictureTest : public testing::Test {
  protected:
    void SetUp() override {
        QImage wide(480, 240, QImage::Format_RGB888);
        wide.fill(QColor(40, 160, 60));
        for (int y = 60; y < 160; ++y)
            for (int x = 360; x < 440; ++x)
                wide.setPixelColor(x, y, QColor(200, 60, 50));
        info_->pForegroundBitmapInfo->sSourceImageFullPath = test::savePng(wide, folder_.file("wide.png"));
        info_->pBackgroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::noisePicture(200, 280, 9), folder_.file("bg.png"));
    }
    std::vector<std::uint8_t> bytes() const {
        const std::uint8_t* p = info_->pCombinedBitmapInfo->pBitmapData;
        return {p, p + pixelBytes(info_->iOutputPixelWidth, info_->iOutputPixelHeight)};
    }
    std::optional<SubjectBounds> inPicture() const {
        const PassGeometry low = info_->geometry(Resolution::preview);
        return findSubject(info_->pBackgroundBitmapInfo->pBitmapDataLowRes, low.width,
                           QRect(0, 0, low.width, low.height));
    }

    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(200, 280);
};

TEST_F(PlacedPictureTest, TheMiddleIsThatOfWhatThePictureShows) {
    QImage seated(480, 240, QImage::Format_RGB888);
    seated.fill(QColor(40, 160, 60));
    for (int y = 60; y < 240; ++y)
        for (int x = y < 236 ? 200 : 0; x < 260; ++x)
            seated.setPixelColor(x, y, QColor(200, 60, 50));  // feet that reach out to the edge, below the picture
    info_ = test::stateForOutput(280, 200);
    info_->pForegroundBitmapInfo->sSourceImageFullPath = test::savePng(seated, folder_.file("seated.png"));
    info_->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("bg.png");
    wantPlace(*info_, PlaceRule::subject);
    CombineThread(*info_).runUntilIdle();
    ASSERT_TRUE(inPicture());
    EXPECT_NEAR(inPicture()->left + inPicture()->right, 1.0, 0.03);
}

TEST_F(PlacedPictureTest, TheLoopFramesOnceAndThePlaceAloneGivesTheSamePicture) {
    CombineThread(*info_).runUntilIdle();
    EXPECT_FALSE(inPicture()) << "the fit loses this subject";

    wantPlace(*info_, PlaceRule::subject);
    info_->StartUpdate();
    CombineThread(*info_).runUntilIdle();
    ASSERT_TRUE(inPicture());
    EXPECT_NEAR(inPicture()->left + inPicture()->right, 1.0, 0.02);
    EXPECT_GE(inPicture()->top, 0.075);
    EXPECT_FALSE(info_->bPlaceForeground);
    const std::vector<std::uint8_t> framed = bytes();

    const LayerPlace place = placeOf(*info_->pForegroundBitmapInfo);
    auto again = test::stateForOutput(200, 280);
    again->pForegroundBitmapInfo->sSourceImageFullPath = info_->pForegroundBitmapInfo->sSourceImageFullPath.load();
    again->pBackgroundBitmapInfo->sSourceImageFullPath = info_->pBackgroundBitmapInfo->sSourceImageFullPath.load();
    setPlace(*again->pForegroundBitmapInfo, place);
    info_.swap(again);
    CombineThread(*info_).runUntilIdle();
    EXPECT_EQ(bytes(), framed) << "the look at the source has left a trace";
}

TEST_F(PlacedPictureTest, APlaceThatWasSetStaysAndANewSizeFramesAgain) {
    wantPlace(*info_, PlaceRule::subject);
    CombineThread loop(*info_);
    loop.runUntilIdle();
    const LayerPlace first = placeOf(*info_->pForegroundBitmapInfo);
    chooseOwnSize(*info_, "wide", 280.0 / 92, 200.0 / 92, 92);
    info_->bChangeImageSize = true;
    info_->StartUpdate();
    loop.runUntilIdle();
    EXPECT_NE(placeOf(*info_->pForegroundBitmapInfo), first);
    ASSERT_TRUE(inPicture());
    EXPECT_NEAR(inPicture()->left + inPicture()->right, 1.0, 0.02);

    const LayerPlace byHand = {1.5, -100, 20};
    setPlace(*info_->pForegroundBitmapInfo, byHand);
    wantPlace(*info_, PlaceRule::subject);
    info_->StartUpdate();
    loop.runUntilIdle();
    EXPECT_EQ(placeOf(*info_->pForegroundBitmapInfo), byHand);
}

TEST_F(PlacedPictureTest, TheShortPathPlacesTooAndScaleAndMovesComeOnTop) {
    wantPlace(*info_, PlaceRule::subject);
    ASSERT_TRUE(loadAndCombineFiles(*info_));
    const LayerPlace plain = placeOf(*info_->pForegroundBitmapInfo);
    const LayerFit fit = fitSource(*info_, *info_->pForegroundBitmapInfo, Resolution::full);
    setPlace(*info_->pForegroundBitmapInfo, LayerPlace());
    wantPlace(*info_, PlaceRule::subject, 0.5, 100, 50);
    ASSERT_TRUE(loadAndCombineFiles(*info_));
    const LayerPlace adjusted = placeOf(*info_->pForegroundBitmapInfo);
    // Half as large about the middle of the lower edge, then a tenth and a twentieth away.
    const QPointF before = placed(plain, fit, 0.8, 0.5), after = placed(adjusted, fit, 0.8, 0.5);
    EXPECT_NEAR(after.x(), 0.5 + (before.x() - 0.5) * 0.5 + 0.1, 0.006);
    EXPECT_NEAR(after.y(), before.y() * 0.5 + 0.05, 0.006);
}

TEST_F(PlacedPictureTest, AHeadStandsBelowTheNotchOfAHeart) {
    info_->oFrame->iFrameType = 3;
    wantPlace(*info_, PlaceRule::subject);
    CombineThread(*info_).runUntilIdle();
    ASSERT_TRUE(inPicture());
    EXPECT_GE(inPicture()->top, 0.28);
}

TEST_F(PlacedPictureTest, AReflectionBeginsAtTheLowestEdgeOfTheSubject) {
    EXPECT_EQ(applyPreset(*info_, *findPresetGroup("reflection"), "on"), "");
    wantPlace(*info_, PlaceRule::subject, 0.5, 0, 200);
    CombineThread(*info_).runUntilIdle();
    ASSERT_TRUE(inPicture());
    EXPECT_NEAR(info_->iSliderReflectionSkewBase, 100.0 * (1.0 - inPicture()->bottom), 1.0);
    EXPECT_GT(info_->iSliderReflectionSkewBase, 15);

    // Of a figure that the picture cuts there is nothing to mirror.
    EXPECT_EQ(applyPreset(*info_, *findPresetGroup("reflection"), "on"), "");
    setPlace(*info_->pForegroundBitmapInfo, {1.5, -2300, -400});
    info_->pForegroundBitmapInfo->bScaleChange = true;
    info_->StartUpdate();
    CombineThread(*info_).runUntilIdle();
    EXPECT_EQ(info_->iSliderReflectionSkewBase, 0);
}

TEST(SubjectPlaceTest, TheCommonPlaceIsTheMedianOfEachValue) {
    EXPECT_EQ(medianPlace({{1.0, 5, -3}, {9.0, -800, 0}, {1.2, 7, 900}}), (LayerPlace{1.2, 5, 0}));
    EXPECT_EQ(medianPlace({}), LayerPlace());
}

}  // namespace
}  // namespace tavrin
