#pragma once

#include <functional>
#include <random>

#include "key/KeyScene.h"

namespace tavrin::test {

using Paint = std::function<Rgb(int x, int y)>;

inline Rgb mix(const Rgb& subject, const Rgb& screen, double alpha) {
    return {subject.r * alpha + screen.r * (1.0 - alpha), subject.g * alpha + screen.g * (1.0 - alpha),
            subject.b * alpha + screen.b * (1.0 - alpha)};
}

/// A picture with a little noise, for the refined key.
struct PaintedScene : KeyScene {
    PaintedScene(int width, int height, const Rgb& screen, const Paint& paint) : KeyScene(width, height) {
        std::mt19937 random(3);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const Rgb color = paint(x, y);
                const double noise = static_cast<double>(random() % 3) - 0.5;
                at(foreground, x, y) = {toByte(color.r + noise), toByte(color.g + noise), toByte(color.b + noise),
                                        255};
            }
        }
        info.baseRed = screen.r;
        info.baseGreen = screen.g;
        info.baseBlue = screen.b;
        info.bRefineKey = true;
    }
};

}  // namespace tavrin::test
