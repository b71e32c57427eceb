// The measures of bin/quality, against values from the literature and pictures whose figures are known by hand.
#include <cmath>
#include <gtest/gtest.h>

#include "quality/AlphaErrors.h"
#include "quality/ColorDifference.h"
#include "quality/CompositeErrors.h"

namespace tavrin {
namespace {

// One soft pixel in a picture of 40 x 3, the left half of it subject; a key that is 51 levels off everywhere.
TEST(AlphaErrors, CountsEachPixelWhereItBelongs) {
    QImage truth(40, 3, QImage::Format_Grayscale8);
    truth.fill(0);
    for (int y = 0; y < 3; ++y)
        std::fill_n(truth.scanLine(y), 20, std::uint8_t{255});
    truth.scanLine(1)[20] = 128;

    const std::vector<std::uint8_t> near = quality::nearEdges(truth);
    for (int i = 0; i < 120; ++i)
        EXPECT_EQ(near[static_cast<std::size_t>(i)], i % 40 >= 15 && i % 40 <= 25) << i;

    std::vector<std::uint8_t> rgba(480);
    for (int i = 0; i < 120; ++i) {
        const int alpha = truth.constScanLine(i / 40)[i % 40];
        rgba[static_cast<std::size_t>(4 * i + 3)] = static_cast<std::uint8_t>(alpha > 127 ? alpha - 51 : alpha + 51);
    }
    rgba[4 * 18 + 3] = 255;  // a subject pixel near the edge that is right
    const quality::AlphaErrors errors = quality::measureAlpha(rgba.data(), truth);
    EXPECT_NEAR(errors.sad, 119 * 0.2 / 1000.0, 1e-9);
    EXPECT_NEAR(errors.mean, 0.2 * 119 / 120, 1e-9);
    EXPECT_NEAR(errors.edges, 0.2 * 32 / 33, 1e-9);
    EXPECT_NEAR(errors.holes, 0.2 * 59 / 60, 1e-9);
    EXPECT_NEAR(errors.residue, 0.2, 1e-9);
}

// A sharp edge in place of an even grey, and the same edge a pixel further. The values by hand: along a straight edge
// the gradient is the step times the sum of the smoothing kernel times that of the slope's tail.
TEST(AlphaErrors, GradKnowsHardFromSoft) {
    QImage truth(60, 50, QImage::Format_Grayscale8);
    truth.fill(0);
    for (int y = 0; y < 50; ++y)
        std::fill_n(truth.scanLine(y), 30, std::uint8_t{255});
    std::vector<std::uint8_t> same(4 * 3000), flat(4 * 3000, 128);
    for (int i = 0; i < 3000; ++i)
        same[static_cast<std::size_t>(4 * i + 3)] = truth.constScanLine(i / 60)[i % 60];
    EXPECT_EQ(quality::gradientError(same.data(), truth), 0.0);

    const auto gauss = [](int i) { return std::exp(-i * i / (2.0 * 1.4 * 1.4)); };
    double smooth = 0.0, smoothSquares = 0.0, slopeSquares = 0.0, expected = 0.0;
    for (int i = -4; i <= 4; ++i) {
        smooth += gauss(i);
        smoothSquares += gauss(i) * gauss(i);
        slopeSquares += i * i * gauss(i) * gauss(i);
    }
    for (int distance = -4; distance <= 3; ++distance) {  // of a column from the first black one
        double tail = 0.0;
        for (int i = -4; i + distance < 0; ++i)
            tail += i <= 4 ? i * gauss(i) : 0.0;
        expected += 50 * tail * tail * smooth * smooth / (smoothSquares * slopeSquares);
    }
    EXPECT_NEAR(quality::gradientError(flat.data(), truth), expected / 1000.0, 1e-9);
}

// Pairs, and their differences, that Sharma, Wu and Dalal published in 2005 to try programs with: near greys, across
// the step of the hue, in the blue, and far apart.
TEST(ColorDifference, AgreesWithPublishedPairs) {
    const struct {
        quality::Lab one, other;
        double difference;
    } pairs[] = {
        {{50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425},
        {{50, 3.1571, -77.2803}, {50, 0, -82.7485}, 2.8615},
        {{50, 2.8361, -74.02}, {50, 0, -82.7485}, 3.4412},
        {{50, -1.3802, -84.2814}, {50, 0, -82.7485}, 1.0000},
        {{50, 0, 0}, {50, -1, 2}, 2.3669},
        {{50, -1, 2}, {50, 0, 0}, 2.3669},
        {{50, 2.49, -0.001}, {50, -2.49, 0.0009}, 7.1792},
        {{50, 2.49, -0.001}, {50, -2.49, 0.0011}, 7.2195},
        {{50, -0.001, 2.49}, {50, 0.0009, -2.49}, 4.8045},
        {{50, -0.001, 2.49}, {50, 0.0011, -2.49}, 4.7461},
        {{50, 2.5, 0}, {50, 0, -2.5}, 4.3065},
        {{50, 2.5, 0}, {73, 25, -18}, 27.1492},
        {{50, 2.5, 0}, {61, -5, 29}, 22.8977},
        {{50, 2.5, 0}, {56, -27, -3}, 31.9030},
        {{50, 2.5, 0}, {58, 24, 15}, 19.4535},
        {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
        {{63.0109, -31.0961, -5.8663}, {62.8187, -29.7946, -4.0864}, 1.2630},
        {{35.0831, -44.1164, 3.7933}, {35.0232, -40.0716, 1.5901}, 1.8645},
        {{22.7233, 20.0904, -46.694}, {23.0331, 14.973, -42.5619}, 2.0373},
        {{90.8027, -2.0831, 1.441}, {91.1528, -1.6435, 0.0447}, 1.4441},
        {{6.7747, -0.2908, -2.4247}, {5.8714, -0.0985, -2.2286}, 0.6377},
        {{2.0776, 0.0795, -1.135}, {0.9033, -0.0636, -0.5514}, 0.9082},
    };
    for (const auto& pair : pairs) {
        EXPECT_NEAR(quality::colorDifference(pair.one, pair.other), pair.difference, 0.00005);
        EXPECT_NEAR(quality::colorDifference(pair.other, pair.one), pair.difference, 0.00005);
    }
    const quality::Lab red = quality::labOf({255, 0, 0}), white = quality::labOf({255, 255, 255});
    EXPECT_NEAR(red.l, 53.24, 0.01);
    EXPECT_NEAR(red.a, 80.09, 0.01);
    EXPECT_NEAR(red.b, 67.20, 0.01);
    EXPECT_NEAR(white.l, 100.0, 0.01);
    EXPECT_NEAR(std::hypot(white.a, white.b), 0.0, 0.02);
}

// Half subject, half screen, and one soft column: with the subject's own colours a perfect picture has no error, and
// one that is ten levels too bright at every pixel has 28.1 dB.
TEST(CompositeErrors, MeasuresAgainstTheSubjectsOwnColours) {
    QImage truth(32, 16, QImage::Format_Grayscale8);
    std::vector<std::uint8_t> source, background, subject, result, brighter;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 32; ++x) {
            const int alpha = x < 16 ? 255 : x == 16 ? 51 : 0;
            truth.scanLine(y)[x] = static_cast<std::uint8_t>(alpha);
            for (const int c : {0, 1, 2, 3}) {
                const int own = c == 0 ? 200 : 100, under = 50, screen = c == 1 ? 180 : 40;
                const auto mix = [alpha](int one, int other) { return (alpha * one + (255 - alpha) * other) / 255; };
                source.push_back(static_cast<std::uint8_t>(mix(own, screen)));
                background.push_back(static_cast<std::uint8_t>(under));
                subject.push_back(static_cast<std::uint8_t>(own));
                result.push_back(static_cast<std::uint8_t>(mix(own, under)));
                brighter.push_back(static_cast<std::uint8_t>(mix(own, under) + 10));
            }
        }
    }
    const quality::CompositeErrors perfect =
        quality::measureComposite({source.data(), background.data(), result.data(), subject.data()}, truth);
    EXPECT_EQ(perfect.edges, 0.0);
    EXPECT_EQ(perfect.psnrEdges(), 99.0);
    EXPECT_NEAR(perfect.color, 0.0, 1e-9);
    const quality::CompositeErrors bright =
        quality::measureComposite({source.data(), background.data(), brighter.data(), subject.data()}, truth);
    EXPECT_NEAR(bright.edges, 10.0, 1e-9);
    EXPECT_NEAR(bright.psnrEdges(), 28.13, 0.01);
    EXPECT_GT(bright.color, 2.0);
    EXPECT_LT(bright.color, 6.0);
    // Without them the light of the screen on the soft column stays in the picture that is wanted.
    EXPECT_NEAR(quality::measureComposite({source.data(), background.data(), result.data()}, truth).edges, 0.0, 1.0);
}

}  // namespace
}  // namespace tavrin
