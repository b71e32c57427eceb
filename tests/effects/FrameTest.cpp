#include <gtest/gtest.h>

#include "core/raster/Pixels.h"
#include "effects/BlurBitmap.h"
#include "effects/frame/Frame.h"
#include "effects/frame/FrameShapes.h"
#include "support/Pictures.h"
#include "support/Portrait.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using namespace test;

constexpr int kColor = 1, kBlurred = 2, kBackground = 3, kPicture = 4;

// A picture of 40 x 32 whose pixels all differ, with a sharp square frame of 8 pixels around it.
class FrameTest : public testing::Test {
  protected:
    FrameTest() : canvas_(kW, kH, {0, 0, 50}) {
        for (int y = 0; y < kH; ++y)
            for (int x = 0; x < kW; ++x)
                canvas_.set(x, y, {5 * x, 7 * y, 50});
        canvas_.bytes[3] = 9;
        info_ = makeState(canvas_);
        frame_.iFrameType = 1;
        frame_.iFrameThickness = 25;
        frame_.iFrameFeather = 0;
        frame_.iFrameColorRed = 200;
        frame_.iFrameColorGreen = 100;
        frame_.iFrameColorBlue = 0;
    }
    Bytes framed() {
        Bytes bytes = canvas_.bytes;
        AddFrame(*info_, frame_, bytes.data(), 1);
        return bytes;
    }
    static bool inFrame(int x, int y) { return x < 8 || x >= kW - 8 || y < 8 || y >= kH - 8; }
    /// What `inside` gives where the frame lies and the picture elsewhere; alpha from the picture.
    template <class Color3>
    Bytes expected(Color3 inside) {
        Bytes bytes = canvas_.bytes;
        for (int y = 0; y < kH; ++y) {
            for (int x = 0; x < kW; ++x) {
                for (int c = 0; c < 3 && inFrame(x, y); ++c)
                    bytes[pixelOffset(kW, x, y) + c] = static_cast<std::uint8_t>(inside(x, y, c));
            }
        }
        return bytes;
    }
    int old(int x, int y, int c) const { return canvas_.bytes[pixelOffset(kW, x, y) + c]; }
    std::string greyTexture(int value) {
        QImage image(2, 2, QImage::Format_RGB888);
        image.fill(QColor(value, value, value));
        return savePng(image, folder_.file("texture.png"));
    }

    static constexpr int kW = 40, kH = 32;
    TempFolder folder_;
    Canvas canvas_;
    std::unique_ptr<SystemInfo> info_;
    ImageFrame frame_;
};

TEST_F(FrameTest, ColourIsMixedByTransparency) {
    const int color[] = {200, 100, 0};
    EXPECT_EQ(framed(), expected([&](int, int, int c) { return color[c]; }));
    frame_.iFrameTransparency = 75;
    EXPECT_EQ(framed(), expected([&](int x, int y, int c) { return color[c] / 4.0 + old(x, y, c) * 0.75; }));
    frame_.iFrameTransparency = 100;
    frame_.oTexture.bHaveTexture = true;
    frame_.oTexture.sTextureFileName = greyTexture(90);
    EXPECT_EQ(framed(), canvas_.bytes);
}

TEST_F(FrameTest, FeatherIsTheBlurOfTheWholeMask) {
    frame_.iFrameFeather = 9;
    Bytes mask(canvas_.bytes.size(), 0);
    DrawRectFrame(*info_, frame_, mask.data(), kW, kH);
    BlurBitmap(*info_, mask.data(), kW, kH, 300, 1000, 9 / 500.0);
    Bytes soft = canvas_.bytes;
    for (std::size_t i = 0; i < soft.size(); ++i) {
        const double weight = mask[i / 4 * 4 + 2] / 255.0;
        const double color = i % 4 == 0 ? 200 : i % 4 == 1 ? 100 : 0;
        if (i % 4 != 3) soft[i] = static_cast<std::uint8_t>(color * weight + soft[i] * (1.0 - weight));
    }
    EXPECT_EQ(framed(), soft);
}

TEST_F(FrameTest, BlurredPictureAndAdjustedBackground) {
    frame_.iFrameMode = kBlurred;
    Bytes blurred = canvas_.bytes;
    BlurBitmap(*info_, blurred.data(), kW, kH, 300, 1000, 20 / 500.0);
    EXPECT_EQ(framed(), expected([&](int x, int y, int c) { return blurred[pixelOffset(kW, x, y) + c]; }));

    frame_.iFrameMode = kBackground;
    info_->pBackgroundBitmapInfo->iRedDelta = 40;
    info_->pBackgroundBitmapInfo->iBlueDelta = -70;
    EXPECT_EQ(framed(), expected([&](int x, int y, int c) {
                  return c == 0 ? std::min(old(x, y, 0) + 40, 255) : c == 1 ? old(x, y, 1) : 0;
              }));
}

TEST_F(FrameTest, FramePictureCoversWithoutRunningOut) {
    const QImage picture = noisePicture(90, 48, 3);  // 1.5 to 1 by its height, which comes out first
    frame_.iFrameMode = kPicture;
    frame_.sFrameImagePath = savePng(picture, folder_.file("wood.png"));
    EXPECT_EQ(framed(), expected([&](int x, int y, int c) {
                  const QColor color = picture.pixelColor(x * 3 / 2, y * 3 / 2);
                  return c == 0 ? color.red() : c == 1 ? color.green() : color.blue();
              }));
    frame_.sFrameImagePath = "";
    EXPECT_EQ(framed(), canvas_.bytes);
    frame_.sFrameImagePath = folder_.file("missing.png");
    EXPECT_EQ(framed(), canvas_.bytes);
    frame_.iFrameMode = kColor;
    EXPECT_NE(framed(), canvas_.bytes);
    frame_.oTexture.bHaveTexture = true;
    frame_.oTexture.sTextureFileName = folder_.file("missing.png");
    EXPECT_EQ(framed(), canvas_.bytes);
    frame_.iFrameType = 5;
    EXPECT_EQ(framed(), canvas_.bytes);
}

TEST_F(FrameTest, TextureLiesOnTheFrameAndReadsWhatIsFramed) {
    frame_.oTexture.bHaveTexture = true;
    frame_.oTexture.sTextureFileName = greyTexture(100);
    const Bytes textured = framed();
    // The texture changes the colour everywhere in the same way, and nothing else.
    const std::uint8_t* first = textured.data();
    EXPECT_NE(first[0], 200);
    EXPECT_EQ(textured, expected([&](int, int, int c) { return first[c]; }));

    // Displaced by one pixel to either side, with no relief: towards the end the picture is not framed yet, towards
    // the beginning it is.
    frame_.iFrameThickness = 100;
    frame_.oTexture.iTexturePercent = 0;
    frame_.oTexture.iTextureBrightness = 50;
    frame_.oTexture.sTextureFileName = greyTexture(0);
    frame_.oTexture.iTextureOffsetPercent = 100;  // 127 * (40 / 10) / 500
    const Bytes ahead = framed();
    for (int y = 0; y < kH - 1; ++y) {
        for (int x = 0; x < kW - 1; ++x) {
            ASSERT_EQ(ahead[pixelOffset(kW, x, y)], old(x + 1, y + 1, 0));
            ASSERT_EQ(ahead[pixelOffset(kW, x, y) + 1], old(x + 1, y + 1, 1));
        }
    }
    EXPECT_EQ(ahead[pixelOffset(kW, kW - 1, kH - 1)], 200);
    frame_.oTexture.iTextureOffsetPercent = -100;
    const Bytes behind = framed();
    for (int i = 0; i < kW * kH; ++i)
        ASSERT_EQ(behind[4 * static_cast<std::size_t>(i)], 200);
}

TEST_F(FrameTest, ThreadsGiveTheSameAndSupersededRunsLeaveThePicture) {
    frame_.iFrameFeather = 20;
    frame_.oTexture.bHaveTexture = true;
    frame_.oTexture.sTextureFileName = savePng(noisePicture(31, 17, 5), folder_.file("noise.png"));
    for (int shape = 1; shape <= 4; ++shape) {
        frame_.iFrameType = shape;
        for (const int offset : {0, 900}) {
            frame_.oTexture.iTextureOffsetPercent = offset;
            Bytes results[2];
            withOneAndManyThreads([&](int run) {
                info_->randomSeeds.startAt(4);
                results[run] = framed();
            });
            EXPECT_EQ(results[0], results[1]);
            EXPECT_NE(results[0], canvas_.bytes);
        }
    }
    info_->StartUpdate();
    for (const int feather : {0, 20}) {
        frame_.iFrameFeather = feather;
        EXPECT_EQ(framed(), canvas_.bytes);
    }
}

}  // namespace
}  // namespace tavrin
