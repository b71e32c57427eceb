#include <gtest/gtest.h>

#include "support/TextPage.h"

namespace tavrin {
namespace {

class LabelsTest : public testing::Test {
  protected:
    void SetUp() override { TAVRIN_NEED_FONTS(); }

    // "H" is as high as the capitals are; at 72 points its font is as many pixels high as an inch has.
    QRect draw(const char* text, const char* location, int res) {
        page_.clear();
        FontObject label;
        label.sText = text;
        label.sLocation = location;
        label.iFontSize = 72;
        label.xPos = 0.25;
        label.yPos = 0.5;
        DrawText(*page_.info, page_.context(res), label, res);
        return page_.drawn(res);
    }

    test::TextPage page_;
};

TEST_F(LabelsTest, StandAtTheirPlaces) {
    const struct {
        const char* location;
        double left, right, top, bottom;  // of the picture's size; below 0: not told by the place
    } places[] = {
        {"Top Left", 0.03125, -1, 0.0417, -1},     {"Top Center", -1, -1, 0.0417, -1},
        {"Top Right", -1, 0.96875, 0.0417, -1},    {"Center Left", 0.03125, -1, -1, 0.5},
        {"Center Center", -1, -1, -1, 0.5},        {"Center Right", -1, 0.96875, -1, 0.5},
        {"Bottom Left", 0.03125, -1, -1, 0.9583},  {"Bottom Center", -1, -1, -1, 0.9583},
        {"Bottom Right", -1, 0.96875, -1, 0.9583}, {"ABSOLUTE", 0.25, -1, -1, 0.5},
    };
    for (const int res : {0, 1}) {
        const PassGeometry size = page_.info->geometry(fullIf(res == 1));
        const double bearing = 0.12 * size.dpi;  // clear space beside the letter
        for (const auto& place : places) {
            const QRect box = draw("H", place.location, res);
            SCOPED_TRACE(place.location);
            ASSERT_FALSE(box.isNull());
            const double wanted = (place.top >= 0 ? place.top : place.bottom) * size.height;
            EXPECT_NEAR(place.top >= 0 ? box.top() : box.bottom() + 1, wanted, 1.6);
            if (place.left >= 0) {
                EXPECT_GE(box.left() + 1, place.left * size.width);
                EXPECT_LE(box.left(), place.left * size.width + bearing);
            } else if (place.right >= 0) {
                EXPECT_LE(box.right(), place.right * size.width);
                EXPECT_GE(box.right() + 2, place.right * size.width - bearing);
            } else {
                EXPECT_NEAR(box.left() + box.right() + 1, size.width, 0.06 * size.dpi);
            }
        }
    }
}

TEST_F(LabelsTest, AnUnknownPlaceCountsBothWaysFromTheWidth) {
    page_.info->iOutputPixelHeight = 600;
    page_.info->iOutputPixelWidth = 500;  // so that 90 % of it lie within the picture
    FontObject label;
    label.sText = "H";
    label.sLocation = "somewhere";
    label.iFontSize = 72;
    BitmapInfo& combined = *page_.info->pCombinedBitmapInfo;
    combined.allocateBuffers(500, 600, 400, 300);
    std::fill_n(combined.pBitmapData, pixelBytes(500, 600), std::uint8_t{test::TextPage::kGround});
    DrawText(*page_.info, combined.oBitmapRep.get(), label, 1);
    const QRect box = page_.drawn(1);
    EXPECT_NEAR(box.left(), 50, 12);
    EXPECT_NEAR(box.bottom() + 1, 600 - 450, 1.6);
}

TEST_F(LabelsTest, TheShadowIsThreeStepsInPixelsAtBothResolutions) {
    FontObject& title = page_.info->oFontLabelObject[0];
    title.sText = "H";
    title.sLocation = "Center Center";
    for (const bool dark : {false, true}) {
        title.dFontFillRed = title.dFontFillGreen = title.dFontFillBlue = dark ? 0.16 : 1.0;
        for (const int res : {0, 1}) {
            title.bDropShadow = false;
            const QRect plain = page_.draw(res);
            title.bDropShadow = true;
            const QRect both = page_.draw(res);
            EXPECT_EQ(both.topLeft(), plain.topLeft());
            EXPECT_NEAR(both.right() - plain.right(), 3, 1);
            EXPECT_NEAR(both.bottom() - plain.bottom(), 3, 1);
            const QColor shadow = page_.color(res, plain.left() + 4, plain.bottom() + 2);
            EXPECT_EQ(shadow.red() > 200, dark) << shadow.red();
            EXPECT_EQ(shadow.red() < 30, !dark) << shadow.red();
        }
    }
    title.sText = "";
    EXPECT_TRUE(page_.draw().isNull()) << "no text, no shadow";
}

TEST_F(LabelsTest, KnowTheNameOfTheFile) {
    page_.info->pForegroundBitmapInfo->sSourceImageFullPath = "/shots/Anna 7.jpg";
    draw("Anna 7.jpg", "Center Center", 1);
    const test::Bytes expected = page_.bytes(1);
    for (const char* text : {"@filename", "@FileName"}) {
        draw(text, "Center Center", 1);
        EXPECT_EQ(page_.bytes(1), expected) << text;
    }
    draw("@filename.", "Center Center", 1);
    EXPECT_NE(page_.bytes(1), expected);
    draw("<<filename>>", "Center Center", 1);
    EXPECT_NE(page_.bytes(1), expected) << "the macros of list items are not the labels'";
}

TEST_F(LabelsTest, AWideTextIsCutAtTheLeft) {
    const QRect box = draw("WWWWWWWWWWWWWWWWWWWW.H", "Bottom Right", 1);
    EXPECT_EQ(box.left(), 0);
    EXPECT_NEAR(box.right(), 775, 12);
}

TEST_F(LabelsTest, TakeSizeAndColourFromTheirNames) {
    SystemInfo& info = *page_.info;
    const std::pair<const char*, int> sizes[] = {
        {"X-Large", 60}, {"Large", 40}, {"Medium", 25}, {"Small", 12}, {"Huge", 33}};
    for (const auto& [name, points] : sizes) {
        info.oFontLabelObject[0].sLabelSize = name;
        info.oFontLabelObject[0].iFontSize = 33;
        info.oFontLabelObject[0].sFontColor = "Black";
        info.oFontLabelObject[1].sFontColor = "White";
        updateLabelSettings(info);
        EXPECT_EQ(info.oFontLabelObject[0].iFontSize, points);
        EXPECT_EQ(info.oFontLabelObject[0].dFontFillGreen, 0.0);
        EXPECT_EQ(info.oFontLabelObject[1].dFontFillGreen, 1.0);
        EXPECT_EQ(info.oFontLabelObject[1].iFontSize, 12) << "the note is small from the start";
    }
}

}  // namespace
}  // namespace tavrin
