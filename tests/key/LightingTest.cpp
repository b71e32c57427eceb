#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "core/raster/BoxBlur.h"
#include "key/KeyScene.h"
#include "key/light/Lighting.h"
#include "key/spill/SpillKey.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using test::KeyScene;
using Map = std::vector<std::int32_t>;

struct LightScene : KeyScene {
    LightScene(int width, int height) : KeyScene(width, height) {
        info.iBaseRedArray.fill(40.0);
        info.iBaseGreenArray.fill(200.0);
        info.iBaseBlueArray.fill(60.0);
        info.iOutputImageDPI = 10;  // the least blur
        setLight(70, 20);           // 600 to -900
    }
    void setLight(int start, int end) {
        info.iLightingSliderStartLight = start;
        info.iLightingSliderEndLight = end;
    }
    void place(int x, int y, int size, int angle = 0) {
        info.iLightingSliderXLoc = x;
        info.iLightingSliderYLoc = y;
        info.iLightingSliderSize = size;
        info.iLightingSliderAngle = angle;
    }
    Map run(int mode) {
        info.iLightingMode = mode;
        Map map(static_cast<std::size_t>(width * height));
        EffectsLighting(info, map.data(), width, height, 1);
        return map;
    }
    /// The map as the rings draw it one by one; `trace` sets cells.
    Map traced(const std::function<void(const std::function<void(double, double, int)>&)>& trace) {
        Map map(static_cast<std::size_t>(width * height)), soft(map);
        trace([&](double x, double y, int value) {
            if (x >= 0 && y >= 0 && x < width && y < height)
                map[static_cast<std::size_t>(static_cast<int>(y) * width + static_cast<int>(x))] = value;
        });
        gaussBlur_Int({}, map.data(), soft.data(), width, height, 1);
        return soft;
    }
};

TEST(Lighting, UprightSheetsRunFromSideToSide) {
    LightScene scene(10, 3);
    const auto corners = [&](int angle) {
        scene.place(0, 0, 0, angle);
        const Map map = scene.run(1);
        return std::array{map[0], map[9], map[20], map[29]};
    };
    const std::array down{600, 600, -400, -400}, right{600, -750, 600, -750};  // 600 - 1500 * 2 / 3, * 9 / 10
    EXPECT_EQ(corners(0), down);
    EXPECT_EQ(corners(3), down);
    EXPECT_EQ(corners(356), down);
    EXPECT_EQ(corners(-77), down);
    EXPECT_EQ(corners(92), right);
    EXPECT_EQ(corners(180), (std::array{-400, -400, 600, 600}));
    EXPECT_EQ(corners(266), (std::array{-750, 600, -750, 600}));
}

TEST(Lighting, ObliqueSheetsGrowFromACornerWithoutGaps) {
    LightScene scene(40, 30);
    for (const int angle : {5, 30, 85, 95, 140, 200, 264, 275, 310, 354}) {
        scene.place(0, 0, 0, angle);
        const Map map = scene.run(1);
        const double nx = std::sin(angle * M_PI / 180), ny = std::cos(angle * M_PI / 180);
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x) {
                const double d = (nx > 0 ? x + 0.5 : x - 39.5) * nx + (ny > 0 ? y + 0.5 : y - 29.5) * ny;
                ASSERT_NEAR(map[static_cast<std::size_t>(y * 40 + x)], 600 - 1500 * d / 50, 31)
                    << angle << ": " << x << ", " << y;  // within a cell
            }
        }
    }
}

TEST(Lighting, LinesHaveNoGapsAndStayInside) {
    Map map(12);  // 4 x 3
    EXPECT_TRUE(DrawLightingLine(0, 0, 3, 2, map.data(), 4, 3, 5));
    EXPECT_EQ(map, (Map{5, 5, 0, 0, 0, 5, 5, 0, 0, 0, 0, 5}));
    Map level(12), upright(12);
    EXPECT_TRUE(DrawLightingLine(-1e9, 1.9, 1e9, 1.9, level.data(), 4, 3, 5));
    EXPECT_EQ(level, (Map{0, 0, 0, 0, 5, 5, 5, 5, 0, 0, 0, 0}));
    EXPECT_TRUE(DrawLightingLine(2, 7, 2, 1, upright.data(), 4, 3, 5));
    EXPECT_EQ(upright, (Map{0, 0, 0, 0, 0, 0, 5, 0, 0, 0, 5, 0}));
    EXPECT_FALSE(DrawLightingLine(4, -3, 9, 9, map.data(), 4, 3, 5));
    EXPECT_FALSE(DrawLightingLine(0, 0, NAN, 1, map.data(), 4, 3, 5));
    EXPECT_FALSE(DrawLightingLine(0, 0, 1, 1, map.data(), 4, 0, 5));
}

TEST(Lighting, TheCircleIsWhatItsRingsDraw) {
    LightScene scene(67, 50);
    for (const auto& [x, y, size] :
         {std::array{200, 200, 100}, {100, 100, 60}, {-50, 300, 180}, {0, 0, 0}, {7, 399, 3}}) {
        scene.place(x, y, size);
        const int radius = std::max(size * 50 / 200, 1), middleX = x * 67 / 400, middleY = y * 50 / 400;
        EXPECT_EQ(scene.run(2), scene.traced([&](const auto& set) {
            for (double r = 1; r <= radius; r += 0.5) {
                const int value = static_cast<int>((-900.0 - 600.0) * r / radius + 600.0);
                for (double d = 0; d <= r; d += 0.25) {
                    const int a = static_cast<int>(d), b = static_cast<int>(std::sqrt(r * r - d * d));
                    for (const auto& [i, j] : {std::pair{a, b}, {b, a}}) {
                        for (const int sign : {0, 1, 2, 3})
                            set(middleX + (sign & 1 ? -i : i), middleY + (sign & 2 ? -j : j), value);
                    }
                }
            }
        })) << x
            << ", " << y << ", " << size;
    }
}

TEST(Lighting, TheConeIsWhatItsRingsDraw) {
    LightScene scene(61, 70);
    for (const auto& [x, y, size, angle] : {std::array{50, 50, 60, 0},
                                            {50, 50, 60, 90},
                                            {20, 90, 100, 37},
                                            {90, 50, 140, 200},
                                            {50, 0, 9, 300},
                                            {50, 50, 0, 45}}) {
        scene.place(x, y, size, angle);
        const int length = std::max(size * 70 / 100, 1);
        const int apexX = 30 + (x - 50) * 61 / 200, apexY = 35 + (y - 50) * 70 / 200;
        const double c = std::cos(angle * 0.017453292519943295), s = std::sin(angle * 0.017453292519943295);
        const double whole = std::trunc(std::sqrt(length * length + 0.4 * length * (0.4 * length)));
        EXPECT_EQ(scene.run(3), scene.traced([&](const auto& set) {
            const auto draw = [&](int u, int w) {
                const int value = static_cast<int>((600.0 + 900.0) * std::sqrt(u * u + w * w) / whole - 900.0);
                for (const int side : {w, -w}) {
                    const double along = length - u;
                    set(apexX + (along * c - side * s), apexY + (along * s + side * c), value);
                }
            };
            for (double r = 1; r <= length; r += 0.5) {
                for (double d = 0; d <= r; d += 0.25)
                    draw(static_cast<int>(std::sqrt(r * r - d * d)), static_cast<int>(0.3 * d));
                for (double d = 0; d <= r; d += 0.25)
                    draw(static_cast<int>(d), static_cast<int>(0.3 * std::sqrt(r * r - d * d)));
            }
        })) << x
            << ", " << y << ", " << size << ", " << angle;
    }
}

TEST(Lighting, TheGlowIsTheSubjectBlurred) {
    LightScene scene(9, 9);
    scene.at(scene.foreground, 4, 4) = {220, 60, 50, 255};
    scene.setLight(0, 60);  // 500
    scene.place(0, 0, 0);   // no blur
    Map wanted(81);
    wanted[40] = 500;
    EXPECT_EQ(scene.run(4), wanted);
    scene.place(0, 0, 100);  // radius 1
    scene.info.StartUpdate();
    scene.info.bLightingForceCompute = true;
    const Map soft = scene.run(4);
    EXPECT_GT(soft[40], soft[41]);
    EXPECT_GT(soft[41], 0);
    EXPECT_EQ(soft[0], 0);
    EXPECT_EQ(scene.info.iLightingMode, 4);
}

TEST(Lighting, EveryTargetsGlowIsWhatTheKeyAtOnePixelFinds) {
    const std::function<void(SystemInfo&)> variants[] = {
        [](SystemInfo&) {},
        [](SystemInfo& i) { i.bUseBlueLogic = true; },
        [](SystemInfo& i) { i.iSliderClipLeft = i.iSliderClipBottom = 20; },
        [](SystemInfo& i) { i.bShowOrgImage = true; },
        [](SystemInfo& i) {  // dark, busy texture counts
            i.pCombinedBitmapInfo->sliderRemoveGreenAreas = 150;
            i.pCombinedBitmapInfo->sliderRestoredDarkAreas = 20;
        },
        [](SystemInfo& i) { i.pCombinedBitmapInfo->sliderTransparentcyAdjustment = 130; },
        [](SystemInfo& i) { i.pCombinedBitmapInfo->sliderTransparentcyAdjustment = 40; },
    };
    int calm = 0, busy = 0;
    for (const int width : {1, 7, 13, 140}) {
        for (const auto& set : variants) {
            LightScene scene(width, 31);
            test::fillWithNoise(scene.foreground, static_cast<unsigned>(width));
            for (std::size_t i = 0; i < scene.foreground.size(); i += 1 + i % 3) {
                for (std::size_t c = 0; c < 3; ++c)
                    scene.foreground[i][c] /= 3;
            }
            scene.foreground[0] = {40, 200, 60, 255};      // screen
            for (int i = 20 * width; i < 31 * width; ++i)  // calm
                scene.foreground[static_cast<std::size_t>(i)] = {static_cast<std::uint8_t>(20 + i % 5), 38, 30, 255};
            set(scene.info);
            scene.setLight(0, 60);  // 500
            scene.place(0, 0, 0);   // no blur
            const SpillKey key(scene.info, SpillLayers::of(scene.info, Resolution::full));
            Map plain;
            for (int y = 0; y < scene.height; ++y) {
                for (int x = 0; x < width; ++x) {
                    const test::Pixel p = scene.at(scene.foreground, x, y);
                    const bool blue = scene.info.bUseBlueLogic;
                    const Rgb c{double(p[0]), double(p[blue ? 2 : 1]), double(p[blue ? 1 : 2])};
                    const bool screen = distance(c, {40.0, 200.0, 60.0}) < 4.0;
                    plain.push_back(!screen && key.amountAt(x, y, c) > 0.9 ? 500 : 0);
                    ++(key.hair().isBusy(x, y) ? busy : calm);
                }
            }
            test::onEveryTarget([&] { EXPECT_EQ(scene.run(4), plain) << width; });
        }
    }
    EXPECT_GT(busy, 100);
    EXPECT_GT(calm, 100);
}

TEST(Lighting, TheGlowsFirstPixelIsTheFirstInScanOrder) {
    // Of two equal pixels at the edge of solid, only the first one is seen without its second shift.
    LightScene scene(3, 60);
    scene.sliders().sliderWhiteBalance = 160;
    scene.place(0, 0, 0);
    const SpillKey key(scene.info, SpillLayers::of(scene.info, Resolution::full));
    test::Pixel p{0, 0, 0, 255};
    const auto solid = [&](SpillCall call) {
        return key.amountAt(0, 0, {double(p[0]), double(p[1]), double(p[2])}, call) > 0.9;
    };
    for (int i = 0; i < 25 * 25 * 25 && solid(SpillCall::kFirst) == solid(SpillCall::kLater); ++i)
        p = {static_cast<std::uint8_t>(i % 25 * 10), static_cast<std::uint8_t>(i / 25 % 25 * 10),
             static_cast<std::uint8_t>(i / 625 * 10), 255};
    ASSERT_NE(solid(SpillCall::kFirst), solid(SpillCall::kLater));
    for (int y = 2; y < 60; ++y)
        scene.at(scene.foreground, 1, y) = p;
    scene.setLight(50, 60);
    const Map map = scene.run(4);
    EXPECT_EQ(map[7] != 0, solid(SpillCall::kFirst));
    for (std::size_t y = 3; y < 60; ++y)
        EXPECT_EQ(map[3 * y + 1] != 0, solid(SpillCall::kLater)) << y;
}

TEST(Lighting, ThreadsSizesAndStaleStates) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 150}, {151, 1}, {97, 201}}) {
        for (int mode = 1; mode <= 4; ++mode) {
            LightScene scene(width, height);
            test::fillWithNoise(scene.foreground, 3);
            scene.place(150, 120, 90, 33);
            const auto limited = [&] {
                const ThreadLimit limit(1);
                return scene.run(mode);
            };
            EXPECT_EQ(limited(), scene.run(mode)) << width << " x " << height << ", mode " << mode;
            scene.info.StartUpdate();
            EXPECT_EQ(scene.run(mode), Map(scene.foreground.size())) << mode;
        }
    }
}

TEST(Lighting, AnyValueOfAnySliderIsSurvived) {
    constexpr auto kLeast = std::numeric_limits<std::int32_t>::min(),
                   kMost = std::numeric_limits<std::int32_t>::max();
    for (const int size : {kLeast, -1, 0, 1000, kMost}) {
        for (const int position : {kLeast, 50, kMost}) {
            for (const int light : {kLeast, 50, kMost}) {
                LightScene scene(21, 13);
                test::fillWithNoise(scene.foreground, 5);
                scene.place(position, -position - 1, size, size);
                scene.setLight(light, -light - 1);
                scene.info.iOutputImageDPI = position;
                for (int mode = 1; mode <= 4; ++mode)
                    EXPECT_EQ(scene.run(mode).size(), 273u);
            }
        }
    }
    SystemInfo empty;
    EffectsLighting(empty, nullptr, 5, 5, 0);
}

}  // namespace
}  // namespace tavrin
