// The second look at the key: the colours that it leaves to rims and to clothes, on drawn pictures.
#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

#include "key/DiscScene.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::mixed;
using test::Pixel;

/// A creased shirt near the screen's hue, up to the lower end, with a few spots that the key takes for screen.
struct ShirtScene : KeyScene {
    explicit ShirtScene(int size) : KeyScene(size, size, {92, 163, 110, 255}) {
        info.baseRed = 92.0;
        info.baseGreen = 163.0;
        info.baseBlue = 110.0;
        info.iGreenProtectMode = 0;
        for (int y = size / 4; y < size; ++y) {
            for (int x = size / 4; x < size * 3 / 4; ++x) {
                const auto fold = static_cast<std::uint8_t>(x / 4 % 2 * 24);
                const bool deep = x > size * 2 / 5 && x < size * 3 / 5 && y > size / 2;
                const bool spot = deep && x % (size / 8) < size / 30 && y % (size / 8) < size / 30;
                at(foreground, x, y) = spot ? Pixel{20, 168, 112, 255}
                                            : Pixel{17, static_cast<std::uint8_t>(152 + fold),
                                                    static_cast<std::uint8_t>(122 + fold), 255};
            }
        }
        info.bRefineKey = true;
        Combine(info, 1, 1);
    }
};

TEST(RefineColor, ClothThatNoLightOnTheScreenExplainsStaysAtEverySize) {
    for (const int size : {240, 480, 960}) {
        ShirtScene scene(size);
        int open = 0, tinted = 0;
        for (int y = size * 3 / 10; y < size; ++y) {
            for (int x = size * 3 / 10; x < size * 7 / 10; ++x) {
                const Pixel& own = scene.at(scene.foreground, x, y);
                const Pixel& made = scene.at(scene.combined, x, y);
                open += scene.alpha(x, y) < 250;
                tinted += made[1] + 60 < own[1];
            }
        }
        EXPECT_EQ(open, 0) << size;
        EXPECT_EQ(tinted, 0) << size << ": its own green went";
        EXPECT_EQ(scene.alpha(size / 8, size / 2), 0) << size;
    }
}

TEST(RefineColor, TheRimOfGreenClothIsAsGreenAsItsInsideAndThatOfOthersIsNot) {
    const Rgb screen{92.0, 163.0, 110.0};
    // How far the green of the soft rim is below the blue, at the most.
    const auto missing = [&](const Rgb& cloth) {
        constexpr int kSize = 480;
        KeyScene scene(kSize, kSize, {92, 163, 110, 255});
        scene.info.baseRed = screen.r;
        scene.info.baseGreen = screen.g;
        scene.info.baseBlue = screen.b;
        scene.info.iGreenProtectMode = 0;
        for (int y = 100; y < kSize; ++y) {
            for (int x = 100; x < 380; ++x) {
                const double alpha = std::clamp(std::min(x - 100, 380 - x) / 8.0, 0.0, 1.0);
                scene.at(scene.foreground, x, y) = mixed(cloth, screen, alpha);
            }
            for (int x = 200; x < 280 && y < 180; ++x)
                scene.at(scene.foreground, x, y) = {190, 120, 100, 255};
        }
        scene.info.bRefineKey = scene.info.bOutputTransparency = true;
        Combine(scene.info, 1, 1);
        int most = 0;
        for (int x = 100; x < 120; ++x) {
            const Pixel& made = scene.at(scene.combined, x, 300);
            if (made[3] > 150) most = std::max(most, made[2] - made[1]);
        }
        return most;
    };
    EXPECT_LT(missing({17.0, 160.0, 132.0}), 12) << "bluish green";
    EXPECT_GT(missing({60.0, 90.0, 140.0}), 30) << "blue: the screen's light goes";
}

TEST(RefineColor, WhatTheScreenLendsARimIsToldByTheInsidesColours) {
    const Rgb screen{50.0, 145.0, 72.0};
    // Least and most of the screen's channel at the end of a rim of 10 pixels that the screen lights, and that gets
    // darker.
    const auto rimOf = [&](const Rgb& own, double lent, double dark) {
        KeyScene scene(480, 360, {50, 145, 72, 255});
        scene.info.baseRed = screen.r;
        scene.info.baseGreen = screen.g;
        scene.info.baseBlue = screen.b;
        for (int y = 0; y < 360; ++y) {
            for (int x = 98; x < 480; ++x) {
                const double near = std::clamp((108.0 - x) / 4.0, 0.0, 1.0), light = 1.0 - dark * near;
                const Rgb lit{own.r * light, own.g * light + lent * near, own.b * light};
                scene.at(scene.foreground, x, y) = mixed(lit, screen, std::clamp((x - 97.5) / 4.0, 0.0, 1.0));
            }
        }
        scene.info.bRefineKey = scene.info.bOutputTransparency = true;
        Combine(scene.info, 1, 1);
        std::pair<int, int> range{255, 0};
        for (int x = 100; x < 104; ++x) {
            const int green = scene.at(scene.combined, x, 180)[1];
            range = {std::min(range.first, green), std::max(range.second, green)};
        }
        return range;
    };
    EXPECT_LT(rimOf({90.0, 48.0, 38.0}, 20.0, 0.0).second, 60)
        << "brown hair is not as green as its red and blue allow";
    EXPECT_GT(rimOf({205.0, 165.0, 110.0}, 0.0, 0.0).first, 159) << "blond hair gets no redder";
    EXPECT_LT(rimOf({205.0, 165.0, 110.0}, 30.0, 0.0).second, 172) << "nor does it stay green";
    EXPECT_LT(rimOf({120.0, 20.0, 96.0}, 10.0, 1.0).second, 40) << "a colour that has less than none has none";
}

TEST(RefineColor, ADarkSuitOfTheScreensHueKeepsItAndBlackClothTakesNoneUp) {
    const Rgb screen{50.0, 145.0, 72.0};
    // The screen's channel in the middle and near the edge.
    const auto greenOf = [&](const Rgb& own, double lent) {
        KeyScene scene(480, 360, {50, 145, 72, 255});
        scene.info.baseRed = screen.r;
        scene.info.baseGreen = screen.g;
        scene.info.baseBlue = screen.b;
        scene.info.iGreenProtectMode = 0;
        for (int y = 0; y < 360; ++y) {
            for (int x = 120; x < 480; ++x) {
                const double near = std::clamp((144.0 - x) / 24.0, 0.0, 1.0);
                scene.at(scene.foreground, x, y) = mixed({own.r, own.g + lent * near, own.b}, screen, 1.0);
            }
        }
        scene.info.bRefineKey = true;
        Combine(scene.info, 1, 1);
        return std::pair<int, int>{scene.at(scene.combined, 300, 180)[1], scene.at(scene.combined, 124, 180)[1]};
    };
    EXPECT_GT(greenOf({40.0, 60.0, 45.0}, 0.0).first, 55) << "dark green cloth";
    EXPECT_GT(greenOf({40.0, 60.0, 45.0}, 0.0).second, 52) << "up to its edge";
    EXPECT_LT(greenOf({25.0, 25.0, 27.0}, 25.0).second, 30) << "black cloth that the screen lights";
}

TEST(RefineColor, KeepsTheSubjectsOwnGreenAsFarAsItsSliderSays) {
    KeyScene scene(400, 300);
    for (int y = 100; y < 300; ++y) {
        for (int x = 120; x < 280; ++x)
            scene.at(scene.foreground, x, y) = {100, 140, 60, 255};
    }
    for (int y = 100; y < 140; ++y) {
        for (int x = 120; x < 280; ++x)
            scene.at(scene.foreground, x, y) = {190, 130, 110, 255};
    }
    scene.info.bRefineKey = true;
    scene.info.iGreenProtectMode = 0;
    const auto green = [&](int slider) {
        scene.info.iSliderRefineOwnGreen = slider;
        Combine(scene.info, 1, 1);
        return int{scene.at(scene.combined, 200, 220)[1]};
    };
    const int none = green(-100), usual = green(0);
    EXPECT_GT(usual, none + 20);
    EXPECT_GE(green(100), usual);
}

}  // namespace
}  // namespace tavrin
