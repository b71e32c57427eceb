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

QImage reduced(const QImage& picture, int width, int height, const QRect& part) {
    QImage result = newPicture(part.width(), part.height(), picture.format());
    reduceByArea(picture, width, height, part, result.bits(), result.bytesPerLine());
    return result;
}

// The mean of one channel over the area of one pixel of the result, as the definition has it.
double exactMean(const QImage& picture, int width, int height, int x, int y, int channel) {
    const double scaleX = static_cast<double>(picture.width()) / width;
    const double scaleY = static_cast<double>(picture.height()) / height;
    double sum = 0.0;
    for (int v = 0; v < picture.height(); ++v) {
        const double inRow = std::min((y + 1) * scaleY, v + 1.0) - std::max(y * scaleY, v + 0.0);
        if (inRow <= 0.0) continue;
        for (int u = 0; u < picture.width(); ++u) {
            const double inColumn = std::min((x + 1) * scaleX, u + 1.0) - std::max(x * scaleX, u + 0.0);
            if (inColumn > 0.0) sum += inRow * inColumn * picture.constScanLine(v)[kPixelBytes * u + channel];
        }
    }
    return sum / (scaleX * scaleY);
}

struct Reduction {
    int fromWidth, fromHeight, width, height;
};

constexpr Reduction kReductions[] = {{1, 1, 1, 1},    {37, 23, 37, 23}, {37, 23, 36, 22},  {40, 30, 20, 15},
                                     {61, 47, 48, 1}, {5, 90, 1, 31},   {131, 77, 60, 76}, {200, 150, 13, 11}};

TEST(AreaMean, EveryPixelIsTheMeanOfItsArea) {
    for (const Reduction& r : kReductions) {
        const QImage picture = noise(r.fromWidth, r.fromHeight, 5);
        const QImage small = reduced(picture, r.width, r.height, QRect(0, 0, r.width, r.height));
        for (int y = 0; y < r.height; ++y) {
            for (int i = 0; i < kPixelBytes * r.width; ++i) {
                const double mean = exactMean(picture, r.width, r.height, i / kPixelBytes, y, i % kPixelBytes);
                ASSERT_NEAR(small.constScanLine(y)[i], mean, 0.5001) << r.width << " x " << r.height;
            }
        }
    }
}

TEST(AreaMean, FlatColoursStayAndSoDoPicturesOfTheSameSize) {
    QImage white = newPicture(173, 91, QImage::Format_RGBX8888);
    for (const int level : {0, 1, 127, 254, 255}) {
        std::fill_n(white.bits(), white.sizeInBytes(), static_cast<uchar>(level));
        const QImage small = reduced(white, 71, 13, QRect(0, 0, 71, 13));
        EXPECT_TRUE(std::all_of(small.constBits(), small.constBits() + small.sizeInBytes(), [&](uchar byte) {
            return byte == level;
        })) << level;
    }
    const QImage picture = noise(67, 31, 9);
    EXPECT_EQ(reduced(picture, 67, 31, picture.rect()), picture);
}

TEST(AreaMean, PartsTargetsAndThreadsMakeNoDifference) {
    const QImage picture = noise(301, 203, 3);
    for (const auto& [width, height] : {std::pair{240, 170}, std::pair{50, 33}}) {
        const QImage whole = reduced(picture, width, height, QRect(0, 0, width, height));
        const QRect part(7, 5, width - 20, height - 9);
        test::onEveryTarget([&] {
            EXPECT_EQ(reduced(picture, width, height, QRect(0, 0, width, height)), whole);
            EXPECT_EQ(reduced(picture, width, height, part), whole.copy(part));
        });
        const ThreadLimit one(1);
        EXPECT_EQ(reduced(picture, width, height, QRect(0, 0, width, height)), whole);
    }
}

}  // namespace
}  // namespace tavrin
