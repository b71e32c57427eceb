#include <gtest/gtest.h>

#include "effects/Texture.h"
#include "support/Pictures.h"
#include "support/Portrait.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using namespace test;

class TextureTest : public testing::Test {
  protected:
    // Every pixel differs from its neighbours: red tells the column, green the row.
    static Canvas graph(int w, int h) {
        Canvas canvas(w, h, {0, 0, 90});
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                canvas.set(x, y, {x, y, 90});
        return canvas;
    }
    void useTexture(const QImage& image) { use(savePng(image, folder_.file("texture.png"))); }
    void useGrey(int value) {
        QImage image(3, 2, QImage::Format_RGB888);
        image.fill(QColor(value, value / 2, value / 3));
        useTexture(image);
    }
    void use(const std::string& path) { texture_.sTextureFileName = path; }

    Bytes textured(const Canvas& canvas, std::uint64_t seed = 5) {
        auto info = makeState(canvas);
        *info->oImageTexture = texture_;
        if (superseded_) info->StartUpdate();
        Bytes bytes = canvas.bytes;
        info->randomSeeds.startAt(seed);
        AddTexture(*info, bytes.data(), 1);
        return bytes;
    }
    // Displacement alone.
    void moveOnly(int offsetPercent) {
        texture_.iTexturePercent = 0;
        texture_.iTextureOffsetPercent = offsetPercent;
    }

    TempFolder folder_;
    ImageTexture texture_;
    bool superseded_ = false;
};

TEST_F(TextureTest, OnePixelWorkedOutByHand) {
    useGrey(100);
    texture_.iTextureOffsetPercent = 0;
    Canvas canvas(3, 2, {100, 50, 0});
    canvas.bytes[3] = 77;
    Bytes expected = canvas.bytes;
    // v = 120, m = 100, g = 98.25, q = 175.27, s = sqrt(11300); red 73.06 lit, 87.68 toned, 91.37 mixed.
    for (const std::size_t pixel : {0U, 1U}) {
        expected[4 * pixel] = 91;
        expected[4 * pixel + 1] = 45;
    }
    EXPECT_EQ(textured(canvas), expected);  // the last row and column and all alpha bytes stay
    useGrey(155);
    texture_.bWhite = true;
    EXPECT_EQ(textured(canvas), expected);
}

TEST_F(TextureTest, DarkAndBrightPixelsTakeTheirOwnBranches) {
    useGrey(200);
    texture_.iTextureOffsetPercent = 0;
    texture_.iTexturePercent = 100;
    texture_.iTextureBrightness = 50;
    const auto first = [&](Color color) {
        const Bytes bytes = textured(Canvas(2, 2, color));
        return std::vector<int>{bytes[0], bytes[1], bytes[2]};
    };
    // m = 20 has no relief: g = m, q = 137.5, s = sqrt(20 * 73) = 38.21; red 38.21 * 137.5 / 255.
    EXPECT_EQ(first({20, 10, 0}), (std::vector<int>{20, 10, 0}));
    // m = 150 counts the relief double: e = 36.5, g = 186.5, q = 233.525, s = 156.37; red 143.2.
    EXPECT_EQ(first({150, 75, 0}), (std::vector<int>{143, 71, 0}));
    // m = 250 counts it once: e = 18.25, g = 268.25, q = 261.8, s = 201.87; red 207.2.
    EXPECT_EQ(first({250, 125, 0}), (std::vector<int>{207, 103, 0}));
    // Black stays black; brightness 150 overshoots and is scaled down with its hue.
    EXPECT_EQ(first({0, 0, 0}), (std::vector<int>{0, 0, 0}));
    texture_.iTextureBrightness = 150;
    EXPECT_EQ(first({250, 125, 0})[0], 255);
    EXPECT_EQ(first({250, 125, 0})[1], 127);
}

TEST_F(TextureTest, LongSidesLieTogether) {
    // A wide texture of two halves, told apart by how far they move a pixel.
    QImage halves(2, 1, QImage::Format_RGB888);
    halves.setPixelColor(0, 0, QColor(127, 0, 0));
    halves.setPixelColor(1, 0, QColor(0, 0, 0));
    useTexture(halves);
    texture_.iTextureBrightness = 50;
    moveOnly(100);
    const Bytes tall = textured(graph(20, 40)), wide = textured(graph(40, 20));
    for (int x = 0; x < 19; ++x) {
        EXPECT_EQ(tall[pixelOffset(20, x, 19)], x);
        EXPECT_EQ(tall[pixelOffset(20, x, 20)], x + 1);
        EXPECT_EQ(wide[pixelOffset(40, x, 5)], x);
        EXPECT_EQ(wide[pixelOffset(40, x + 20, 5)], x + 21);
    }
}

TEST_F(TextureTest, DisplacementReadsTheOldPictureAndStaysInside) {
    useGrey(0);
    moveOnly(100);  // 127 * (40 / 10) / 500, so one pixel
    const Bytes near = textured(graph(40, 30));
    for (int y = 0; y < 29; ++y) {
        for (int x = 0; x < 39; ++x) {
            ASSERT_EQ(near[pixelOffset(40, x, y)], x + 1);
            ASSERT_EQ(near[pixelOffset(40, x, y) + 1], y + 1);
        }
    }
    moveOnly(-100);
    EXPECT_EQ(textured(graph(40, 30))[pixelOffset(40, 0, 7) + 1], 6);
    moveOnly(INT_MAX);
    EXPECT_EQ(textured(graph(40, 30))[pixelOffset(40, 3, 3)], 39);
    moveOnly(0);
    EXPECT_EQ(textured(graph(40, 30)), graph(40, 30).bytes);
}

TEST_F(TextureTest, RandomShiftsRepeatWithTheirSeedAndNotWithThreads) {
    useGrey(0);
    moveOnly(100);  // 127 * 20 / 500 gives 5: a random 2 or 3
    const Canvas canvas = graph(200, 60);
    int twos = 0, threes = 0;
    const Bytes bytes = textured(canvas);
    for (int x = 0; x < 190; ++x) {
        twos += bytes[pixelOffset(200, x, 20)] == x + 2;
        threes += bytes[pixelOffset(200, x, 20)] == x + 3;
    }
    EXPECT_EQ(twos + threes, 190);
    EXPECT_GT(twos, 60);
    EXPECT_GT(threes, 60);
    EXPECT_NE(textured(canvas, 6), bytes);
    const ThreadLimit one(1);
    EXPECT_EQ(textured(canvas), bytes);
}

TEST_F(TextureTest, WhatCannotBeDoneLeavesThePicture) {
    const Canvas canvas = graph(30, 20), row = graph(30, 1), column = graph(1, 30);
    use(folder_.file("missing.png"));
    EXPECT_EQ(textured(canvas), canvas.bytes);
    useGrey(60);
    EXPECT_EQ(textured(row), row.bytes);
    EXPECT_EQ(textured(column), column.bytes);
    superseded_ = true;
    EXPECT_EQ(textured(canvas), canvas.bytes);
}

TEST_F(TextureTest, ExtremeSettingsAreBorne) {
    useTexture(noisePicture(9, 5, 2));
    for (const int brightness : kExtremes) {
        for (const int contrast : kExtremes) {
            texture_.iTextureBrightness = brightness;
            texture_.iTextureContrast = contrast;
            texture_.iTexturePercent = contrast;
            texture_.iTextureOffsetPercent = brightness;
            const Bytes bytes = textured(graph(23, 17));
            EXPECT_EQ(bytes[3], 255);
        }
    }
}

}  // namespace
}  // namespace tavrin
