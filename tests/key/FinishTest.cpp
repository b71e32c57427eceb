#include <gtest/gtest.h>

#include "key/KeyScene.h"
#include "key/pixel/NeighbourSums.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

void expectNear(const Rgb& c, double r, double g, double b, double tolerance = 0.05) {
    EXPECT_NEAR(c.r, r, tolerance);
    EXPECT_NEAR(c.g, g, tolerance);
    EXPECT_NEAR(c.b, b, tolerance);
}

FinishConstants plainFinish() {
    FinishConstants finish;
    finish.white.on = false;
    return finish;
}

TEST(Finish, WhiteIsPulledToGreyByBothRules) {
    KeyScene scene(1, 1);
    FinishConstants finish = makeCombineParams(scene.info, Resolution::full).finish;
    expectNear(finishForeground(finish, {200.0, 205.0, 198.0}), 203.9, 205.0, 203.8);
    // Green must be level for the wide rule; this colour is too far for the near one.
    expectNear(finishForeground(finish, {200.0, 170.0, 180.0}), 200.0, 170.0, 180.0);
    scene.sliders().sliderWhiteAdjust = 0;
    finish = makeCombineParams(scene.info, Resolution::full).finish;
    expectNear(finishForeground(finish, {200.0, 205.0, 198.0}), 200.0, 205.0, 198.0, 0.0);
    expectNear(finishForeground(finish, {0.0, 0.0, 0.0}), 0.0, 0.0, 0.0, 0.0);
}

TEST(Finish, ColourModesAndDeltasKnowTheRoles) {
    FinishConstants finish = plainFinish();
    finish.foregroundMode = finish.backgroundMode = kModeSepia;
    finish.foregroundDelta = {0.0, 10.0, -300.0};
    const double v = 0.6 * 100.0 + 0.3 * 80.0 + 0.1 * 60.0;
    expectNear(finishForeground(finish, {100.0, 80.0, 60.0}), v, v * 0.82 + 10.0, 0.0);
    finish.blueLogic = true;  // the same colour in roles
    expectNear(finishForeground(finish, {100.0, 60.0, 80.0}), v, v * 0.64 + 10.0, 0.0);
    const std::uint8_t bytes[] = {100, 80, 60, 0};
    expectNear(finishBackground(finish, bytes), v, v * 0.64, v * 0.82);
    finish.backgroundMode = 3;
    expectNear(finishBackground(finish, bytes), 100.0, 60.0, 80.0, 0.0);
}

TEST(Finish, TooBrightColoursKeepTheirHue) {
    expectNear(finishForeground(plainFinish(), {510.0, 100.0, 40.0}), 255.0, 50.0, 20.0);
}

TEST(Finish, EdgesAreLiftedOverBrightBackgroundsOnly) {
    const FinishConstants finish = plainFinish();
    const Rgb grey{100.0, 100.0, 100.0}, white{255.0, 255.0, 255.0}, black{0.0, 0.0, 0.0};
    const auto lift = [&](const Rgb& behind, double alpha) {
        const double plain = grey.g * alpha + behind.g * (1.0 - alpha);
        return blendPixel(finish, grey, behind, alpha, 0).g - plain;
    };
    EXPECT_NEAR(lift(white, 0.5), (1.0 / 0.76 - 1.0) * 100.0 * 0.5, 1e-9);
    EXPECT_NEAR(lift(black, 0.5), (1.0 / 1.01 - 1.0) * 100.0 * 0.5, 1e-9);
    for (const double alpha : {0.0, 0.1, 0.2, 0.9, 1.0})
        EXPECT_EQ(lift(white, alpha), 0.0) << alpha;
    EXPECT_NE(lift(white, 0.201), 0.0);
}

// A layer's constants with one change from neutral.
template <class Change>
ToneConstants tone(ToneLayer layer, Change change) {
    BitmapInfo record;
    change(record);
    return makeTone(record, layer, {nullptr, 1, 1});
}

TEST(Tone, NeutralBackgroundPassesByteForByte) {
    KeyScene scene(256, 3);
    for (int x = 0; x < 256; ++x) {
        const auto i = static_cast<std::uint8_t>(x);
        scene.at(scene.background, x, 0) = {i, static_cast<std::uint8_t>(255 - i), 9, 3};
    }
    std::vector<Pixel> wanted = scene.background;
    for (Pixel& p : wanted)
        p[3] = 255;
    Combine(scene.info, 1, 1);
    EXPECT_EQ(scene.combined, wanted);
    EXPECT_FALSE(tone(ToneLayer::kForeground, [](BitmapInfo&) {}).active);
    EXPECT_TRUE(tone(ToneLayer::kForeground, [](BitmapInfo& r) { r.iWarming = 1; }).active);
}

TEST(Tone, BlackUnderBrightnessBecomesGrey) {
    const ToneConstants t = tone(ToneLayer::kBackground, [](BitmapInfo& r) { r.iBrightness = 20; });
    Rgb black{0.0, 0.0, 0.0};
    adjustTone(t, black, 0, 0, 1.0);
    expectNear(black, 9.2, 9.2, 9.2, 1e-9);  // 55 * (20 - 128) / 50 + 128
}

TEST(Tone, CurveHighlightsAndFloor) {
    Rgb c{200.0, 100.0, 50.0};
    adjustTone(tone(ToneLayer::kForeground, [](BitmapInfo& r) { r.iReduceHighlights = 50; }), c, 0, 0, 1.0);
    expectNear(c, 180.0, 90.0, 45.0);  // 160 + 20; the second knee at 192 is not reached
    c = {250.0, 100.0, 50.0};
    adjustTone(tone(ToneLayer::kForeground, [](BitmapInfo& r) { r.iReduceHighlights = 10; }), c, 0, 0, 1.0);
    EXPECT_NEAR(c.r, (160.0 + 90.0 * 0.9 - 192.0) * 0.9 + 192.0, 1e-9);  // both knees
    c = {200.0, 100.0, 50.0};
    adjustTone(tone(ToneLayer::kForeground, [](BitmapInfo& r) { r.iBrightnessSat = 40; }), c, 0, 0, 1.0);
    expectNear(c, 200.0, -40.0 + 100.0 * 240.0 / 200.0, -40.0 + 50.0 * 240.0 / 200.0);
    Rgb dark{64.0, 32.0, 16.0};
    adjustTone(tone(ToneLayer::kForeground, [](BitmapInfo& r) { r.iEnhanseShadows = 99; }), dark, 0, 0, 1.0);
    EXPECT_GT(dark.r, 100.0);
}

TEST(Tone, CoolingLeavesTheBackgroundsRedUnscaled) {
    const auto cooled = [](ToneLayer layer) {
        Rgb c{200.0, 100.0, 50.0};
        adjustTone(tone(layer, [](BitmapInfo& r) { r.iCooling = 128; }), c, 0, 0, 1.0);
        return c;
    };
    // Filtered (99.6, 85.4, 50), then brought back from 149.6 to 250.
    expectNear(cooled(ToneLayer::kForeground), 166.4, 142.8, 83.55);
    expectNear(cooled(ToneLayer::kBackground), 99.6, 142.8, 83.55);
    Rgb black{0.0, 0.0, 0.0};
    adjustTone(tone(ToneLayer::kForeground, [](BitmapInfo& r) { r.iCooling = r.iWarming = 255; }), black, 0, 0, 1.0);
    expectNear(black, 0.0, 0.0, 0.0, 1e-9);
}

TEST(Tone, SharpenComparesWithTheNeighboursInThePicture) {
    std::vector<Pixel> pixels(36, Pixel{255, 255, 255, 255});
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x)
            pixels[static_cast<std::size_t>(y * 6 + x)] = {150, 160, 170, 255};
    }
    BitmapInfo record;
    record.iBrightnessSharpen = 25;
    const ToneConstants t = makeTone(record, ToneLayer::kForeground, {pixels.front().data(), 6, 6});
    Rgb corner{200.0, 180.0, 180.0};
    adjustTone(t, corner, 0, 0, 1.0);
    expectNear(corner, 225.0, 190.0, 185.0);  // eight neighbours, all alike
    Rgb dark{40.0, 30.0, 20.0}, same = dark;
    adjustTone(t, dark, 0, 0, 1.0);
    adjustTone(tone(ToneLayer::kForeground, [](BitmapInfo&) {}), same, 0, 0, 1.0);
    expectNear(dark, same.r, same.g, same.b, 0.0);
    Rgb green{190.0, 195.0, 150.0};  // would turn red-led: 210, 212.5 against 190 + 20
    adjustTone(t, green, 0, 0, 1.0);
    EXPECT_GT(green.g, green.r);
}

TEST(Tone, NeighbourSumsAreSumsOverTheBlockWithoutItsCentre) {
    for (const auto& [width, height] : {std::pair{1, 1}, {2, 7}, {5, 3}, {150, 6}}) {
        std::vector<Pixel> pixels(static_cast<std::size_t>(width * height));
        test::fillWithNoise(pixels, 4);
        const auto at = [&](int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; };
        const int x = width / 3, count = std::min(width - x, 100);
        for (int y = 0; y < height; ++y) {
            NeighbourSums around;
            sumNeighbours({pixels.front().data(), width, height}, x, y, count, around);
            for (int i = 0; i < count; ++i) {
                int sums[4] = {};
                for (int row = std::max(y - 2, 0); row <= std::min(y + 2, height - 1); ++row) {
                    for (int column = std::max(x + i - 2, 0); column <= std::min(x + i + 2, width - 1); ++column) {
                        if (row == y && column == x + i) continue;
                        for (std::size_t c = 0; c < 3; ++c)
                            sums[c] += at(column, row)[c];
                        ++sums[3];
                    }
                }
                EXPECT_EQ(around.r[i], sums[0]);
                EXPECT_EQ(around.g[i], sums[1]);
                EXPECT_EQ(around.b[i], sums[2]);
                EXPECT_EQ(around.pixels[i], sums[3]);
            }
        }
    }
}

}  // namespace
}  // namespace tavrin
