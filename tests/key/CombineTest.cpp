#include <cstring>
#include <gtest/gtest.h>
#include <limits>

#include <QImage>

#include "key/KeyScene.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

TEST(Combine, SubjectScreenAndTheKeptAlpha) {
    KeyScene scene(2, 1);
    scene.at(scene.foreground, 1, 0) = {220, 60, 50, 255};
    Combine(scene.info, 1, 0);
    EXPECT_EQ(scene.at(scene.combined, 0, 0), (Pixel{90, 110, 70, 255}));
    EXPECT_EQ(scene.alpha(0, 0), 0);
    EXPECT_EQ(scene.alpha(1, 0), 255);
    EXPECT_NEAR(scene.at(scene.combined, 1, 0)[0], 220, 1);
    EXPECT_NEAR(scene.at(scene.combined, 1, 0)[1], 60, 1);
}

TEST(Combine, BlueLogicSwapsOnReadingAndWriting) {
    KeyScene scene(2, 1, {40, 60, 200, 255});
    scene.at(scene.foreground, 1, 0) = {200, 190, 20, 255};
    scene.info.bUseBlueLogic = true;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 0, 0), (Pixel{90, 110, 70, 255}));
    EXPECT_EQ(scene.alpha(1, 0), 255);
    EXPECT_NEAR(scene.at(scene.combined, 1, 0)[1], 190, 1);
    EXPECT_NEAR(scene.at(scene.combined, 1, 0)[2], 20, 1);
}

TEST(Combine, TransparentOutputIsTheSubjectAlone) {
    KeyScene scene(3, 1);
    scene.at(scene.foreground, 1, 0) = {220, 60, 50, 255};
    scene.at(scene.foreground, 2, 0) = {111, 160, 75, 255};
    scene.info.bOutputTransparency = true;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 0, 0), (Pixel{155, 155, 155, 0}));
    EXPECT_EQ(scene.at(scene.combined, 1, 0)[3], 255);
    const Pixel mixed = scene.at(scene.combined, 2, 0);
    EXPECT_EQ(mixed[3], 145);  // 0.57
    EXPECT_NEAR(mixed[0], 154, 1);
    EXPECT_NEAR(mixed[1], 116, 1);
    EXPECT_NEAR(mixed[2], 79, 1);
    scene.info.bShowOrgImage = true;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 2, 0)[3], 255);
}

TEST(Combine, SilhouetteByColourAndByPicture) {
    QImage picture(4, 2, QImage::Format_RGBA8888);
    picture.fill(QColor(9, 8, 7));
    picture.setPixelColor(3, 1, QColor(30, 20, 10));

    KeyScene scene(4, 2, {220, 60, 50, 255});
    scene.info.bOutputSilhouette = true;
    scene.info.iSilhouetteRed = 10;
    scene.info.iSilhouetteGreen = 200;
    scene.info.iSilhouetteBlue = 300;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 2, 1), (Pixel{10, 200, 255, 255}));

    scene.info.silhouettePicture = picture;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 0, 0), (Pixel{9, 8, 7, 255}));
    EXPECT_EQ(scene.at(scene.combined, 3, 1), (Pixel{30, 20, 10, 255}));
    scene.info.iSliderlSilhouetteX = 75;  // by half the picture's width
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 1, 1), (Pixel{30, 20, 10, 255}));
    EXPECT_EQ(scene.at(scene.combined, 2, 1), (Pixel{0, 0, 0, 255}));

    scene.info.bOutputSilhouette = false;
    scene.info.iForegroundOutputMode = 4;  // knows the plain colour only
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.at(scene.combined, 2, 1), (Pixel{10, 200, 255, 255}));
}

TEST(Combine, LightFallsTwiceAndWhereItIsMeantTo) {
    KeyScene scene(2, 1, {40, 200, 60, 255}, {100, 100, 100, 255});
    scene.at(scene.foreground, 1, 0) = {150, 60, 50, 255};
    scene.info.iLightingSliderStartLight = scene.info.iLightingSliderEndLight = 54;  // a sheet of 120 all over
    const auto run = [&](int mode, int applyTo) {
        scene.info.iLightingMode = mode;
        scene.info.iLightingApplyTo = applyTo;
        scene.info.oLightingMap = {9, 9, 9};  // an old map is not read
        Combine(scene.info, 1, 1);
        EXPECT_TRUE(scene.info.oLightingMap.empty());
        EXPECT_FALSE(scene.info.bLightingForceCompute);
        return std::pair<int, int>{scene.at(scene.combined, 0, 0)[0], scene.at(scene.combined, 1, 0)[0]};
    };
    const int lit = static_cast<int>(150 * 1.12 * 1.12);
    EXPECT_EQ(run(1, 3).first, 125);
    EXPECT_NEAR(run(1, 3).second, lit, 2);
    EXPECT_EQ(run(1, 1).first, 100);
    EXPECT_NEAR(run(1, 1).second, lit, 2);
    EXPECT_NEAR(run(1, 2).first, 112, 3);  // once, after a tone curve that is not quite straight
    EXPECT_NEAR(run(1, 2).second, 150, 1);
    EXPECT_EQ(run(0, 3).first, 100);
    scene.info.iLightingSliderStartLight = scene.info.iLightingSliderEndLight = 50;
    EXPECT_EQ(run(1, 3), run(0, 3));
    EXPECT_EQ(run(2, 1), run(0, 1));
}

struct Recorder : Interface {
    std::vector<std::pair<int, int>> rows;
    void repaint(const PublishedRows& part) override { rows.emplace_back(part.firstRow, part.pixels.height()); }
};

TEST(Combine, FullRunPublishesTenthsAndStopsWhenSuperseded) {
    KeyScene scene(3, 25);
    Recorder window;
    scene.info.pInterface = &window;
    scene.info.bShowLowRes = true;
    Combine(scene.info, 1, 0);
    EXPECT_TRUE(window.rows.empty());
    EXPECT_TRUE(scene.info.bShowLowRes);
    Combine(scene.info, 1, 1);
    ASSERT_EQ(window.rows.size(), 13u);
    EXPECT_EQ(window.rows[1], (std::pair{2, 2}));
    EXPECT_EQ(window.rows[12], (std::pair{24, 1}));
    EXPECT_FALSE(scene.info.bShowLowRes);

    scene.info.StartUpdate();
    scene.combined.assign(scene.combined.size(), {1, 2, 3, 4});
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.combined.front(), (Pixel{1, 2, 3, 4}));
    Combine(scene.info, 1, 0);
    EXPECT_EQ(scene.combined.back(), (Pixel{90, 110, 70, 255}));
}

// Settings that send pixels through every stage.
void busySettings(SystemInfo& info) {
    for (BitmapInfo* record : {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get()}) {
        record->iBrightnessSharpen = 30;
        record->iEnhanseShadows = 50;
        record->iCooling = 40;
        record->iWarming = 90;
        record->iReduceHighlights = 20;
        record->iGreenDelta = 4;
    }
    info.pCombinedBitmapInfo->sliderWhiteBalance = 104;
    info.bUseAdaptiveBackgroundGreen = true;
    info.bShowBright = true;
    info.iLightingMode = 1;
    info.iSliderClipLeft = 7;
}

TEST(Combine, ThreadsDoNotChangeAByte) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 37}, {53, 1}, {131, 67}}) {
        for (int option = 0; option < 4; ++option) {
            KeyScene one(width, height);
            test::fillWithNoise(one.foreground, 11);
            test::fillWithNoise(one.background, 12);
            KeyScene many(width, height);
            many.foreground = one.foreground;
            many.background = one.background;
            for (KeyScene* scene : {&one, &many}) {
                // The copies above may not move the buffers that the records know.
                ASSERT_EQ(scene->info.pForegroundBitmapInfo->pBitmapData, scene->foreground.front().data());
                busySettings(scene->info);
                scene->info.bUseBlueLogic = option == 1;
                scene->info.bShowOrgImage = option == 2;
                scene->info.bOutputTransparency = option == 3;
                const ThreadLimit limit(scene == &one ? 1 : 4);
                ComputeBaseGreen(scene->info, 1, 0);
                Combine(scene->info, 1, 1);
            }
            EXPECT_EQ(one.combined, many.combined);
            EXPECT_EQ(one.background, many.background);
        }
    }
}

// Sets every number of a table, but for the output sizes, which must fit the buffers.
template <class Owner>
void setAll(Owner& owner, std::int32_t number, double real, bool flag) {
    for (const auto& leaf : Owner::leaves()) {
        if (std::strstr(leaf.key, "Pixel")) continue;
        if (auto* i = std::get_if<Field<std::int32_t> Owner::*>(&leaf.member)) owner.*(*i) = number;
        if (auto* d = std::get_if<Field<double> Owner::*>(&leaf.member)) owner.*(*d) = real;
        if (auto* b = std::get_if<Field<bool> Owner::*>(&leaf.member)) owner.*(*b) = flag;
    }
}

TEST(Combine, AnyValueOfAnyFieldIsSurvived) {
    constexpr auto kLeast = std::numeric_limits<std::int32_t>::min(),
                   kMost = std::numeric_limits<std::int32_t>::max();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    for (const std::int32_t number : {kLeast, kLeast + 1, -1, 0, 50, 200, kMost}) {
        for (const double real : {kNan, -1e308, 0.0, 1e308}) {
            for (int option = 0; option < 8; ++option) {
                KeyScene scene(7, 5);
                test::fillWithNoise(scene.foreground, 21);
                setAll<Settings>(scene.info, number, real, option & 1);
                for (BitmapInfo* record :
                     {scene.info.pForegroundBitmapInfo.get(), scene.info.pBackgroundBitmapInfo.get(),
                      &*scene.info.pCombinedBitmapInfo}) {
                    setAll<LayerSettings>(*record, number, real, option & 2);
                }
                scene.info.bUseAdaptiveBackgroundGreen = option & 4;
                scene.info.baseRed = scene.info.baseGreen = scene.info.baseBlue = real;
                scene.info.iBaseGreenArray.fill(real);
                scene.info.iNewThreadCount = scene.info.iCurrentThreadCount.load();
                Combine(scene.info, number, 1);
                scene.info.bShowOrgImage = scene.info.bOutputSilhouette = false;
                scene.info.iForegroundOutputMode = 0;
                Combine(scene.info, number, 0);
                EXPECT_EQ(scene.combined.back()[3] == 255,
                          scene.info.bOutputTransparency == false || scene.alpha(6, 4) == 255);
            }
        }
    }
    KeyScene none(2, 2);
    none.info.pBackgroundBitmapInfo->pBitmapData = nullptr;
    Combine(none.info, 1, 1);
    none.info.iOutputPixelLowResWidth = kLeast;
    Combine(none.info, 1, 0);
    EXPECT_EQ(none.combined.front(), (Pixel{1, 2, 3, 4}));
}

}  // namespace
}  // namespace tavrin
