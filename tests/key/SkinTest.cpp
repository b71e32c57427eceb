#include <gtest/gtest.h>

#include "core/RandomSource.h"
#include "key/skin/Skin.h"
#include "key/skin/SoftenMac.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;

TEST(Skin, DefaultsStandWhenNothingIsMeasured) {
    SystemInfo info;
    const Canvas canvas(8, 8, {200, 150, 120});
    info.dFaceRed = 1.0;
    ComputeSkinColor(info, 1, canvas.bytes.data(), 8, 8);
    EXPECT_EQ(info.dFaceRed, 240.0);
    EXPECT_EQ(info.dFaceHue, 63.75);
    EXPECT_TRUE(isSkin(info, 80, 90, 20));  // red 10 below green is the last that passes
    EXPECT_FALSE(isSkin(info, 80, 91, 20));
    EXPECT_FALSE(isSkin(info, 79, 70, 20));
    EXPECT_FALSE(isSkin(info, 255, 100, 19));
    EXPECT_FALSE(isSkin(info, 250, 240, 251));
    EXPECT_FALSE(isSkin(info, 255, 90, 24));  // saturation 90.6
    EXPECT_FALSE(isSkin(info, std::nan(""), 90, 24));
}

TEST(Skin, EvenPatchIsMeasuredExactly) {
    SystemInfo info;
    info.bComputeSkinColor = true;
    const Canvas canvas(8, 8, {200, 150, 120});
    ComputeSkinColor(info, 1, canvas.bytes.data(), 8, 8);
    // Hue 37.5 falls into bin 37, saturation is 40; four pixels of the 4-by-4 raster.
    EXPECT_EQ(info.dFaceHue, 37.0);
    EXPECT_EQ(info.dFaceSat, 40.0);
    EXPECT_EQ(info.dFaceInt, 200.0);
    EXPECT_EQ(info.dFaceColorMatrixMaxColor, 4.0);
    EXPECT_EQ(info.dFaceColorMatrix[37 * 100 + 40], 4.0);
    EXPECT_DOUBLE_EQ(info.dFaceBlue, 120.0);
    EXPECT_DOUBLE_EQ(info.dFaceGreen, 149.6);
    EXPECT_TRUE(isSkin(info, 200, 150, 120));
    EXPECT_TRUE(isSkin(info, 200, 138, 108));   // 6 in saturation, hue 32
    EXPECT_FALSE(isSkin(info, 200, 135, 105));  // 7 in saturation
}

TEST(Skin, NothingThatPassesGivesTheFallback) {
    SystemInfo info;
    info.bComputeSkinColor = true;
    Canvas canvas(16, 16, kScreenGreen);
    for (int i = 0; i < 16; i += 4)  // skin coloured, but in grain too rough to be skin
        canvas.set(i, i, {200, 150, 120});
    ComputeSkinColor(info, 1, canvas.bytes.data(), 16, 16);
    EXPECT_EQ(info.dFaceHue, 20.0);
    EXPECT_EQ(info.dFaceSat, 33.33);
    EXPECT_EQ(info.dFaceInt, 100.0);
    EXPECT_EQ(info.dFaceRed, 100.0);
    EXPECT_FALSE(isSkin(info, 200, 150, 120));
    for (auto [w, h] : {std::pair{0, 0}, {1, 1}, {4, 4}})
        ComputeSkinColor(info, 1, canvas.bytes.data(), w, h);
}

TEST(SoftenMac, NoStrengthChangesNothing) {
    const Canvas canvas = person(61, 47);
    auto info = makeState(canvas);
    info->iRedRequired = 60;
    info->iColorDelta = 30;
    Bytes picture = canvas.bytes;
    SoftenMac(*info, 1, canvas.bytes.data(), canvas.bytes.data(), picture.data(), 1);
    EXPECT_EQ(picture, canvas.bytes);
}

TEST(SoftenMac, SkinIsSmoothedAndMadeUpByHand) {
    // All skin: by the defaults (232, 200, 186) is near the bright face colour, so the mask is 255 everywhere.
    const Canvas canvas(20, 20, {232, 200, 186});
    auto info = makeState(canvas);
    info->iRedRequired = 60;
    info->iMakeup = 50;
    Bytes picture(canvas.bytes);
    info->bShowSkinSelection = 1;
    SoftenMac(*info, 1, canvas.bytes.data(), canvas.bytes.data(), picture.data(), 1);
    EXPECT_EQ(picture[0], 240);  // all rows are among the top 100, which show the face colour
    EXPECT_EQ(picture[1], 180);

    info->bShowSkinSelection = 0;
    picture = canvas.bytes;
    SoftenMac(*info, 1, canvas.bytes.data(), canvas.bytes.data(), picture.data(), 1);
    // Make-up share 255 / 254 * 50 / 100; shade is limited to 1 for red 232 against 240.
    const double share = 255.0 / 254.0 * 50.0 / 100.0;
    EXPECT_EQ(picture[0], static_cast<int>(232.0 * (1.0 - share) + 240.0 * share));
    EXPECT_EQ(picture[1], static_cast<int>(200.0 * (1.0 - share) + 162.0 * share));
    EXPECT_EQ(picture[3], 255);
}

TEST(SoftenMac, ThreadsDoNotChangeBytesEvenWithNoise) {
    const Canvas canvas = person(150, 110);
    Bytes results[2];
    withOneAndManyThreads([&](int run) {
        auto info = makeState(canvas);
        info->iRedRequired = 60;
        info->iColorDelta = 20;
        info->iNumberOfSamples = 70;
        info->iSmoothNoise = 1;
        info->iMakeup = 20;
        info->bComputeSkinColor = true;
        results[run] = canvas.bytes;
        info->randomSeeds.startAt(5);
        SoftenMac(*info, 1, canvas.bytes.data(), canvas.bytes.data(), results[run].data(), 1);
    });
    EXPECT_EQ(results[0], results[1]);
    EXPECT_NE(results[0], canvas.bytes);
}

TEST(SoftenMac, AnyValueOfAFieldIsSafe) {
    const Canvas canvas = person(33, 21);
    for (int value : kExtremes) {
        auto info = makeState(canvas);
        for (auto* field : {&info->iColorDelta, &info->iNumberOfSamples, &info->iRedRequired, &info->iSmoothNoise,
                            &info->iMakeup, &info->iOutputImageDPI})
            *field = value;
        for (bool measured : {false, true}) {
            info->bComputeSkinColor = measured;
            Bytes picture = canvas.bytes;
            SoftenMac(*info, 1, canvas.bytes.data(), canvas.bytes.data(), picture.data(), 1);
        }
    }
}

TEST(RandomSource, IsEvenAndRepeatable) {
    RandomSource source(1), same(1), other(1, 1);
    int counts[50] = {};
    bool differs = false;
    for (int i = 0; i < 50'000; ++i) {
        const std::uint32_t value = source.below(50);
        ASSERT_LT(value, 50U);
        ASSERT_EQ(value, same.below(50));
        differs |= value != other.below(50);
        ++counts[value];
    }
    EXPECT_TRUE(differs);
    for (int count : counts)
        EXPECT_NEAR(count, 1000, 160);  // five standard deviations
    EXPECT_EQ(source.below(0), 0U);
    EXPECT_EQ(source.below(1), 0U);
}

}  // namespace
}  // namespace tavrin
