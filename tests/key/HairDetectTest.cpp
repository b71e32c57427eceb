#include <gtest/gtest.h>

#include "key/hair/HairDetail.h"
#include "key/hair/HairDetect.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;

// The walk told pixel by pixel.
int slowDetail(const Canvas& c, int x, int y, double baseGreen, bool blue) {
    const auto role = [&](int atX, int atY, int channel) {
        return static_cast<int>(c.bytes[static_cast<std::size_t>(4 * (atY * c.width + atX) + channel)]);
    };
    int previous = static_cast<int>(0.3 * (role(x, y, 0) + role(x, y, 1) + role(x, y, 2)));
    int total = 0, counted = 0, dx = 0, dy = 0;
    const auto visit = [&] {
        const int atX = x + dx, atY = y + dy;
        if (atX < 0 || atY < 0 || atX >= c.width || atY >= c.height) return;
        ++counted;
        const int r = role(atX, atY, 0), g = role(atX, atY, blue ? 2 : 1), b = role(atX, atY, blue ? 1 : 2);
        if (!((g > r && g > b && baseGreen * 1.1 > g) || r + g + b <= 119)) return;
        const int current = std::max(static_cast<int>(baseGreen + (g - baseGreen) / -0.501), 0);
        const int difference = std::abs(current - previous);
        total += difference >= 11 ? std::min(2 * difference, 80) : difference >= 6 ? difference : 0;
        previous = current;
    };
    // Up, right, down, left, down... in runs of 1, 1, 2, 2 ... 8, 8 and a last one of 8.
    const int runs[] = {1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7, 8, 8, 8};
    const int stepX[] = {0, 1, 0, -1}, stepY[] = {1, 0, -1, 0};
    for (int run = 0; run < 17; ++run) {
        for (int i = 0; i < runs[run]; ++i) {
            dx += stepX[run % 4];
            dy += stepY[run % 4];
            visit();
        }
    }
    EXPECT_TRUE(dx == -4 && dy == 4);
    return counted >= 3 ? std::min(total / counted * 8, 255) : 0;
}

TEST(HairDetail, EqualsTheWalkOfEachPixel) {
    for (auto [w, h] : {std::pair{1, 1}, {2, 1}, {4, 4}, {67, 19}, {131, 11}}) {
        Canvas canvas(w, h, {10, 20, 5});
        canvas.addNoise(130);
        Bytes map(canvas.bytes.size(), 77);
        for (bool blue : {false, true}) {
            ASSERT_TRUE(writeHairDetail({}, {canvas.bytes.data(), w, h, 120.0, blue}, map.data()));
            for (int y = 0; y < h; ++y) {
                for (int x = 0; x < w; ++x) {
                    const std::uint8_t* p = &map[static_cast<std::size_t>(4 * (y * w + x))];
                    ASSERT_EQ(p[0], slowDetail(canvas, x, y, 120.0, blue)) << w << "x" << h << " " << x << "," << y;
                    ASSERT_TRUE(p[1] == p[0] && p[2] == p[0] && p[3] == 77);
                }
            }
        }
    }
}

TEST(HairDetail, IsZeroOnAFlatScreenAndHighInStrands) {
    Canvas canvas(120, 100, kScreenGreen);
    for (int x = 80; x < 110; x += 3)
        canvas.fill(x, 10, x + 1, 90, {50, 30, 20});
    Bytes map(canvas.bytes.size());
    ASSERT_TRUE(writeHairDetail({}, {canvas.bytes.data(), 120, 100, 160.0, false}, map.data()));
    // On the screen one step counts, from the pixel's grey to the screen's darkness: 80 over 80 neighbours.
    EXPECT_EQ(map[4 * (50 * 120 + 40)], 8);
    EXPECT_GT(map[4 * (50 * 120 + 95)], 99);
    for (double extreme : {1.0, 255.0, 1e9})
        ASSERT_TRUE(writeHairDetail({}, {canvas.bytes.data(), 120, 100, extreme, false}, map.data()));
}

// Screen, `rows` rows of hair, and skin from row 100 on.
Canvas headOf(int rows, Color hair) {
    Canvas canvas(60, 200, kScreenGreen);
    canvas.fill(0, 100 - rows, 60, 100, hair);
    canvas.fill(0, 100, 60, 200, kSkinTone);
    return canvas;
}

std::unique_ptr<SystemInfo> detect(const Canvas& canvas) {
    auto info = makeState(canvas);
    info->iMacroHairColor = 6;
    info->bFoundHair = false;
    info->iHairColorCount = 9;
    ComputeHairColor(*info);
    return info;
}

TEST(HairDetect, FindsTheHairAboveTheFace) {
    const auto info = detect(headOf(12, kBrownHair));
    EXPECT_TRUE(info->bFoundHair);
    ASSERT_GE(info->iHairColorCount, 1);
    EXPECT_EQ(info->iHairColorBinRed[0], kBrownHair.r);
    EXPECT_EQ(info->iHairColorBinGreen[0], kBrownHair.g);
    EXPECT_EQ(info->iHairColorBinBlue[0], kBrownHair.b);
    // The combined preview now holds the skin mask.
    const std::uint8_t* mask = info->pCombinedBitmapInfo->pBitmapDataLowRes;
    EXPECT_GE(mask[4 * (150 * 60 + 30)], 128);
    EXPECT_EQ(mask[4 * (5 * 60 + 30)], 0);
}

TEST(HairDetect, ThinHairOrNoSkinFindsNothing) {
    EXPECT_FALSE(detect(headOf(0, kBrownHair))->bFoundHair);
    Canvas faceless(60, 200, kScreenGreen);
    faceless.fill(10, 30, 50, 200, {70, 70, 70});
    const auto info = detect(faceless);
    EXPECT_FALSE(info->bFoundHair);
    EXPECT_EQ(info->iHairColorCount, 0);
}

TEST(HairDetect, GreenTintedGreyCountsAsGrey) {
    const auto info = detect(headOf(14, {100, 108, 96}));
    ASSERT_GE(info->iHairColorCount, 1);
    EXPECT_EQ(info->iHairColorBinRed[0], 100);
    EXPECT_EQ(info->iHairColorBinGreen[0], 100);
    EXPECT_EQ(info->iHairColorBinBlue[0], 100);
}

TEST(HairDetect, CloseColorsMergeAndTheLighterSurvives) {
    Canvas canvas = headOf(16, kBrownHair);
    // The band that meets the face begins at row 90.
    canvas.fill(0, 92, 60, 94, {kBrownHair.r + 6, kBrownHair.g + 6, kBrownHair.b + 6});
    canvas.fill(0, 90, 60, 92, {20, 18, 16});
    const auto info = detect(canvas);
    const auto& reds = info->iHairColorBinRed;
    EXPECT_EQ(reds[0], kBrownHair.r + 6);
    const auto end = reds.begin() + info->iHairColorCount;
    EXPECT_EQ(std::count(reds.begin(), end, kBrownHair.r), 0);
    EXPECT_EQ(std::count(reds.begin(), end, 20), 1);
}

TEST(HairDetect, PresetAndStaleRunsLeaveTheList) {
    auto info = makeState(person(60, 100));
    info->iMacroHairColor = 4;
    info->iHairColorCount = 1;
    info->iHairColorBinRed[0] = 7;
    ComputeHairColor(*info);
    EXPECT_EQ(info->iHairColorBinRed[0], 7);
    EXPECT_FALSE(info->bComputeSkinColor);
    info->iMacroHairColor = 6;
    info->iNewThreadCount = 2;
    const Bytes combined(info->pCombinedBitmapInfo->pBitmapDataLowRes,
                         info->pCombinedBitmapInfo->pBitmapDataLowRes + 4 * 6000);
    ComputeHairColor(*info);
    EXPECT_EQ(info->iHairColorBinRed[0], 7);
    EXPECT_TRUE(std::equal(combined.begin(), combined.end(), info->pCombinedBitmapInfo->pBitmapDataLowRes));
    info->bLightingForceCompute = true;
    ComputeHairColor(*info);
    EXPECT_NE(info->iHairColorBinRed[0], 7);
}

TEST(HairDetect, SmallPicturesAndThreads) {
    for (auto [w, h] : {std::pair{1, 1}, {4, 4}, {9, 9}, {33, 11}})
        detect(person(w, h));
    std::unique_ptr<SystemInfo> results[2];
    withOneAndManyThreads([&](int run) { results[run] = detect(person(123, 150)); });
    const std::size_t bytes = pixelBytes(123, 150);
    EXPECT_TRUE(std::equal(results[0]->pHairDetectBitmap, results[0]->pHairDetectBitmap + bytes,
                           results[1]->pHairDetectBitmap));
    EXPECT_EQ(results[0]->iHairColorCount, results[1]->iHairColorCount);
    EXPECT_EQ(results[0]->iHairColorBinGreen, results[1]->iHairColorBinGreen);
    SystemInfo empty;
    ComputeHairColor(empty);
}

}  // namespace
}  // namespace tavrin
