// What each tool of the airbrush makes of a pixel, by hand-worked values.
#include <gtest/gtest.h>
#include <random>

#include "editor/EditScene.h"

namespace tavrin {
namespace {

using test::EditScene;
using test::Pixel;

// A scene of one pixel with these colours of the portrait and of the picture.
struct OnePixel : EditScene {
    OnePixel(Pixel front, Pixel picture) : EditScene(1, 1, front) { out() = picture; }
};

TEST(Stamp, FallsOffInWholeStepsFromItsHardPart) {
    EditScene scene(30, 30);
    scene.combined.assign(900, {100, 100, 100, 9});
    scene.enter();
    scene.choose('p');
    scene.live({kColorWell, 203, 100, 100});
    scene.sliders(50, 5, 50);  // 10 pixels, the inner 5 at full strength
    scene.click(15, 15);
    EXPECT_EQ(scene.out(20, 15), (Pixel{203, 100, 100, 9}));
    EXPECT_EQ(scene.out(19, 19)[0], 203);  // 5.66 counts as 5
    EXPECT_EQ(scene.out(21, 15)[0], 182);  // 0.8
    EXPECT_EQ(scene.out(15, 8)[0], 161);   // 0.6
    EXPECT_EQ(scene.out(22, 22)[0], 120);  // 9 of 10, still in the disc
    EXPECT_EQ(scene.out(23, 22)[0], 100);  // beyond the disc's column
}

TEST(Stamp, OnlyTheStrongestTouchOfAStrokeCounts) {
    EditScene scene(9, 1);
    scene.combined.assign(9, {100, 0, 0, 9});
    scene.enter();
    scene.choose('p');
    scene.live({kColorWell, 203, 0, 0});
    scene.sliders(50, 0, 100, 50);
    scene.press(4, 0);
    scene.drag(2, 0);
    scene.drag(7, 0);
    EXPECT_EQ(scene.out(4, 0)[0], 151);
    scene.sliders(50, 0, 100, 20);
    scene.press(4, 0);  // weaker than what the stroke has done
    EXPECT_EQ(scene.out(4, 0)[0], 151);
    scene.release();
    scene.sliders(50, 0, 100, 50);
    scene.click(4, 0);  // the next stroke begins with what is there
    EXPECT_EQ(scene.out(4, 0)[0], 177);
}

TEST(Brush, PaintTakesItsColourOrItsHue) {
    OnePixel scene({40, 200, 60, 255}, {100, 50, 20, 9});
    scene.background[0][3] = 30;
    EXPECT_EQ(scene.touchFirst('p'), (Pixel{40, 40, 150, 9}));
    EXPECT_EQ(scene.alpha(0, 0), 255);

    OnePixel grey({40, 200, 60, 255}, {100, 50, 20, 9});
    grey.choose('p');
    grey.live({kColorWell, 50, 100, 200});
    grey.live({kCheckBox, 1});
    EXPECT_EQ(grey.touchFirst('p'), (Pixel{25, 50, 100, 9}));
}

TEST(Brush, EraseShowsTheBackgroundOrNothing) {
    OnePixel scene({205, 150, 120, 255}, {100, 50, 20, 9});
    EXPECT_EQ(scene.touchFirst('e'), (Pixel{90, 110, 70, 9}));
    EXPECT_EQ(scene.alpha(0, 0), 0);

    OnePixel skin({205, 150, 120, 255}, {100, 50, 20, 9}), green({60, 180, 60, 255}, {100, 50, 20, 9});
    for (OnePixel* one : {&skin, &green})
        one->live({kCheckBox, 1});  // only if green
    EXPECT_EQ(skin.touchFirst('e'), (Pixel{100, 50, 20, 9}));
    EXPECT_EQ(green.touchFirst('e'), (Pixel{90, 110, 70, 9}));

    OnePixel clear({205, 150, 120, 255}, {100, 50, 20, 9});
    clear.info.bOutputTransparency = true;
    clear.enter();
    clear.sliders(50, 0, 100, 50);
    clear.click(0, 0);
    EXPECT_EQ(clear.out(), (Pixel{49, 24, 9, 127}));  // the colour carries its alpha
    EXPECT_EQ(clear.alpha(0, 0), 127);
}

TEST(Brush, RestoreBringsTheForegroundBack) {
    OnePixel scene({205, 150, 120, 255}, {100, 50, 20, 9});
    scene.background[0][3] = 0;
    EXPECT_EQ(scene.touchFirst('r'), (Pixel{205, 150, 120, 9}));
    EXPECT_EQ(scene.alpha(0, 0), 255);

    OnePixel screen({40, 200, 60, 255}, {100, 50, 20, 9});
    screen.choose('r');
    screen.live({kCheckBox, 0});  // no green areas
    EXPECT_EQ(screen.touchFirst('r'), (Pixel{100, 50, 20, 9}));
}

TEST(Brush, ToneToolsWorkOnThePicture) {
    const Pixel picture{100, 50, 220, 9}, any{200, 150, 120, 255};
    EXPECT_EQ(OnePixel(any, picture).touchFirst('6', 75), (Pixel{125, 62, 255, 9}));
    EXPECT_EQ(OnePixel(any, picture).touchFirst('7', 75), (Pixel{86, 11, 255, 9}));
    EXPECT_EQ(OnePixel(any, picture).touchFirst('7', 0), (Pixel{127, 127, 127, 9}));
}

TEST(Brush, ToolsOfTheForegroundHaveTheirThresholds) {
    const Pixel picture{1, 2, 3, 9};
    EXPECT_EQ(OnePixel({30, 41, 99, 255}, picture).touchFirst('3', 50), (Pixel{35, 35, 35, 9}));
    EXPECT_EQ(OnePixel({30, 41, 99, 255}, picture).touchFirst('3', 35), picture);  // 35 is below 35.5
    EXPECT_EQ(OnePixel({200, 180, 160, 255}, picture).touchFirst('w', 50), (Pixel{200, 193, 186, 9}));
    EXPECT_EQ(OnePixel({200, 180, 160, 255}, picture).touchFirst('w', 30), picture);
    EXPECT_EQ(OnePixel({200, 150, 120, 255}, picture).touchFirst('b', 50), (Pixel{145, 130, 95, 9}));
    EXPECT_EQ(OnePixel({40, 200, 60, 255}, picture).touchFirst('b', 50), picture);  // that is screen
}

TEST(Brush, ForegroundShownAsItIsCountsAsAllSubject) {
    OnePixel scene({100, 150, 90, 255}, {1, 2, 3, 9});
    scene.info.bShowOrgImage = true;
    const Pixel out = scene.touchFirst('b', 100);
    EXPECT_NEAR(out[0], 100, 1);
    EXPECT_NEAR(out[1], 150, 1);
    EXPECT_NEAR(out[2], 90, 1);
}

TEST(Brush, OnlyTheFirstSpillOfAVisitSeesTheOtherBalance) {
    const Pixel front{120, 140, 90, 255};
    EditScene scene(3, 3, front);
    scene.info.pCombinedBitmapInfo->sliderWhiteBalance = 180;
    SpillKey key(scene.info, SpillLayers::of(scene.info, Resolution::full));
    const SpilledPixel first = key.Spill(0, 0, 120, 140, 90), later = key.Spill(0, 0, 120, 140, 90);
    ASSERT_NE(toByte(first.color.r), toByte(later.color.r));
    ASSERT_GE(std::min(first.amount, later.amount), 0.1);
    scene.enter();
    scene.choose('s');
    scene.sliders(50, 1);  // 2 pixels
    scene.click(1, 1);
    EXPECT_EQ(scene.out(0, 0)[0], toByte(first.color.r));  // column by column, so not (0, 1) or (1, 0)
    EXPECT_EQ(scene.out(0, 1)[0], toByte(later.color.r));
    EXPECT_EQ(scene.out(1, 0)[0], toByte(later.color.r));
}

TEST(Brush, NeighbourhoodToolsAverageWithoutTheCentre) {
    const auto make = [](char key, std::uint8_t centre, std::uint8_t around, bool green) {
        EditScene scene(3, 3, {100, 100, 100, 255});
        if (green) scene.at(scene.foreground, 2, 2) = {40, 200, 60, 255};
        scene.combined.assign(9, {around, around, around, 9});
        scene.out(1, 1) = {centre, centre, centre, 9};
        scene.enter();
        scene.choose(key);
        scene.sliders(0, 0);
        scene.click(1, 1);
        return scene.out(1, 1)[0];
    };
    EXPECT_EQ(make('4', 200, 100, false), 100);
    EXPECT_EQ(make('5', 50, 100, false), 100);   // a dark fleck goes
    EXPECT_EQ(make('5', 200, 100, false), 150);  // a bright one by half
    EXPECT_EQ(make('5', 0, 100, false), 0);
    EXPECT_EQ(make('2', 200, 10, false), 200);  // no green near
    EXPECT_EQ(make('2', 200, 10, true), 125);   // differences of 25, so 100 / 255 of the average
}

// The square around a pixel by itself.
int plainAverage(const EditScene& scene, const std::vector<Pixel>& before, int x, int y, int half, int channel) {
    int sum = 0, count = 0;
    for (int row = std::max(y - half, 0); row <= std::min(y + half, scene.height - 1); ++row) {
        for (int column = std::max(x - half, 0); column <= std::min(x + half, scene.width - 1); ++column) {
            const std::size_t i = static_cast<std::size_t>(row * scene.width + column);
            if ((row == y && column == x) || scene.background[i][3] <= 199) continue;
            sum += before[i][static_cast<std::size_t>(channel)];
            ++count;
        }
    }
    return static_cast<int>(static_cast<double>(sum) / count);
}

TEST(Brush, BlurOfAWholeStampIsThatOfEachPixel) {
    EditScene scene(40, 30);
    test::fillWithNoise(scene.combined, 5);
    test::fillWithNoise(scene.background, 6);
    for (Pixel& p : scene.background)
        p[3] = p[3] > 60 ? 255 : 150;
    scene.info.bOutputTransparency = true;
    const std::vector<Pixel> before = scene.combined;
    scene.enter();
    scene.choose('4');
    scene.sliders(40, 10);  // 9 x 9 pixels around each
    scene.click(4, 26);     // over the corner
    for (int y = 15; y < 30; ++y) {
        for (int x = 0; x < 15; ++x) {
            if (scene.alpha(x, y) != 255) continue;
            ASSERT_EQ(scene.out(x, y)[1], plainAverage(scene, before, x, y, 4, 1)) << x << ", " << y;
        }
    }
}

TEST(Brush, CopyTakesFromItsAnchor) {
    EditScene scene(20, 1);
    for (int x = 0; x < 20; ++x)
        scene.out(x, 0) = {static_cast<std::uint8_t>(10 * x), 0, 0, 9};
    scene.enter();
    scene.choose('c');
    scene.sliders(50, 0);
    scene.click(10, 0);
    EXPECT_EQ(scene.out(10, 0)[0], 100);  // from nowhere
    scene.live({kKeyPressed, 2, 1, 'a'});
    scene.click(10, 0);
    scene.click(15, 0);
    EXPECT_EQ(scene.out(10, 0)[0], 20);
    EXPECT_EQ(scene.out(15, 0)[0], 70);  // the first stroke's offset stays
    scene.live({kCheckBox, 1});          // each stroke from the anchor
    scene.click(12, 0);
    EXPECT_EQ(scene.out(12, 0)[0], 20);
    scene.click(1, 0);
    EXPECT_EQ(scene.out(1, 0)[0], 20);
}

TEST(Brush, ColourSearchExplainsThePixelByTheScreen) {
    const Pixel picture{1, 2, 3, 9};
    const auto touch = [&](char key, Pixel tool, Pixel front) {
        OnePixel scene(front, picture);
        scene.choose(key);
        scene.live({kColorWell, tool[0], tool[1], tool[2]});
        const Pixel out = scene.touchFirst(key);
        return std::pair(out, scene.alpha(0, 0));
    };
    // A grey filter colour: half screen, half grey 128.
    EXPECT_EQ(touch('f', {128, 128, 128}, {84, 164, 94, 255}), std::pair(Pixel{109, 119, 99, 9}, 127));
    // Dark hair goes by green alone.
    EXPECT_EQ(touch('h', {20, 30, 25}, {90, 115, 90, 255}), std::pair(Pixel{55, 70, 47, 9}, 127));
    // Brown hair by the search.
    EXPECT_EQ(touch('h', {120, 80, 50}, {88, 128, 54, 255}), std::pair(Pixel{107, 91, 58, 9}, 143));
}

TEST(Brush, OnABlueScreenTheComparisonIsThatOfGreen) {
    OnePixel scene({205, 150, 120, 255}, {1, 2, 3, 9});
    scene.info.bUseBlueLogic = true;  // the grid is in roles
    scene.foreground[0] = {90, 90, 115, 255};
    scene.choose('h');
    scene.live({kColorWell, 20, 25, 30});
    EXPECT_EQ(scene.touchFirst('h'), (Pixel{55, 67, 50, 9}));
}

}  // namespace
}  // namespace tavrin
