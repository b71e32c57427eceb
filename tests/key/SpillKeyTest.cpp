#include <gtest/gtest.h>

#include <QImage>

#include "key/KeyScene.h"
#include "key/spill/SpillKey.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

// A scene whose grid of screen colours is level.
struct SpillScene : KeyScene {
    explicit SpillScene(int width = 1, int height = 1, Pixel front = {40, 200, 60, 255})
        : KeyScene(width, height, front) {
        info.iBaseRedArray.fill(40.0);
        info.iBaseGreenArray.fill(200.0);
        info.iBaseBlueArray.fill(60.0);
    }
    SpillKey key() { return SpillKey(info, SpillLayers::of(info, Resolution::full)); }
    SpilledPixel spill(Pixel p, int x = 0, int y = 0) { return key().Spill(x, y, p[0], p[1], p[2]); }
    Pixel adjustedFront(Pixel p) {
        at(foreground, 0, 0) = p;
        return bytes(key().computeColorAdj(0, 0).oFAdjColor);
    }
    Pixel adjustedBack(Pixel p) {
        at(background, 0, 0) = p;
        return bytes(key().computeColorAdj(0, 0).oBAdjColor);
    }
    static Pixel bytes(const QLXPixel& p) { return {p.red, p.green, p.blue, p.alpha}; }
};

void expectColor(const SpilledPixel& pixel, double r, double g, double b, double tolerance) {
    EXPECT_NEAR(pixel.color.r, r, tolerance);
    EXPECT_NEAR(pixel.color.g, g, tolerance);
    EXPECT_NEAR(pixel.color.b, b, tolerance);
}

TEST(ColorAdj, NeutralLayersPassWithTheBackgroundsDeltas) {
    SpillScene scene;
    scene.info.pForegroundBitmapInfo->iRedDelta = 9;  // the foreground's come with the key
    scene.info.pBackgroundBitmapInfo->iRedDelta = -20;
    scene.info.pBackgroundBitmapInfo->iBlueDelta = 250;
    scene.info.pForegroundBitmapInfo->iContrast = 90;  // without `bHaveColorChange` nobody has touched the panel
    EXPECT_EQ(scene.adjustedFront({7, 99, 254, 3}), (Pixel{7, 99, 254, 255}));
    EXPECT_EQ(scene.adjustedBack({15, 99, 54, 3}), (Pixel{0, 99, 255, 255}));
}

TEST(ColorAdj, FiltersScaleEveryChannelAndContrastIsWhole) {
    SpillScene scene;
    BitmapInfo& record = *scene.info.pBackgroundBitmapInfo;
    record.iCooling = 128;  // (99.61, 85.43, 50), then brought back from 149.61 to 250
    EXPECT_EQ(scene.adjustedBack({200, 100, 50, 0}), (Pixel{166, 142, 83, 255}));
    record.iCooling = 0;
    record.iWarming = 128;  // (200, 85.43, 24.9), then from 224.9 to 250
    EXPECT_EQ(scene.adjustedBack({200, 100, 50, 0}), (Pixel{222, 94, 27, 255}));
    record.iWarming = 0;
    record.iBrightness = 3;  // a quarter of it is no contrast: level 203, floor 3 + 1.8
    record.bHaveColorChange = true;
    EXPECT_EQ(scene.adjustedBack({200, 100, 0, 0}), (Pixel{203, 103, 4, 255}));
    record.iBrightness = 40;
    EXPECT_EQ(scene.adjustedBack({0, 0, 0, 0}), (Pixel{22, 22, 22, 255}));  // 60 * -88 / 50 + 128
}

TEST(ColorAdj, SharpenComparesWithTheForegroundOnBothLayers) {
    SpillScene scene(2, 1, {100, 100, 100, 255});
    for (BitmapInfo* record : {scene.info.pForegroundBitmapInfo.get(), scene.info.pBackgroundBitmapInfo.get()}) {
        record->iBrightnessSharpen = 25;
        record->bHaveColorChange = true;
    }
    scene.at(scene.background, 1, 0) = {1, 1, 1, 255};
    EXPECT_EQ(scene.adjustedFront({200, 180, 160, 255}), (Pixel{250, 220, 190, 255}));
    EXPECT_EQ(scene.adjustedBack({200, 180, 160, 255}), (Pixel{250, 220, 190, 255}));
}

TEST(ColorAdj, LightFallsOnTheLayersItIsMeantFor) {
    SpillScene scene;
    scene.info.oLightingMap = {500};
    const auto reds = [&](int mode, int applyTo) {
        scene.info.iLightingMode = mode;
        scene.info.iLightingApplyTo = applyTo;
        return std::pair<int, int>{scene.adjustedFront({160, 60, 60, 0})[0], scene.adjustedBack({140, 50, 50, 0})[0]};
    };
    EXPECT_EQ(reds(0, 3), (std::pair{160, 140}));
    EXPECT_EQ(reds(1, 3), (std::pair{255, 230}));  // 180 * 1.5 - 40
    EXPECT_EQ(reds(1, 1), (std::pair{255, 140}));
    EXPECT_EQ(reds(1, 2), (std::pair{160, 230}));
    EXPECT_EQ(reds(4, 3), (std::pair{160, 230}));
    // Red at 260 takes green (60 + 40) * 1.5 - 40 = 110 down with it.
    scene.info.iLightingMode = 1;
    scene.info.iLightingApplyTo = 3;
    EXPECT_EQ(scene.adjustedFront({160, 60, 60, 0})[1], 107);
    scene.info.oLightingMap.clear();
    EXPECT_EQ(reds(1, 3).second, 140);
}

TEST(ColorAdj, BackgroundModesKnowBlueLogic) {
    SpillScene scene;
    scene.info.iBackgroundOutputMode = kModeGrey;
    EXPECT_EQ(scene.adjustedBack({100, 80, 61, 0})[2], 90);  // 60 + 24 + 6.1
    scene.info.bUseBlueLogic = true;
    EXPECT_EQ(scene.adjustedBack({100, 80, 61, 0})[1], 86);  // 60 + 8 + 18.3
    scene.info.iBackgroundOutputMode = kModeSepia;
    EXPECT_EQ(scene.adjustedBack({100, 80, 61, 0}), (Pixel{86, 55, 70, 255}));
    EXPECT_EQ(scene.adjustedFront({100, 80, 61, 0}), (Pixel{100, 80, 61, 255}));
}

TEST(Spill, ScreenSubjectAndTheUnmixedEdge) {
    SpillScene scene;
    EXPECT_EQ(scene.spill({40, 200, 60, 255}).amount, 0.0);
    expectColor(scene.spill({30, 150, 45, 255}), 0, 0, 0, 0.0);  // darker screen, on the line
    EXPECT_EQ(scene.spill({255, 255, 255, 255}).amount, 1.0);
    const SpilledPixel skin = scene.spill({220, 60, 50, 255});
    EXPECT_EQ(skin.amount, 1.0);
    expectColor(skin, 220, 60, 50, 1.0);
    scene.sliders().sliderWhiteAdjust = 0;
    const SpilledPixel edge = scene.spill({111, 160, 75, 255});
    EXPECT_NEAR(edge.amount, 0.57, 0.01);
    expectColor(edge, 154, 116, 80, 1.0);
    scene.info.iSliderClipLeft = 100;
    EXPECT_EQ(scene.spill({220, 60, 50, 255}).amount, 0.0);
}

TEST(Spill, ShownAsItIsTheAmountStaysAtItsStart) {
    SpillScene scene(2, 1);
    scene.info.bShowOrgImage = true;
    scene.info.iSliderClipLeft = 50;
    EXPECT_EQ(scene.spill({90, 180, 70, 255}, 0, 0).amount, 0.0);
    const SpilledPixel inside = scene.spill({90, 180, 70, 255}, 1, 0);
    EXPECT_EQ(inside.amount, 255.0);
    expectColor(inside, 90, 180, 70, 1.0);
}

TEST(Spill, TheFirstCallSeesTheColourWithoutItsSecondShift) {
    SpillScene scene;
    scene.sliders().sliderWhiteBalance = 120;
    SpillKey key = scene.key();
    const Rgb grey{120.0, 120.0, 100.0};
    const SpilledPixel first = key.Spill(0, 0, grey.r, grey.g, grey.b);
    const SpilledPixel second = key.Spill(0, 0, grey.r, grey.g, grey.b);
    EXPECT_NEAR(first.color.b - second.color.b, 10.0 * 2.028, 3.0);
    EXPECT_EQ(key.Spill(0, 0, grey.r, grey.g, grey.b).color.b, second.color.b);
    EXPECT_EQ(key.spillAt(0, 0, grey, SpillCall::kFirst).color.b, first.color.b);
    EXPECT_EQ(key.spillAt(0, 0, grey).color.b, second.color.b);
    EXPECT_EQ(key.amountAt(0, 0, grey), second.amount);
}

TEST(Spill, DarkPixelsAreKeptInBusyTextureOnly) {
    SpillScene scene(5, 5, {40, 56, 50, 255});
    scene.sliders().sliderTransparentcyAdjustment = 80;  // leaves the search's 0.96 below 1
    EXPECT_LT(scene.spill({40, 56, 50, 255}, 2, 2).amount, 1.0);
    for (std::size_t i = 0; i < 25; i += 2)
        scene.foreground[i] = {0, 0, 0, 255};
    EXPECT_EQ(scene.spill({40, 56, 50, 255}, 2, 2).amount, 1.0);
    EXPECT_EQ(scene.spill({40, 56, 50, 255}, 4, 4).amount, 1.0);  // the border repeats
    scene.sliders().sliderRemoveGreenAreas = 5;
    EXPECT_LT(scene.spill({40, 56, 50, 255}, 2, 2).amount, 1.0);
}

TEST(Spill, PlainOtherColoursPassOnABlueScreenToo) {
    SpillScene scene;
    scene.info.bUseBlueLogic = true;
    EXPECT_EQ(scene.spill({30, 60, 200, 255}).amount, 1.0);
}

TEST(Spill, TheSelectionIsShownByColour) {
    SpillScene scene;
    scene.sliders().bShowSelectedAreas = true;
    scene.sliders().sliderWhiteAdjust = 0;
    scene.info.bShowBright = true;                                 // holds the colour where it is
    expectColor(scene.spill({220, 60, 50, 255}), 255, 0, 0, 0.0);  // 60 + 200 against 220 + 40
    expectColor(scene.spill({50, 60, 220, 255}), 100, 255, 255, 0.0);
    expectColor(scene.spill({200, 190, 180, 255}), 255, 255, 180, 1.0);
}

// As `Combine` has it, which has no adjustments here either.
TEST(Spill, ABrightGreyIsUnmixedALittleWhereThatIsAskedFor) {
    SpillScene scene;
    scene.sliders().sliderWhiteAdjust = 0;
    const auto green = [&](Pixel p) { return scene.spill(p).color.g; };
    EXPECT_NEAR(green({200, 171, 180, 255}), 171.0, 1.0);
    scene.info.bShowBright = true;
    for (const Pixel p : {Pixel{200, 215, 200, 255}, Pixel{240, 235, 230, 255}, Pixel{255, 255, 255, 255},
                          Pixel{200, 171, 180, 255}, Pixel{200, 169, 180, 255}, Pixel{120, 126, 120, 255}}) {
        scene.at(scene.foreground, 0, 0) = p;
        const KeyedPixel whole = scene.keyed();
        const SpilledPixel one = scene.spill(p);
        expectColor(one, whole.color.r, whole.color.g, whole.color.b, 1e-9);
        EXPECT_EQ(one.amount, whole.alpha);
    }
    EXPECT_NEAR(green({200, 171, 180, 255}), (171.0 - 0.03 * 200.0) / 0.97, 1.0);
    EXPECT_NEAR(green({200, 169, 180, 255}), 169.0, 1.0) << "no grey";
    scene.info.bShowOrgImage = true;
    const SpilledPixel shown = scene.spill({200, 200, 200, 255});
    EXPECT_NEAR(shown.color.r, (200.0 - 0.03 * 40.0) / 0.97, 1.0);
    EXPECT_EQ(shown.amount, 255.0);
}

TEST(Spill, AdjustmentsWhiteAndModesFollowTheKey) {
    SpillScene scene;
    const Pixel nearWhite{201, 205, 199, 255};
    SpilledPixel white = scene.spill(nearWhite);
    EXPECT_LT(std::max({white.color.r, white.color.g, white.color.b}) -
                  std::min({white.color.r, white.color.g, white.color.b}),
              2.0);
    // Where the source is green the wide rule works on any colour: d is 201, so red goes 199 and then 400 of 2000
    // towards the green.
    expectColor(scene.spill({111, 160, 75, 255}), 144, 116, 90, 1.0);
    scene.info.pForegroundBitmapInfo->iReduceHighlights = 50;  // 160 + 60 / 2 = 190, below the second knee
    expectColor(scene.spill({220, 60, 50, 255}), 190, 60 * 190.0 / 220, 50 * 190.0 / 220, 1.0);
    scene.info.pForegroundBitmapInfo->iReduceHighlights = 0;
    scene.info.iForegroundOutputMode = kModeSepia;
    scene.info.pForegroundBitmapInfo->iGreenDelta = 40;
    const double grey = 0.6 * 220 + 0.1 * 50 + 0.3 * 60;
    const double again = 0.6 * grey + 0.1 * 0.64 * grey + 0.3 * (0.82 * grey + 40);
    expectColor(scene.spill({220, 60, 50, 255}), again, 0.82 * again, 0.64 * again, 1.0);
}

TEST(Spill, SilhouetteByColourAndByPicture) {
    QImage picture(4, 2, QImage::Format_RGBA8888);
    picture.fill(QColor(9, 8, 7));
    picture.setPixelColor(2, 0, QColor(30, 20, 10));
    SpillScene scene(2, 2, {220, 60, 50, 255});
    scene.info.bOutputSilhouette = true;
    scene.info.iSilhouetteRed = 10;
    expectColor(scene.spill({220, 60, 50, 255}), 10, 0, 0, 0.0);
    scene.info.silhouettePicture = picture;
    expectColor(scene.spill({220, 60, 50, 255}, 1, 0), 30, 20, 10, 0.0);  // two picture pixels for one
    expectColor(scene.spill({220, 60, 50, 255}, 0, 1), 0, 0, 0, 0.0);     // below the picture
    scene.info.iSliderlSilhouetteX = 100;                                 // by half the picture's width
    expectColor(scene.spill({220, 60, 50, 255}, 0, 0), 30, 20, 10, 0.0);
    EXPECT_FALSE(SpillKey(scene.info, {}).isReady());
}

}  // namespace
}  // namespace tavrin
