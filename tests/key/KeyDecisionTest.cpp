#include <cmath>
#include <gtest/gtest.h>

#include "key/KeyScene.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

TEST(KeyDecision, TheScreenColourIsBackground) {
    KeyScene scene(1, 1);
    EXPECT_EQ(scene.keyed().alpha, 0.0);
    EXPECT_FALSE(scene.keyed().hardBackground);  // its line takes it before nearness is asked
    scene.sliders().sliderRestoredDarkAreas = 200;
    EXPECT_EQ(scene.keyed().alpha, 0.0);
    EXPECT_TRUE(scene.keyed().hardBackground);
}

TEST(KeyDecision, DarkScreenGoesOnlyAsFarAsDarkAreasAllow) {
    KeyScene scene(1, 1, {16, 80, 24, 255});  // the screen at 40 percent, lift 101
    EXPECT_GT(scene.keyed().alpha, 0.0);
    scene.sliders().sliderRestoredDarkAreas = 40;
    EXPECT_EQ(scene.keyed().alpha, 0.0);
}

TEST(KeyDecision, BlackIsSubjectUnlessDarkAreasAreOff) {
    KeyScene scene(1, 1, {0, 0, 0, 255});
    EXPECT_EQ(scene.keyed().alpha, 1.0);
    EXPECT_LT(scene.keyed().lift, 1.0);
    scene.sliders().sliderRestoredDarkAreas = 0;
    EXPECT_EQ(scene.keyed().alpha, 0.0);
}

TEST(KeyDecision, DarkGreyHasItsGreenCapped) {
    KeyScene scene(1, 1, {60, 63, 58, 255});
    const KeyedPixel pixel = scene.keyed();
    EXPECT_EQ(pixel.alpha, 1.0);
    EXPECT_EQ(pixel.color.g, pixel.color.r);
    EXPECT_NEAR(pixel.color.b, 58.0, 0.5);
}

TEST(KeyDecision, AnotherColourIsSubjectAtOnceButNotBeforeABlueScreen) {
    KeyScene green(1, 1, {200, 150, 10, 255});
    EXPECT_EQ(green.keyed().alpha, 1.0);
    KeyScene blue(1, 1, {200, 10, 150, 255});
    blue.info.bUseBlueLogic = true;
    EXPECT_LT(blue.keyed().alpha, 1.0);
    KeyScene red(1, 1, {255, 0, 0, 255});
    EXPECT_EQ(red.keyed().alpha, 1.0);
}

TEST(KeyDecision, MixedPixelStopsWhereItIsNoLongerGreen) {
    // Unmixed red is 40 + 71 / a and green 200 - 40 / a: they are level at a = 0.555, so the walk stops at 0.55.
    KeyScene scene(1, 1, {111, 160, 75, 255});
    const KeyedPixel pixel = scene.keyed();
    EXPECT_NEAR(pixel.alpha, (0.55 - 0.5) * 1.4 + 0.5, 1e-9);
    // Unmixed to (169, 127, 87), then held to the brightness it had.
    const double hold = (160.0 + 111.0) / ((111.0 - 0.45 * 40.0) / 0.55 + (160.0 - 0.45 * 200.0) / 0.55);
    EXPECT_NEAR(pixel.color.r, hold * (111.0 - 0.45 * 40.0) / 0.55, 0.5);
    EXPECT_NEAR(pixel.color.g, hold * (160.0 - 0.45 * 200.0) / 0.55, 0.5);
    EXPECT_NEAR(pixel.color.b, hold * (75.0 - 0.45 * 60.0) / 0.55, 0.5);
    scene.sliders().sliderTransparentcyAdjustment = 120;
    EXPECT_NEAR(scene.keyed().alpha, 0.77, 1e-9);
}

TEST(AlphaSearch, GreyOnTheWayEndsAWarmWalkOnGreenScreensOnly) {
    // At 1 the colour is grey enough to be remembered; red then leads both others by 10 at 0.8, found as 0.83.
    const Rgb screen{40.0, 200.0, 60.0}, color{131.0, 138.0, 122.0};
    const SearchConstants strict{-200.0, 40.0, true};
    const SearchConstants blue{-200.0, 40.0, false};
    const double found = searchAlpha(color, screen, strict);
    EXPECT_GT(found, 0.5);
    EXPECT_LT(searchAlpha(color, screen, blue), found);
    EXPECT_EQ(searchAlpha({50.0, 250.0, 60.0}, {1.0, 1.0, 1.0}, blue), 0.0);  // the walk runs out
}

TEST(KeyDecision, BoundsRaiseTheAlphaAndAZeroDivisorGivesNone) {
    // Green above the screen's: the walk stops at 0.56, and the pixel's green needs (190 - 100) / 155 = 0.581.
    KeyScene scene(1, 1, {150, 190, 150, 255});
    scene.info.baseRed = 30.0;
    scene.info.baseGreen = 100.0;
    scene.info.baseBlue = 40.0;
    EXPECT_NEAR(scene.keyed().alpha, (90.0 / 155.0 - 0.5) * 1.4 + 0.5, 0.003);
    // The screen at full level leaves no room above it.
    KeyScene full(1, 1, {120, 255, 255, 255});
    full.info.baseRed = full.info.baseBlue = 255.0;
    full.info.baseGreen = 255.0;
    EXPECT_TRUE(std::isfinite(full.keyed().alpha));
}

TEST(KeyDecision, GreenCastMovesToTheSecondChannel) {
    KeyScene scene(1, 1, {30, 90, 60, 255});
    scene.sliders().sliderRestoredDarkAreas = 200;  // so that its line does not take it
    scene.sliders().sliderGreenTintAreas = -400;    // and the walk runs long
    const KeyedPixel pixel = scene.keyed();
    ASSERT_LT(pixel.alpha, 0.8);
    EXPECT_LE(pixel.color.g, std::max(pixel.color.r, pixel.color.b) + 10.0);
}

TEST(KeyDecision, FaintOrAbsentSubjectLeavesNoBadColour) {
    for (int r = 0; r < 256; r += 15) {
        for (int g = 0; g < 256; g += 15) {
            for (int b = 0; b < 256; b += 15) {
                KeyScene scene(
                    1, 1,
                    {static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g), static_cast<std::uint8_t>(b), 255});
                const KeyedPixel pixel = scene.keyed();
                ASSERT_TRUE(pixel.alpha >= 0.0 && pixel.alpha <= 1.0);
                ASSERT_TRUE(pixel.color.r >= 0.0 && pixel.color.g >= 0.0 && pixel.color.b >= 0.0);
            }
        }
    }
}

TEST(KeyDecision, ClipMarginsAreOneShortAtRightAndBottom) {
    KeyScene scene(10, 10, {255, 0, 0, 255});
    scene.info.iSliderClipLeft = scene.info.iSliderClipTop = 10;
    scene.info.iSliderClipRight = scene.info.iSliderClipBottom = 20;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.alpha(0, 5), 0);
    EXPECT_EQ(scene.alpha(1, 5), 255);
    EXPECT_EQ(scene.alpha(8, 5), 255);
    EXPECT_EQ(scene.alpha(9, 5), 0);
    EXPECT_EQ(scene.alpha(5, 0), 0);
    EXPECT_EQ(scene.alpha(5, 8), 255);
    EXPECT_EQ(scene.alpha(5, 9), 0);
    EXPECT_EQ(scene.at(scene.combined, 9, 5), (Pixel{90, 110, 70, 255}));
}

TEST(KeyDecision, InAClipMarginNoDisplayOptionBringsThePixelBack) {
    KeyScene scene(3, 2, {255, 0, 0, 255});
    scene.info.iSliderClipLeft = 100;
    for (int option = 0; option < 3; ++option) {
        scene.info.bShowOrgImage = option == 1;
        scene.sliders().bShowSelectedAreas = option == 2;
        for (Pixel& p : scene.background)
            p[3] = 77;
        Combine(scene.info, 1, 1);
        EXPECT_EQ(scene.alpha(2, 1), 0) << option;
    }
}

TEST(KeyDecision, LocalScreenColourIsInterpolatedBetweenCells) {
    KeyScene scene(40, 20);
    scene.info.bUseAdaptiveBackgroundGreen = true;
    for (std::size_t i = 0; i < 400; ++i) {
        scene.info.iBaseRedArray[i] = scene.info.iBaseBlueArray[i] = 50.0;
        scene.info.iBaseGreenArray[i] = i % 20 == 0 ? 100.0 : 200.0;
    }
    EXPECT_NEAR(scene.keyed(0, 0).screen.g, 100.0, 0.5);
    EXPECT_NEAR(scene.keyed(1, 0).screen.g, 100.0, 0.5);
    EXPECT_NEAR(scene.keyed(2, 7).screen.g, 150.0, 0.5);
    EXPECT_NEAR(scene.keyed(39, 19).screen.g, 200.0, 0.5);
    scene.sliders().sliderAdjustBaseGreen = 110;
    EXPECT_NEAR(scene.keyed(39, 19).screen.g, 220.0, 0.5);
    scene.sliders().sliderAdjustBaseGreen = 200;
    EXPECT_NEAR(scene.keyed(39, 19).screen.g, 255.0, 0.5);
}

TEST(KeyDecision, WhiteBalanceShiftsRedAgainstBlue) {
    KeyScene scene(1, 1, {150, 140, 150, 255});
    scene.sliders().sliderWhiteBalance = 110;  // V + 10, U - 5
    const KeyedPixel pixel = scene.keyed();
    EXPECT_NEAR(pixel.screen.r, 40.0 + 11.4, 0.5);
    EXPECT_NEAR(pixel.screen.g, 200.0 + 1.97 - 5.81, 0.5);
    EXPECT_NEAR(pixel.screen.b, 60.0 - 10.14, 0.5);
}

TEST(KeyDecision, TheForegroundAsItIsKeepsItsAlpha) {
    KeyScene scene(4, 1, {40, 200, 60, 128});
    scene.info.bShowOrgImage = true;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.alpha(0, 0), 128);

    // The first bright grey pixel turns unmixing on for itself and what follows.
    scene.info.bShowBright = true;
    EXPECT_NEAR(scene.keyed(0, 0).color.g, 200.0, 0.5);
    scene.at(scene.foreground, 1, 0) = {200, 200, 200, 255};
    CombineParams params = makeCombineParams(scene.info, Resolution::full);
    ASSERT_EQ(findBrightGrey(params.key, scene.foreground.front().data()), 1);
    params.key.firstBrightGrey = 1;
    const auto red = [&](int x) {
        return decidePixel(params.key, scene.at(scene.foreground, x, 0).data(), x, 0).color.r;
    };
    EXPECT_NEAR(red(0), 40.0, 0.5);
    EXPECT_NEAR(red(1), (200.0 - 0.03 * 40.0) / 0.97, 0.5);
    EXPECT_NEAR(red(3), (40.0 - 0.03 * 40.0) / 0.97, 0.5);
}

}  // namespace
}  // namespace tavrin
