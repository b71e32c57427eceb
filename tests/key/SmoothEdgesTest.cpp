#include <gtest/gtest.h>

#include "key/SmoothEdges.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;

// One pass by its definition. `along` is 1 for rows, `width` for columns.
void slowPass(Bytes& out, const Bytes& key, int w, int h, std::int64_t R, bool columns) {
    const Bytes copy = out;
    const int n = columns ? h : w;
    for (int y = columns ? 2 : 0; y < (columns ? h - 2 : h); ++y) {
        for (int x = columns ? 0 : 2; x < (columns ? w : w - 2); ++x) {
            const int at = columns ? y : x;
            const auto pixel = [&](std::int64_t i) {
                return static_cast<std::size_t>(4 * (columns ? i * w + x : static_cast<std::int64_t>(y) * w + i));
            };
            const auto a = [&](int k) { return key[pixel(at + k) + 3]; };
            bool falling = a(-1) >= 201 && a(1) < 200, rising = a(-1) < 200 && a(1) > 200;
            if (columns) {
                if (a(-1) >= 201 && a(2) < 200) falling = true;
                if (a(-2) < 200 && a(1) >= 201) rising = true;
            } else {
                if (a(-2) < 200 && a(2) >= 201) rising = true;
                if (a(-2) > 200 && a(2) < 200) falling = true;
            }
            if (!falling && !rising) continue;
            double left[4] = {}, right[4] = {};  // three channels and the weight
            bool veto = false;
            for (std::int64_t o = -2 * R; o <= 2 * R; ++o) {
                if (o == 0 || at + o < 0 || at + o >= n) continue;
                double* side = o < 0 ? left : right;
                for (std::size_t c = 0; c < 3; ++c)
                    side[c] += copy[pixel(at + o) + c] * static_cast<double>(std::abs(o));
                side[3] += static_cast<double>(std::abs(o));
                if (key[pixel(at + o) + 3] < 127 && (o < 0 ? falling : rising)) veto = true;
            }
            if (veto) continue;
            for (std::int64_t i = 0; i <= 2 * R; ++i) {
                if (at - R + i < 0 || at - R + i >= n) continue;
                const double t = static_cast<double>(i) / static_cast<double>(2 * R);
                for (std::size_t c = 0; c < 3; ++c)
                    out[pixel(at - R + i) + c] =
                        static_cast<std::uint8_t>(left[c] / left[3] * (1 - t) + right[c] / right[3] * t);
            }
        }
    }
}

Bytes combinedOf(const SystemInfo& info) {
    const std::uint8_t* p = info.pCombinedBitmapInfo->pBitmapData;
    return Bytes(p, p + pixelBytes(info.iOutputPixelWidth, info.iOutputPixelHeight));
}

// A state whose key alpha has steps of many heights in both directions.
std::unique_ptr<SystemInfo> edgeState(int w, int h) {
    Canvas canvas = person(w, h);
    canvas.addNoise(40);
    auto info = makeState(canvas);
    std::uint8_t* key = info->pBackgroundBitmapInfo->pBitmapData;
    const std::uint8_t levels[] = {255, 255, 255, 230, 201, 200, 199, 140, 127, 126, 0, 0};
    std::mt19937 random(23);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const int patch = (x / 9 * 7 + y / 8 * 5) % 12;
            const bool grain = random() % 9 == 0;
            key[pixelOffset(w, x, y) + 3] = levels[grain ? random() % 12 : static_cast<unsigned>(patch)];
        }
    }
    return info;
}

TEST(SmoothEdges, BothPassesEqualTheirDefinition) {
    for (auto [w, h] : {std::pair{1, 1}, {4, 4}, {5, 4}, {4, 5}, {5, 5}, {131, 77}}) {
        for (int blend : {0, 30, 90, 400}) {
            auto info = edgeState(w, h);
            info->iBlendEdges = blend;
            const std::uint8_t* k = info->pBackgroundBitmapInfo->pBitmapData;
            const Bytes key(k, k + pixelBytes(w, h));
            Bytes expected = combinedOf(*info);
            const int half = std::max(blend * 3 / 30, 2);
            if (w >= 5) slowPass(expected, key, w, h, half < 3 ? 2 : half, false);
            if (h >= 5) slowPass(expected, key, w, h, half < 3 ? 2 : half, true);
            const Bytes before = combinedOf(*info);
            SmoothHiResEdges(*info);
            ASSERT_EQ(combinedOf(*info), expected) << w << "x" << h << " " << blend;
            EXPECT_TRUE(w < 100 || expected != before);
        }
    }
}

TEST(SmoothEdges, RampByHandAtTheLeastWidth) {
    // White person at the left, black background; the step lies between x = 6 and 7, so x = 5 to 8 see it.
    Canvas canvas(16, 1, {0, 0, 0});
    canvas.fill(0, 0, 7, 1, {200, 200, 200});
    auto info = makeState(canvas);
    for (int x = 0; x < 16; ++x)
        info->pBackgroundBitmapInfo->pBitmapData[4 * x + 3] = x < 7 ? 255 : 150;
    info->iOutputImageDPI = 72;
    info->iBlendEdges = 30;
    SmoothHiResEdges(*info);
    const Bytes out = combinedOf(*info);
    // Half width 2. The last ramp is that at x = 8: left weights 4 and 3 of white, 2 at x = 6, 1 at x = 7 black.
    const int expected[] = {180, 135, 90, 45, 0};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(out[static_cast<std::size_t>(4 * (6 + i))], expected[i]);
    EXPECT_EQ(out[3], 255);
}

TEST(SmoothEdges, TransparentOutputIsLeftAloneAndAStaleRunEnds) {
    auto info = edgeState(60, 40);
    info->bOutputTransparency = true;
    const Bytes before = combinedOf(*info);
    SmoothHiResEdges(*info);
    EXPECT_EQ(combinedOf(*info), before);
    info->bOutputTransparency = false;
    info->iNewThreadCount = 9;
    SmoothHiResEdges(*info);
    EXPECT_NE(combinedOf(*info), before);
}

TEST(SmoothEdges, AnyFieldAndThreadCountIsSafe) {
    for (int value : kExtremes) {
        auto info = edgeState(37, 23);
        info->iBlendEdges = value;
        info->iOutputImageDPI = INT_MAX;
        SmoothHiResEdges(*info);
        info->iOutputImageDPI = value;
        SmoothHiResEdges(*info);
    }
    Bytes results[2];
    withOneAndManyThreads([&](int run) {
        auto info = edgeState(301, 203);
        info->iBlendEdges = 60;
        SmoothHiResEdges(*info);
        results[run] = combinedOf(*info);
    });
    EXPECT_EQ(results[0], results[1]);
    SystemInfo empty;
    SmoothHiResEdges(empty);
}

}  // namespace
}  // namespace tavrin
