// Cloth near the screen's hue, and what looks like it: veils, floors, gaps.
#include <cmath>
#include <gtest/gtest.h>

#include "core/raster/Rows.h"
#include "key/PaintedScene.h"

namespace tavrin {
namespace {

using test::mix;
using test::PaintedScene;

constexpr int kWidth = 640, kHeight = 480;
constexpr Rgb kDull{90.0, 155.0, 92.0}, kSkin{210.0, 150.0, 120.0}, kPure{35.0, 180.0, 62.0};

// Light and dark places of cloth or veil, -1 to 1.
double fold(int x, int y) {
    return std::sin(x * 0.09 + 2.0 * std::sin(y * 0.021)) * std::cos(y * 0.05);
}

Rgb lit(const Rgb& color, double light) {
    return {color.r * light, color.g * light, color.b * light};
}

double head(int x, int y) {
    return std::clamp((70.0 - std::hypot(x - 320, y - 130)) / 2.0 + 0.5, 0.0, 1.0);
}

// A shirt from shoulders to the lower edge, 0 to 1.
double shirt(int x, int y) {
    return std::clamp((150.0 - std::abs(x - 320)) / 2.0 + 0.5, 0.0, 1.0) * std::clamp((y - 200) / 2.0, 0.0, 1.0);
}

// The screen between sleeve and body.
bool isGap(int x, int y) {
    return y > 320 && y < 440 && std::abs(x - 400) < 16;
}

// The mean of alpha over a square of 2r + 1 pixels.
double meanAlpha(PaintedScene& scene, int x, int y, int r) {
    double sum = 0.0;
    for (int j = y - r; j <= y + r; ++j) {
        for (int i = x - r; i <= x + r; ++i)
            sum += scene.alpha(i, j) / 255.0;
    }
    return sum / ((2 * r + 1) * (2 * r + 1));
}

PaintedScene shirtScene(const Rgb& cloth) {
    return {kWidth, kHeight, kDull, [&](int x, int y) {
                const double whole = isGap(x, y) ? 0.0 : shirt(x, y);
                return mix(kSkin, mix(lit(cloth, 0.9 + 0.2 * fold(x, y)), kDull, whole), head(x, y));
            }};
}

TEST(RefineCloth, AShirtThatTheKeyTakesForScreenIsSolidAndKeepsItsColour) {
    PaintedScene plain = shirtScene(kPure), scene = shirtScene(kPure);
    plain.info.bRefineKey = false;
    Combine(plain.info, 1, 1);
    ASSERT_LT(meanAlpha(plain, 280, 350, 60), 0.2) << "else the picture is no test";
    Combine(scene.info, 1, 1);
    EXPECT_GT(meanAlpha(scene, 280, 350, 60), 0.995);
    EXPECT_GT(meanAlpha(scene, 455, 300, 8), 0.95) << "beside the screen";
    EXPECT_LT(meanAlpha(scene, 400, 380, 10), 0.01) << "between sleeve and body";
    EXPECT_LT(meanAlpha(scene, 560, 300, 60), 0.002);
    const test::Pixel& seen = scene.at(scene.combined, 280, 350);  // white adjustment adds to red and blue
    EXPECT_NEAR(seen[1], lit(kPure, 0.9 + 0.2 * fold(280, 350)).g, 12.0);
    EXPECT_GT(seen[1] - std::max(seen[0], seen[2]), 60);
}

TEST(RefineCloth, AShirtOfAnotherHueInAnyShadeIsSolid) {
    for (const Rgb& cloth : {Rgb{40.0, 140.0, 120.0}, Rgb{140.0, 150.0, 50.0}}) {
        PaintedScene scene = shirtScene(cloth);
        Combine(scene.info, 1, 1);
        EXPECT_GT(meanAlpha(scene, 280, 350, 60), 0.99) << cloth.r;
        EXPECT_LT(meanAlpha(scene, 400, 380, 10), 0.01) << cloth.r;
    }
}

TEST(RefineCloth, IsTheSameForAnyNumberOfThreads) {
    std::vector<std::vector<test::Pixel>> results;
    for (const int threads : {1, 3}) {
        const ThreadLimit limit(threads);
        PaintedScene scene = shirtScene(kPure);
        Combine(scene.info, 1, 1);
        results.push_back(scene.combined);
    }
    EXPECT_TRUE(results[0] == results[1]);
}

// As large and as colourful, but its colours go from more to less of the screen.
TEST(RefineCloth, AColouredVeilIsNone) {
    const Rgb cyan{30.0, 170.0, 190.0};
    PaintedScene scene(kWidth, kHeight, kDull, [&](int x, int y) {
        return mix(kSkin, mix(cyan, kDull, shirt(x, y) * (0.35 + 0.2 * fold(x, y))), head(x, y));
    });
    Combine(scene.info, 1, 1);
    EXPECT_LT(meanAlpha(scene, 280, 350, 60), 0.8);
}

TEST(RefineCloth, AFloorOfAnotherPaintIsNone) {
    const Rgb floor{60.0, 160.0, 75.0}, black{30.0, 28.0, 30.0};
    PaintedScene scene(kWidth, kHeight, kDull, [&](int x, int y) {
        const Rgb behind = y > 360 ? lit(floor, 1.0 + 0.1 * fold(x, y)) : kDull;
        return mix(kSkin, mix(black, behind, y < 420 ? shirt(x, y) : 0.0), head(x, y));
    });
    Combine(scene.info, 1, 1);
    EXPECT_LT(meanAlpha(scene, 100, 420, 40), 0.02);
    EXPECT_GT(meanAlpha(scene, 280, 300, 60), 0.995);
}

}  // namespace
}  // namespace tavrin
