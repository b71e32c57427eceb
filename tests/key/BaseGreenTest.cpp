#include <gtest/gtest.h>

#include "key/EasySettings.h"
#include "key/KeyScene.h"
#include "key/screen/ScreenHue.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

void expectFallback(const SystemInfo& info) {
    EXPECT_DOUBLE_EQ(info.baseGreen, 100.0);
    EXPECT_NEAR(info.baseBlue, 36.5, 1e-9);
    EXPECT_NEAR(info.baseRed, 36.5 + 13.0 * 63.5 / 60.0, 1e-9);
}

// The screen colour that one flat picture gives.
Rgb measure(Pixel colour, bool blue = false) {
    KeyScene scene(40, 30, colour);
    scene.info.bUseBlueLogic = blue;
    ComputeBaseGreen(scene.info, 1, 0);
    return {scene.info.baseRed, scene.info.baseGreen, scene.info.baseBlue};
}

TEST(BaseGreen, WithoutAScreenTheFallbackColour) {
    KeyScene black(40, 30, {0, 0, 0, 255});
    ComputeBaseGreen(black.info, 1, 0);
    expectFallback(black.info);
    EXPECT_EQ(black.info.iBaseGreenArray[399], 100.0);

    KeyScene empty(4, 4);
    empty.info.iOutputPixelLowResHeight = 0;
    ComputeBaseGreen(empty.info, 1, 0);
    expectFallback(empty.info);

    KeyScene noBuffer(4, 4);
    noBuffer.info.pForegroundBitmapInfo->pBitmapDataLowRes = nullptr;
    ComputeBaseGreen(noBuffer.info, 1, 0);
    EXPECT_EQ(noBuffer.info.baseGreen, 200.0);
}

TEST(BaseGreen, AFlatScreenGivesItsColourWithinABin) {
    const Rgb base = measure({52, 148, 74, 255});  // hue 133.75, saturation 0.6486
    const double low = 148.0 - 148.0 * 129.0 / 200.0;
    EXPECT_DOUBLE_EQ(base.g, 148.0);
    EXPECT_NEAR(base.r, low, 1e-9);
    EXPECT_NEAR(base.b, low + 13.0 * (148.0 - low) / 60.0, 1e-9);
}

TEST(BaseGreen, HueComesFromTheHeadOfThePictureAndTiesGoToTheLowerOne) {
    // Ten columns and ten rows: the first two rows are read for the hue. Red leads blue below a hue of 120.
    KeyScene scene(10, 10, {100, 200, 40, 255});
    for (int x = 0; x < 10; ++x) {
        scene.at(scene.foreground, x, 0) = {40, 200, 40, 255};
        scene.at(scene.foreground, x, 1) = {40, 200, 100, 255};
    }
    ComputeBaseGreen(scene.info, 1, 0);
    EXPECT_EQ(scene.info.baseRed, scene.info.baseBlue);  // hue 120, not 142 and not 97

    for (int x = 0; x < 6; ++x)
        scene.at(scene.foreground, x, 0) = {40, 200, 100, 255};
    ComputeBaseGreen(scene.info, 1, 0);
    EXPECT_LT(scene.info.baseRed, scene.info.baseBlue);
}

TEST(BaseGreen, TheSourceIsReadInStepsFromItsHead) {
    // 1000 rows and 1000 columns: step 2, so that green level and saturation come from the first 500 rows.
    KeyScene scene(1000, 1000, {40, 200, 40, 255});
    for (int y = 500; y < 1000; ++y) {
        for (int x = 0; x < 1000; ++x)
            scene.at(scene.foreground, x, y) = {20, 100, 20, 255};
    }
    BitmapInfo& record = *scene.info.pForegroundBitmapInfo;
    record.orgBitmapData = scene.foreground.front().data();
    record.iOrgWidth = record.iOrgHeight = 1000;
    ComputeBaseGreen(scene.info, 1, 2);
    EXPECT_EQ(scene.info.baseGreen, 200.0);
    ComputeBaseGreen(scene.info, 1, 0);
    EXPECT_EQ(scene.info.baseGreen, 150.0);
    EXPECT_EQ(scene.info.iBaseArrayCount[0], 2500);
    EXPECT_EQ(scene.info.iBaseGreenArray[399], 100.0);
}

TEST(BaseGreen, ACellNeedsSixPixels) {
    KeyScene scene(200, 200, {40, 200, 40, 255});
    for (int y = 190; y < 200; ++y) {
        for (int x = 180; x < 200; ++x)
            scene.at(scene.foreground, x, y) = {128, 128, 128, 255};
    }
    for (int x = 180; x < 185; ++x)
        scene.at(scene.foreground, x, 195) = {30, 150, 30, 255};
    for (int x = 190; x < 196; ++x)
        scene.at(scene.foreground, x, 195) = {30, 150, 30, 255};
    ComputeBaseGreen(scene.info, 1, 0);
    const double base = scene.info.baseGreen;
    EXPECT_EQ(scene.info.iBaseArrayCount[398], 5);
    EXPECT_EQ(scene.info.iBaseGreenArray[398], base);
    EXPECT_EQ(scene.info.iBaseArrayCount[399], 6);
    EXPECT_NEAR(scene.info.iBaseGreenArray[399], 150.0 * 0.06 + base * 0.94, 1e-9);
}

TEST(BaseGreen, BlueScreensAreMeasuredAsGreenOnes) {
    const Rgb green = measure({52, 148, 74, 255}), blue = measure({52, 74, 148, 255}, true);
    EXPECT_EQ(green.r, blue.r);
    EXPECT_EQ(green.g, blue.g);
    EXPECT_EQ(green.b, blue.b);

    KeyScene a(67, 41), b(67, 41);
    test::fillWithNoise(a.foreground, 3);
    for (std::size_t i = 0; i < a.foreground.size(); ++i) {
        const Pixel& p = a.foreground[i];
        b.foreground[i] = {p[0], p[2], p[1], p[3]};
    }
    b.info.bUseBlueLogic = true;
    ComputeBaseGreen(a.info, 1, 0);
    ComputeBaseGreen(b.info, 1, 0);
    EXPECT_EQ(a.info.baseBlue, b.info.baseBlue);
    EXPECT_EQ(a.info.iBaseArrayCount, b.info.iBaseArrayCount);
    EXPECT_EQ(a.info.iBaseBlueArray, b.info.iBaseBlueArray);
}

TEST(BaseGreen, SmallAndThreadedPicturesGiveFiniteEqualResults) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 19}, {19, 1}, {119, 3}, {700, 333}}) {
        KeyScene one(width, height), many(width, height);
        test::fillWithNoise(one.foreground, 5);
        many.foreground = one.foreground;
        {
            const ThreadLimit limit(1);
            ComputeBaseGreen(one.info, 1, 0);
        }
        const ThreadLimit limit(4);
        ComputeBaseGreen(many.info, 1, 0);
        EXPECT_EQ(one.info.baseRed, many.info.baseRed);
        EXPECT_EQ(one.info.iBaseRedArray, many.info.iBaseRedArray);
        for (const double value : many.info.iBaseGreenArray)
            EXPECT_TRUE(value >= 1.0 && value < 300.0);
    }
}

// Against the formulas on all colours that green leads, thousands of which the scaling to full brightness moves over
// the edge of a degree.
TEST(BaseGreen, HueAndSaturationOfEveryColourAreThoseOfTheFormulas) {
    const FullBrightness& full = FullBrightness::tables();
    const auto near = [](int hue, int peak) { return std::abs(hue - peak) < 5; };
    int wrong = 0, moved = 0;
    for (int g = 1; g < 256; ++g) {
        for (int r = 1; r < g; ++r) {
            for (int b = 1; b < g; ++b) {
                const ScreenPixel p{r, g, b};
                const double m = g, r2 = r * 255.0 / m, b2 = b * 255.0 / m, lead = 2550.0 / m;
                double h, s, hueFull, sFull, v, delta;
                rgb_to_hsv(h, s, v, delta, r, g, b);
                rgb_to_hsv(hueFull, sFull, v, delta, r2, 255.0, b2);
                const int hue = static_cast<int>(h), peak = hue + (r + b) % 13 - 6;
                const HueWindow window(peak);
                wrong += (s > 0.2) != (sFull > 0.2);
                wrong += full.greenLeads(p) != (255.0 > r2 + lead && 255.0 > b2 + lead);
                wrong += full.saturationBin(p) != (sFull > 0.2 ? static_cast<int>(sFull * 200.0) : 0);
                wrong += FullBrightness::wholeHue(p) != static_cast<int>(hueFull);
                wrong += window.holds(p) != near(hue, peak);
                wrong += window.holdsFull(p) != near(static_cast<int>(hueFull), peak);
                moved += hue != static_cast<int>(hueFull);
            }
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(moved, 5000);
}

struct EasyCase {
    int hair, shadows, transparency;
    bool removeTint, restore, restoreMore;
    int removeGreen, darkAreas, transparent, adjustBase, tint;
};

TEST(EasySettings, ChoicesBecomeSliders) {
    const EasyCase cases[] = {
        {6, 1, 2, false, false, false, 100, 80, 100, 100, 100},
        {4, 3, 1, true, false, false, 90, 15, 120, 100, 80},
        {1, 2, 3, true, true, false, 100, 20, 85, 105, 100},
        {2, 1, 2, false, true, false, 140, 80, 100, 110, 110},
        {2, 3, 2, false, false, true, 90, 20, 100, 105, 125},
        {3, 2, 2, true, false, false, 100, 20, 100, 100, 70},
        {5, 1, 1, true, true, true, 100, 80, 120, 100, 135},
        {6, 9, 0, false, false, false, 100, 30, 100, 100, 100},
    };
    for (const EasyCase& c : cases) {
        SystemInfo info;
        info.iMacroHairColor = c.hair;
        info.iMacroShadows = c.shadows;
        info.iMacroTransparency = c.transparency;
        info.bMacroRemoveGreenTint = c.removeTint;
        info.bMacroRestoreGreen = c.restore;
        info.bMacroRestoreMoreGreen = c.restoreMore;
        LayerSettings& key = *info.pCombinedBitmapInfo;
        key.sliderWhiteAdjust = key.sliderWhiteBalance = 7;
        const int asked = info.iNewThreadCount;
        UpdateEZCombineSettings(info);
        SCOPED_TRACE(c.hair * 100 + c.shadows * 10 + c.transparency);
        EXPECT_EQ(key.sliderRemoveGreenAreas, c.removeGreen);
        EXPECT_EQ(key.sliderRestoredDarkAreas, c.darkAreas);
        EXPECT_EQ(key.sliderTransparentcyAdjustment, c.transparent);
        EXPECT_EQ(key.sliderAdjustBaseGreen, c.adjustBase);
        EXPECT_EQ(key.sliderGreenTintAreas, c.tint);
        EXPECT_EQ(key.sliderWhiteAdjust, 40);
        EXPECT_EQ(key.sliderWhiteBalance, 100);
        EXPECT_EQ(info.iNewThreadCount, asked);
    }
}

}  // namespace
}  // namespace tavrin
