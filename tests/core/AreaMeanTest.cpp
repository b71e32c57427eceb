#include <algorithm>
#include <gtest/gtest.h>

#include "core/raster/AreaMean.h"
#include "core/raster/Pixels.h"
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
    drawReduced(picture, place, result);
    return result;
}

QImage reduced(const QImage& picture, int width, int height) {
    return drawn(picture, QRectF(0, 0, width, height), width, height);
}

// How much of [from, to] lies in the pixel that begins at `at`.
double shared(double from, double to, double at) {
    return std::max(std::min(to, at + 1.0) - std::max(from, at), 0.0);
}

// One channel of a pixel of the result, as the definition has it.
double exactMean(const QImage& picture, const QRectF& place, int x, int y, int channel) {
    const double scaleX = picture.width() / place.width(), scaleY = picture.height() / place.height();
    double sum = 0.0, covered = 0.0;
    for (int v = 0; v < picture.height(); ++v) {
        const double inRow = shared((y - place.top()) * scaleY, (y + 1 - place.top()) * scaleY, v) / scaleY;
        if (inRow <= 0.0) continue;
        for (int u = 0; u < picture.width(); ++u) {
            const double inColumn = shared((x - place.left()) * scaleX, (x + 1 - place.left()) * scaleX, u) / scaleX;
            covered += inRow * inColumn;
            sum += inRow * inColumn * picture.constScanLine(v)[kPixelBytes * u + channel];
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

struct Reduction {
    int fromWidth, fromHeight, width, height;
};

constexpr Reduction kReductions[] = {{1, 1, 1, 1},    {37, 23, 37, 23}, {37, 23, 36, 22},  {40, 30, 20, 15},
                                     {61, 47, 48, 1}, {5, 90, 1, 31},   {131, 77, 60, 76}, {200, 150, 13, 11}};

TEST(AreaMean, EveryPixelIsTheMeanOfItsArea) {
    for (const Reduction& r : kReductions) {
        SCOPED_TRACE(std::to_string(r.width) + " x " + std::to_string(r.height));
        expectMeans(noise(r.fromWidth, r.fromHeight, 5), QRectF(0, 0, r.width, r.height), r.width, r.height);
    }
}

TEST(AreaMean, BetweenPixelsAndBeyondTheEdges) {
    const QImage picture = noise(40, 30, 5);
    for (const QRectF& place : {QRectF(0.25, 0.5, 20, 15), QRectF(-3.3, 4.7, 31.1, 9.9), QRectF(5.5, 5.5, 40, 30),
                                QRectF(-100, -2, 40, 30), QRectF(12.2, 3.1, 0.4, 0.3), QRectF(9.9, 9.9, 1e-9, 5)})
        expectMeans(picture, place, 25, 20);
}

TEST(AreaMean, FlatColoursStayAndSoDoPicturesOfTheSameSize) {
    QImage white = newPicture(173, 91, QImage::Format_RGBX8888);
    for (const int level : {0, 1, 127, 254, 255}) {
        std::fill_n(white.bits(), white.sizeInBytes(), static_cast<uchar>(level));
        const QImage small = reduced(white, 71, 13);
        EXPECT_TRUE(std::all_of(small.constBits(), small.constBits() + small.sizeInBytes(), [&](uchar byte) {
            return byte == level;
        })) << level;
    }
    const QImage picture = noise(67, 31, 9);
    EXPECT_EQ(reduced(picture, 67, 31), picture);
}

TEST(AreaMean, TargetsAndThreadsMakeNoDifference) {
    const QImage picture = noise(301, 203, 3);
    for (const QRectF& place : {QRectF(0, 0, 240, 170), QRectF(-7.3, 5.1, 50.7, 33.2)}) {
        const QImage usual = drawn(picture, place, 240, 170);
        test::onEveryTarget([&] { EXPECT_EQ(drawn(picture, place, 240, 170), usual); });
        const ThreadLimit one(1);
        EXPECT_EQ(drawn(picture, place, 240, 170), usual);
    }
}

}  // namespace
}  // namespace tavrin
