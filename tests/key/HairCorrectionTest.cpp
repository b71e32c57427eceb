#include <gtest/gtest.h>

#include "key/hair/HairCorrection.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;

std::unique_ptr<SystemInfo> hairState(std::initializer_list<Color> hair) {
    auto info = makeState(Canvas(8, 8, kScreenGreen));
    info->bAdvancedHairDetectionON = true;
    info->bFoundHair = true;
    info->iHairColorCount = static_cast<int>(hair.size());
    std::size_t i = 0;
    for (const Color& color : hair) {
        info->iHairColorBinRed[i] = color.r;
        info->iHairColorBinGreen[i] = color.g;
        info->iHairColorBinBlue[i++] = color.b;
    }
    return info;
}

constexpr HairNumbers kNumbers = {16, 16, 1.4, 0.05, 9.0};

HairPixel pixelOf(Color c) {
    return {4, 6, c.r, c.g, c.b, 200.0, 100.0, {80.0, 70.0, 60.0}, 0.6};
}

bool isUnchanged(const HairPixel& a, const HairPixel& b) {
    return a.alpha == b.alpha && a.color.r == b.color.r && a.color.g == b.color.g && a.color.b == b.color.b;
}

// The search by its definition: every mix made anew, in doubles. Returns the share of the screen, or -1.
double slowSearch(const SystemInfo& info, const HairPixel& p) {
    const Rgb base = {info.baseRed, info.baseGreen, info.baseBlue};
    double h, s, v, delta, start = base.r > base.b ? (p.r - p.g) / (base.r - base.g + 0.001) : 0.0;
    start = p.color.g < 40.0 ? 0.0 : start - 0.2;
    start = std::min(std::max(start, 0.1), 1.0);
    rgb_to_hsv(h, s, v, delta, p.r, p.g, p.b);
    int best = 99999999;
    double share = -1.0;
    for (int i = 0; i < info.iHairColorCount; ++i) {
        const double r = info.iHairColorBinRed[i], g = info.iHairColorBinGreen[i], b = info.iHairColorBinBlue[i];
        if (g > r && g > b) continue;
        for (double t = start; t <= 1.0; t += 0.03) {
            double mh, ms, mv;
            rgb_to_hsv(mh, ms, mv, delta, r * (1 - t) + base.r * t, g * (1 - t) + base.g * t,
                       b * (1 - t) + base.b * t);
            const double dS = static_cast<int>(100.0 * s) - static_cast<int>(100.0 * ms);
            const double dV = static_cast<int>(v) - static_cast<int>(mv);
            double dH = std::abs(static_cast<int>(h) - static_cast<int>(mh));
            if (dH > 180) dH = 360 - dH;
            const double d = std::sqrt(dS * dS + dH * dH + dV * dV);
            if (d < best && t > 0.1 && d < 40) {
                best = static_cast<int>(d);
                share = t;
            }
        }
    }
    return share;
}

TEST(HairCorrection, SearchEqualsItsDefinitionForEveryStart) {
    std::mt19937 random(3);
    for (bool redAboveBlue : {true, false}) {
        auto info = hairState({{150, 100, 60}, {30, 90, 35}, {30, 30, 30}, {190, 170, 110}});
        info->baseRed = redAboveBlue ? 61.3 : 38.7;
        info->baseGreen = 163.2;
        info->baseBlue = 44.9;
        info->bAVPShadowRemoval = false;
        const HairParams params(*info, kNumbers);
        int found = 0;
        for (int i = 0; i < 20'000; ++i) {
            const int g = 20 + static_cast<int>(random() % 180);
            HairPixel p = pixelOf({static_cast<int>(random() % (g + 5)), g, static_cast<int>(random() % (g + 5))});
            p.color.g = random() % 2 ? 70.0 : 39.9;
            const HairPixel before = p;
            const double spread = g - std::min(p.r, p.b), sat = spread / std::max({p.r, p.g, p.b});
            if (sat < 0.31) continue;  // grey, or kept
            correctHair(params, p);
            if (p.alpha == 0.0 && p.color.r == before.color.r) continue;  // near the screen
            const double share = slowSearch(*info, before);
            if (share < 0.0) {
                ASSERT_TRUE(isUnchanged(p, before));
                continue;
            }
            ++found;
            double alpha = 1.0 - share;
            if (alpha < 1.0 && alpha > 0.01) alpha = (alpha - 0.5) * 1.4 + 0.5 + 0.05;
            ASSERT_EQ(p.alpha, std::clamp(alpha, 0.0, 1.0)) << before.r << " " << before.g << " " << before.b;
        }
        EXPECT_GT(found, 1000);
    }
}

TEST(HairCorrection, ScreenIsClearedAndOtherColorsAreKept) {
    const auto info = hairState({kBrownHair});
    const HairParams params(*info, kNumbers);
    HairPixel screen = pixelOf(kScreenGreen);
    screen.alpha = 1.0;
    correctHair(params, screen);
    EXPECT_EQ(screen.alpha, 0.0);
    for (Color kept : {Color{210, 215, 205}, {150, 169, 140}, {100, 95, 20}, {20, 95, 100}}) {
        HairPixel pixel = pixelOf(kept);
        correctHair(params, pixel);
        EXPECT_TRUE(isUnchanged(pixel, pixelOf(kept))) << kept.r;
    }
    HairPixel dark = pixelOf({40, 50, 41});  // saturation times value is 10, kept when the key was sure
    dark.alpha = 1.0;
    correctHair(params, dark);
    EXPECT_EQ(dark.alpha, 1.0);
    EXPECT_EQ(dark.color.r, 80.0);
}

TEST(HairCorrection, SmoothShadowIsClearedUnlessTheMapShowsDetail) {
    auto info = hairState({});
    const Color shadow = {20, 90, 30};
    HairPixel pixel = pixelOf(shadow);
    correctHair(HairParams(*info, kNumbers), pixel);
    EXPECT_EQ(pixel.alpha, 0.0);
    // The map has 8 by 8 pixels for a run of 16 by 16: (4, 6) looks at (2, 3).
    info->pHairDetectBitmap[4 * (3 * 8 + 2)] = 100;
    pixel = pixelOf(shadow);
    correctHair(HairParams(*info, kNumbers), pixel);
    EXPECT_TRUE(isUnchanged(pixel, pixelOf(shadow)));
    info->pHairDetectBitmap[4 * (3 * 8 + 2)] = 99;
    info->bAVPShadowRemoval = false;
    pixel = pixelOf(shadow);
    correctHair(HairParams(*info, kNumbers), pixel);
    EXPECT_TRUE(isUnchanged(pixel, pixelOf(shadow)));
}

TEST(HairCorrection, GreyPixelIsUnmixedToPureGrey) {
    auto info = hairState({});
    info->bAVPShadowRemoval = false;
    // The screen's blue is above its red, so blue tells the share; red leads what remains.
    HairPixel pixel = pixelOf({126, 128, 104});
    correctHair(HairParams(*info, kNumbers), pixel);
    const double t = (104.0 - 128.0) / (50.0 - 160.0 + 0.001);
    EXPECT_DOUBLE_EQ(pixel.color.r, (126.0 - t * 40.0) / (1.0 - t));
    EXPECT_EQ(pixel.color.g, pixel.color.r);
    EXPECT_EQ(pixel.color.b, pixel.color.r);
    EXPECT_DOUBLE_EQ(pixel.alpha, (1.0 - t - 0.5) * 1.4 + 0.5 + 0.05);
    // A dark neutral one stays solid.
    pixel = pixelOf({126, 128, 104});
    pixel.lift = 8.0;
    pixel.max = 119.0;
    correctHair(HairParams(*info, kNumbers), pixel);
    EXPECT_EQ(pixel.alpha, 1.0);
}

TEST(HairCorrection, AnyListOfHairColorsIsSafe) {
    for (int value : kExtremes) {
        auto info = hairState({{value, INT_MIN, value}, {INT_MAX, value, value / 2}});
        for (int count : kExtremes) {
            info->iHairColorCount = count;
            const HairParams params(*info, {1, 1, 1e9, -1e9, 1e9});
            for (int g = 0; g < 256; g += 17) {
                HairPixel pixel = pixelOf({g / 2, g, g / 3});
                pixel.x = pixel.y = 0;
                correctHair(params, pixel);
                ASSERT_TRUE(pixel.alpha >= 0.0 && pixel.alpha <= 1.0);
            }
        }
    }
}

}  // namespace
}  // namespace tavrin
