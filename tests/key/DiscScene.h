#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

#include "key/KeyScene.h"

namespace tavrin::test {

inline constexpr int kWidth = 240, kHeight = 180;

/// Share of a disc with a soft edge.
inline double discAlpha(int x, int y) {
    const double far = std::hypot(x - kWidth / 2 + 0.3, y - kHeight / 2 - 0.2);
    return std::clamp((62.0 - far) / 4.0, 0.0, 1.0);
}

inline Pixel mixed(const Rgb& subject, const Rgb& screen, double alpha) {
    const auto byte = [&](double s, double b) { return toByte(s * alpha + b * (1.0 - alpha) + 0.5); };
    return {byte(subject.r, screen.r), byte(subject.g, screen.g), byte(subject.b, screen.b), 255};
}

inline Rgb rgbOf(const Pixel& pixel) {
    return {static_cast<double>(pixel[0]), static_cast<double>(pixel[1]), static_cast<double>(pixel[2])};
}

/// A warm disc before a screen that grows darker to the right, with a little noise.
struct DiscScene : KeyScene {
    explicit DiscScene(bool blue = false) : KeyScene(kWidth, kHeight) {
        std::mt19937 random(7);
        info.bUseBlueLogic = blue;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const double light = 1.0 - 0.15 * x / kWidth, noise = static_cast<double>(random() % 5) - 2.0;
                const Rgb screen{40.0 * light + noise, 200.0 * light + noise, 60.0 * light + noise};
                Pixel& pixel = at(foreground, x, y) =
                    mixed({170.0 + noise, 110.0 + noise, 90.0}, screen, discAlpha(x, y));
                if (blue) std::swap(pixel[1], pixel[2]);
            }
        }
    }

    void key(bool refined) {
        info.bRefineKey = refined;
        Combine(info, 1, 1);
    }
    double alphaError() {
        double sum = 0.0;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x)
                sum += std::abs(alpha(x, y) / 255.0 - discAlpha(x, y));
        }
        return sum / (kWidth * kHeight);
    }
};

}  // namespace tavrin::test
