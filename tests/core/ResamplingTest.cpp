#include <algorithm>
#include <gtest/gtest.h>

#include "core/raster/Pixels.h"
#include "core/raster/Resampling.h"
#include "core/raster/Rows.h"
#include "support/Pictures.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

QImage noise(int width, int height, unsigned seed) {
    return test::noisePicture(width, height, seed).convertToFormat(QImage::Format_RGBX8888);
}

QImage grey(int width, int height) {
    QImage picture = newPicture(width, height, QImage::Format_RGBX8888);
    picture.fill(QColor(100, 100, 100));
    return picture;
}

// The picture drawn over grey.
QImage drawn(const QImage& picture, const QRectF& place, int width, int height) {
    QImage result = grey(width, height);
    drawResampled(picture, place, result);
    return result;
}

QImage resampled(const QImage& picture, int width, int height) {
    return drawn(picture, QRectF(0, 0, width, height), width, height);
}

// How much of [from, to] lies in the pixel that begins at `at`.
double shared(double from, double to, double at) {
    return std::max(std::min(to, at + 1.0) - std::max(from, at), 0.0);
}

// What pixel `u` of a line of `length` gives to pixel `x` of the line drawn at `begin`, `size` long: the part of the
// area when it is reduced, by nearness when it is enlarged.
double shareOf(int u, int length, double begin, double size, int x) {
    const double scale = length / size;
    if (scale >= 1.0) return shared((x - begin) * scale, (x + 1 - begin) * scale, u) / scale;
    const double middle = std::clamp((x + 0.5 - begin) * scale - 0.5, 0.0, length - 1.0);
    return shared(begin, begin + size, x) * std::max(1.0 - std::abs(middle - u), 0.0);
}

// One channel of a pixel of the result, as the definition has it.
double exactMean(const QImage& picture, const QRectF& place, int x, int y, int channel) {
    double sum = 0.0, covered = 0.0;
    for (int v = 0; v < picture.height(); ++v) {
        const double inRow = shareOf(v, picture.height(), place.top(), place.height(), y);
        if (inRow <= 0.0) continue;
        for (int u = 0; u < picture.width(); ++u) {
            const double share = inRow * shareOf(u, picture.width(), place.left(), place.width(), x);
            covered += share;
            sum += share * picture.constScanLine(v)[kPixelBytes * u + channel];
        }
    }
    return sum + (1.0 - covered) * (channel == 3 ? 255.0 : 100.0);
}

void expectMeans(const QImage& picture, const QRectF& place, int width, int height) {
    const QImage result = drawn(picture, place, width, height);
    for (int y = 0; y < height; ++y) {
        for (int i = 0; i < kPixelBytes * width; ++i) {
            const double mean = exactMean(picture, place, i / kPixelBytes, y, i % kPixelBytes);
            ASSERT_NEAR(result.constScanLine(y)[i], mean, 0.501) << i / kPixelBytes << ", " << y;
        }
    }
}

struct Sizes {
    int fromWidth, fromHeight, width, height;
};

constexpr Sizes kSizes[] = {{1, 1, 1, 1},     {37, 23, 37, 23}, {37, 23, 36, 22},  {40, 30, 20, 15},
                            {61, 47, 48, 1},  {5, 90, 1, 31},   {131, 77, 60, 76}, {200, 150, 13, 11},
                            {37, 23, 38, 60}, {1, 7, 50, 9},    {60, 8, 20, 40}};

TEST(Resampling, EveryPixelIsTheMeanOfItsAreaOrLiesBetweenTwo) {
    for (const Sizes& r : kSizes) {
        SCOPED_TRACE(std::to_string(r.width) + " x " + std::to_string(r.height));
        expectMeans(noise(r.fromWidth, r.fromHeight, 5), QRectF(0, 0, r.width, r.height), r.width, r.height);
    }
}

TEST(Resampling, BetweenPixelsAndBeyondTheEdges) {
    const QImage picture = noise(40, 30, 5);
    for (const QRectF& place :
         {QRectF(0.25, 0.5, 20, 15), QRectF(-3.3, 4.7, 31.1, 9.9), QRectF(5.5, 5.5, 40, 30), QRectF(-100, -2, 40, 30),
          QRectF(12.2, 3.1, 0.4, 0.3), QRectF(9.9, 9.9, 1e-9, 5), QRectF(2.7, -20.2, 41.5, 90.9),
          QRectF(1.5, 2.25, 60, 7.9), QRectF(-3000, -2000, 8000, 6000)})
        expectMeans(picture, place, 25, 20);
}

TEST(Resampling, FlatColoursStayAndSoDoPicturesOfTheSameSize) {
    QImage white = newPicture(173, 91, QImage::Format_RGBX8888);
    for (const int level : {0, 1, 127, 254, 255}) {
        std::fill_n(white.bits(), white.sizeInBytes(), static_cast<uchar>(level));
        const QImage small = resampled(white, 71, 13);
        EXPECT_TRUE(std::all_of(small.constBits(), small.constBits() + small.sizeInBytes(), [&](uchar byte) {
            return byte == level;
        })) << level;
    }
    const QImage picture = noise(67, 31, 9);
    EXPECT_EQ(resampled(picture, 67, 31), picture);
}

TEST(Resampling, TargetsAndThreadsMakeNoDifference) {
    const QImage picture = noise(301, 203, 3);
    for (const QRectF& place :
         {QRectF(0, 0, 240, 170), QRectF(-7.3, 5.1, 50.7, 33.2), QRectF(-7.3, 5.1, 500.7, 333.2)}) {
        const QImage usual = drawn(picture, place, 240, 170);
        test::onEveryTarget([&] { EXPECT_EQ(drawn(picture, place, 240, 170), usual); });
        const ThreadLimit one(1);
        EXPECT_EQ(drawn(picture, place, 240, 170), usual);
    }
}

}  // namespace
}  // namespace tavrin
