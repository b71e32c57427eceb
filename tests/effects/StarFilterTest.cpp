#include <gtest/gtest.h>

#include "effects/star/StarFilter.h"
#include "support/EffectPictures.h"
#include "support/Superseded.h"

namespace tavrin {
namespace {

using namespace test;

// A mask drawn with letters: '#' is outline.
struct Mask {
    Mask(std::vector<std::string> rows)
        : width(static_cast<int>(rows[0].size())), height(static_cast<int>(rows.size())) {
        for (const std::string& row : rows) {
            for (const char c : row)
                bytes.insert(bytes.end(), {0, 0, static_cast<std::uint8_t>(c == '#' ? 255 : 0), 255});
        }
    }
    std::optional<LightBox> check(int y, int x) { return CheckForStar(y, x, {bytes.data(), width, height}); }
    int width, height;
    Bytes bytes;
};

TEST(CheckForStar, OnlyAnOutlineThatClosesIsALight) {
    Mask ring({"..##..", ".#..#.", "#....#", "#....#", ".#..#.", "..##.."});
    auto box = ring.check(0, 2);
    ASSERT_TRUE(box);
    EXPECT_EQ((std::vector{box->xMin, box->xMax, box->yMin, box->yMax}), (std::vector{0, 5, 0, 5}));
    EXPECT_EQ(ring.bytes[pixelOffset(6, 2, 0)], 255);  // seen pixels are red, and not followed twice
    EXPECT_EQ(ring.bytes[pixelOffset(6, 2, 0) + 2], 0);
    box = ring.check(3, 3);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->xMax, box->xMin);

    Mask line({"#.....", ".#....", "..####"});
    EXPECT_FALSE(line.check(0, 0));
    EXPECT_EQ(line.bytes[pixelOffset(6, 5, 2)], 255);  // followed to its end all the same
}

constexpr int kSide = 121;

/// Dark with one square light. Its blurred edge falls below the threshold one pixel further in, so its outline is the
/// square from 50 to 69: 19 wide and high, the middle at 59.
Canvas oneLight() {
    Canvas canvas(kSide, kSide, {10, 20, 30});
    canvas.fill(50, 50, 70, 70, {250, 240, 230});
    return canvas;
}

std::unique_ptr<SystemInfo> starState(int w = kSide, int h = kSide) {
    auto info = bareState(w, h, 100);  // the blur reaches 3 pixels
    info->iStarFilterBrightLightThreshold = 200;
    info->iStarFilterMaxArea = 1000;
    info->iStarFilterWidth = 20;
    info->iStarFilterSize = 30;
    info->iStarFilterNumberOfPoints = 1;
    return info;
}

Bytes starred(SystemInfo& info, Bytes picture) {
    StarFilter(info, 0, picture.data(), 1);
    return picture;
}

TEST(StarFilter, AnArmFadesSidewaysAndEndsAtItsLength) {
    const Canvas canvas = oneLight();
    const Bytes out = starred(*starState(), canvas.bytes);
    const auto pixel = [&](int x, int y) { return &out[pixelOffset(kSide, x, y)]; };
    // The one arm points straight down, in the middle at half opacity.
    EXPECT_EQ(pixel(59, 80)[0], 128 * 10 / 255 + 127 * 250 / 255);
    EXPECT_EQ(pixel(59, 80)[1], 128 * 20 / 255 + 127 * 240 / 255);
    EXPECT_EQ(pixel(59, 80)[3], 255);
    EXPECT_GT(pixel(60, 75)[0], 10);
    EXPECT_LT(pixel(60, 75)[0], pixel(59, 75)[0]);
    EXPECT_GT(pixel(59, 59 + 19 * 30 * 3 / 50)[0], 100);  // its height times size * 3 / 50 long, the end included
    EXPECT_EQ(pixel(59, 59 + 19 * 30 * 3 / 50 + 1)[0], 10);
    EXPECT_EQ(pixel(59, 45)[0], 10);
    EXPECT_EQ(pixel(40, 59)[0], 10);
    EXPECT_EQ(pixel(59, 59)[0], 250);  // the light itself never gets darker

    const auto turned = starState();
    turned->iStarFilterStartingAngle = 90;
    const Bytes left = starred(*turned, canvas.bytes);
    EXPECT_GT(left[pixelOffset(kSide, 40, 59)], 100);
}

TEST(StarFilter, WhatIsNoSmallBrightLightStaysAsItIs) {
    const Canvas canvas = oneLight();
    const auto unchanged = [&](auto change) {
        const auto info = starState();
        change(*info);
        return starred(*info, canvas.bytes) == canvas.bytes;
    };
    EXPECT_FALSE(unchanged([](SystemInfo&) {}));
    EXPECT_TRUE(unchanged([](SystemInfo& i) { i.iStarFilterBrightLightThreshold = 250; }));
    EXPECT_TRUE(unchanged([](SystemInfo& i) { i.iStarFilterNumberOfPoints = 0; }));
    EXPECT_TRUE(unchanged([](SystemInfo& i) { i.iStarFilterMaxArea = 0; }));
    EXPECT_TRUE(unchanged([](SystemInfo& i) { i.StartUpdate(); }));
    // The box of 19 * 19 has to be below the area's 146 hundredths times the setting over 50.
    EXPECT_TRUE(unchanged([](SystemInfo& i) { i.iStarFilterMaxArea = 123; }));
    EXPECT_FALSE(unchanged([](SystemInfo& i) { i.iStarFilterMaxArea = 124; }));

    Canvas open(kSide, kSide, {10, 20, 30});  // the outline of a light on the border does not close
    open.fill(40, 0, 80, 30, {250, 250, 250});
    EXPECT_EQ(starred(*starState(), open.bytes), open.bytes);
}

TEST(StarFilter, TheSelectionShowsTheLightsAndACross) {
    const auto info = starState();
    info->bStarFilterShowSelected = true;
    const Bytes map = starred(*info, oneLight().bytes);
    const auto is = [&](int x, int y, Color c) {
        const std::uint8_t* p = &map[pixelOffset(kSide, x, y)];
        return p[0] == c.r && p[1] == c.g && p[2] == c.b && p[3] == 255;
    };
    for (const auto& [x, y] : {std::pair{59, 52}, {60, 67}, {55, 59}, {65, 60}})
        EXPECT_TRUE(is(x, y, {0, 255, 0})) << x << ", " << y;
    EXPECT_TRUE(is(55, 55, {255, 255, 255}));
    EXPECT_TRUE(is(10, 10, {0, 0, 0}));
}

TEST(StarFilter, EveryShapeAnyNumberOfThreadsAndWildSettings) {
    for (const auto& [w, h] : {std::pair{1, 1}, {1, 40}, {37, 1}, {150, 110}}) {
        const auto info = starState(w, h);
        info->iStarFilterBrightLightThreshold = 150;
        info->iStarFilterNumberOfPoints = 5;
        sameOnAllThreads(waves(w, h), [&](std::uint8_t* p) { StarFilter(*info, 0, p, 0); });
        for (const int value : kExtremes) {
            for (const int other : {1, INT_MAX}) {
                info->iStarFilterWidth = info->iStarFilterStartingAngle = value;
                info->iStarFilterSize = info->iStarFilterNumberOfPoints = info->iStarFilterMaxArea = other;
                starred(*info, waves(w, h));
            }
        }
    }
}

TEST(StarFilter, ASupersededRunStops) {
    const auto info = starState(900, 700);
    info->iStarFilterBrightLightThreshold = 150;
    info->iStarFilterNumberOfPoints = 40;
    const Bytes picture = waves(900, 700);
    expectStopsEarly(*info, [&] { starred(*info, picture); });
}

}  // namespace
}  // namespace tavrin
