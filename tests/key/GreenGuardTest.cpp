#include <gtest/gtest.h>

#include "key/guard/GreenGuard.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;
using namespace guard;

constexpr int kNoBand = -200;  // a negative radius draws none

Bytes bitmapOf(SystemInfo& info, const Canvas& canvas, Resolution resolution = Resolution::full) {
    GreenGuard guard;
    EXPECT_TRUE(guard.build(info, {canvas.bytes.data(), canvas.width, canvas.height}, resolution));
    return guard.bitmap();
}

std::string rowOf(const Bytes& bitmap, int width, int y) {
    std::string row;
    for (int x = 0; x < width; ++x) {
        switch (bitmap[static_cast<std::size_t>(y * width + x)]) {
            case kSubject:
                row += 'P';
                break;
            case kScreenColor:
                row += 'g';
                break;
            case kScreen:
                row += '.';
                break;
            case kEdge:
                row += 'E';
                break;
            case kBand:
                row += 'b';
                break;
            case kShirt:
                row += 'S';
                break;
            default:
                row += '?';
        }
    }
    return row;
}

std::unique_ptr<SystemInfo> guardState(const Canvas& canvas, int mode, int radius) {
    auto info = makeState(canvas);
    info->iGreenProtectMode = mode;
    info->iSliderProtectionRadius = radius;
    return info;
}

TEST(GreenGuard, GreenInsideTheOutlineIsToldFromTheScreen) {
    Canvas canvas(9, 7, kScreenGreen);
    canvas.fill(2, 1, 7, 6, kSkinTone);
    canvas.fill(4, 3, 5, 4, kScreenGreen);
    auto info = guardState(canvas, 1, kNoBand);
    const Bytes bitmap = bitmapOf(*info, canvas);
    EXPECT_EQ(rowOf(bitmap, 9, 0), ".........");
    EXPECT_EQ(rowOf(bitmap, 9, 1), "..EEEEE..");
    EXPECT_EQ(rowOf(bitmap, 9, 2), "..EPPPE..");
    EXPECT_EQ(rowOf(bitmap, 9, 3), "..EPgPE..");
    EXPECT_EQ(rowOf(bitmap, 9, 5), "..EEEEE..");
    info->iSliderProtectionRadius = 0;  // only the edge itself becomes band
    EXPECT_EQ(rowOf(bitmapOf(*info, canvas), 9, 3), "..bPgPb..");
}

TEST(GreenGuard, DarkPixelsAndGreenPicturesHaveNoEdge) {
    const Canvas green(6, 5, kScreenGreen);
    auto info = guardState(green, 1, 30);
    EXPECT_EQ(bitmapOf(*info, green), Bytes(30, kScreen));
    info->baseRed = 5;
    info->baseGreen = 20;
    info->baseBlue = 5;
    const Canvas dark(6, 5, {5, 20, 5}), less(6, 5, {5, 21, 5});
    EXPECT_EQ(bitmapOf(*info, dark), Bytes(30, kSubject));
    EXPECT_EQ(bitmapOf(*info, less), Bytes(30, kScreen));
    info->iSliderBackgroundGreen = 0;  // a distance is never below 0
    EXPECT_EQ(bitmapOf(*info, less), Bytes(30, kSubject));
}

TEST(GreenGuard, BlueScreenChangesPlaces) {
    Canvas canvas(9, 7, {kScreenGreen.r, kScreenGreen.b, kScreenGreen.g});
    canvas.fill(2, 1, 7, 6, kSkinTone);
    auto info = guardState(canvas, 1, kNoBand);
    EXPECT_EQ(bitmapOf(*info, canvas), Bytes(63, kSubject));
    info->bUseBlueLogic = true;
    EXPECT_EQ(rowOf(bitmapOf(*info, canvas), 9, 3), "..EPPPE..");
}

// Connected parts found by growing until nothing changes.
Bytes slowFill(Bytes bitmap, int w, int h) {
    for (auto& byte : bitmap)
        byte = byte == kScreen || byte == kScreenColor ? kScreenColor : kSubject;
    for (bool grew = true; grew;) {
        grew = false;
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                auto at = [&](int i, int j) { return bitmap[static_cast<std::size_t>(j * w + i)] == kScreen; };
                auto& byte = bitmap[static_cast<std::size_t>(y * w + x)];
                const bool border = x == 0 || y == 0 || x == w - 1 || y == h - 1;
                if (byte != kScreenColor) continue;
                if (!border && !at(x - 1, y) && !at(x + 1, y) && !at(x, y - 1) && !at(x, y + 1)) continue;
                byte = kScreen;
                grew = true;
            }
        }
    }
    return bitmap;
}

TEST(GreenGuard, FillReachesAllThatIsConnectedInAMaze) {
    const int w = 120, h = 90;
    Canvas canvas(w, h, kScreenGreen);
    std::mt19937 random(5);
    for (int i = 0; i < w * h * 4 / 10; ++i)
        canvas.set(static_cast<int>(random() % w), static_cast<int>(random() % h), kSkinTone);
    const Bytes bitmap = bitmapOf(*guardState(canvas, 1, kNoBand), canvas);
    const Bytes expected = slowFill(bitmap, w, h);
    for (std::size_t i = 0; i < bitmap.size(); ++i)
        ASSERT_EQ(bitmap[i] == kScreen, expected[i] == kScreen);
    EXPECT_GT(std::count(bitmap.begin(), bitmap.end(), kScreenColor), 10);
}

TEST(GreenGuard, FillDropsSeedsBeyondItsStack) {
    // A comb: one open row above 14,000 teeth of two rows. Only as many teeth are entered as the stack holds.
    const int w = 28'000;
    Canvas canvas(w, 5, kSkinTone);
    canvas.fill(0, 2, w, 3, kScreenGreen);
    for (int x = 1; x < w - 1; x += 2)
        canvas.fill(x, 3, x + 1, 4, kScreenGreen);
    const Bytes bitmap = bitmapOf(*guardState(canvas, 1, kNoBand), canvas);
    EXPECT_EQ(std::count(bitmap.begin(), bitmap.end(), kScreen), w + SeedStack::kEntries);
}

// The band by its definition, on a bitmap with the edge found.
Bytes slowBand(Bytes bitmap, int w, int h, int radius) {
    const int step = radius + 4 < 9 ? 1 : radius / 5;
    for (int y = 0; y < h; y += step) {
        for (int x = 0; x < w; ++x) {
            if (bitmap[static_cast<std::size_t>(y * w + x)] != kEdge) continue;
            for (int dy = -radius; dy <= radius; ++dy) {
                const int half = static_cast<int>(std::sqrt(static_cast<double>(radius * radius - dy * dy)));
                for (int i = x - half; i <= x + half; ++i) {
                    if (i < 0 || i >= w || y + dy < 0 || y + dy >= h) continue;
                    auto& byte = bitmap[static_cast<std::size_t>((y + dy) * w + i)];
                    if (byte != kScreen) byte = kBand;
                }
            }
        }
    }
    return bitmap;
}

TEST(GreenGuard, BandFollowsTheEdgeInThinnedRows) {
    const Canvas canvas = person(141, 97);
    const Bytes edge = bitmapOf(*guardState(canvas, 1, kNoBand), canvas);
    for (int slider : {0, 2, 5, 8, 30, 200, 1000}) {
        const int radius = slider * 141 / 200;
        EXPECT_EQ(bitmapOf(*guardState(canvas, 1, slider), canvas), slowBand(edge, 141, 97, radius)) << slider;
    }
}

TEST(GreenGuard, ShirtColorIsMeasuredAndFilledButNotInTheOuterBand) {
    const Color shirt = {60, 120, 70};
    Canvas canvas(40, 40, kScreenGreen);
    canvas.fill(8, 8, 32, 32, kSkinTone);
    canvas.fill(12, 12, 28, 28, shirt);
    canvas.fill(19, 19, 21, 21, kScreenGreen);
    auto info = guardState(canvas, 2, kNoBand);
    info->iSliderBackgroundGreen = 15;
    info->iSliderShirtProtection = 20;
    GreenGuard guard;
    ASSERT_TRUE(guard.build(*info, {canvas.bytes.data(), 40, 40}, Resolution::full));
    // 252 pixels of shirt and 4 of screen inside the outline.
    EXPECT_DOUBLE_EQ(guard.shirtColor().g, (252 * 120 + 4 * 160) / 256.0);
    EXPECT_EQ(rowOf(guard.bitmap(), 40, 19), "........EPPPSSSSSSSggSSSSSSSPPPE........");
    EXPECT_FALSE(guard.isShirtColor(19, 19));
    info->bRemoveInsideBaseGreen = false;
    info->iSliderShirtProtection = 40;
    EXPECT_EQ(rowOf(bitmapOf(*info, canvas), 40, 19), "........EPPPSSSSSSSSSSSSSSSSPPPE........");

    // With the whole subject in the band no pixel starts a fill.
    info->iSliderProtectionRadius = 200;
    const Bytes band = bitmapOf(*info, canvas);
    EXPECT_EQ(std::count(band.begin(), band.end(), kShirt), 0);
}

TEST(GreenGuard, NoGreenClothMeansNoProtection) {
    Canvas canvas(20, 20, kScreenGreen);
    canvas.fill(5, 5, 15, 15, kSkinTone);
    auto info = guardState(canvas, 2, 0);
    GreenGuard guard;
    ASSERT_TRUE(guard.build(*info, {canvas.bytes.data(), 20, 20}, Resolution::full));
    EXPECT_EQ(guard.shirtColor().g, 0.0);
    EXPECT_EQ(std::count(guard.bitmap().begin(), guard.bitmap().end(), kShirt), 0);
}

TEST(GreenGuard, StaleRunStopsOrLeavesTheFillsOut) {
    const Canvas canvas = person(60, 50);
    auto info = guardState(canvas, 1, 0);
    info->iNewThreadCount = 2;
    GreenGuard guard;
    EXPECT_FALSE(guard.build(*info, {canvas.bytes.data(), 60, 50}, Resolution::full));
    const Bytes preview = bitmapOf(*info, canvas, Resolution::preview);
    EXPECT_EQ(std::count(preview.begin(), preview.end(), kScreen), 0);
    EXPECT_GT(std::count(preview.begin(), preview.end(), kScreenColor), 0);
}

TEST(GreenGuard, AnyFieldSizeAndThreadCountIsSafe) {
    GreenGuard guard;
    for (auto [w, h] : {std::pair{1, 1}, {4, 4}, {33, 7}, {7, 33}}) {
        const Canvas canvas = person(w, h);
        for (int value : kExtremes) {
            for (int mode : {1, 2, value}) {
                auto info = guardState(canvas, mode, value);
                info->iSliderBackgroundGreen = value;
                info->iSliderShirtProtection = value;
                EXPECT_TRUE(guard.build(*info, {canvas.bytes.data(), w, h}, Resolution::full));
            }
        }
    }
    EXPECT_FALSE(guard.build(*guardState(person(4, 4), 1, 0), {nullptr, 4, 4}, Resolution::full));
    const Canvas canvas = person(211, 167);
    Bytes results[2];
    withOneAndManyThreads([&](int run) { results[run] = bitmapOf(*guardState(canvas, 2, 3), canvas); });
    EXPECT_EQ(results[0], results[1]);
}

}  // namespace
}  // namespace tavrin
