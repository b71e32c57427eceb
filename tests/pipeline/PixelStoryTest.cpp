// What is told of a pixel against the buffers that the key left, and against what the key decides.
#include <gtest/gtest.h>

#include "core/raster/ColorMath.h"
#include "key/KeyScene.h"
#include "pipeline/PixelStory.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

PixelStory storyOf(KeyScene& scene, const Pixel& pixel) {
    scene.at(scene.foreground, 0, 0) = pixel;
    Combine(scene.info, 1, 1);
    return PixelProbe(scene.info).tell(0, 0);
}

TEST(PixelStoryTest, NamesTheTestThatDecided) {
    KeyScene scene(1, 1);
    EXPECT_EQ(storyOf(scene, {40, 200, 60, 255}).reason, KeyReason::screenLine);
    EXPECT_EQ(storyOf(scene, {10, 60, 15, 255}).reason, KeyReason::mixed) << "darker than the limit of dark areas";
    EXPECT_EQ(storyOf(scene, {5, 5, 5, 255}).reason, KeyReason::darkNeutral);
    EXPECT_EQ(storyOf(scene, {200, 40, 40, 255}).reason, KeyReason::otherColor);
    EXPECT_EQ(storyOf(scene, {150, 170, 140, 255}).reason, KeyReason::mixed);
    scene.sliders().sliderRestoredDarkAreas = 150;
    EXPECT_EQ(storyOf(scene, {40, 200, 60, 255}).reason, KeyReason::screenNear);
    scene.info.iSliderClipTop = 100;
    const PixelStory clipped = storyOf(scene, {200, 40, 40, 255});
    EXPECT_EQ(clipped.reason, KeyReason::margin);
    EXPECT_EQ(clipped.alpha, 0);
    scene.info.iSliderClipTop = 0;
    scene.info.bUseBlueLogic = true;
    EXPECT_NE(storyOf(scene, {200, 40, 40, 255}).reason, KeyReason::otherColor);
    scene.sliders().bShowSelectedAreas = true;
    EXPECT_EQ(storyOf(scene, {200, 40, 40, 255}).reason, KeyReason::screenView);
    scene.sliders().bShowSelectedAreas = false;
    scene.info.bShowOrgImage = true;
    EXPECT_EQ(storyOf(scene, {200, 40, 40, 255}).reason, KeyReason::noKey);
    scene.info.bShowOrgImage = false;
    scene.info.iGreenProtectMode = 1;
    EXPECT_EQ(storyOf(scene, {40, 200, 60, 255}).reason, KeyReason::guardView);
}

class PixelStoryNoiseTest : public testing::TestWithParam<bool> {};

TEST_P(PixelStoryNoiseTest, EveryValueIsThatOfTheBuffersAndOfTheKey) {
    KeyScene scene(37, 29);
    test::fillWithNoise(scene.foreground, 5);
    test::fillWithNoise(scene.background, 6);
    scene.info.bUseBlueLogic = GetParam();
    scene.info.iGreenProtectMode = 1;
    scene.info.bShowGreenProtection = false;
    scene.info.iSliderClipLeft = 10;
    scene.sliders().sliderWhiteBalance = 108;
    Combine(scene.info, 1, 1);
    const PixelProbe probe(scene.info);
    int guarded = 0, mixed = 0;
    for (int y = 0; y < scene.height; ++y) {
        for (int x = 0; x < scene.width; ++x) {
            SCOPED_TRACE(std::to_string(x) + ' ' + std::to_string(y));
            const PixelStory story = probe.tell(x, y);
            const KeyedPixel keyed = scene.keyed(x, y);
            ASSERT_EQ(story.source, scene.at(scene.foreground, x, y));
            ASSERT_EQ(story.result, scene.at(scene.combined, x, y));
            ASSERT_EQ(story.alpha, scene.alpha(x, y));
            ASSERT_EQ(story.keyAlpha, keyed.alpha);
            ASSERT_EQ(story.screen.g, GetParam() ? keyed.screen.b : keyed.screen.g);
            ASSERT_EQ(story.dark.value, keyed.largest);
            const bool cut = story.reason == KeyReason::margin;
            if (story.guarded && !cut) {
                ASSERT_EQ(story.alpha, 255);
            }
            if (!story.guarded && !cut) {
                ASSERT_EQ(story.alpha, toByte(keyed.alpha * 255.0));
            }
            if (!story.guarded && keyed.alpha > 0.0) {
                ASSERT_EQ(story.own.r, keyed.color.r);
            }
            if (story.reason == KeyReason::screenNear) {
                ASSERT_TRUE(keyed.hardBackground);
            }
            if (story.reason == KeyReason::screenLine) {
                ASSERT_EQ(keyed.alpha, 0.0);
            }
            if (story.reason == KeyReason::darkNeutral) {
                ASSERT_EQ(keyed.lift, story.grey.value);
            }
            guarded += story.guarded ? 1 : 0;
            mixed += story.reason == KeyReason::mixed ? 1 : 0;
        }
    }
    EXPECT_GT(guarded, 10);
    EXPECT_GT(mixed, 10);
    EXPECT_FALSE(probe.covers(37, 0));
    EXPECT_FALSE(probe.covers(0, -1));
}

INSTANTIATE_TEST_SUITE_P(Screens, PixelStoryNoiseTest, testing::Bool());

TEST(PixelStoryTest, SpillIsWhatTheScreensChannelLedLessAfterTheKey) {
    KeyScene scene(1, 1);
    const PixelStory tinted = storyOf(scene, {120, 150, 110, 255});
    const double lead = tinted.own.g - std::max(tinted.own.r, tinted.own.b);
    ASSERT_GT(tinted.alpha, 0);
    EXPECT_EQ(tinted.spillTaken, static_cast<int>(30.0 - std::max(0.0, lead)));
    EXPECT_GT(tinted.spillTaken, 0);
    EXPECT_EQ(storyOf(scene, {200, 40, 40, 255}).spillTaken, 0);
    EXPECT_EQ(storyOf(scene, {40, 200, 60, 255}).spillTaken, 0) << "nothing of the subject is there";
    scene.info.bUseBlueLogic = true;  // the screen's channel is the third byte then
    EXPECT_GT(storyOf(scene, {120, 110, 150, 255}).spillTaken, 0);
}

TEST(PixelStoryTest, APictureThatTheRefinedKeyLeftAloneIsToldAsThePlainKeyMadeIt) {
    KeyScene scene(24, 24);  // nothing but screen
    scene.info.bRefineKey = true;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(PixelProbe(scene.info).tell(3, 3).reason, KeyReason::screenLine);
    scene.at(scene.background, 4, 4)[3] = 100;  // as the second look leaves it
    const PixelStory refined = PixelProbe(scene.info).tell(4, 4);
    EXPECT_EQ(refined.reason, KeyReason::refined);
    EXPECT_TRUE(refined.ownWorkedBack);
}

}  // namespace
}  // namespace tavrin
