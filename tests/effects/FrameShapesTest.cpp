#include <cmath>
#include <gtest/gtest.h>

#include "core/raster/Pixels.h"
#include "effects/frame/FrameShapes.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;

class FrameShapesTest : public testing::Test {
  protected:
    FrameShapesTest() { info_.iCurrentThreadCount = info_.iNewThreadCount = 1; }

    void start(int w, int h) {
        w_ = w;
        h_ = h;
        mask_.assign(pixelBytes(w, h), 0);
    }
    const std::uint8_t* at(int x, int y) const { return &mask_[pixelOffset(w_, x, y)]; }
    bool white(int x, int y) const { return at(x, y)[0] == 255 && at(x, y)[1] == 255 && at(x, y)[2] == 255; }
    bool red(int x, int y) const { return at(x, y)[0] == 255 && at(x, y)[2] == 0; }
    template <class Test>
    int count(Test test) const {
        int n = 0;
        for (int y = 0; y < h_; ++y)
            for (int x = 0; x < w_; ++x)
                n += test(x, y);
        return n;
    }
    int whites() const {
        return count([this](int x, int y) { return white(x, y); });
    }
    int reds() const {
        return count([this](int x, int y) { return red(x, y); });
    }
    Bytes draw(int shape, int w, int h, int dpi = 72) {
        start(w, h);
        if (shape == 1) DrawRectFrame(info_, frame_, mask_.data(), w, h);
        if (shape == 2) DrawOvalFrame(info_, frame_, mask_.data(), w, h);
        if (shape == 3) DrawHeartFrame(info_, frame_, mask_.data(), w, h);
        if (shape == 4) DrawJaggedFrame(info_, frame_, mask_.data(), w, h, dpi);
        return mask_;
    }

    SystemInfo info_;
    ImageFrame frame_;
    int w_ = 0, h_ = 0;
    Bytes mask_;
};

TEST_F(FrameShapesTest, SquareIsMeasuredOnTheShorterSide) {
    frame_.iFrameThickness = 25;
    for (const bool arch : {false, true}) {
        frame_.bFrameArch = arch;
        draw(1, 13, 8);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 13; ++x) {
                ASSERT_EQ(white(x, y), y < 2 || (y >= 6 && !arch) || x < 2 || x >= 11) << x << ", " << y;
                ASSERT_EQ(at(x, y)[3], 0);
            }
        }
    }
    frame_.iFrameThickness = 12;  // 96 hundredths of a pixel
    EXPECT_EQ(draw(1, 13, 8), Bytes(pixelBytes(13, 8), 0));
    EXPECT_EQ(draw(4, 13, 8), Bytes(pixelBytes(13, 8), 0));
}

// Every outline, point by point.
Bytes outlines(int thickness, bool arch, int w, int h) {
    Bytes mask(pixelBytes(w, h), 0);
    const int cx = w / 2, cy = h / 2;
    double a = cx * (100.0 - thickness) / 100.0, b = cy - std::trunc(cx - a);
    for (bool painted = true; painted;) {
        painted = false;
        const auto put = [&](double x, double y) {
            if (!(std::abs(x) < 1e6 && std::abs(y) < 1e6)) return;
            const int column = static_cast<int>(x), row = static_cast<int>(y);
            if (column < 0 || column >= w || row < 0 || row >= h) return;
            std::fill_n(&mask[pixelOffset(w, column, row)], 3, std::uint8_t{255});
            painted = true;
        };
        for (int pass = 0; pass < 2; ++pass) {
            a += 0.5;
            b += 0.5;
            for (const int sy : {1, -1}) {
                for (const int sx : {1, -1}) {
                    const bool side = arch && sy == 1;
                    for (int y = cy; side && y < h; ++y)
                        put(cx + sx * a, y);
                    for (int x = 0; !side && x < a && x <= w; ++x)
                        put(cx + sx * x, cy + sy * b * std::sqrt(1.0 - double(x) * x / (a * a)));
                    for (int y = 0; !side && y < b && y <= h; ++y)
                        put(cx + sx * a * std::sqrt(1.0 - double(y) * y / (b * b)), cy + sy * y);
                }
            }
        }
    }
    return mask;
}

TEST_F(FrameShapesTest, OvalIsTheUnionOfItsOutlines) {
    for (const auto& [w, h] : {std::pair{61, 84}, std::pair{120, 41}, std::pair{33, 33}, std::pair{19, 90},
                               std::pair{1, 7}, std::pair{6, 1}, std::pair{2, 2}}) {
        for (const int thickness : {0, 1, 10, 37, 90, 100, 140, 300, -30, INT_MIN, INT_MAX}) {
            for (const bool arch : {false, true}) {
                frame_.iFrameThickness = thickness;
                frame_.bFrameArch = arch;
                ASSERT_EQ(draw(2, w, h), outlines(thickness, arch, w, h))
                    << w << " x " << h << ", " << thickness << (arch ? ", arch" : "");
            }
        }
    }
}

TEST_F(FrameShapesTest, HeartIsFilledOutsideAndClosed) {
    for (const auto& [w, h] : {std::pair{90, 120}, std::pair{151, 81}, std::pair{200, 30}}) {
        for (const int thickness : {0, 10, 60}) {
            frame_.iFrameThickness = thickness;
            draw(3, w, h);
            for (const int x : {0, w - 1}) {
                EXPECT_TRUE(white(x, 0));
                EXPECT_TRUE(white(x, h - 1));
            }
            EXPECT_TRUE(white(w / 2, h / 8));   // the cleft is outside
            EXPECT_EQ(at(w / 2, h / 2)[2], 0);  // the middle is not
            EXPECT_GT(reds(), h);               // the outline keeps no weight
            for (int y = 0; y < h; ++y)
                for (int x = 1; x < w; ++x)
                    ASSERT_FALSE(white(x, y) != white(x - 1, y) && !red(x, y) && !red(x - 1, y)) << x << ", " << y;
        }
    }
    info_.StartUpdate();
    draw(3, 90, 120);
    EXPECT_EQ(whites(), 0);
    info_.bLightingForceCompute = true;
    draw(3, 90, 120);
    EXPECT_GT(whites(), 0);
}

TEST_F(FrameShapesTest, JaggedEdgeStaysBetweenAQuarterAndTheWholeThickness) {
    frame_.iFrameThickness = 20;
    constexpr int kW = 300, kH = 240, kN = 48;
    const Bytes first = draw(4, kW, kH);
    EXPECT_EQ(draw(4, kW, kH), first);
    int between = 0, open = 0;
    for (int y = 0; y < kH; ++y) {
        for (int x = 0; x < kW; ++x) {
            const int depth = std::min({x, y, kW - 1 - x, kH - 1 - y});
            ASSERT_TRUE(depth >= kN / 4 - 1 || white(x, y)) << x << ", " << y;
            ASSERT_TRUE(depth <= kN || at(x, y)[2] == 0) << x << ", " << y;
            if (depth > kN / 2 && depth < kN - 2) ++between, open += !white(x, y);
        }
    }
    EXPECT_GT(open, between / 10);
    EXPECT_LT(open, between / 2);
    // A preview of a large print has fewer than 16 dots an inch.
    draw(4, kW, kH, 11);
    EXPECT_TRUE(white(kW / 2, 5));
    EXPECT_EQ(draw(4, kW, kH, 0), Bytes(pixelBytes(kW, kH), 0));
}

TEST_F(FrameShapesTest, ExtremeSettingsAndSmallMasksAreBorne) {
    for (const int thickness : kExtremes) {
        frame_.iFrameThickness = thickness;
        for (int shape = 1; shape <= 4; ++shape) {
            for (const auto& [w, h] : {std::pair{40, 30}, std::pair{1, 1}, std::pair{1, 30}, std::pair{30, 1}}) {
                for (const int dpi : {1, 300, INT_MAX})
                    draw(shape, w, h, dpi);
            }
        }
    }
    frame_.iFrameThickness = INT_MAX;
    for (const int shape : {1, 4}) {
        draw(shape, 40, 30);
        EXPECT_EQ(whites(), 40 * 30);
    }
}

}  // namespace
}  // namespace tavrin
