// What a blur dims of the screen, on a drawn picture.
#include <cmath>
#include <gtest/gtest.h>

#include "key/PaintedScene.h"

namespace tavrin {
namespace {

using test::mix;
using test::PaintedScene;

constexpr int kWidth = 800, kHeight = 600;
constexpr Rgb kScreen{52.0, 160.0, 74.0}, kHair{85.0, 55.0, 35.0};

// 1 inside, and a blur of it that ends 90 pixels farther out.
double softBody(int x, int y) {
    const double out = std::clamp((std::hypot(x - 400, y - 400) - 150.0) / 90.0, 0.0, 1.0);
    return 0.5 + 0.5 * std::cos(out * M_PI);
}

// The mean difference of alpha from `truth` where that is from `low` to `high`.
double bias(PaintedScene& scene, double low, double high, double (*truth)(int, int)) {
    double sum = 0.0;
    int count = 0;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const double alpha = truth(x, y);
            if (alpha < low || alpha > high) continue;
            sum += scene.alpha(x, y) / 255.0 - alpha;
            ++count;
        }
    }
    return sum / std::max(count, 1);
}

TEST(RefineHaze, ABlurKeepsItsWholeWidth) {
    PaintedScene scene(kWidth, kHeight, kScreen, [](int x, int y) { return mix(kHair, kScreen, softBody(x, y)); });
    Combine(scene.info, 1, 1);
    EXPECT_NEAR(bias(scene, 0.1, 0.4, softBody), 0.0, 0.05) << "what the key took for screen";
    EXPECT_LT(bias(scene, 0.4, 0.7, softBody), 0.18) << "what looks whole beside the screen's colour";
    EXPECT_EQ(scene.alpha(400, 400), 255);
    EXPECT_EQ(scene.alpha(60, 60), 0);
}

}  // namespace
}  // namespace tavrin
