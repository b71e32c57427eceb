#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "core/raster/FloatArray3.h"
#include "effects/smoothing/GlobalSmoothing.h"
#include "support/EffectPictures.h"
#include "support/Superseded.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using namespace test;

TEST(GlobalSmoothing, TwoNeighboursMeetByTheirLikeness) {
    // A distance of 10 at sigma 10 weighs 1/e. One iteration has the strength lambda * 1.5 * 1 / (4 - 1) = lambda /
    // 2, so lambda 2 gives k = 1/e in (1 + k) a - k b = 0, (1 + k) b - k a = 10.
    const auto info = bareState(2, 2);
    for (const bool alongRow : {true, false}) {
        const int width = alongRow ? 2 : 1, height = alongRow ? 1 : 2;
        float*** image = memAllocFloat3(height, width, 3);
        float* first = image[0][0];
        float* second = alongRow ? image[0][1] : image[1][0];
        std::fill_n(first, 6, 0.0F);
        second[0] = 10.0F;
        FGS(*info, image, width, height, 1, 10.0, 2.0, 4.0);
        EXPECT_NEAR(first[0], 2.11943, 1e-4);
        EXPECT_NEAR(second[0], 7.88057, 1e-4);
        EXPECT_EQ(second[1], 0.0F);
        memFreeFloat3(image);
    }
}

TEST(GlobalSmoothing, NothingToSmoothChangesNothing) {
    const auto info = bareState(23, 17);
    for (const int slider : {0, 1, 4}) {  // 4 * 50 / 300 is still 0
        info->iGlobalSmoothingLambda = slider;
        info->iOutputImageDPI = 50;
        Bytes picture = waves(23, 17);
        FastGlobalImageSmoothing(*info, 0, picture.data(), 1);
        EXPECT_EQ(picture, waves(23, 17)) << slider;
    }
    info->iGlobalSmoothingLambda = 200;
    Bytes flat = plain(23, 17, {17, 128, 251});
    FastGlobalImageSmoothing(*info, 0, flat.data(), 0);
    EXPECT_EQ(flat, plain(23, 17, {17, 128, 251}));
}

TEST(GlobalSmoothing, NoiseGoesAndEdgesStay) {
    const int w = 80, h = 60;
    Canvas canvas(w, h, {60, 60, 60});
    canvas.fill(w / 2, 0, w, h, {180, 180, 180});
    canvas.addNoise(8);
    const auto info = bareState(w, h);
    info->iGlobalSmoothingLambda = 100;
    FastGlobalImageSmoothing(*info, 0, canvas.bytes.data(), 1);
    const auto red = [&](int x, int y) { return canvas.bytes[pixelOffset(w, x, y)]; };
    for (int y = 0; y < h; ++y) {
        for (int x = 5; x < w - 5; ++x)
            EXPECT_NEAR(red(x, y), x < w / 2 ? 64 : 184, 3) << x << ", " << y;
    }
}

// Solves one line on its own, `step` floats from pixel to pixel.
void solvePlainly(float* line, int count, std::ptrdiff_t step, double sigma, double strength) {
    const auto size = static_cast<std::size_t>(count);
    std::vector<double> on(size + 1, 0.0), share(size + 1, 0.0);  // `on[i]` is the weight between pixels i - 1 and i
    std::vector<std::array<double, 3>> own(size + 1, {0.0, 0.0, 0.0});
    for (std::size_t i = 0; i < size; ++i) {
        const float *here = line + static_cast<std::ptrdiff_t>(i) * step, *next = here + step;
        if (i + 1 < size) {
            double squares = 0.0;
            for (int c = 0; c < 3; ++c)
                squares += (static_cast<double>(here[c]) - next[c]) * (static_cast<double>(here[c]) - next[c]);
            on[i + 1] = std::exp(-std::sqrt(static_cast<int>(std::min(squares, 195075.0))) / sigma) * -strength;
        }
        const double pivot = 1.0 - on[i] - on[i + 1] - on[i] * share[i];
        share[i + 1] = on[i + 1] / pivot;
        for (std::size_t c = 0; c < 3; ++c)
            own[i + 1][c] = (here[c] - on[i] * own[i][c]) / pivot;
    }
    for (std::size_t i = size; i > 0; --i) {
        for (std::size_t c = 0; c < 3; ++c) {
            if (i < size) own[i][c] -= share[i] * own[i + 1][c];
            line[static_cast<std::ptrdiff_t>(i - 1) * step + static_cast<std::ptrdiff_t>(c)] =
                static_cast<float>(own[i][c]);
        }
    }
}

TEST(GlobalSmoothing, EveryTargetSolvesLineByLine) {
    for (const auto& [w, h] : {std::pair{1, 1}, {1, 21}, {33, 2}, {8, 8}, {43, 37}}) {
        const auto info = bareState(w, h);
        const Bytes noise = waves(w, h);
        const std::size_t floats = static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * 3;
        const std::vector<float> start(noise.begin(), noise.begin() + static_cast<std::ptrdiff_t>(floats));
        std::vector<float> direct = start;
        const std::ptrdiff_t row = std::ptrdiff_t{3} * w;
        double strength = 40.0 * 1.5 * 4.0 / 15.0;
        for (int iteration = 0; iteration < 2; ++iteration, strength /= 4.0) {
            for (int y = 0; y < h; ++y)
                solvePlainly(&direct[static_cast<std::size_t>(y * row)], w, 3, 12.0, strength);
            for (int x = 0; x < w; ++x)
                solvePlainly(&direct[static_cast<std::size_t>(3 * x)], h, row, 12.0, strength);
        }
        onEveryTarget([&] {
            float*** image = memAllocFloat3(h, w, 3);
            std::copy(start.begin(), start.end(), image[0][0]);
            FGS(*info, image, w, h, 2, 12.0, 40.0, 4.0);
            EXPECT_TRUE(std::equal(direct.begin(), direct.end(), image[0][0])) << w << " x " << h;
            memFreeFloat3(image);
        });
    }
}

TEST(GlobalSmoothing, EveryShapeAndAnyNumberOfThreads) {
    for (const auto& [w, h] : {std::pair{1, 1}, {1, 41}, {53, 1}, {67, 45}, {2, 3}}) {
        const auto info = bareState(w, h);
        info->iGlobalSmoothingLambda = 90;
        sameOnAllThreads(waves(w, h), [&](std::uint8_t* p) { FastGlobalImageSmoothing(*info, 0, p, 1); });
        for (const int slider : kExtremes) {
            info->iGlobalSmoothingLambda = slider;
            Bytes picture = waves(w, h);
            FastGlobalImageSmoothing(*info, 0, picture.data(), 0);
        }
    }
    const auto none = bareState(0, 0);
    FastGlobalImageSmoothing(*none, 0, nullptr, 1);
}

TEST(GlobalSmoothing, ASupersededRunStops) {
    const auto info = bareState(900, 700);
    info->iGlobalSmoothingLambda = 80;
    const Bytes before = waves(900, 700);
    Bytes picture = before;
    info->StartUpdate();
    FastGlobalImageSmoothing(*info, 0, picture.data(), 1);
    EXPECT_EQ(picture, before);
    expectStopsEarly(*info, [&] { FastGlobalImageSmoothing(*info, 0, picture.data(), 1); });
}

}  // namespace
}  // namespace tavrin
