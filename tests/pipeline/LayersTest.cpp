#include <gtest/gtest.h>

#include "core/image/ImageReader.h"
#include "pipeline/LayerFit.h"
#include "pipeline/Layers.h"
#include "pipeline/OutputSize.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::savePng;

class LayersTest : public testing::Test {
  protected:
    void load(const QImage& image) {
        record().sSourceImageFullPath = savePng(image, folder_.file("source.png"));
        ASSERT_TRUE(ChangeOrgBitmap(*info_, record()));
    }
    BitmapInfo& record() { return *info_->pForegroundBitmapInfo; }
    QColor sourcePixel(int x, int y) { return record().orgImage.pixelColor(x, y); }
    QColor fullPixel(int x, int y) {
        const std::uint8_t* p = record().pBitmapData + pixelOffset(info_->iOutputPixelWidth, x, y);
        return QColor(p[0], p[1], p[2], p[3]);
    }

    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(120, 80);
};

TEST_F(LayersTest, SizesFollowTheList) {
    chooseOwnSize(*info_, "5x7 200 Vert", 5, 7, 200);
    ASSERT_EQ(ChangeImageSize(*info_), "");
    EXPECT_EQ(info_->iOutputPixelWidth, 1000);
    EXPECT_EQ(info_->iOutputPixelHeight, 1400);
    EXPECT_EQ(info_->iOutputImageLowResDPI, 92);
    EXPECT_EQ(info_->iOutputPixelLowResWidth, 460);
    EXPECT_EQ(info_->iOutputPixelLowResHeight, 644);
    EXPECT_EQ(info_->pCombinedBitmapInfo->oBitmapRep->width(), 1000);
}

TEST_F(LayersTest, UnusableSizesLeaveTheOldOne) {
    const std::uint8_t* old = record().pBitmapData;
    for (const auto& [width, height, dpi] : {std::tuple{0.0, 7.0, 200},
                                             {5.0, -7.0, 200},
                                             {5.0, 7.0, 0},
                                             {1e9, 1e9, 300},
                                             {1e-9, 1e-9, 300},
                                             {std::nan(""), 7.0, 200}}) {
        chooseOwnSize(*info_, "bad", width, height, dpi);
        EXPECT_NE(ChangeImageSize(*info_).find("\"bad\""), std::string::npos);
    }
    info_->iSelecteImageSize = 99;
    EXPECT_NE(ChangeImageSize(*info_).find("99"), std::string::npos);
    EXPECT_EQ(info_->iOutputPixelWidth, 120);
    EXPECT_EQ(record().pBitmapData, old);
}

TEST_F(LayersTest, SourceOfTheOutputsSizeGoesThroughUntouched) {
    const QImage noise = test::noisePicture(120, 80, 7);
    load(noise);
    ChangeBitmapScale(*info_, record());
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 120; ++x)
            ASSERT_EQ(fullPixel(x, y), noise.pixelColor(x, y)) << x << ", " << y;
    }
}

TEST_F(LayersTest, FlipAndRightAnglesMovePixelsExactly) {
    const QImage noise = test::noisePicture(30, 20, 3);
    record().bFlipHorz = true;
    load(noise);
    EXPECT_EQ(sourcePixel(0, 0), noise.pixelColor(29, 0));
    EXPECT_EQ(sourcePixel(29, 19), noise.pixelColor(0, 19));

    record().bFlipHorz = false;
    record().fRotate = 90.0;
    load(noise);
    ASSERT_EQ(record().orgImage.size(), QSize(20, 30));
    // A turn by -a in upward coordinates is clockwise on the screen: the top left goes to the top right.
    EXPECT_EQ(sourcePixel(19, 0), noise.pixelColor(0, 0));
    EXPECT_EQ(sourcePixel(0, 29), noise.pixelColor(29, 19));

    record().fRotate = 180.0;
    load(noise);
    EXPECT_EQ(sourcePixel(0, 0), noise.pixelColor(29, 19));
    EXPECT_EQ(sourcePixel(29, 0), noise.pixelColor(0, 19));
}

TEST_F(LayersTest, TiltGrowsTheBoxAndFillsCornersWithGreen) {
    record().fTilt = 45.0;
    load(test::noisePicture(300, 200, 1));
    EXPECT_EQ(record().iOrgWidth, 353);  // |212| + |141|, each truncated
    EXPECT_EQ(record().iOrgHeight, 353);
    for (const QPoint corner : {QPoint(0, 0), QPoint(352, 0), QPoint(0, 352), QPoint(352, 352)}) {
        EXPECT_EQ(sourcePixel(corner.x(), corner.y()), QColor(10, 130, 60));
    }
    // A flipped and tilted picture still fills its box: no corner of it is lost.
    record().bFlipHorz = true;
    QImage plain(300, 200, QImage::Format_RGB888);
    plain.fill(Qt::white);
    load(plain);
    int white = 0;
    for (int y = 0; y < 353; ++y) {
        for (int x = 0; x < 353; ++x)
            white += sourcePixel(x, y) == QColor(Qt::white) ? 1 : 0;
    }
    EXPECT_NEAR(white, 300 * 200, 1200);
}

TEST_F(LayersTest, LinesThatTheFileHasAtItsEdgesDoNotShowInsideThePicture) {
    const QColor screen(40, 160, 60);
    QImage dirty(120, 160, QImage::Format_RGB888);
    dirty.fill(screen);
    for (int y = 0; y < 160; ++y)
        for (int x = 0; x < 120; ++x)
            if (x < 2 || x == 119) dirty.setPixelColor(x, y, QColor(20, 60, 30));
    load(dirty);
    info_->baseRed = screen.red();
    info_->baseGreen = screen.green();
    info_->baseBlue = screen.blue();
    record().iOrgXoff = 100;
    ChangeBitmapScale(*info_, record());  // shown whole, in columns 12 to 71 of 120
    EXPECT_NE(fullPixel(12, 40), screen) << "where a person or a state put it";
    info_->placedLast = placeOf(record());
    ChangeBitmapScale(*info_, record());
    for (int x = 0; x < 120; ++x)
        EXPECT_EQ(fullPixel(x, 40), screen) << x;

    record().fScale = 2.2;  // reaches beyond the picture's left edge, where it shows as it is
    record().iOrgXoff = 302;
    info_->placedLast = placeOf(record());
    ChangeBitmapScale(*info_, record());
    EXPECT_NE(fullPixel(0, 40), screen);

    // A screen that darkens toward the edge is no such line, nor is a subject.
    QImage shaded(120, 160, QImage::Format_RGB888);
    for (int y = 0; y < 160; ++y)
        for (int x = 0; x < 120; ++x)
            shaded.setPixelColor(x, y, x > 95 && y > 80 ? QColor(Qt::red) : QColor(40, 100 + x / 2, 60));
    record().fScale = 1.0;
    record().iOrgXoff = 100;
    info_->placedLast = placeOf(record());
    load(shaded);
    info_->baseGreen = 250.0;
    ChangeBitmapScale(*info_, record());
    EXPECT_NEAR(fullPixel(12, 30).green(), 100, 2);
    EXPECT_EQ(fullPixel(71, 70), QColor(Qt::red));
    EXPECT_EQ(fullPixel(73, 40).green(), 250);
}

TEST_F(LayersTest, CoverFitFillsAndAStandingPersonIsShownWhole) {
    QImage wide(400, 80, QImage::Format_RGB888);
    wide.fill(Qt::red);
    load(wide);
    ChangeBitmapScale(*info_, record());
    EXPECT_EQ(fullPixel(119, 0), QColor(Qt::red));
    EXPECT_DOUBLE_EQ(record().fOrgScale, 1.0);

    QImage tall(40, 160, QImage::Format_RGB888);
    tall.fill(Qt::red);
    load(tall);
    info_->baseRed = 11;
    info_->baseGreen = 140;
    info_->baseBlue = 31;
    ChangeBitmapScale(*info_, record());
    EXPECT_EQ(fullPixel(19, 40), QColor(Qt::red));
    EXPECT_EQ(fullPixel(20, 40), QColor(11, 140, 31));  // 80 / 160 * 40 = 20 wide, from the left
    EXPECT_DOUBLE_EQ(record().fOrgScale, 0.5);

    info_->bUseBlueLogic = true;
    ChangeBitmapScale(*info_, record());
    EXPECT_EQ(fullPixel(20, 40), QColor(11, 31, 140));
}

TEST_F(LayersTest, OffsetsCountFromTheBottomLeftAndScaleStaysCentred) {
    QImage plain(120, 80, QImage::Format_RGB888);
    plain.fill(Qt::red);
    load(plain);
    info_->baseRed = info_->baseGreen = info_->baseBlue = 9;
    record().iOrgXoff = 250;  // 30 pixels
    record().iOrgYoff = 250;  // 20 pixels upward
    ChangeBitmapScale(*info_, record());
    EXPECT_EQ(fullPixel(29, 30), QColor(9, 9, 9));
    EXPECT_EQ(fullPixel(30, 30), QColor(Qt::red));
    EXPECT_EQ(fullPixel(60, 59), QColor(Qt::red));
    EXPECT_EQ(fullPixel(60, 60), QColor(9, 9, 9));

    record().iOrgXoff = record().iOrgYoff = 0;
    record().fScale = 0.5;
    ChangeBitmapScale(*info_, record());
    EXPECT_EQ(fullPixel(29, 40), QColor(9, 9, 9));
    EXPECT_EQ(fullPixel(30, 40), QColor(Qt::red));
    EXPECT_EQ(fullPixel(89, 59), QColor(Qt::red));
    EXPECT_EQ(fullPixel(89, 60), QColor(9, 9, 9));
}

TEST_F(LayersTest, AnUnreadableFileLeavesTheOldPicture) {
    load(test::noisePicture(30, 20, 5));
    const QImage old = record().orgImage;
    record().sSourceImageFullPath = folder_.file("missing.jpg");
    EXPECT_FALSE(ChangeOrgBitmap(*info_, record()));
    EXPECT_EQ(record().orgImage, old);
    EXPECT_EQ(record().iOrgWidth, 30);
}

TEST_F(LayersTest, WildPlacementDoesNoHarm) {
    load(test::noisePicture(30, 20, 5));
    for (const double scale : {0.0, -3.0, 1e9, 1e300, std::nan(""), 1e-12}) {
        for (const int offset : {INT_MIN, 0, INT_MAX}) {
            record().fScale = scale;
            record().iOrgXoff = record().iOrgYoff = offset;
            ChangeBitmapScale(*info_, record());
        }
    }
    record().fTilt = std::numeric_limits<double>::infinity();
    ChangeOrgBitmap(*info_, record());
    EXPECT_FALSE(record().orgImage.isNull());
}

}  // namespace
}  // namespace tavrin
