// What the second look at the key takes for screen and what for subject, on drawn pictures.
#include <cmath>
#include <gtest/gtest.h>

#include "key/PaintedScene.h"
#include "key/refine/RefineKey.h"

namespace tavrin {
namespace {

using test::mix;
using test::PaintedScene;

constexpr Rgb kScreen{52.0, 160.0, 74.0};

double body(int x, int y) {
    return std::clamp((60.0 - std::hypot(x - 200, y - 220)) / 3.0 + 0.5, 0.0, 1.0);
}

TEST(RefineScreen, MarksOnTheScreenGoAndHairsStay) {
    const Rgb skin{210.0, 150.0, 120.0}, mark{18.0, 56.0, 26.0}, hair{30.0, 24.0, 20.0};
    const auto isMark = [](int x, int y) {
        const int far = std::abs(x - 320), near = std::abs(y - 60);
        return std::max(far, near) <= 12 && std::min(far, near) <= 2;
    };
    const auto isHair = [](int x, int y) { return x >= 40 && x < 130 && std::abs(y - 80 - x / 4) <= 1; };
    const auto isAtSide = [](int x, int y) { return x >= 780 && std::abs(y - 150) <= 4; };
    PaintedScene scene(800, 600, kScreen, [&](int x, int y) {
        if (isMark(x, y)) return mark;
        if (isHair(x, y) || isAtSide(x, y)) return hair;
        return mix(skin, kScreen, body(x, y));
    });
    Combine(scene.info, 1, 1);
    for (int x = 305; x <= 335; ++x)
        EXPECT_EQ(scene.alpha(x, 60), 0) << x;
    EXPECT_GT(scene.alpha(80, 100), 150) << "a lone hair";
    EXPECT_GT(scene.alpha(792, 150), 200) << "what comes into the picture at its side";
    EXPECT_EQ(scene.alpha(200, 220), 255);
}

TEST(RefineScreen, AScreenThatTurnsBlueLittleByLittleIsFollowed) {
    const Rgb grey{150.0, 145.0, 140.0}, sea{40.0, 135.0, 125.0};
    const auto screenAt = [&](int x) { return mix(sea, kScreen, x / 400.0); };
    const auto error = [&](bool refined) {
        PaintedScene scene(400, 300, kScreen, [&](int x, int y) { return mix(grey, screenAt(x), body(x, y)); });
        scene.info.bRefineKey = refined;
        Combine(scene.info, 1, 1);
        double sum = 0.0;
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 400; ++x)
                sum += std::abs(scene.alpha(x, y) / 255.0 - body(x, y));
        }
        return sum / (400 * 300);
    };
    EXPECT_GT(error(false), 0.05) << "else the picture is no test";
    EXPECT_LT(error(true), 0.004);
}

TEST(RefineScreen, AVeilIsNoScreenThatDrifts) {
    const Rgb white{225.0, 225.0, 230.0}, skin{210.0, 150.0, 120.0};
    const auto veil = [](int x, int y) { return y > 40 ? 0.5 * std::clamp((x - 220) / 120.0, 0.0, 1.0) : 0.0; };
    PaintedScene scene(400, 300, kScreen,
                       [&](int x, int y) { return mix(skin, mix(white, kScreen, veil(x, y)), body(x + 20, y)); });
    Combine(scene.info, 1, 1);
    EXPECT_GT(scene.alpha(390, 200), 80);
}

// Brown hair before a dark screen, far from any bare part of it: its colour is no shade of the screen, but screen
// shows between the hairs.
TEST(RefineScreen, GapsInHairStayOpen) {
    const Rgb hair{85.0, 55.0, 35.0}, dark{40.0, 100.0, 58.0};
    constexpr int kSize = 600;
    const auto truth = [](int x, int y) {
        if (std::hypot(x - 300, y - 300) > 200.0) return 0.0;
        return std::clamp(0.75 + 0.6 * std::sin(x * 0.9 + 3.0 * std::sin(y * 0.05)), 0.0, 1.0);
    };
    PaintedScene scene(kSize, kSize, dark, [&](int x, int y) { return mix(hair, dark, truth(x, y)); });
    Combine(scene.info, 1, 1);
    double least = 0.0;
    int gaps = 0;
    for (int y = 250; y < 350; ++y) {
        for (int x = 250; x < 350; ++x) {
            if (truth(x, y) > 0.2) continue;
            ++gaps;
            least += scene.alpha(x, y) / 255.0;
        }
    }
    EXPECT_LT(least / gaps, 0.4);
}

TEST(RefineScreen, ASourceThatEndsInThePictureLeavesNoLineAtItsSide) {
    const Rgb skin{210.0, 150.0, 120.0};
    const double kept = 0.72;  // of the light, in the source's corners
    PaintedScene scene(400, 300, kScreen, [&](int x, int y) {
        const double far = std::hypot((x - 200) / 160.0, (y - 150) / 200.0), light = 1.0 - (1.0 - kept) * far * far;
        const Rgb own{kScreen.r * light, kScreen.g * light, kScreen.b * light};
        return mix(skin, own, body(x, y));
    });
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 400; ++x) {
            if (x < 40 || x >= 360) scene.at(scene.foreground, x, y) = {52, 160, 74, 255};
        }
    }
    Combine(scene.info, 1, 1);
    int left = 0;
    for (int y = 0; y < 300; ++y) {
        for (int x = 30; x < 50; ++x)
            left = std::max(left, scene.alpha(x, y));
    }
    EXPECT_EQ(left, 0);
    EXPECT_EQ(scene.alpha(200, 220), 255);
}

}  // namespace
}  // namespace tavrin
