#include <gtest/gtest.h>

#include <QImage>

#include "effects/Reflection.h"
#include "key/KeyScene.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

constexpr Pixel kScreen{40, 200, 60, 255}, kBehind{90, 110, 70, 255}, kRed{255, 0, 0, 255};

// A pole on the screen, each of its pixels of another red; life-size, straight and opaque in its mirror, which
// begins in the middle of the picture.
struct PoleScene : KeyScene {
    PoleScene(int width, int height, int column) : KeyScene(width, height, kScreen, kBehind) {
        for (int y = 0; y < height; ++y)
            at(foreground, column, y) = {static_cast<std::uint8_t>(200 + y), 60, 50, 255};
        info.iBaseRedArray.fill(40.0);
        info.iBaseGreenArray.fill(200.0);
        info.iBaseBlueArray.fill(60.0);
        sliders().sliderWhiteAdjust = 0;
        setSliders(100, 50, 50, 100);
    }
    void setSliders(int scale, int skew, int base, int transparency, int ripple = 0) {
        info.iSliderReflectionScale = scale;
        info.iSliderReflectionSkew = skew;
        info.iSliderReflectionSkewBase = base;
        info.iSliderReflectionTransparency = transparency;
        info.iSliderReflectionRippleHeight = ripple;
    }
    // The reds of a column after the key and the reflection.
    std::vector<int> column(int x, int hiRes = 1) {
        Combine(info, 1, hiRes);
        reflect(hiRes);
        std::vector<int> reds;
        for (int y = 0; y < height; ++y)
            reds.push_back(at(combined, x, y)[0]);
        return reds;
    }
    void reflect(int hiRes = 1) {
        AddReflection(info, hiRes, *info.pCombinedBitmapInfo, foreground.front().data(), background.front().data(),
                      combined.front().data());
    }
};

// The key gives the pole's reds back to within one level.
void expectReds(const std::vector<int>& found, const std::vector<int>& wanted) {
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t y = 0; y < wanted.size(); ++y)
        EXPECT_NEAR(found[y], wanted[y], wanted[y] == 90 ? 0 : 1) << y;
}

TEST(Reflection, MirrorsTheSubjectBelowTheLine) {
    PoleScene scene(3, 10, 1);  // the line is row 5, row 6 mirrors row 4
    scene.info.iSliderClipTop = 20;
    scene.info.iSliderClipLeft = -3;
    // Without a ripple the line itself still takes the row below it.
    expectReds(scene.column(1), {90, 90, 202, 203, 204, 204, 204, 203, 202, 90});
    EXPECT_EQ(scene.info.iSliderClipLeft, 0);
    EXPECT_EQ(scene.column(0), std::vector<int>(10, 90));
    EXPECT_EQ(scene.at(scene.combined, 1, 7)[3], 255);
    scene.info.iSliderClipTop = 0;
    scene.setSliders(50, 50, 50, 100);  // half as long: rows 4, 2, 0
    expectReds(scene.column(1), {200, 201, 202, 203, 204, 204, 204, 202, 200, 90});
    scene.setSliders(100, 50, 50, 50);
    expectReds(scene.column(1), {200, 201, 202, 203, 204, 147, 147, 146, 146, 145});
    scene.setSliders(100, 100, 50, 100);  // half a pixel to the right for each row down
    EXPECT_EQ(scene.column(1)[7], 90);
    EXPECT_NEAR(scene.at(scene.combined, 2, 6)[0], 204, 1);
    scene.setSliders(0, 50, 50, 100);
    expectReds(scene.column(1), {200, 201, 202, 203, 204, 205, 90, 90, 90, 90});
}

TEST(Reflection, APreviewShowsTheLineInTheBackgroundToo) {
    PoleScene scene(3, 10, 1);
    scene.column(1, 0);
    EXPECT_EQ(scene.at(scene.combined, 0, 5), kRed);
    EXPECT_EQ(scene.at(scene.background, 0, 5), (Pixel{255, 0, 0, 0}));
    EXPECT_EQ(scene.at(scene.background, 1, 5), kRed);
    EXPECT_EQ(scene.at(scene.background, 0, 6), (Pixel{90, 110, 70, 0}));
}

TEST(Reflection, OnlySolidPixelsAndNotTheScreenAreMirrored) {
    PoleScene scene(3, 10, 1);
    scene.at(scene.foreground, 1, 4) = {111, 160, 75, 255};  // half subject
    scene.at(scene.foreground, 1, 3) = {42, 202, 62, 255};
    const std::vector<int> reds = scene.column(1);
    EXPECT_EQ(reds[6], 90);
    EXPECT_EQ(reds[7], 90);
    EXPECT_NEAR(reds[8], 202, 1);
    scene.info.bShowOrgImage = true;  // nothing is keyed, and no pixel counts as solid
    EXPECT_EQ(scene.column(1)[8], 90);
}

TEST(Reflection, ABlueScreenIsKeyedInRoles) {
    PoleScene scene(3, 10, 1);
    for (Pixel& p : scene.foreground)
        std::swap(p[1], p[2]);
    for (int y = 0; y < 10; ++y)
        scene.at(scene.foreground, 1, y) = {200, 190, 20, 255};
    scene.info.bUseBlueLogic = true;
    EXPECT_EQ(scene.column(0)[7], 90);
    const Pixel mirrored = scene.at(scene.combined, 1, 7);
    EXPECT_NEAR(mirrored[0], 200, 2);
    EXPECT_NEAR(mirrored[1], 190, 2);
    EXPECT_NEAR(mirrored[2], 20, 2);
}

TEST(Reflection, RippleLaysRowsAcrossTheLine) {
    PoleScene scene(8, 8, 6);  // the line is row 4
    scene.setSliders(100, 50, 50, 100, 2188);
    // Waves of 3 rows give this column -3: row 4 + d takes row 4 - d, of which d quarters stay out.
    expectReds(scene.column(6), {200, 201, 202, 203, 204, 203, 202, 201});
    scene.setSliders(100, 50, 50, 0, 2188);  // a mirror that is not seen, so that the weights are
    expectReds(scene.column(6), {200, 201, 202, 203, 90, 175, 146, 117});
}

TEST(Reflection, TextureIsLaidOverTheMirrorOrLeftOut) {
    test::TempFolder folder;
    QImage relief(16, 40, QImage::Format_RGBA8888);
    relief.fill(QColor(90, 90, 90));
    ASSERT_TRUE(relief.save(QString::fromStdString(folder.file("relief.png"))));
    PoleScene scene(16, 40, 1);
    const std::vector<int> bare = scene.column(1);
    ImageTexture& texture = *scene.info.oReflectionTexture;
    texture.bHaveTexture = true;
    texture.iTextureOffsetPercent = 0;
    texture.sTextureFileName = folder.file("absent.png");
    EXPECT_EQ(scene.column(1), bare);
    texture.sTextureFileName = folder.file("relief.png");
    const std::vector<int> textured = scene.column(1);
    EXPECT_TRUE(std::equal(bare.begin(), bare.begin() + 31, textured.begin()));  // to ten rows below the line
    EXPECT_NE(textured[31], bare[31]);
    EXPECT_EQ(scene.column(0)[35], 90);
}

TEST(Reflection, ThreadsAndStaleStates) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 40}, {41, 1}, {57, 90}}) {
        std::vector<Pixel> results[2];
        for (const int threads : {1, 4}) {
            PoleScene scene(width, height, 0);
            test::fillWithNoise(scene.foreground, 3);
            test::fillWithNoise(scene.background, 4);
            scene.sliders().sliderWhiteBalance = 112;
            scene.info.pBackgroundBitmapInfo->iWarming = 40;
            scene.setSliders(70, 80, 45, 60, 900);
            const ThreadLimit limit(threads);
            scene.reflect(0);
            results[threads == 1 ? 0 : 1] = scene.combined;
            scene.info.StartUpdate();
            const std::vector<Pixel> before = scene.combined;
            scene.reflect(0);
            EXPECT_EQ(scene.combined, before);
        }
        EXPECT_EQ(results[0], results[1]) << width << " x " << height;
    }
}

TEST(Reflection, AnyValueOfAnySliderIsSurvived) {
    constexpr auto kLeast = std::numeric_limits<std::int32_t>::min(),
                   kMost = std::numeric_limits<std::int32_t>::max();
    for (const int a : {kLeast, -1, 0, 37, 200, kMost}) {
        for (const int b : {kLeast, 0, 60, kMost}) {
            for (const int base : {kLeast, -10, 0, 50, 100, 130, kMost}) {
                PoleScene scene(9, 14, 4);
                scene.setSliders(a, b, base, b, a);
                scene.info.iSliderClipTop = a;
                scene.info.iSliderClipRight = b;
                scene.reflect(base % 2);
                EXPECT_EQ(scene.at(scene.combined, 8, 0)[3], 4);
            }
        }
    }
    SystemInfo empty;
    AddReflection(empty, 1, *empty.pCombinedBitmapInfo, nullptr, nullptr, nullptr);
}

}  // namespace
}  // namespace tavrin
