#include <gtest/gtest.h>
#include <thread>

#include "support/TextPage.h"

namespace tavrin {
namespace {

class TextItemsTest : public testing::Test {
  protected:
    void SetUp() override { TAVRIN_NEED_FONTS(); }
    test::TextPage page_;
};

// The box is a hundred pixels high, and its lower edge that far from the picture's, whose row 600 it is.
TEST_F(TextItemsTest, TheBoxStandsAtItsPlaceAtBothResolutions) {
    FontObject& item = page_.add("HH", 60);  // its lines are less high
    const QRect first = page_.draw();
    EXPECT_GE(first.left(), 100);
    EXPECT_LE(first.left(), 115);
    EXPECT_GE(first.top(), 400);
    EXPECT_LE(first.bottom(), 500);
    const QRect low = page_.draw(0);
    EXPECT_NEAR(low.left(), first.left() / 2.0, 1.0);
    EXPECT_NEAR(low.top(), first.top() / 2.0, 1.0);
    EXPECT_NEAR(low.width(), first.width() / 2.0, 1.5);
    EXPECT_NEAR(low.height(), first.height() / 2.0, 1.5);

    item.xPos = 1.5;
    item.yPos = 3.25;
    item.rectSizeX = 700.0;  // where it lay in the dialog does not matter
    EXPECT_EQ(page_.draw(), first.translated(50, -225));
    item.rectSizeHeight = 144.0;  // the text starts at the top of its box
    EXPECT_EQ(page_.draw(), first.translated(50, -325));
}

// What is drawn begins and ends at whole pixels, so that two lengths differ by up to one, and by two at twice the
// size.
TEST_F(TextItemsTest, ItemsGrowFromTheLowerLeftCornerOfTheirBox) {
    FontObject& item = page_.add("HH", 60);
    const QRect first = page_.draw();
    item.dGlobalScaleX = 2.0;
    const QRect wide = page_.draw();
    EXPECT_NEAR(wide.width(), 2 * first.width(), 3.0);
    EXPECT_NEAR(wide.left() - 100, 2 * (first.left() - 100), 3.0);
    EXPECT_EQ(wide.top(), first.top());
    EXPECT_EQ(wide.height(), first.height());
    item.dGlobalScaleX = 1.0;
    item.dGlobalScaleY = 2.0;
    const QRect high = page_.draw();
    EXPECT_NEAR(high.height(), 2 * first.height(), 3.0);
    EXPECT_NEAR(500 - high.bottom(), 2 * (500 - first.bottom()), 3.0);
    EXPECT_EQ(high.left(), first.left());
    EXPECT_EQ(high.width(), first.width());
}

TEST_F(TextItemsTest, LinesBreakAtTheBoxAndLeanWithinIt) {
    FontObject& item = page_.add("HHH HHH", 36);  // 50 pixels high
    const QRect line = page_.draw();
    item.rectSizeWidth = line.width() * 0.72 * 0.6;  // from pixels to points
    const QRect broken = page_.draw();
    EXPECT_LT(broken.width(), line.width() * 0.55);
    EXPECT_GT(broken.height(), line.height() * 2);
    EXPECT_EQ(broken.top(), line.top()) << "more lines go down from the top of the box";
    item.sText = "HHH\r\nHHH";
    EXPECT_EQ(page_.draw(), broken);
    item.sText = "HHH\n\nHHH";
    EXPECT_NEAR(page_.draw().height() - broken.height(), broken.height() - line.height(), 1)
        << "an empty line is as high as another";

    item.sText = "HHH";
    item.rectSizeWidth = 432.0;  // 600 pixels from 100 on
    const QRect left = page_.draw();
    item.iJustify = 1;
    const QRect middle = page_.draw();
    item.iJustify = 7;
    const QRect right = page_.draw();
    EXPECT_NEAR(middle.left() + middle.right() + 1, 2 * 400, 4);
    EXPECT_NEAR(right.right() + 1, 800 - left.left(), 4);
    // A box of the text's own width takes it in one line.
    item.iJustify = 0;
    item.sText = "Wide as it is";
    const QRect whole = page_.draw();
    item.rectSizeWidth = (whole.right() + 4 - 100) * 0.72;
    EXPECT_EQ(page_.draw(), whole);
    item.rectSizeWidth = whole.width() * 0.72 * 0.9;
    EXPECT_GT(page_.draw().height(), whole.height());
    item.rectSizeWidth = -5.0;
    EXPECT_EQ(page_.draw(), whole) << "a box without a width breaks nothing";
}

TEST_F(TextItemsTest, OutlinesAreCentredAndAsWideAsTheySay) {
    FontObject& item = page_.add("H", 288);  // 400 pixels
    item.dFontFillGreen = item.dFontFillBlue = 0.0;
    item.dFontOutlineBlue = 1.0;
    item.isBold = true;  // so that there is something left inside its strokes
    item.rectSizeHeight = 400.0;
    item.yPos = 0.2;
    const QRect fill = page_.draw();
    const QPoint inside(fill.left() + 30, fill.center().y() - 60);
    EXPECT_EQ(page_.color(1, inside.x(), inside.y()), QColor(255, 0, 0));

    item.iFontOutlineThickness = -3;
    const QRect both = page_.draw();
    EXPECT_EQ(page_.color(1, inside.x(), inside.y()), QColor(255, 0, 0));
    EXPECT_EQ(page_.color(1, fill.left(), inside.y()), QColor(0, 0, 255));
    EXPECT_NEAR(fill.left() - both.left(), 6, 1) << "half of 3 % of 400";
    EXPECT_NEAR(both.bottom() - fill.bottom(), 6, 1) << "corners are sharp";

    item.iFontOutlineThickness = 3;
    EXPECT_EQ(page_.draw(), both);
    EXPECT_EQ(page_.color(1, inside.x(), inside.y()), QColor(120, 120, 120));
    item.iFontOutlineThickness = 8;
    EXPECT_NEAR(fill.left() - page_.draw().left(), 16, 1);
    EXPECT_EQ(page_.color(1, inside.x(), inside.y()), QColor(255, 0, 0)) << "only 3 leaves the fill out";
}

TEST_F(TextItemsTest, TheShadowLiesWhereItsOffsetsSayAtTheItemsScale) {
    FontObject& item = page_.add("H");
    const QRect plain = page_.draw(), plainLow = page_.draw(0);
    item.iFontDropShadowHorz = 18;
    item.iFontDropShadowVert = -36;
    for (const int res : {0, 1}) {
        const QRect letter = res ? plain : plainLow, both = page_.draw(res);
        EXPECT_EQ(both.topLeft(), letter.topLeft());
        EXPECT_NEAR(both.right() - letter.right(), res ? 25.0 : 12.5, 1.0);
        EXPECT_NEAR(both.bottom() - letter.bottom(), res ? 50.0 : 25.0, 1.0);
    }
    item.dGlobalScaleX = 2.0;
    EXPECT_NEAR(page_.draw().right() - plain.right(), 50 + plain.right() - 100, 2);
    item.dGlobalScaleX = 1.0;
    item.dFontDropshadowGlowRed = 1.0;
    page_.draw();
    EXPECT_EQ(page_.color(1, plain.right() + 20, plain.bottom() + 20), QColor(255, 0, 0));

    item.iFontDropShadowHorz = item.iFontDropShadowVert = 0;
    item.iFontDropShadowRadius = 10;  // a glow on all sides
    for (const int res : {0, 1}) {
        page_.draw(res);
        const QRect letter = res ? plain : plainLow;
        const int step = res ? 4 : 2;
        const QColor left = page_.color(res, letter.left() - step, letter.center().y() - 2 * step);
        EXPECT_GT(left.red(), 140);
        EXPECT_LT(left.green(), 110);
    }
}

TEST_F(TextItemsTest, EachLevelDrawsItsOwnInTheOrderOfTheList) {
    page_.add("H").sLevel = "Foreground";
    page_.add("H").dFontFillRed = 0.0;
    const QRect box = page_.draw();
    EXPECT_EQ(page_.color(1, box.left() + 4, box.center().y()), QColor(0, 255, 255));
    DrawTextAtLevel(*page_.info, page_.context(1), "Foreground", 1);
    EXPECT_EQ(page_.color(1, box.left() + 4, box.center().y()), QColor(255, 255, 255));
    page_.add("H").dFontFillGreen = 0.0;
    page_.draw();
    EXPECT_EQ(page_.color(1, box.left() + 4, box.center().y()), QColor(255, 0, 255)) << "the later lies above";
    DrawTextAtLevel(*page_.info, nullptr, "Frame Layer", 1);
}

TEST_F(TextItemsTest, TheOpenDialogShowsTheItemsItselfAndLabelsStay) {
    page_.add("H");
    page_.info->oFontLabelObject[1].sText = "H";
    const QRect all = page_.draw();
    page_.info->bTextPanelOpen = true;
    const QRect label = page_.draw();
    EXPECT_FALSE(label.isNull());
    EXPECT_LT(label.height(), all.height() / 2);
    DrawTextAtLevel(*page_.info, page_.context(1), "Foreground", 1);
    EXPECT_EQ(page_.drawn(1), label) << "labels stand at the last level only";
}

TEST_F(TextItemsTest, MacrosAreReplacedWhenTheTextIsLaidOut) {
    page_.info->pForegroundBitmapInfo->sSourceImageFullPath = "/shots/IMG_0042.jpg";
    FontObject& item = page_.add("0042");
    page_.draw();
    const test::Bytes expected = page_.bytes(1);
    item.sText = "<<filenumber>>";
    page_.draw();
    EXPECT_EQ(page_.bytes(1), expected);
}

TEST_F(TextItemsTest, ThreadsDrawAtOnceAndLeaveAnOpaquePictureOpaque) {
    test::TextPage pages[2];
    for (test::TextPage& page : pages) {
        FontObject& item = page.add("Ünïcode 你 مرحبا 😀", 40);
        item.iFontDropShadowRadius = 6;
        item.iFontOutlineThickness = -3;
    }
    std::thread other([&] { pages[1].draw(); });
    {
        const ThreadLimit limit(1);
        pages[0].draw();
    }
    other.join();
    const test::Bytes bytes = pages[0].bytes(1);
    EXPECT_EQ(bytes, pages[1].bytes(1));
    for (std::size_t i = 3; i < bytes.size(); i += 4)
        ASSERT_EQ(bytes[i], 255);
}

TEST_F(TextItemsTest, ExtremeValuesOfAFieldHurtNobody) {
    const auto draw = [&](const auto& set) {
        page_.info->oFontObject.clear();
        FontObject& item = page_.add("Ag 😀", 20);
        item.iFontOutlineThickness = -3;
        item.iFontDropShadowRadius = 5;
        set(item);
        DrawTextAtLevel(*page_.info, page_.context(0), "Frame Layer", 0);
    };
    for (const auto& leaf : FontObject::leaves()) {
        if (const auto* member = std::get_if<Field<double> FontObject::*>(&leaf.member)) {
            for (const double value : {-1e300, 0.0, 1e-9, 1e6, 1e300})
                draw([&](FontObject& item) { item.*(*member) = value; });
        } else if (const auto* whole = std::get_if<Field<std::int32_t> FontObject::*>(&leaf.member)) {
            for (const int value : test::kExtremes)
                draw([&](FontObject& item) { item.*(*whole) = value; });
        }
    }
}

}  // namespace
}  // namespace tavrin
