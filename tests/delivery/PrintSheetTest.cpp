#include <gtest/gtest.h>

#include "core/raster/BitmapContext.h"
#include "core/state/SystemInfo.h"
#include "delivery/print/PrintSheet.h"
#include "pipeline/OutputSize.h"
#include "support/PrintPages.h"

namespace tavrin {
namespace {

const QColor kGrey(179, 179, 179), kRed(220, 20, 20), kGreen(20, 200, 20), kBlue(20, 20, 220), kYellow(230, 230, 20);

/// Red and green above, blue and yellow below.
QImage quarters(int width, int height) {
    QImage image(width, height, QImage::Format_RGBX8888);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool left = x < width / 2;
            image.setPixelColor(x, y, y < height / 2 ? (left ? kRed : kGreen) : (left ? kBlue : kYellow));
        }
    }
    return image;
}

class PrintSheetTest : public testing::Test {
  protected:
    /// The sheet with a picture in its slots, rows from the top.
    QImage draw(const PrinterPage& page, const QImage& picture, const SheetLook& look = {}) {
        info_.oPrinterPages = {page};
        info_.iCurrentTemplateIndex = -1;
        ChangeTemplateBitmap(info_, 0);
        drawSheet(info_, picture, static_cast<double>(picture.width()) / picture.height(), look);
        return info_.oBitmapTemplateRep->snapshot();
    }
    SystemInfo info_;
};

TEST(SheetLayout, PicturesAreTurnedWhereTheyDisagreeWithTheSlotAndSquareOnesInAnyThatIsNotSquare) {
    const PrinterPage sheet =
        test::pageOf(400, 400, {QRect(0, 0, 100, 200), QRect(100, 0, 200, 100), QRect(0, 200, 50, 50)});
    const auto turned = [&](double proportion) {
        std::vector<bool> all;
        for (const SheetSlot& slot : slotsOf(sheet, 600, proportion))
            all.push_back(slot.turned);
        return all;
    };
    EXPECT_EQ(turned(0.7), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(turned(1.4), (std::vector<bool>{true, false, false}));
    EXPECT_EQ(turned(1.0), (std::vector<bool>{true, true, false}));
}

TEST(SheetLayout, PlacesAreWholePixelsAndWhatIsNotOnThePageIsLeftOut) {
    constexpr int kFar = 2'000'000'000;
    const PrinterPage sheet = test::pageOf(300, 200,
                                           {QRect(33, 7, 55, 101), QRect(300, 0, 10, 10), QRect(0, -10, 10, 10),
                                            QRect(0, 0, 0, 10), QRect(-kFar, 0, kFar, 10), QRect(-5, 195, 10, 10)});
    const std::vector<SheetSlot> places = slotsOf(sheet, 72, 0.5);
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(places[0].area, QRectF(23, 5, 39, 72));
    EXPECT_EQ(places[1].area, QRectF(-3, 140, 7, 7));
}

TEST_F(PrintSheetTest, ASlotIsFilledFromTheLowerLeftAndTheRestIsGrey) {
    const QImage sheet = draw(test::pageOf(60, 100, {QRect(10, 20, 20, 30)}), quarters(40, 60));
    EXPECT_EQ(sheet.size(), QSize(360, 600));
    EXPECT_EQ(sheet.pixelColor(60, 599 - 120), kBlue);
    EXPECT_EQ(sheet.pixelColor(179, 599 - 120), kYellow);
    EXPECT_EQ(sheet.pixelColor(60, 599 - 299), kRed);
    EXPECT_EQ(sheet.pixelColor(179, 599 - 299), kGreen);
    for (const QPoint outside : {QPoint(59, 400), QPoint(180, 400), QPoint(100, 299), QPoint(100, 480), QPoint(0, 0)})
        EXPECT_EQ(sheet.pixelColor(outside), kGrey);
}

TEST_F(PrintSheetTest, WhatIsTransparentShowsTheGroundHoweverThePictureHoldsIt) {
    QImage straight(40, 60, QImage::Format_RGBA8888);
    straight.fill(QColor(250, 240, 10, 0));
    for (int x = 20; x < 40; ++x)
        for (int y = 0; y < 60; ++y)
            straight.setPixelColor(x, y, QColor(100, 200, 50, 128));
    const QImage premultiplied = straight.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (const SlotFit fit : {SlotFit::stretch, SlotFit::fill, SlotFit::whole}) {
        for (const QImage& picture : {straight, premultiplied}) {
            SheetLook look;
            look.fit = fit;
            const QImage sheet = draw(test::pageOf(60, 100, {QRect(10, 20, 20, 30)}), picture, look);
            EXPECT_EQ(sheet.pixelColor(90, 400), kGrey);
            const QColor half = sheet.pixelColor(150, 400);
            EXPECT_NEAR(half.red(), (100 + 179) / 2, 2);
            EXPECT_NEAR(half.green(), (200 + 179) / 2, 2);
            EXPECT_NEAR(half.blue(), (50 + 179) / 2, 2);
        }
    }
}

TEST_F(PrintSheetTest, ATurnedPictureLiesClockwise) {
    const QImage sheet = draw(test::pageOf(30, 20, {QRect(0, 0, 30, 20)}), quarters(40, 60));
    EXPECT_EQ(sheet.pixelColor(2, 2), kBlue);
    EXPECT_EQ(sheet.pixelColor(177, 2), kRed);
    EXPECT_EQ(sheet.pixelColor(177, 117), kGreen);
    EXPECT_EQ(sheet.pixelColor(2, 117), kYellow);
}

TEST_F(PrintSheetTest, APictureOfOtherProportionsIsStretchedCutOrHasGreySides) {
    const PrinterPage wide = test::pageOf(40, 20, {QRect(0, 0, 40, 20)});
    const QImage picture = quarters(60, 50);
    EXPECT_EQ(draw(wide, picture).pixelColor(0, 0), kRed);
    const QImage cut = draw(wide, picture, {SlotFit::fill, false, false});
    EXPECT_EQ(cut.pixelColor(0, 0), kRed);
    EXPECT_EQ(cut.pixelColor(239, 119), kYellow);
    const QImage whole = draw(wide, picture, {SlotFit::whole, false, false});
    EXPECT_EQ(whole.pixelColor(46, 60), kGrey);  // 144 of the 240 pixels across are the picture
    EXPECT_EQ(whole.pixelColor(50, 2), kRed);
    EXPECT_EQ(whole.pixelColor(189, 117), kYellow);
    EXPECT_EQ(whole.pixelColor(193, 60), kGrey);
}

TEST_F(PrintSheetTest, TransferPaperIsMirroredAndCutMarksStandOutsideTheSlots) {
    const PrinterPage sheet = test::pageOf(100, 100, {QRect(25, 25, 50, 50)});
    const QImage plain = draw(sheet, quarters(50, 50));
    EXPECT_EQ(draw(sheet, quarters(50, 50), {SlotFit::stretch, false, true}), plain.mirrored(true, false));
    const QImage marked = draw(sheet, quarters(50, 50), {SlotFit::stretch, true, false});
    EXPECT_LT(marked.pixelColor(150, 100).red(), 40) << "above the upper left corner";
    EXPECT_LT(marked.pixelColor(500, 450).red(), 40) << "to the right of the lower right one";
    EXPECT_EQ(marked.copy(150, 150, 300, 300), plain.copy(150, 150, 300, 300));
}

}  // namespace
}  // namespace tavrin
