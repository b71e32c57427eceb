#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "effects/BlurBitmap.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

struct Picture {
    int width, height;
    std::vector<std::uint8_t> bytes;
};

Picture randomPicture(int width, int height) {
    Picture picture{width, height, std::vector<std::uint8_t>(pixelBytes(width, height))};
    std::mt19937 random(static_cast<unsigned>(width * 1000 + height));
    for (auto& byte : picture.bytes)
        byte = static_cast<std::uint8_t>(random());
    return picture;
}

// The window summed anew at every pixel.
int weight(int n, int offset) {
    const int i = offset + n;
    return offset == 0 ? n * n : offset < 0 ? i * i + 1 : (2 * n - i) * (2 * n - i) + 1;
}

std::uint8_t mean(const Picture& p, int x, int y, int channel, int n, bool alongRow) {
    long sum = 0, weights = 0;
    for (int d = -n; d <= n; ++d) {
        const int px = alongRow ? x + d : x, py = alongRow ? y : y + d;
        if (px < 0 || py < 0 || px >= p.width || py >= p.height) continue;
        sum += static_cast<long>(weight(n, d)) * p.bytes[pixelOffset(p.width, px, py) + channel];
        weights += weight(n, d);
    }
    return static_cast<std::uint8_t>(sum / weights);
}

Picture blurredPlainly(const Picture& in, int n, int threshold) {
    Picture rows = in, out = in;
    for (int y = 0; y < in.height; ++y) {
        for (int x = 0; x < in.width; ++x) {
            for (int c = 0; c < 3; ++c)
                rows.bytes[pixelOffset(in.width, x, y) + c] = mean(in, x, y, c, n, true);
        }
    }
    for (int y = 0; y < in.height; ++y) {
        for (int x = 0; x < in.width; ++x) {
            std::uint8_t* p = &out.bytes[pixelOffset(in.width, x, y)];
            const std::uint8_t b[3] = {mean(rows, x, y, 0, n, false), mean(rows, x, y, 1, n, false),
                                       mean(rows, x, y, 2, n, false)};
            if (std::abs(p[0] - b[0]) + std::abs(p[1] - b[1]) >= threshold) continue;
            for (int c = 0; c < 3; ++c)
                p[c] = b[c];
        }
    }
    return out;
}

TEST(BlurBitmap, SlidingMomentsEqualTheWindowSummedAnew) {
    SystemInfo info;
    info.iCurrentThreadCount = 2;
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 9}, {9, 1}, {17, 5}, {70, 41}}) {
        for (const int n : {1, 2, 7, 40, 200}) {
            for (const int threshold : {0, 40, 10000}) {
                const Picture in = randomPicture(width, height), direct = blurredPlainly(in, n, threshold);
                test::onEveryTarget([&] {
                    Picture out = in;
                    BlurBitmap(info, out.bytes.data(), width, height, n, threshold, 1.0);
                    EXPECT_EQ(out.bytes, direct.bytes) << width << "x" << height << " n " << n;
                });
            }
        }
    }
}

TEST(BlurBitmap, RadiusZeroStillBlursAndWildRadiiDoNoHarm) {
    SystemInfo info;
    info.iCurrentThreadCount = 2;
    const Picture in = randomPicture(12, 8);
    Picture zero = in, one = in;
    BlurBitmap(info, zero.bytes.data(), 12, 8, 200, 10000, 0.0);
    BlurBitmap(info, one.bytes.data(), 12, 8, 1, 10000, 1.0);
    EXPECT_EQ(zero.bytes, one.bytes);
    EXPECT_NE(zero.bytes, in.bytes);
    for (const double radius : {-1e300, 1e300, std::nan("")}) {
        Picture out = in;
        BlurBitmap(info, out.bytes.data(), 12, 8, INT_MAX, 10000, radius);
        for (std::size_t i = 3; i < in.bytes.size(); i += 4)
            EXPECT_EQ(out.bytes[i], in.bytes[i]);
    }
}

}  // namespace
}  // namespace tavrin
